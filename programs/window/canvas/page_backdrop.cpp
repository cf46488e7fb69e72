#include "window/canvas/page_backdrop.h"

#include <QPainter>
#include <QPainterPath>

namespace window {

namespace {

constexpr int ShadowPixels = 8;
constexpr int ShadowDarkness = 14; // alpha of each layer of the shadow
constexpr double DimmingOpacity = 0.72;

} // namespace

QColor surroundingsColor(const QPalette& palette)
{
    const QColor window = palette.color(QPalette::Window);
    return window.lightness() > 127 ? window.darker(115) : window.darker(140);
}

void paintPageGround(QPainter& painter, const QRectF& page, const QColor& ground,
                     double pixelsPerPoint)
{
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, ShadowDarkness));
    for (int layer = ShadowPixels; layer > 0; --layer) {
        const double spread = layer / pixelsPerPoint;
        painter.drawRoundedRect(page.adjusted(-spread, -spread * 0.5, spread, spread * 1.5), spread,
                                spread);
    }
    painter.restore();
    // Paper shows through a transparent background color.
    painter.fillRect(page, Qt::white);
    painter.fillRect(page, ground);
}

void paintPageSurroundings(QPainter& painter, const QRectF& page, const QRectF& visible,
                           const QColor& session)
{
    painter.save();
    QPainterPath outside;
    outside.addRect(visible);
    outside.addRect(page);
    QColor dimming = session;
    dimming.setAlphaF(static_cast<float>(DimmingOpacity));
    painter.fillPath(outside, dimming);
    QPen outline(QColor(0, 0, 0, 90));
    outline.setCosmetic(true);
    painter.setPen(outline);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(page);
    painter.restore();
}

void paintOutlines(QPainter& painter, const QList<QRectF>& boxes)
{
    painter.save();
    painter.setBrush(Qt::NoBrush);
    for (const QPen& pen :
         {QPen(Qt::white, 3.0), QPen(QColor(0xd0, 0x20, 0x20), 2.0, Qt::DashLine)}) {
        QPen cosmetic = pen;
        cosmetic.setCosmetic(true);
        painter.setPen(cosmetic);
        for (const QRectF& box : boxes) {
            painter.drawRect(box);
        }
    }
    painter.restore();
}

} // namespace window
