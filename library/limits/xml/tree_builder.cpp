#include "limits/xml/tree_builder.h"

#include "limits/xml/bounds_check.h"

#include <QCoreApplication>

#include <utility>

namespace xmlbounds {

std::optional<ParseFailure> ElementTree::parse(const QByteArray& bytes, qint64 treeBytes)
{
    *this = ElementTree();
    if (auto excess = exceededBound(bytes, treeBytes, CompactCosts)) {
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

// Nobody looks into a comment, but an element that contains one is not empty.
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

} // namespace xmlbounds
