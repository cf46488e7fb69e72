#include "workbench/barcodes/barcode_painter.h"

#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QTextOption>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace workbench::barcodes {

namespace {

/// Sizes are measured with a font of this many pixels and scaled, because font metrics are
/// wrong below one pixel and ignore fractions of a pixel.
constexpr int MeasuringSize = 100;
/// Modules narrower than this many pixels are not fitted to the pixel grid.
constexpr double LeastSnapped = 2.0;

[[nodiscard]] QFont measuringFont(const BarcodeStyle& style)
{
    QFont font = style.font;
    font.setPixelSize(MeasuringSize);
    return font;
}

[[nodiscard]] double targetPixelSize(const QFont& font)
{
    if (font.pixelSize() > 0) {
        return font.pixelSize();
    }
    return font.pointSizeF() > 0.0 ? font.pointSizeF() : 12.0;
}

void layOutCaption(BarcodeLayout& layout, const QString& caption, const QRectF& box,
                   const BarcodeStyle& style)
{
    const QFontMetricsF metrics(measuringFont(style));
    const double width = std::max(1.0, metrics.horizontalAdvance(caption)) / MeasuringSize;
    const double height = metrics.height() / MeasuringSize;
    layout.captionPixelSize = std::min({targetPixelSize(style.font), box.width() / width,
                                        box.height() * MaximumCaptionShare / height});
    const double line = layout.captionPixelSize * height;
    layout.caption = QRectF(box.left(), box.bottom() - line, box.width(), line);
}

[[nodiscard]] bool isUsable(const QRectF& box)
{
    return box.width() > 0.0 && box.height() > 0.0 && std::isfinite(box.width()) &&
           std::isfinite(box.height());
}

void centerBars(BarcodeLayout& layout, const QSizeF& modules, const QRectF& room)
{
    const QSizeF size(modules.width() * layout.moduleWidth, modules.height() * layout.moduleHeight);
    layout.bars = QRectF(
        QPointF(room.center().x() - size.width() / 2.0, room.center().y() - size.height() / 2.0),
        size);
}

/// Pixels per painter unit if the device has pixels and its axes are parallel to the painter's
/// (possibly swapped or mirrored); else 0.
[[nodiscard]] double pixelsPerUnit(const QPainter& painter)
{
    if (!painter.paintEngine() || painter.paintEngine()->type() != QPaintEngine::Raster) {
        return 0.0;
    }
    const QTransform transform = painter.deviceTransform();
    const auto isZero = [](double value) { return std::abs(value) < 1e-9; };
    const bool upright = isZero(transform.m12()) && isZero(transform.m21());
    const bool turned = isZero(transform.m11()) && isZero(transform.m22());
    if (!transform.isAffine() || (!upright && !turned)) {
        return 0.0;
    }
    const double across = std::hypot(transform.m11(), transform.m12());
    const double down = std::hypot(transform.m21(), transform.m22());
    return std::abs(across - down) < 1e-6 * across ? across : 0.0;
}

/// Gives every module an integral number of pixels. Returns false if the layout is unchanged.
[[nodiscard]] bool snapToPixels(BarcodeLayout& layout, const BarcodeSymbol& symbol,
                                const QPainter& painter)
{
    const double scale = pixelsPerUnit(painter);
    if (scale * layout.moduleWidth < LeastSnapped) {
        return false;
    }
    const QRectF room = layout.bars;
    // Rounding errors just below an integer count as that integer.
    layout.moduleWidth = std::floor(layout.moduleWidth * scale + 1e-3) / scale;
    if (symbol.fixedRatio) {
        layout.moduleHeight = layout.moduleWidth;
    }
    centerBars(layout, symbol.size, room);

    const QTransform transform = painter.deviceTransform();
    const QPointF corner = transform.map(layout.bars.topLeft());
    const QPointF whole(std::round(corner.x()), std::round(corner.y()));
    layout.bars.moveTopLeft(transform.inverted().map(whole));
    return true;
}

[[nodiscard]] QPainterPath hexagonPath(const Hexagon& hexagon)
{
    const double radius = hexagon.diameter / 2.0;
    const double half = radius / 2.0;
    const double side = half * std::numbers::sqrt3;
    QPainterPath path;
    path.addPolygon(
        QPolygonF({hexagon.center + QPointF(0.0, -radius), hexagon.center + QPointF(side, -half),
                   hexagon.center + QPointF(side, half), hexagon.center + QPointF(0.0, radius),
                   hexagon.center + QPointF(-side, half), hexagon.center + QPointF(-side, -half)}));
    path.closeSubpath();
    return path;
}

/// The complete foreground as one path: painted separately, adjacent modules would show
/// bright seams.
[[nodiscard]] QPainterPath foregroundPath(const BarcodeSymbol& symbol)
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (const QRectF& bar : symbol.bars) {
        path.addRect(bar);
    }
    for (const Hexagon& hexagon : symbol.hexagons) {
        path.addPath(hexagonPath(hexagon));
    }
    return path;
}

void paintCircle(QPainter& painter, const Circle& circle, const BarcodeStyle& style)
{
    const QColor color = circle.ground ? style.background : style.foreground;
    const double radius = circle.diameter / 2.0;
    painter.setPen(circle.width > 0.0 ? QPen(color, circle.width) : QPen(Qt::NoPen));
    painter.setBrush(circle.width > 0.0 ? QBrush(Qt::NoBrush) : QBrush(color));
    painter.drawEllipse(circle.center, radius, radius);
}

void paintSymbol(QPainter& painter, const BarcodeLayout& layout, const BarcodeSymbol& symbol,
                 const BarcodeStyle& style, bool snapped)
{
    const bool round = !symbol.hexagons.isEmpty() || !symbol.circles.isEmpty();
    painter.setRenderHint(QPainter::Antialiasing, !snapped || round);
    painter.translate(layout.bars.topLeft());
    painter.scale(layout.moduleWidth, layout.moduleHeight);
    painter.setPen(Qt::NoPen);
    painter.setBrush(style.foreground);
    painter.drawPath(foregroundPath(symbol));
    for (const ColoredBar& bar : symbol.coloredBars) {
        painter.fillRect(bar.rect, bar.color);
    }
    for (const Circle& circle : symbol.circles) {
        paintCircle(painter, circle, style);
    }
}

/// A line or paragraph of text with a fractional pixel size.
void paintText(QPainter& painter, const QRectF& box, const QString& text, const QFont& font,
               double pixelSize, const QTextOption& option)
{
    const double scale = pixelSize / MeasuringSize;
    QFont measured = font;
    measured.setPixelSize(MeasuringSize);
    painter.save();
    painter.translate(box.topLeft());
    painter.scale(scale, scale);
    painter.setFont(measured);
    painter.drawText(QRectF(QPointF(), box.size() / scale), text, option);
    painter.restore();
}

void paintCaption(QPainter& painter, const BarcodeLayout& layout, const BarcodeSymbol& symbol,
                  const BarcodeStyle& style)
{
    const Qt::Alignment across = style.captionAlignment & Qt::AlignHorizontal_Mask;
    QTextOption option(Qt::AlignVCenter | Qt::AlignAbsolute |
                       (across ? across : Qt::Alignment(Qt::AlignLeft)));
    option.setTextDirection(Qt::LayoutDirectionAuto);
    option.setWrapMode(QTextOption::NoWrap);
    painter.setPen(style.textColor);
    paintText(painter, layout.caption, symbol.caption, style.font, layout.captionPixelSize, option);
}

/// The largest size, at most the font's own, at which the wrapped text fits.
[[nodiscard]] double fittingPixelSize(const QRectF& box, const QString& text,
                                      const BarcodeStyle& style)
{
    const QFontMetricsF metrics(measuringFont(style));
    double size = std::min(targetPixelSize(style.font), box.height() * 0.5);
    for (int attempt = 0; attempt < 20; ++attempt, size *= 0.85) {
        const double scale = MeasuringSize / size;
        const QRectF needed =
            metrics.boundingRect(QRectF(QPointF(), box.size() * scale), Qt::TextWordWrap, text);
        if (needed.width() <= box.width() * scale && needed.height() <= box.height() * scale) {
            break;
        }
    }
    return size;
}

void paintError(QPainter& painter, const QRectF& box, const QString& error,
                const BarcodeStyle& style)
{
    constexpr QColor signal(192, 0, 0);
    painter.setPen(QPen(signal, 0.0, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(box);
    const double margin = std::min(2.0, std::min(box.width(), box.height()) / 10.0);
    const QRectF inside = box.adjusted(margin, margin, -margin, -margin);
    QTextOption option(Qt::AlignCenter);
    option.setWrapMode(QTextOption::WordWrap);
    painter.setPen(signal);
    paintText(painter, inside, error, style.font, fittingPixelSize(inside, error, style), option);
}

} // namespace

BarcodeLayout layOut(const BarcodeSymbol& symbol, const QRectF& box, const BarcodeStyle& style)
{
    BarcodeLayout layout;
    if (!isUsable(box) || symbol.size.isEmpty()) {
        return layout;
    }
    QRectF room = box;
    if (!symbol.caption.isEmpty()) {
        layOutCaption(layout, symbol.caption, box, style);
        room.setBottom(layout.caption.top());
    }
    const double widest = room.width() / symbol.size.width();
    layout.moduleWidth = style.moduleWidth > 0.0 ? std::min(style.moduleWidth, widest) : widest;
    layout.moduleHeight = room.height() / symbol.size.height();
    if (symbol.fixedRatio) {
        layout.moduleWidth = std::min(layout.moduleWidth, layout.moduleHeight);
        layout.moduleHeight = layout.moduleWidth;
    }
    centerBars(layout, symbol.size, room);
    return layout;
}

void paintBarcode(QPainter& painter, const QRectF& box, const BarcodeSymbol& symbol,
                  const BarcodeStyle& style)
{
    if (!isUsable(box)) {
        return;
    }
    painter.save();
    if (!symbol.isValid()) {
        paintError(painter, box, symbol.error, style);
    } else if (BarcodeLayout layout = layOut(symbol, box, style); layout.moduleWidth > 0.0) {
        if (!symbol.caption.isEmpty()) {
            paintCaption(painter, layout, symbol, style);
        }
        const bool snapped = snapToPixels(layout, symbol, painter);
        paintSymbol(painter, layout, symbol, style, snapped);
    }
    painter.restore();
}

} // namespace workbench::barcodes
