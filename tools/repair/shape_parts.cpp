#include "repair/shape_parts.h"

#include "repair/document.h"
#include "repair/drawing.h"
#include "repair/lengths.h"
#include "repair/shape_place.h"
#include "repair/shape_steps.h"
#include "repair/svg_path.h"
#include "repair/text_step.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

constexpr int MaximumCorners = 1000;

QPainterPath ellipseIn(const Node& shape, const QSizeF& size)
{
    const QRectF box(QPointF(), size);
    const QString kind = shape.attribute(u"draw:kind");
    QPainterPath path;
    if (kind.isEmpty() || kind == "full"_L1) {
        path.addEllipse(box);
        return path;
    }
    const double start = shape.attribute(u"draw:start-angle").toDouble();
    double sweep = std::fmod(shape.attribute(u"draw:end-angle").toDouble() - start, 360.0);
    if (sweep <= 0.0) {
        sweep += 360.0;
    }
    path.arcMoveTo(box, start);
    path.arcTo(box, start, sweep);
    if (kind == "section"_L1) {
        path.lineTo(box.center());
    }
    if (kind != "arc"_L1) {
        path.closeSubpath();
    }
    return path;
}

QPainterPath rectangleIn(const Node& shape, const QSizeF& size)
{
    QPainterPath path;
    const double radius =
        std::min({pointsOf(shape, u"draw:corner-radius"), size.width() / 2.0, size.height() / 2.0});
    if (radius > 0.0) {
        path.addRoundedRect(QRectF(QPointF(), size), radius, radius);
    } else {
        path.addRect(QRectF(QPointF(), size));
    }
    return path;
}

QPainterPath regularPolygonIn(const Node& shape, const QSizeF& size)
{
    const int corners = std::clamp(shape.attribute(u"draw:corners").toInt(), 3, MaximumCorners);
    const bool isConcave = shape.attribute(u"draw:concave") == "true"_L1;
    const double sharpness = isConcave ? shareOf(shape.attribute(u"draw:sharpness")) : 0.0;
    const int points = isConcave ? 2 * corners : corners;
    QPainterPath path;
    for (int i = 0; i < points; ++i) {
        const double angle = 2.0 * M_PI * i / points - M_PI / 2.0;
        const double radius = isConcave && i % 2 == 1 ? 1.0 - sharpness : 1.0;
        const QPointF corner((1.0 + radius * std::cos(angle)) * size.width() / 2.0,
                             (1.0 + radius * std::sin(angle)) * size.height() / 2.0);
        if (i == 0) {
            path.moveTo(corner);
        } else {
            path.lineTo(corner);
        }
    }
    path.closeSubpath();
    return path;
}

// From the view box of the shape to its box.
QPainterPath scaledToBox(const Node& shape, const QPainterPath& path, const QSizeF& size)
{
    const QStringList box = shape.attribute(u"svg:viewBox").split(u' ', Qt::SkipEmptyParts);
    if (box.size() != 4) {
        return path;
    }
    const double width = box[2].toDouble();
    const double height = box[3].toDouble();
    const QTransform map = QTransform::fromTranslate(-box[0].toDouble(), -box[1].toDouble()) *
                           QTransform::fromScale(width > 0.0 ? size.width() / width : 1.0,
                                                 height > 0.0 ? size.height() / height : 1.0);
    return map.map(path);
}

} // namespace

int replaceShapes(Document& document, const Replacement& replacement)
{
    Node* const page = document.page();
    if (page == nullptr) {
        return 0;
    }
    int count = 0;
    Node::Children shapes;
    for (auto& shape : page->children) {
        Parts parts = replacement(*shape);
        if (parts.empty()) {
            shapes.push_back(std::move(shape));
            continue;
        }
        ++count;
        for (const auto& part : parts) {
            keepPlace(*shape, *part);
        }
        std::move(parts.begin(), parts.end(), std::back_inserter(shapes));
    }
    page->children = std::move(shapes);
    return count;
}

void addIfAny(Parts& parts, std::unique_ptr<Node> node)
{
    if (node) {
        parts.push_back(std::move(node));
    }
}

QPointF startOf(const Node& line)
{
    return {pointsOf(line, u"svg:x1"), pointsOf(line, u"svg:y1")};
}

QPointF endOf(const Node& line)
{
    return {pointsOf(line, u"svg:x2"), pointsOf(line, u"svg:y2")};
}

std::unique_ptr<Node> drawnFrame(Document& document, const Node& shape,
                                 const std::vector<Outline>& outlines)
{
    const Properties graphic = graphicOf(document, shape);
    const std::optional<PictureFill> picture = pictureFill(document, outlines, graphic);
    const Drawing drawing = makeDrawing(outlines, graphic, document.table(), picture);
    auto frame = Node::element(u"draw:frame"_s);
    if (graphic.value(u"draw:fill"_s) == "bitmap"_L1 && !picture) {
        // So that the report finds what is not drawn.
        frame->setAttribute(u"draw:style-name"_s, shape.attribute(u"draw:style-name"));
    }
    for (const QString& name : {u"draw:name"_s, u"draw:z-index"_s, u"draw:layer"_s}) {
        if (shape.hasAttribute(name)) {
            frame->setAttribute(name, shape.attribute(name));
        }
    }
    writeBox(*frame, {drawing.bounds, 0.0});
    Node& image = frame->append(Node::element(u"draw:image"_s));
    image.setAttribute(u"xlink:href"_s, document.addDrawing(drawing.svg));
    return frame;
}

std::unique_ptr<Node> takeText(Document& document, Node& shape, const Placement& area)
{
    if (!hasVisibleText(shape)) {
        return nullptr;
    }
    StyleProperties style = shapeStyle(document.table(), shape);
    const bool isLine =
        shape.is(u"draw:line") || shape.is(u"draw:connector") || shape.is(u"draw:measure");
    if (!isLine && style.graphic.value(u"draw:fill"_s) == "solid"_L1) {
        style.graphic.insert(GroundProperty, style.graphic.value(u"draw:fill-color"_s));
    }
    style.graphic.insert(u"draw:stroke"_s, u"none"_s);
    style.graphic.insert(u"draw:fill"_s, u"none"_s);
    for (const QString& name : {u"draw:marker-start"_s, u"draw:marker-end"_s, u"draw:opacity"_s,
                                u"draw:fill-color"_s, u"draw:shadow"_s}) {
        style.graphic.remove(name);
    }
    auto frame = Node::element(u"draw:frame"_s);
    // The text of a box breaks at its sides, that of a line or of most shapes does not.
    const bool isBroken =
        shape.is(u"draw:frame") || (shape.is(u"draw:custom-shape") &&
                                    style.graphic.value(u"fo:wrap-option"_s) != "no-wrap"_L1);
    style.graphic.insert(u"draw:auto-grow-width"_s, isBroken ? u"false"_s : u"true"_s);
    frame->setAttribute(u"draw:style-name"_s, document.styleFor(u"graphic"_s, style));
    if (shape.hasAttribute(u"draw:z-index")) {
        frame->setAttribute(u"draw:z-index"_s, shape.attribute(u"draw:z-index"));
    }
    if (const double turn = textTurn(shape); turn != 0.0) {
        frame->setAttribute(TextTurnAttribute, QString::number(turn));
    }
    writePlacement(*frame, area);
    Node& inside = frame->append(Node::element(u"draw:text-box"_s));
    for (auto& child : shape.children) {
        if (child->name.startsWith("text:"_L1)) {
            inside.children.push_back(std::move(child));
        }
    }
    std::erase(shape.children, nullptr);
    return frame;
}

double textTurn(const Node& shape)
{
    const Node* const geometry = shape.child(u"draw:enhanced-geometry");
    const double turn = geometry != nullptr
                            ? -geometry->attribute(u"draw:text-rotate-angle").toDouble()
                            : shape.attribute(TextTurnAttribute).toDouble();
    return std::isfinite(turn) ? std::fmod(turn, 360.0) : 0.0;
}

QPainterPath outlineInBox(const Node& shape, const QSizeF& size)
{
    std::optional<QPainterPath> path;
    if (shape.is(u"draw:rect")) {
        return rectangleIn(shape, size);
    }
    if (shape.is(u"draw:ellipse") || shape.is(u"draw:circle")) {
        return ellipseIn(shape, size);
    }
    if (shape.is(u"draw:regular-polygon")) {
        return regularPolygonIn(shape, size);
    }
    if (shape.is(u"draw:polygon") || shape.is(u"draw:polyline")) {
        path = parsePoints(shape.attribute(u"draw:points"), shape.is(u"draw:polygon"));
    } else if (shape.is(u"draw:path")) {
        path = parseSvgPath(shape.attribute(u"svg:d"));
    }
    return path ? scaledToBox(shape, *path, size) : QPainterPath();
}

std::unique_ptr<Node> lineBetween(const QPointF& from, const QPointF& to, const QString& styleName)
{
    auto line = Node::element(u"draw:line"_s);
    line->attributes = {{u"draw:style-name"_s, styleName},
                        {u"svg:x1"_s, toInches(from.x())},
                        {u"svg:y1"_s, toInches(from.y())},
                        {u"svg:x2"_s, toInches(to.x())},
                        {u"svg:y2"_s, toInches(to.y())}};
    return line;
}

bool hasVisibleText(const Node& shape)
{
    return std::any_of(shape.children.begin(), shape.children.end(), [](const auto& child) {
        return child->name.startsWith("text:"_L1) && !child->allText().trimmed().isEmpty();
    });
}

} // namespace repair
