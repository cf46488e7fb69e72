#pragma once

#include "limits/xml/xml_limits.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringView>

#include <optional>
#include <vector>

class QDomElement;

namespace xmllimits {

class Element;
class ElementTree;

/// A node of a tree: an element, a text, or another node of the document.
///
/// A node is an index, cheap to copy, and null if nothing was found. It is valid as long as
/// its tree lives and nothing else is parsed into it.
class Node
{
public:
    Node() = default;

    [[nodiscard]] bool isNull() const { return m_tree == nullptr; }
    /// Whether this is a text or a CDATA section. White space alone is never a node.
    [[nodiscard]] bool isText() const;
    /// The characters of a text; empty for all other nodes.
    [[nodiscard]] QString nodeValue() const;
    /// The same node; null if it is not an element.
    [[nodiscard]] Element toElement() const;

    [[nodiscard]] Node firstChild() const;
    [[nodiscard]] Node nextSibling() const;
    /// Comments and instructions count as well.
    [[nodiscard]] bool hasChildNodes() const;

protected:
    friend class ElementTree;
    Node(const ElementTree* tree, quint32 index, quint32 end)
        : m_tree(tree)
        , m_index(index)
        , m_end(end)
    {}

    [[nodiscard]] Element nextElementFrom(Node node, QStringView tag) const;

    const ElementTree* m_tree = nullptr;
    quint32 m_index = 0;
    quint32 m_end = 0; // after the last sibling and its descendants
};

/// An element. A null one has no name, no attributes and no children.
class Element : public Node
{
public:
    Element() = default;

    /// The name as it is written, with its prefix.
    [[nodiscard]] QString tagName() const;
    [[nodiscard]] bool hasAttribute(QStringView name) const;
    [[nodiscard]] QString attribute(QStringView name, const QString& otherwise = QString()) const;
    /// All text inside, at any depth.
    [[nodiscard]] QString text() const;

    /// The first child element, or the first of this name.
    [[nodiscard]] Element firstChildElement(QStringView tag = {}) const;
    /// The next sibling element, or the next of this name.
    [[nodiscard]] Element nextSiblingElement(QStringView tag = {}) const;

private:
    friend class Node;
    explicit Element(const Node& node)
        : Node(node)
    {}
};

/// A document to read in, with the same contents as a QDomDocument has: the same documents
/// are accepted, the same texts are left out as white space, a fault has the same message and
/// place. It cannot be changed, and takes a fraction of the time and memory, because a label
/// of a hundred thousand shapes becomes a handful of tables instead of millions of objects.
class ElementTree
{
public:
    ElementTree() = default;
    /// A copy of an element and all that it contains; an empty tree of a null element.
    explicit ElementTree(const QDomElement& root);

    /// Reads a document, after checking the bounds. External entities are never loaded.
    ///
    /// @param bytes     the document in any encoding that its declaration names
    /// @param treeBytes the memory that the tree may take
    /// @return nothing on success, else what is wrong, and the tree is empty
    [[nodiscard]] std::optional<ParseFailure> parse(const QByteArray& bytes,
                                                    qint64 treeBytes = MaximumTreeBytes);

    /// The root; null while nothing has been parsed.
    [[nodiscard]] Element documentElement() const;

private:
    friend class Node;
    friend class Element;
    friend class TreeBuilder;

    /// Characters in m_characters.
    struct Span
    {
        quint32 start = 0;
        quint32 length = 0;
    };
    struct AttributeRecord
    {
        quint32 name = 0; // in m_names
        Span value;
    };
    // All nodes are in document order, so that the content of an element follows it: the
    // index after its last descendant is its next sibling.
    struct NodeRecord
    {
        quint32 name = 0; // in m_names; or TextName, OtherName
        quint32 end = 0;
        Span content; // a text's characters, or an element's part of m_attributes
    };

    static constexpr quint32 TextName = 0xFFFF'FFFF;
    static constexpr quint32 OtherName = 0xFFFF'FFFE;

    [[nodiscard]] bool isElement(quint32 node) const { return m_nodes[node].name < OtherName; }
    [[nodiscard]] QStringView characters(Span span) const
    {
        return QStringView(m_characters).sliced(span.start, span.length);
    }
    [[nodiscard]] const AttributeRecord* findAttribute(quint32 node, QStringView name) const;

    std::vector<NodeRecord> m_nodes;
    std::vector<AttributeRecord> m_attributes;
    QList<QString> m_names;
    QString m_characters;
};

} // namespace xmllimits
