#include "repair/fill_drawing.h"

#include "repair/drawing.h"
#include "repair/gradient.h"
#include "repair/lengths.h"
#include "repair/svg_path.h"
#include "repair/xml_tree.h"

#include <QColor>
#include <QPolygonF>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Lines of one hatch, and its smallest distance in points.
constexpr int MaximumHatchLines = 2000;
constexpr double SmallestDistance = 0.5;

// What a document shows that does not define its gradient or hatch: the fill stays visible.
const Node& unknownGradient()
{
    static const auto node = [] {
        auto made = Node::element(u"draw:gradient"_s);
        made->attributes = {{u"draw:style"_s, u"linear"_s},
                            {u"draw:start-color"_s, u"#3465a4"_s},
                            {u"draw:end-color"_s, u"#ffffff"_s}};
        return made;
    }();
    return *node;
}

const Node& unknownHatch()
{
    static const auto node = [] {
        auto made = Node::element(u"draw:hatch"_s);
        made->attributes = {{u"draw:style"_s, u"single"_s},
                            {u"draw:color"_s, u"#3465a4"_s},
                            {u"draw:distance"_s, u"0.02in"_s}};
        return made;
    }();
    return *node;
}

QString dimmed(const QString& color, const QString& intensity)
{
    const QColor full(color);
    const double share = std::clamp(shareOf(intensity), 0.0, 1.0);
    return QColor::fromRgbF(static_cast<float>(full.redF() * share),
                            static_cast<float>(full.greenF() * share),
                            static_cast<float>(full.blueF() * share))
        .name();
}

QString stop(double offset, const QString& color)
{
    return u"<stop offset=\"%1\" stop-color=\"%2\"/>"_s.arg(svgNumber(offset), color);
}

QString transparentStop(double offset, const QString& color, double opacity)
{
    return u"<stop offset=\"%1\" stop-color=\"%2\" stop-opacity=\"%3\"/>"_s.arg(
        svgNumber(offset), color, svgNumber(opacity));
}

// The parts of a horizontal line that are inside the polygons.
void addInside(QPainterPath& lines, const QList<QPolygonF>& polygons, double y,
               const QTransform& back)
{
    QList<double> crossings;
    for (const QPolygonF& polygon : polygons) {
        for (qsizetype i = 0; i + 1 < polygon.size(); ++i) {
            const QPointF from = polygon[i];
            const QPointF to = polygon[i + 1];
            if ((from.y() <= y) != (to.y() <= y)) {
                crossings.append(from.x() +
                                 (y - from.y()) / (to.y() - from.y()) * (to.x() - from.x()));
            }
        }
    }
    std::sort(crossings.begin(), crossings.end());
    for (qsizetype i = 0; i + 1 < crossings.size(); i += 2) {
        lines.moveTo(back.map(QPointF(crossings[i], y)));
        lines.lineTo(back.map(QPointF(crossings[i + 1], y)));
    }
}

QPainterPath hatchLines(const QPainterPath& path, double angle, double distance)
{
    const QTransform turn = QTransform().rotate(angle);
    const QTransform back = turn.inverted();
    const QPointF origin = turn.map(path.boundingRect().center());
    const QList<QPolygonF> polygons = path.toSubpathPolygons(turn);
    const QRectF box = turn.map(path).boundingRect();
    const double step = std::max({distance, SmallestDistance, box.height() / MaximumHatchLines});
    QPainterPath lines;
    const double first = origin.y() - std::floor((origin.y() - box.top()) / step) * step;
    for (double y = first; y < box.bottom(); y += step) {
        addInside(lines, polygons, y, back);
    }
    return lines;
}

QString hatch(const QPainterPath& path, const Node& hatch)
{
    const double angle = angleOf(hatch, u"draw:rotation");
    const double distance = pointsOf(hatch, u"draw:distance");
    const QString style = hatch.attribute(u"draw:style");
    QPainterPath lines = hatchLines(path, angle, distance);
    if (style == "double"_L1 || style == "triple"_L1) {
        lines.addPath(hatchLines(path, angle + 90.0, distance));
    }
    if (style == "triple"_L1) {
        lines.addPath(hatchLines(path, angle + 45.0, distance));
    }
    return u"<path fill=\"none\" stroke=\"%1\" stroke-width=\"0.3\" d=\"%2\"/>"_s.arg(
        colorName(hatch.attribute(u"draw:color"), u"#000000"_s), toSvgPath(lines));
}

} // namespace

QString FillWriter::gradient(const QPainterPath& path, const Node& gradient,
                             const QString& attributes)
{
    const QString start = dimmed(colorName(gradient.attribute(u"draw:start-color"), u"#000000"_s),
                                 gradient.attribute(u"draw:start-intensity"));
    const QString end = dimmed(colorName(gradient.attribute(u"draw:end-color"), u"#ffffff"_s),
                               gradient.attribute(u"draw:end-intensity"));
    return m_gradients.paint(path, gradient, attributes,
                             {[&start](double offset) { return stop(offset, start); },
                              [&end](double offset) { return stop(offset, end); },
                              attributes.isEmpty()});
}

QString FillWriter::transparency(const QPainterPath& path, const QString& color,
                                 const Node& opacity)
{
    const auto shareAt = [&opacity](QStringView end) {
        return std::clamp(shareOf(opacity.attribute(end)), 0.0, 1.0);
    };
    const double start = shareAt(u"draw:start");
    const double end = shareAt(u"draw:end");
    return m_gradients.paint(
        path, opacity, {},
        {[&color, start](double offset) { return transparentStop(offset, color, start); },
         [&color, end](double offset) { return transparentStop(offset, color, end); }, false});
}

QString FillWriter::fill(const QPainterPath& path, const Properties& graphic,
                         const StyleTable& table)
{
    const QString kind = graphic.value(u"draw:fill"_s);
    const double opacity = shareOf(graphic.value(u"draw:opacity"_s));
    const QString attributes =
        opacity < 1.0 ? u" fill-opacity=\"%1\""_s.arg(svgNumber(opacity)) : QString();
    const QString color = colorName(graphic.value(u"draw:fill-color"_s), u"#729fcf"_s);
    const Node* const gradientNode =
        table.named(u"draw:gradient"_s, graphic.value(u"draw:fill-gradient-name"_s));
    const Node* const hatchNode =
        table.named(u"draw:hatch"_s, graphic.value(u"draw:fill-hatch-name"_s));
    if (kind == "none"_L1) {
        return {};
    }
    if (kind == "gradient"_L1) {
        return gradient(path, gradientNode != nullptr ? *gradientNode : unknownGradient(),
                        attributes);
    }
    if (kind == "hatch"_L1) {
        const bool isSolid = graphic.value(u"draw:fill-hatch-solid"_s) == "true"_L1;
        return (isSolid ? filledPath(path, color, attributes) : QString()) +
               hatch(path, hatchNode != nullptr ? *hatchNode : unknownHatch());
    }
    if (const Node* const opacityNode =
            table.named(u"draw:opacity"_s, graphic.value(u"draw:opacity-name"_s))) {
        return transparency(path, color, *opacityNode);
    }
    return filledPath(path, color, attributes);
}

QString colorName(const QString& text, const QString& otherwise)
{
    const QColor color(text);
    return color.isValid() ? color.name() : otherwise;
}

} // namespace repair
