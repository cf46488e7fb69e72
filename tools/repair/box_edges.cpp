#include "repair/box_edges.h"

#include "repair/lengths.h"
#include "repair/table_rows.h"

#include <QStringList>

#include <algorithm>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Of a double line: each of its two lines, and the room between them.
constexpr double DoubleShare = 1.0 / 3.0;

// "0.05pt solid #000000"
Edge edgeFrom(const QString& border)
{
    const QStringList parts = border.split(u' ', Qt::SkipEmptyParts);
    if (parts.size() != 3 || parts[1] == "none"_L1 || parts[1] == "hidden"_L1) {
        return {};
    }
    const double width = toPoints(parts[0]).value_or(0.0);
    return width > 0.0 ? Edge{width, parts[2], parts[1] == "double"_L1} : Edge();
}

void addLine(Document& document, const QRectF& box, const QString& side, const QString& color,
             Node::Children& lines)
{
    auto line =
        textFrame(document, box, {{u"draw:fill"_s, u"solid"_s}, {u"draw:fill-color"_s, color}});
    line->setAttribute(u"svg:height"_s, toInches(box.height()));
    line->setAttribute(EdgeAttribute, side);
    lines.push_back(std::move(line));
}

// A side, given as its middle without a width.
void addEdge(Document& document, const QRectF& middle, const QString& side, const Edge& edge,
             Node::Children& lines)
{
    if (!edge.isDrawn()) {
        return;
    }
    const double width = std::max(edge.width, Hairline);
    const bool isUpright = side == "left"_L1 || side == "right"_L1;
    const auto line = [&](double from, double to) {
        return isUpright ? middle.adjusted(from, 0.0, to, 0.0)
                         : middle.adjusted(-width / 2.0, from, width / 2.0, to);
    };
    const double half = width / 2.0;
    if (!edge.isDouble) {
        addLine(document, line(-half, half), side, edge.color, lines);
        return;
    }
    const double thin = std::max(width * DoubleShare, Hairline);
    addLine(document, line(-half, thin - half), side, edge.color, lines);
    addLine(document, line(half - thin, half), side, edge.color, lines);
}

} // namespace

bool Edges::isDrawn() const
{
    return left.isDrawn() || right.isDrawn() || top.isDrawn() || bottom.isDrawn();
}

bool Edges::isPen() const
{
    return left.isDrawn() && !left.isDouble && left == right && left == top && left == bottom;
}

Edges edgesOf(const Properties& stated)
{
    const auto side = [&stated](const QString& name) {
        const auto own = stated.constFind(name);
        return edgeFrom(own != stated.constEnd() ? *own : stated.value(u"fo:border"_s));
    };
    return {side(u"fo:border-left"_s), side(u"fo:border-right"_s), side(u"fo:border-top"_s),
            side(u"fo:border-bottom"_s)};
}

void writePen(const Edge& edge, Properties& target)
{
    target.insert(u"draw:stroke"_s, u"solid"_s);
    target.insert(u"svg:stroke-width"_s, toInches(edge.width));
    target.insert(u"svg:stroke-color"_s, edge.color);
}

void writeOnePen(const Edges& edges, Properties& target)
{
    for (const Edge& edge : {edges.bottom, edges.left, edges.top, edges.right}) {
        if (edge.isDrawn()) {
            writePen(edge, target);
            return;
        }
    }
}

Node::Children edgeBoxes(Document& document, const QRectF& box, const Edges& edges)
{
    Node::Children lines;
    const QSizeF across(box.width(), 0.0);
    const QSizeF down(0.0, box.height());
    addEdge(document, {box.topLeft(), down}, u"left"_s, edges.left, lines);
    addEdge(document, {box.topRight(), down}, u"right"_s, edges.right, lines);
    addEdge(document, {box.topLeft(), across}, u"top"_s, edges.top, lines);
    addEdge(document, {box.bottomLeft(), across}, u"bottom"_s, edges.bottom, lines);
    return lines;
}

Node::Children fixedEdges(Document& document, const QRectF& box, const Edges& edges)
{
    Node::Children lines = edgeBoxes(document, box, edges);
    for (const auto& line : lines) {
        line->removeAttribute(EdgeAttribute);
    }
    return lines;
}

int layerOf(const Node& object)
{
    if (object.hasAttribute(EdgeAttribute)) {
        return object.attribute(EdgeAttribute) == GroundEdge ? 0 : 2;
    }
    return object.child(u"draw:text-box") != nullptr ? 1 : 0;
}

} // namespace repair
