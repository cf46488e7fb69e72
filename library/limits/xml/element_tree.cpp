#include "limits/xml/element_tree.h"

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

} // namespace xmllimits
