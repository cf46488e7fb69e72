#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringView>

#include <memory>
#include <optional>
#include <vector>

namespace repair {

/// An attribute with its qualified name.
struct Attribute
{
    QString name;
    QString value;
};

/// An element or a text of a document that is being rewritten.
///
/// Unlike the trees of the readers it can be changed, and it keeps blanks between elements:
/// they separate words.
class Node
{
public:
    using Children = std::vector<std::unique_ptr<Node>>;

    /// With its prefix, as it is written. Empty for a text.
    QString name;
    /// The characters of a text; empty for an element.
    QString text;
    QList<Attribute> attributes;
    Children children;

    /// A new element, a new text, and a copy with everything inside.
    [[nodiscard]] static std::unique_ptr<Node> element(const QString& name);
    [[nodiscard]] static std::unique_ptr<Node> characters(const QString& text);
    [[nodiscard]] std::unique_ptr<Node> clone() const;

    [[nodiscard]] bool isText() const { return name.isEmpty(); }
    [[nodiscard]] bool is(QStringView tag) const { return name == tag; }
    [[nodiscard]] QString attribute(QStringView attributeName) const;
    [[nodiscard]] bool hasAttribute(QStringView attributeName) const;
    /// Replaces the value of an attribute, or adds it as the last.
    void setAttribute(const QString& attributeName, const QString& value);
    void removeAttribute(QStringView attributeName);

    /// The first child element of this name; null if there is none.
    [[nodiscard]] Node* child(QStringView tag) const;
    /// The first child element; null if there is none.
    [[nodiscard]] Node* firstElement() const;
    /// The child element of this name, appended if it is missing.
    Node& childOrNew(const QString& tag);
    Node& append(std::unique_ptr<Node> node);
    /// All characters inside, at any depth.
    [[nodiscard]] QString allText() const;
};

/// Parses a document within the limits on hostile XML.
///
/// @param treeBytes memory that the tree may take
/// @return the root; null if the document is not well-formed or exceeds a limit
[[nodiscard]] std::unique_ptr<Node> parseTree(const QByteArray& bytes, qint64 treeBytes);

/// The document as UTF-8 text.
[[nodiscard]] QByteArray writeTree(const Node& root);

/// Whether a section, paragraph or text of a text document is not shown.
[[nodiscard]] bool isHidden(const Node& node);

/// Calls a function with every element below the root, parents first.
template <class Function>
void forEachElement(Node& root, const Function& function)
{
    for (const auto& child : root.children) {
        if (!child->isText()) {
            function(*child);
            forEachElement(*child, function);
        }
    }
}

} // namespace repair
