// Fills element trees.

#include "limits/xml/element_tree.h"

#include <QCoreApplication>
#include <QDomElement>
#include <QHash>
#include <QXmlStreamReader>

#include <utility>

namespace xmllimits {

/// Fills a tree from a document. It keeps and leaves out the same nodes as QDomDocument, and
/// uses the same stream reader, so that errors are the same, too.
class TreeBuilder
{
public:
    explicit TreeBuilder(ElementTree& tree)
        : m_tree(tree)
    {}

    /// @return nothing on success, else the reader's message and place
    [[nodiscard]] std::optional<ParseFailure> build(const QByteArray& bytes);
    void copy(const QDomElement& element);

private:
    [[nodiscard]] const char* take(const QXmlStreamReader& reader);
    [[nodiscard]] const char* takeDoctype();
    void takeStart(const QXmlStreamReader& reader);
    void takeEnd();
    void takeText(const QXmlStreamReader& reader);
    void addStart(QStringView name, quint32 attributes);
    void addAttribute(QStringView name, QStringView value);
    void addText(QStringView text);
    void takeOther();
    [[nodiscard]] quint32 nameIndex(QStringView name);
    [[nodiscard]] ElementTree::Span store(QStringView characters);

    ElementTree& m_tree;
    QHash<QStringView, quint32> m_nameIndexes; // views of the tree's names
    std::vector<quint32> m_open;               // the elements around the present place
    bool m_hasDoctype = false;
};

ElementTree::ElementTree(const QDomElement& root)
{
    if (!root.isNull()) {
        TreeBuilder(*this).copy(root);
    }
}

std::optional<ParseFailure> ElementTree::parse(const QByteArray& bytes, qint64 treeBytes)
{
    *this = ElementTree();
    if (auto excess = exceededLimit(bytes, treeBytes, CompactCosts)) {
        return excess;
    }
    auto failure = TreeBuilder(*this).build(bytes);
    if (failure) {
        *this = ElementTree();
    }
    return failure;
}

std::optional<ParseFailure> TreeBuilder::build(const QByteArray& bytes)
{
    QXmlStreamReader reader(bytes);
    reader.setNamespaceProcessing(false);
    const char* objection = nullptr;
    while (!reader.atEnd() && objection == nullptr) {
        reader.readNext();
        objection = take(reader);
    }
    if (objection == nullptr && !reader.hasError()) {
        return std::nullopt;
    }
    return ParseFailure{objection != nullptr ? QCoreApplication::translate("QDomParser", objection)
                                             : reader.errorString(),
                        reader.lineNumber(), reader.columnNumber()};
}

// Gives what QDomDocument objects to where the stream reader does not.
const char* TreeBuilder::take(const QXmlStreamReader& reader)
{
    switch (reader.tokenType()) {
    case QXmlStreamReader::DTD:
        return takeDoctype();
    case QXmlStreamReader::StartElement:
        takeStart(reader);
        break;
    case QXmlStreamReader::EndElement:
        takeEnd();
        break;
    case QXmlStreamReader::Characters:
        takeText(reader);
        break;
    case QXmlStreamReader::Comment:
    case QXmlStreamReader::ProcessingInstruction:
    case QXmlStreamReader::EntityReference:
        takeOther();
        break;
    default:
        break;
    }
    return nullptr;
}

const char* TreeBuilder::takeDoctype()
{
    if (!m_tree.m_nodes.empty()) {
        return QT_TRANSLATE_NOOP("QDomParser", "Unexpected token");
    }
    if (std::exchange(m_hasDoctype, true)) {
        return QT_TRANSLATE_NOOP("QDomParser", "Multiple DTD sections are not allowed");
    }
    return nullptr;
}

void TreeBuilder::takeStart(const QXmlStreamReader& reader)
{
    const QXmlStreamAttributes attributes = reader.attributes();
    addStart(reader.qualifiedName(), static_cast<quint32>(attributes.size()));
    for (const QXmlStreamAttribute& attribute : attributes) {
        addAttribute(attribute.qualifiedName(), attribute.value());
    }
}

void TreeBuilder::addStart(QStringView name, quint32 attributes)
{
    m_open.push_back(static_cast<quint32>(m_tree.m_nodes.size()));
    m_tree.m_nodes.push_back(
        {nameIndex(name), 0, {static_cast<quint32>(m_tree.m_attributes.size()), attributes}});
}

void TreeBuilder::addAttribute(QStringView name, QStringView value)
{
    m_tree.m_attributes.push_back({nameIndex(name), store(value)});
}

void TreeBuilder::copy(const QDomElement& element)
{
    const QDomNamedNodeMap attributes = element.attributes();
    addStart(element.tagName(), static_cast<quint32>(attributes.size()));
    for (int i = 0; i < attributes.size(); ++i) {
        addAttribute(attributes.item(i).nodeName(), attributes.item(i).nodeValue());
    }
    for (QDomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        if (child.isElement()) {
            copy(child.toElement());
        } else if (child.isText()) {
            addText(child.nodeValue());
        } else {
            takeOther();
        }
    }
    takeEnd();
}

void TreeBuilder::takeEnd()
{
    m_tree.m_nodes[m_open.back()].end = static_cast<quint32>(m_tree.m_nodes.size());
    m_open.pop_back();
}

void TreeBuilder::takeText(const QXmlStreamReader& reader)
{
    // Hard spaces alone are white space here, too; a CDATA section never is, not even an
    // empty one.
    const QStringView text = reader.text();
    if (m_open.empty() || (!reader.isCDATA() && text.trimmed().isEmpty())) {
        return;
    }
    addText(text);
}

void TreeBuilder::addText(QStringView text)
{
    const auto index = static_cast<quint32>(m_tree.m_nodes.size());
    m_tree.m_nodes.push_back({ElementTree::TextName, index + 1, store(text)});
}

// Comments have no content here, but an element that contains one is not empty.
void TreeBuilder::takeOther()
{
    if (!m_open.empty()) {
        const auto index = static_cast<quint32>(m_tree.m_nodes.size());
        m_tree.m_nodes.push_back({ElementTree::OtherName, index + 1, {}});
    }
}

quint32 TreeBuilder::nameIndex(QStringView name)
{
    const auto known = m_nameIndexes.constFind(name);
    if (known != m_nameIndexes.constEnd()) {
        return *known;
    }
    const auto index = static_cast<quint32>(m_tree.m_names.size());
    m_tree.m_names.append(name.toString());
    m_nameIndexes.insert(m_tree.m_names.constLast(), index);
    return index;
}

ElementTree::Span TreeBuilder::store(QStringView characters)
{
    const auto start = static_cast<quint32>(m_tree.m_characters.size());
    m_tree.m_characters += characters;
    return {start, static_cast<quint32>(characters.size())};
}

} // namespace xmllimits
