#include "workbench/items/hatching.h"

#include <QPainter>
#include <QPainterPath>
#include <QPen>

#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

constexpr double Spacing = 6.0;               // distance of two lines in points
constexpr double LineWidth = 0.75;            // points
constexpr double MaximumHatchLines = 2'000.0; // lines in one direction

// The lines for positions `from` to `to` on a grid that starts at 0.
template <class MakeLine>
void addRaster(QList<QLineF>& lines, double from, double to, double spacing,
               const MakeLine& makeLine)
{
    const double step = std::max(spacing, (to - from) / MaximumHatchLines);
    for (double position = std::ceil(from / step) * step; position <= to; position += step) {
        lines.append(makeLine(position));
    }
}

void addHorizontal(QList<QLineF>& lines, const QRectF& area)
{
    addRaster(lines, area.top(), area.bottom(), Spacing,
              [&area](double y) { return QLineF(area.left(), y, area.right(), y); });
}

void addVertical(QList<QLineF>& lines, const QRectF& area)
{
    addRaster(lines, area.left(), area.right(), Spacing,
              [&area](double x) { return QLineF(x, area.top(), x, area.bottom()); });
}

// Rising to the right: x + y is constant along a line.
void addRising(QList<QLineF>& lines, const QRectF& area)
{
    addRaster(lines, area.left() + area.top(), area.right() + area.bottom(),
              Spacing * std::sqrt(2.0), [&area](double sum) {
                  return QLineF(sum - area.bottom(), area.bottom(), sum - area.top(), area.top());
              });
}

// Falling to the right: x - y is constant along a line.
void addFalling(QList<QLineF>& lines, const QRectF& area)
{
    addRaster(lines, area.left() - area.bottom(), area.right() - area.top(),
              Spacing * std::sqrt(2.0), [&area](double difference) {
                  return QLineF(difference + area.top(), area.top(), difference + area.bottom(),
                                area.bottom());
              });
}

} // namespace

bool isHatch(int style)
{
    return style >= Qt::HorPattern && style <= Qt::DiagCrossPattern;
}

QList<QLineF> hatchLines(const QRectF& area, int style)
{
    QList<QLineF> lines;
    if (area.isEmpty()) {
        return lines;
    }
    if (style == Qt::HorPattern || style == Qt::CrossPattern) {
        addHorizontal(lines, area);
    }
    if (style == Qt::VerPattern || style == Qt::CrossPattern) {
        addVertical(lines, area);
    }
    if (style == Qt::BDiagPattern || style == Qt::DiagCrossPattern) {
        addRising(lines, area);
    }
    if (style == Qt::FDiagPattern || style == Qt::DiagCrossPattern) {
        addFalling(lines, area);
    }
    return lines;
}

void paintHatch(QPainter& painter, const QPainterPath& path, const QRectF& box, int style,
                const QColor& color)
{
    // Only the visible part: a box may be far larger than its page.
    const QRectF area = painter.hasClipping() ? box.intersected(painter.clipBoundingRect()) : box;
    painter.save();
    painter.setClipPath(path, Qt::IntersectClip);
    painter.setPen(QPen(color, LineWidth));
    painter.drawLines(hatchLines(area, style));
    painter.restore();
}

} // namespace workbench
