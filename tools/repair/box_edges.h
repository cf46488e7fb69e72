#pragma once

#include "repair/styles.h"
#include "repair/xml_tree.h"

#include <QRectF>
#include <QString>

namespace repair {

class Document;

/// The border on one side of a cell, paragraph or frame.
struct Edge
{
    double width = 0.0; ///< points; 0 for none
    QString color;
    bool isDouble = false;

    bool operator==(const Edge&) const = default;
    [[nodiscard]] bool isDrawn() const { return width > 0.0; }
};

struct Edges
{
    Edge left;
    Edge right;
    Edge top;
    Edge bottom;

    bool operator==(const Edges&) const = default;
    [[nodiscard]] bool isDrawn() const;
    /// Whether one pen around the box draws them.
    [[nodiscard]] bool isPen() const;
};

/// What fo:border and its sides state.
[[nodiscard]] Edges edgesOf(const Properties& stated);

/// States a border of the same line on all sides as a pen.
void writePen(const Edge& edge, Properties& target);
/// States the first side that is drawn as a pen: items have one for all sides.
void writeOnePen(const Edges& edges, Properties& target);

/// The side of its box that an object draws: left, right, top or bottom. Its box is that of the
/// side when it is made; rows and paragraphs give it the height that they get.
inline const QString EdgeAttribute = QLatin1String("labelport:edge");

/// Of the ground within the border of a paragraph.
inline const QString GroundEdge = QLatin1String("ground");

/// The sides of a box as thin boxes of their own, with their middle on its side; a double line is
/// two of them.
///
/// @param box in points
[[nodiscard]] Node::Children edgeBoxes(Document& document, const QRectF& box, const Edges& edges);

/// The same of a box whose height depends neither on rows nor on lines of text.
[[nodiscard]] Node::Children fixedEdges(Document& document, const QRectF& box, const Edges& edges);

/// Where an object is in its page's order: 0 for shapes, 1 for texts, which nothing may cover, and
/// 2 for the borders on them.
[[nodiscard]] int layerOf(const Node& object);

} // namespace repair
