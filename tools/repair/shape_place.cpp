#include "repair/shape_place.h"

#include "repair/lengths.h"
#include "repair/page_end.h"
#include "repair/transform.h"
#include "repair/xml_tree.h"

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Groups within one another.
constexpr int MaximumGroupDepth = 100;

void uniteBounds(const Node& node, const QTransform& outer, int depth, QRectF& bounds)
{
    if (node.is(u"draw:g") || node.is(u"draw:a")) {
        const QTransform map = parseTransform(node.attribute(u"draw:transform")) * outer;
        for (const auto& child : node.children) {
            if (depth < MaximumGroupDepth && !child->isText()) {
                uniteBounds(*child, map, depth + 1, bounds);
            }
        }
        return;
    }
    if (node.hasAttribute(u"svg:x1")) {
        const QPointF from(pointsOf(node, u"svg:x1"), pointsOf(node, u"svg:y1"));
        const QPointF to(pointsOf(node, u"svg:x2"), pointsOf(node, u"svg:y2"));
        // A line has no height, which a union would ignore.
        bounds |= outer.mapRect(QRectF(from, to).normalized()).adjusted(0.0, 0.0, 0.01, 0.01);
        return;
    }
    const Placement own = placementOf(node);
    bounds |= (own.toPage * outer).mapRect(QRectF(QPointF(), own.size));
}

void moveEnd(Node& line, const QString& name, double offset)
{
    line.setAttribute(name, toInches(pointsOf(line, name) + offset));
}

} // namespace

QRectF boundsOf(const Node& shape)
{
    QRectF bounds;
    uniteBounds(shape, QTransform(), 0, bounds);
    return bounds;
}

void moveShape(Node& shape, const QPointF& offset)
{
    if (shape.hasAttribute(u"svg:x1")) {
        moveEnd(shape, u"svg:x1"_s, offset.x());
        moveEnd(shape, u"svg:x2"_s, offset.x());
        moveEnd(shape, u"svg:y1"_s, offset.y());
        moveEnd(shape, u"svg:y2"_s, offset.y());
    } else if (shape.is(u"draw:g") || shape.hasAttribute(u"draw:transform")) {
        const QString before = shape.attribute(u"draw:transform");
        shape.setAttribute(
            u"draw:transform"_s,
            u"%1 translate (%2 %3)"_s.arg(before, toInches(offset.x()), toInches(offset.y()))
                .trimmed());
    } else {
        moveEnd(shape, u"svg:x"_s, offset.x());
        moveEnd(shape, u"svg:y"_s, offset.y());
    }
}

void keepPlace(const Node& shape, Node& part)
{
    for (const QString& name : {RowAttribute, AnchorAttribute, InLineAttribute, FromRowAttribute,
                                FromTextAttribute, InsideFrameAttribute}) {
        if (shape.hasAttribute(name) && !part.hasAttribute(name)) {
            part.setAttribute(name, shape.attribute(name));
        }
    }
}

} // namespace repair
