// Captions, dimension lines, connectors, and the texts of lines.

#include "repair/boxed_table.h"
#include "repair/document.h"
#include "repair/drawn_table.h"
#include "repair/lengths.h"
#include "repair/shape_parts.h"
#include "repair/shape_steps.h"
#include "repair/svg_path.h"

#include <cmath>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// 1/100 mm, the unit of a connector's path.
constexpr double PathScale = 72.0 / 2540.0;

// A box without height along a line, to be read from left to right or upwards.
Placement alongLine(const QPointF& from, const QPointF& to)
{
    const bool isReversed = to.x() < from.x() || (to.x() == from.x() && to.y() > from.y());
    const QPointF start = isReversed ? to : from;
    const QPointF along = (isReversed ? from : to) - start;
    const double length = std::hypot(along.x(), along.y());
    return {{length, 0.0},
            QTransform().rotateRadians(std::atan2(along.y(), along.x())) *
                QTransform::fromTranslate(start.x(), start.y())};
}

QTransform connectorMap(const QPainterPath& path, const Node& connector)
{
    const QPointF first = QPointF(path.elementAt(0)) * PathScale;
    const QPointF offset = startOf(connector) - first;
    return QTransform::fromScale(PathScale, PathScale) *
           QTransform::fromTranslate(offset.x(), offset.y());
}

bool isStraight(const QPainterPath& path)
{
    return path.elementCount() == 2 && path.elementAt(1).isLineTo();
}

Parts drawConnector(Document& document, Node& connector)
{
    if (!connector.is(u"draw:connector")) {
        return {};
    }
    Parts parts;
    const auto path = parseSvgPath(connector.attribute(u"svg:d"));
    if (!path || path->elementCount() < 2 || isStraight(*path)) {
        parts.push_back(lineBetween(startOf(connector), endOf(connector),
                                    connector.attribute(u"draw:style-name")));
    } else {
        Outline outline{connectorMap(*path, connector).map(*path), false, true};
        parts.push_back(drawnFrame(document, connector, {outline}));
    }
    addIfAny(parts, takeText(document, connector, alongLine(startOf(connector), endOf(connector))));
    return parts;
}

} // namespace

int splitCaptions(Document& document)
{
    return replaceShapes(document, [](Node& shape) {
        Parts parts;
        if (!shape.is(u"draw:caption")) {
            return parts;
        }
        const Placement placement = placementOf(shape);
        const QPointF tip = placement.toPage.map(QPointF(pointsOf(shape, u"draw:caption-point-x"),
                                                         pointsOf(shape, u"draw:caption-point-y")));
        const QRectF box = placement.toPage.mapRect(QRectF(QPointF(), placement.size));
        const bool isBeside = tip.x() < box.left() || tip.x() > box.right();
        const QPointF from =
            isBeside ? QPointF(tip.x() < box.left() ? box.left() : box.right(), box.center().y())
                     : QPointF(box.center().x(), tip.y() < box.top() ? box.top() : box.bottom());
        parts.push_back(lineBetween(from, tip, shape.attribute(u"draw:style-name")));
        auto rectangle = shape.clone();
        rectangle->name = u"draw:rect"_s;
        parts.push_back(std::move(rectangle));
        return parts;
    });
}

int splitMeasures(Document& document)
{
    return replaceShapes(document, [&document](Node& shape) {
        Parts parts;
        if (!shape.is(u"draw:measure")) {
            return parts;
        }
        const Properties graphic = graphicOf(document, shape);
        const auto length = [&graphic](const QString& name, double otherwise) {
            return toPoints(graphic.value(name)).value_or(otherwise);
        };
        const QPointF from = startOf(shape);
        const QPointF to = endOf(shape);
        const double distance = length(u"draw:line-distance"_s, 22.68);
        const double overhang = length(u"draw:guide-overhang"_s, 5.67);
        const double gap = length(u"draw:guide-distance"_s, 2.83);
        const double span = std::hypot(to.x() - from.x(), to.y() - from.y());
        if (!(span > 0.0)) {
            return parts;
        }
        const QPointF up((to.y() - from.y()) / span, -(to.x() - from.x()) / span);
        const bool isBelow = graphic.value(u"draw:placing"_s) == "below"_L1;
        const double side = (distance < 0.0) != isBelow ? -1.0 : 1.0;
        const double reach = std::abs(distance);
        const QString style = shape.attribute(u"draw:style-name");
        StyleProperties plain;
        plain.graphic = graphic;
        plain.graphic.remove(u"draw:marker-start"_s);
        plain.graphic.remove(u"draw:marker-end"_s);
        const QString guide = document.styleFor(u"graphic"_s, plain);
        for (const QPointF& foot : {from, to}) {
            parts.push_back(lineBetween(foot + up * (side * gap),
                                        foot + up * (side * (reach + overhang)), guide));
        }
        const QPointF start = from + up * (side * reach);
        const QPointF end = to + up * (side * reach);
        parts.push_back(lineBetween(start, end, style));
        if (auto text = takeText(document, shape, alongLine(start, end))) {
            text->setAttribute(LineTextAttribute, isBelow ? u"below"_s : u"above"_s);
            parts.push_back(std::move(text));
        }
        return parts;
    });
}

int splitLineTexts(Document& document)
{
    return replaceShapes(document, [&document](Node& shape) {
        Parts parts;
        if (!shape.is(u"draw:line")) {
            return parts;
        }
        auto text = takeText(document, shape, alongLine(startOf(shape), endOf(shape)));
        if (text) {
            parts.push_back(shape.clone());
            parts.push_back(std::move(text));
        }
        return parts;
    });
}

int drawConnectors(Document& document)
{
    return replaceShapes(document,
                         [&document](Node& shape) { return drawConnector(document, shape); });
}

int splitTables(Document& document)
{
    return replaceShapes(document, [&document](Node& shape) {
        if (!shape.is(u"draw:frame")) {
            return Parts();
        }
        Parts cells = drawnTableCells(document, shape);
        return cells.empty() ? boxedTableParts(document, shape) : std::move(cells);
    });
}

} // namespace repair
