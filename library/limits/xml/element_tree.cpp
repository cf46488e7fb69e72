#include "limits/xml/element_tree.h"

#include <QCoreApplication>
#include <QHash>
#include <QXmlStreamReader>

#include <utility>

namespace xmllimits {

bool Node::isText() const
{
    return !isNull() && m_tree->m_nodes[m_index].name == ElementTree::TextName;
}

QString Node::nodeValue() const
{
    return isText() ? m_tree->characters(m_tree->m_nodes[m_index].content).toString() : QString();
}

Element Node::toElement() const
{
    return !isNull() && m_tree->isElement(m_index) ? Element(*this) : Element();
}

bool Node::hasChildNodes() const
{
    return !isNull() && m_tree->m_nodes[m_index].end > m_index + 1;
}

Node Node::firstChild() const
{
    return hasChildNodes() ? Node(m_tree, m_index + 1, m_tree->m_nodes[m_index].end) : Node();
}

Node Node::nextSibling() const
{
    if (isNull() || m_tree->m_nodes[m_index].end >= m_end) {
        return {};
    }
    return {m_tree, m_tree->m_nodes[m_index].end, m_end};
}

// This node or the first following sibling that is an element, of this name if one is given.
Element Node::nextElementFrom(Node node, QStringView tag) const
{
    for (; !node.isNull(); node = node.nextSibling()) {
        const quint32 name = m_tree->m_nodes[node.m_index].name;
        if (name < ElementTree::OtherName && (tag.isNull() || m_tree->m_names[name] == tag)) {
            return Element(node);
        }
    }
    return {};
}

QString Element::tagName() const
{
    return isNull() ? QString() : m_tree->m_names[m_tree->m_nodes[m_index].name];
}

bool Element::hasAttribute(QStringView name) const
{
    return !isNull() && m_tree->findAttribute(m_index, name) != nullptr;
}

QString Element::attribute(QStringView name, const QString& otherwise) const
{
    const auto* found = isNull() ? nullptr : m_tree->findAttribute(m_index, name);
    return found != nullptr ? m_tree->characters(found->value).toString() : otherwise;
}

QString Element::text() const
{
    QString text;
    const quint32 end = isNull() ? 0 : m_tree->m_nodes[m_index].end;
    for (quint32 node = m_index + 1; node < end; ++node) {
        if (m_tree->m_nodes[node].name == ElementTree::TextName) {
            text += m_tree->characters(m_tree->m_nodes[node].content);
        }
    }
    return text;
}

Element Element::firstChildElement(QStringView tag) const
{
    return nextElementFrom(firstChild(), tag);
}

Element Element::nextSiblingElement(QStringView tag) const
{
    return nextElementFrom(nextSibling(), tag);
}

Element ElementTree::documentElement() const
{
    return m_nodes.empty() ? Element() : Node(this, 0, m_nodes.front().end).toElement();
}

const ElementTree::AttributeRecord* ElementTree::findAttribute(quint32 node, QStringView name) const
{
    const Span part = m_nodes[node].content;
    for (quint32 i = part.start; i < part.start + part.length; ++i) {
        if (m_names[m_attributes[i].name] == name) {
            return &m_attributes[i];
        }
    }
    return nullptr;
}

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

private:
    [[nodiscard]] const char* take(const QXmlStreamReader& reader);
    [[nodiscard]] const char* takeDoctype();
    void takeStart(const QXmlStreamReader& reader);
    void takeEnd();
    void takeText(const QXmlStreamReader& reader);
    void takeOther();
    [[nodiscard]] quint32 nameIndex(QStringView name);
    [[nodiscard]] ElementTree::Span store(QStringView characters);

    ElementTree& m_tree;
    QHash<QStringView, quint32> m_nameIndexes; // views of the tree's names
    std::vector<quint32> m_open;               // the elements around the present place
    bool m_hasDoctype = false;
};

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
    const ElementTree::Span part{static_cast<quint32>(m_tree.m_attributes.size()),
                                 static_cast<quint32>(attributes.size())};
    for (const QXmlStreamAttribute& attribute : attributes) {
        m_tree.m_attributes.push_back(
            {nameIndex(attribute.qualifiedName()), store(attribute.value())});
    }
    m_open.push_back(static_cast<quint32>(m_tree.m_nodes.size()));
    m_tree.m_nodes.push_back({nameIndex(reader.qualifiedName()), 0, part});
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
