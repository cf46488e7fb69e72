#pragma once

#include "repair/box_edges.h"
#include "repair/item_plan.h"
#include "repair/object_items.h"
#include "repair/xml_tree.h"

#include <QHash>
#include <QMap>
#include <QMarginsF>
#include <QString>

namespace repair {

class Document;

// Borders of paragraphs are objects of their own, which get their places when the lines of their
// text have theirs. A mark in the paragraph names them.

/// Of a paragraph: whether it has its border in common with the one before, or after it.
inline const QString JoinsBeforeAttribute = QLatin1String("labelport:joins-before");
inline const QString JoinsAfterAttribute = QLatin1String("labelport:joins-after");

/// Marks paragraphs that follow one another within the same border.
void joinEdges(Document& document, const Node& parent);

/// The sides of a paragraph's border, and its ground.
///
/// @param key of the mark in the paragraph
[[nodiscard]] Node::Children paragraphEdges(Document& document, const Node& paragraph,
                                            const QString& key);

/// What the border of a paragraph leaves free around its lines, in points.
[[nodiscard]] QMarginsF edgeInsets(const Properties& style, const Node& paragraph);

/// The paragraphs of a page by the keys of the marks that take no room.
class MarkedParagraphs
{
public:
    MarkedParagraphs(Document& document, const Node& page);

    /// Nothing for an object that does not belong to the border of a paragraph.
    [[nodiscard]] std::optional<ParagraphEdge> edgeOf(const Node& object) const;

private:
    QHash<QString, ParagraphEdge> m_places;
};

/// Places the borders of paragraphs; the texts have their places.
///
/// @param rowTops by the numbers of rows
void placeParagraphEdges(const QMap<int, ObjectItems>& objects, const QMap<int, double>& rowTops);

} // namespace repair
