#pragma once

#include "repair/paragraph_spaces.h"
#include "repair/styles.h"
#include "repair/xml_tree.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <functional>
#include <memory>

namespace repair {

/// A member of the package; empty if it is missing, damaged or too large.
using MemberReader = std::function<QByteArray(const QString& name)>;

/// One page of a document while it is being rewritten.
///
/// The steps change `content` and `styles`. Names in `labelport:` are ours: the reader does
/// not know them, the plan for the items does.
class Document
{
public:
    Document(std::unique_ptr<Node> stylesRoot, std::unique_ptr<Node> contentRoot,
             MemberReader memberReader);

    std::unique_ptr<Node> styles;
    std::unique_ptr<Node> content;
    MemberReader readMember;
    /// Pictures that were made, by their names in the package.
    QHash<QString, QByteArray> newMembers;
    /// The page, from 1.
    int pageNumber = 1;
    /// Whether the page was laid out from a text document.
    bool wasText = false;
    SpaceRules spaces;
    /// Whether the styles of the master pages are among those of the content.
    bool hasMasterStyles = false;

    /// The body: office:drawing, office:text or another one; null if there is none.
    [[nodiscard]] Node* body() const;
    /// The page of a drawing; null for all other documents.
    [[nodiscard]] Node* page() const;
    [[nodiscard]] bool isText() const;

    /// A drawing of one page, with everything else as it is here.
    /// @param number of the page, from 1
    [[nodiscard]] Document withPage(std::unique_ptr<Node> onlyPage, int number) const;

    /// The styles as they are now. The table is read again after a change of styles.
    [[nodiscard]] const StyleTable& table();
    void forgetTable() { m_table.reset(); }

    /// The name of an automatic style with exactly these properties, made if it is missing.
    [[nodiscard]] QString styleFor(const QString& family, const StyleProperties& properties);
    /// A number for the mark that an object leaves in its text.
    [[nodiscard]] int newMark() { return ++m_marks; }
    /// Puts a drawing into the package and gives its name there.
    [[nodiscard]] QString addDrawing(const QByteArray& svg);

private:
    std::unique_ptr<StyleTable> m_table;
    QHash<QString, QString> m_madeStyles;
    int m_made = 0;
    int m_marks = 0;
};

/// The properties of a shape's graphic style, with the defaults.
[[nodiscard]] Properties graphicOf(Document& document, const Node& shape);

/// What the automatic style of a table, row, column or cell states in its element with this tag.
[[nodiscard]] Properties statedBy(const Document& document, const Node& part, const QString& tag);
/// The same of an automatic style of any family.
[[nodiscard]] Properties statedInStyle(const Document& document, const QString& style,
                                       const QString& tag);

} // namespace repair
