#include "workbench/items/pen_and_fill.h"

#include "workbench/items/hatching.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <algorithm>
#include <array>
#include <cmath>

namespace workbench {

namespace {

// The ink coverage of Qt::Dense1Pattern to Qt::Dense7Pattern.
constexpr std::array<double, 7> InkOfDensePattern{0.94, 0.88, 0.63, 0.50, 0.37, 0.12, 0.06};

// Large enough for sharp corners of the polygons.
constexpr double MiterLimit = 4.0;

// The width of the area of the output's thinnest line, in points.
constexpr double ThinnestArea = 0.25;

Qt::PenStyle knownPenStyle(int style)
{
    return style >= Qt::NoPen && style <= Qt::DashDotDotLine ? static_cast<Qt::PenStyle>(style)
                                                             : Qt::SolidLine;
}

Qt::PenCapStyle knownCap(int cap)
{
    return cap == Qt::SquareCap || cap == Qt::RoundCap ? static_cast<Qt::PenCapStyle>(cap)
                                                       : Qt::FlatCap;
}

Qt::PenJoinStyle knownJoin(int join)
{
    const bool known = join == Qt::MiterJoin || join == Qt::RoundJoin || join == Qt::SvgMiterJoin;
    return known ? static_cast<Qt::PenJoinStyle>(join) : Qt::BevelJoin;
}

bool isTone(int style)
{
    return style >= Qt::Dense1Pattern && style <= Qt::Dense7Pattern;
}

QColor withInk(const QColor& color, double ink)
{
    QColor tinted = color;
    tinted.setAlphaF(static_cast<float>(color.alphaF() * ink));
    return tinted;
}

// Lighter colors are hardly visible on white paper: as an area, and as thin lines. Shares of white.
constexpr double LightestGradient = 0.8;
constexpr double LightestHatch = 0.6;

// Of the same hue, and not lighter than the limit.
QColor visibleOnPaper(const QColor& color, double lightest)
{
    const double lightness = qGray(color.rgb()) / 255.0;
    if (lightness <= lightest) {
        return color;
    }
    const double share = lightest / lightness;
    const auto darker = [share](int part) { return static_cast<int>(std::lround(part * share)); };
    return {darker(color.red()), darker(color.green()), darker(color.blue()), color.alpha()};
}

// To white and not to transparent: PDF documents have no gradients of opacity and would show
// the plain color.
void addStops(QGradient& gradient, const QColor& color)
{
    QColor paper = Qt::white;
    paper.setAlphaF(color.alphaF());
    gradient.setColorAt(0.0, visibleOnPaper(color, LightestGradient));
    gradient.setColorAt(1.0, paper);
}

QBrush linearBrush(const QRectF& box, const QColor& color)
{
    QLinearGradient gradient(box.topLeft(), box.bottomLeft());
    addStops(gradient, color);
    return gradient;
}

QBrush radialBrush(const QRectF& box, const QColor& color)
{
    const double radius = std::hypot(box.width(), box.height()) / 2.0;
    QRadialGradient gradient(box.center(), radius);
    addStops(gradient, color);
    return gradient;
}

bool isVisible(const FillValues& fill)
{
    return fill.filled && fill.style != Qt::NoBrush && fill.color.alpha() > 0;
}

bool isVisible(const PenValues& pen)
{
    return pen.style != Qt::NoPen && pen.color.alpha() > 0;
}

bool isGradient(int style)
{
    return style == Qt::LinearGradientPattern || style == Qt::RadialGradientPattern ||
           style == Qt::ConicalGradientPattern;
}

QBrush gradientBrush(const QRectF& box, const FillValues& values)
{
    return values.style == Qt::LinearGradientPattern ? linearBrush(box, values.color)
                                                     : radialBrush(box, values.color);
}

} // namespace

QPen toPen(const PenValues& values)
{
    QPen pen(values.color, values.width, knownPenStyle(values.style), knownCap(values.cap),
             knownJoin(values.join));
    pen.setMiterLimit(MiterLimit);
    pen.setCosmetic(values.width == 0);
    return pen;
}

std::optional<QColor> plainColor(const FillValues& values)
{
    if (!isVisible(values)) {
        return QColor(Qt::transparent);
    }
    if (isGradient(values.style) || isHatch(values.style)) {
        return std::nullopt;
    }
    if (isTone(values.style)) {
        const auto index = static_cast<std::size_t>(values.style - Qt::Dense1Pattern);
        return withInk(values.color, InkOfDensePattern.at(index));
    }
    return values.color;
}

void paintFill(QPainter& painter, const QPainterPath& path, const QRectF& box,
               const FillValues& values)
{
    if (!isVisible(values)) {
        return;
    }
    if (isHatch(values.style)) {
        paintHatch(painter, path, box, values.style, visibleOnPaper(values.color, LightestHatch));
        return;
    }
    const std::optional<QColor> color = plainColor(values);
    painter.fillPath(path, color ? QBrush(*color) : gradientBrush(box, values));
}

void paintShape(QPainter& painter, const QPainterPath& path, const QRectF& box,
                const FillValues& fill, const PenValues& pen)
{
    paintFill(painter, path, box, fill);
    painter.strokePath(path, toPen(pen));
}

QPainterPath strokedArea(const QPainterPath& path, const PenValues& pen)
{
    if (!isVisible(pen)) {
        return {};
    }
    QPainterPathStroker stroker(toPen(pen));
    stroker.setDashPattern(Qt::SolidLine);
    stroker.setWidth(std::max(pen.width, ThinnestArea));
    return stroker.createStroke(path);
}

QPainterPath paintedShape(const QPainterPath& path, const FillValues& fill, const PenValues& pen)
{
    const QPainterPath stroke = strokedArea(path, pen);
    if (!isVisible(fill)) {
        return stroke;
    }
    return stroke.isEmpty() ? path : path.united(stroke);
}

} // namespace workbench
