#include "repair/shape_steps.h"

#include "repair/document.h"
#include "repair/drawing.h"
#include "repair/lengths.h"
#include "repair/shape_parts.h"

#include <algorithm>
#include <cmath>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Sides that differ by less are equal, for shapes whose corners depend on it.
constexpr double SquareTolerance = 0.02;
// The arrow heads of line items: points, or widths of a thick pen.
constexpr double ArrowWidth = 8.5;
constexpr double ArrowPens = 8.0 / 3.0;
constexpr double SmallArrowWidth = 4.25;
constexpr double SmallArrowPens = 5.0 / 3.0;
// The part by which an arrow head may differ from them.
constexpr double ArrowTolerance = 0.4;
// Only old programs leave the color of a fill out: newer ones write it into the default style.
const QString DefaultFillColor = u"#99ccff"_s;
constexpr QLatin1StringView FillableTags[] = {
    "draw:rect"_L1,    "draw:ellipse"_L1, "draw:circle"_L1,         "draw:custom-shape"_L1,
    "draw:polygon"_L1, "draw:path"_L1,    "draw:regular-polygon"_L1};

std::vector<Outline> onPage(std::vector<Outline> outlines, const QTransform& toPage)
{
    for (Outline& outline : outlines) {
        outline.path = toPage.map(outline.path);
    }
    return outlines;
}

// The drawing of a shape, and its text above.
Parts drawn(Document& document, Node& shape, std::vector<Outline> outlines,
            const Placement& placement, const QRectF& textArea)
{
    Parts parts;
    parts.push_back(drawnFrame(document, shape, onPage(std::move(outlines), placement.toPage)));
    const Placement area{textArea.size(),
                         QTransform::fromTranslate(textArea.x(), textArea.y()) * placement.toPage};
    addIfAny(parts, takeText(document, shape, area));
    return parts;
}

Parts drawPath(Document& document, Node& shape)
{
    const bool isPath = shape.is(u"draw:polygon") || shape.is(u"draw:polyline") ||
                        shape.is(u"draw:path") || shape.is(u"draw:regular-polygon");
    const Placement placement = placementOf(shape);
    const QPainterPath path = isPath ? outlineInBox(shape, placement.size) : QPainterPath();
    if (path.elementCount() < 2) {
        return {};
    }
    const QPainterPath::Element last = path.elementAt(path.elementCount() - 1);
    // An open path has no inside.
    const bool isClosed = QPointF(path.elementAt(0)) == QPointF(last);
    const bool isFilled = isClosed || path.toSubpathPolygons().size() > 1;
    return drawn(document, shape, {{path, isFilled, true}}, placement,
                 QRectF(QPointF(), placement.size));
}

/// A custom shape that an item shows as it is.
struct NativeKind
{
    QLatin1StringView type;
    QLatin1StringView modifiers; ///< with which it is native; empty: whatever they are
    bool mustBeSquare;
};

constexpr NativeKind NativeKinds[] = {
    {"rectangle"_L1, ""_L1, false},
    {"ellipse"_L1, ""_L1, false},
    {"circle"_L1, ""_L1, false},
    {"round-rectangle"_L1, "3600"_L1, false},
    {"diamond"_L1, ""_L1, false},
    {"right-triangle"_L1, ""_L1, false},
    {"isosceles-triangle"_L1, "10800"_L1, false},
    {"pentagon"_L1, ""_L1, false},
    {"hexagon"_L1, "5400"_L1, true},
    {"octagon"_L1, "6326"_L1, true},
};

bool isMirrored(const Node& geometry)
{
    return geometry.attribute(u"draw:mirror-horizontal") == "true"_L1 ||
           geometry.attribute(u"draw:mirror-vertical") == "true"_L1;
}

bool isNative(const Node& geometry, const QSizeF& size)
{
    const QString type = geometry.attribute(u"draw:type");
    const auto kind = std::find_if(std::begin(NativeKinds), std::end(NativeKinds),
                                   [&type](const NativeKind& row) { return row.type == type; });
    if (kind == std::end(NativeKinds) || isMirrored(geometry)) {
        return false;
    }
    const QString modifiers = geometry.attribute(u"draw:modifiers").trimmed();
    const bool isSquare = std::abs(size.width() - size.height()) <= SquareTolerance * size.width();
    return (kind->modifiers.isEmpty() || modifiers.isEmpty() || modifiers == kind->modifiers) &&
           (isSquare || !kind->mustBeSquare);
}

QString rectangleText(const QRectF& rectangle)
{
    return u"%1 %2 %3 %4"_s.arg(
        QString::number(rectangle.x(), 'f', 3), QString::number(rectangle.y(), 'f', 3),
        QString::number(rectangle.width(), 'f', 3), QString::number(rectangle.height(), 'f', 3));
}

Parts drawCustomShape(Document& document, Node& shape, bool mustDraw)
{
    const Node* const geometry = shape.child(u"draw:enhanced-geometry");
    const Placement placement = placementOf(shape);
    if (geometry == nullptr) {
        return {};
    }
    // Its text runs along the outline, which is not drawn.
    if (geometry->attribute(u"draw:text-path") == "true"_L1) {
        Parts parts;
        addIfAny(parts, takeText(document, shape, placement));
        return parts;
    }
    auto custom = repair::drawCustomShape(*geometry, placement.size);
    if (!custom) {
        return {};
    }
    if (!mustDraw && isNative(*geometry, placement.size)) {
        if (custom->textArea != QRectF(QPointF(), placement.size)) {
            shape.setAttribute(TextAreaAttribute, rectangleText(custom->textArea));
        }
        return {};
    }
    return drawn(document, shape, std::move(custom->outlines), placement, custom->textArea);
}

// The arrow heads that a line item has: those of some names, in about one size.
bool isNativeMarker(const Properties& graphic, const QString& end)
{
    const QString name = graphic.value(u"draw:marker-"_s + end);
    if (name.isEmpty()) {
        return true;
    }
    const bool isSmall = name == "Small_20_Arrow"_L1;
    if (!isSmall && !name.startsWith("Arrow"_L1) && name != "Triangle"_L1 &&
        name != "Double_20_Arrow"_L1) {
        return false;
    }
    const double pen = toPoints(graphic.value(u"svg:stroke-width"_s)).value_or(0.0);
    const double shown = isSmall ? std::max(SmallArrowWidth, SmallArrowPens * pen)
                                 : std::max(ArrowWidth, ArrowPens * pen);
    const auto wanted = toPoints(graphic.value(u"draw:marker-%1-width"_s.arg(end)));
    return !wanted || std::abs(*wanted - shown) <= ArrowTolerance * shown;
}

Parts drawLine(Document& document, Node& line)
{
    const Properties graphic = graphicOf(document, line);
    Parts parts;
    if (!isPlainPen(graphic, document.table()) || !isNativeMarker(graphic, u"start"_s) ||
        !isNativeMarker(graphic, u"end"_s)) {
        QPainterPath path(startOf(line));
        path.lineTo(endOf(line));
        parts.push_back(drawnFrame(document, line, {{path, false, true}}));
    }
    return parts;
}

// The path of such a shape leads its letters; it is not drawn.
bool isTextOnPath(const Node& shape)
{
    const Node* const geometry = shape.child(u"draw:enhanced-geometry");
    return geometry != nullptr && geometry->attribute(u"draw:text-path") == "true"_L1;
}

Parts drawShape(Document& document, Node& shape)
{
    const Placement placement = placementOf(shape);
    const Properties graphic = graphicOf(document, shape);
    const bool mustDraw =
        !isPlainFill(graphic) || !isPlainPen(graphic, document.table()) || !toRotatedBox(placement);
    if (isTextOnPath(shape)) {
        Parts parts;
        addIfAny(parts, takeText(document, shape, placement));
        return parts;
    }
    if (shape.is(u"draw:custom-shape")) {
        return drawCustomShape(document, shape, mustDraw);
    }
    if (shape.is(u"draw:line")) {
        return drawLine(document, shape);
    }
    const bool isRound = shape.is(u"draw:ellipse") || shape.is(u"draw:circle");
    const QString kind = isRound ? shape.attribute(u"draw:kind") : QString();
    const bool isPartial = !kind.isEmpty() && kind != "full"_L1;
    if (!(isRound || shape.is(u"draw:rect")) || !(mustDraw || isPartial)) {
        return {};
    }
    const QPainterPath path = outlineInBox(shape, placement.size);
    return drawn(document, shape, {{path, kind != "arc"_L1, true}}, placement,
                 QRectF(QPointF(), placement.size));
}

// The ground of a text box, below the box.
Parts drawTextBoxGround(Document& document, Node& frame)
{
    const Properties graphic = graphicOf(document, frame);
    if (!frame.is(u"draw:frame") || frame.child(u"draw:text-box") == nullptr ||
        (isPlainFill(graphic) && isPlainPen(graphic, document.table()))) {
        return {};
    }
    const Placement placement = placementOf(frame);
    QPainterPath path;
    path.addRect(QRectF(QPointF(), placement.size));
    Parts parts;
    parts.push_back(drawnFrame(document, frame, {{placement.toPage.map(path), true, true}}));
    Node& box = *frame.child(u"draw:text-box");
    // The text is the frame's from here on: its style must not draw the ground again.
    Node::Children content = std::move(box.children);
    box.children.clear();
    for (auto& child : content) {
        frame.children.push_back(std::move(child));
    }
    addIfAny(parts, takeText(document, frame, placement));
    return parts;
}

// Unlike a frame or a line, a shape is filled unless its style says otherwise.
void fillByDefault(Document& document, Node& shape)
{
    const QString name = shape.attribute(u"draw:style-name");
    const bool isFillable = std::find(std::begin(FillableTags), std::end(FillableTags),
                                      shape.name) != std::end(FillableTags);
    const Properties graphic = graphicOf(document, shape);
    if (!isFillable || name.isEmpty() || graphic.contains(u"draw:fill"_s)) {
        return;
    }
    StyleProperties style = document.table().resolved(u"graphic"_s, name, false);
    style.graphic.insert(u"draw:fill"_s, u"solid"_s);
    style.graphic.insert(u"draw:fill-color"_s,
                         graphic.value(u"draw:fill-color"_s, DefaultFillColor));
    shape.setAttribute(u"draw:style-name"_s, document.styleFor(u"graphic"_s, style));
}

} // namespace

int drawPaths(Document& document)
{
    return replaceShapes(document, [&document](Node& shape) {
        fillByDefault(document, shape);
        return drawPath(document, shape);
    });
}

int drawShapes(Document& document)
{
    return replaceShapes(document, [&document](Node& shape) {
        return shape.is(u"draw:frame") ? drawTextBoxGround(document, shape)
                                       : drawShape(document, shape);
    });
}

int rewriteRotations(Document& document)
{
    Node* const page = document.page();
    int count = 0;
    if (page == nullptr) {
        return count;
    }
    for (const auto& shape : page->children) {
        if (!shape->hasAttribute(u"draw:transform")) {
            continue;
        }
        const Placement placement = placementOf(*shape);
        const auto box = toRotatedBox(placement);
        const QRectF around = placement.toPage.mapRect(QRectF(QPointF(), placement.size));
        writeBox(*shape, box.value_or(RotatedBox{around, 0.0}));
        count += box && box->rotation != 0.0 ? 1 : 0;
    }
    return count;
}

} // namespace repair
