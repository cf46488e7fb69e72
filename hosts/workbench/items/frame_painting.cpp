#include "workbench/items/frame_painting.h"

#include <QPainter>
#include <QPen>

namespace workbench {

QTransform flipTransform(const QRectF& box, const BoxValues& values)
{
    if (!values.flipHorizontal && !values.flipVertical) {
        return {};
    }
    const QPointF center = box.center();
    QTransform transform = QTransform::fromTranslate(center.x(), center.y());
    transform.scale(values.flipHorizontal ? -1.0 : 1.0, values.flipVertical ? -1.0 : 1.0);
    return transform.translate(-center.x(), -center.y());
}

void prepareContentPainter(QPainter& painter, const QRectF& box, const BoxValues& values)
{
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    // Widgets set their own direction, which must not change the label.
    painter.setLayoutDirection(Qt::LeftToRight);
    painter.setTransform(flipTransform(box, values), true);
}

void paintSelectionFrame(QPainter& painter, const QRectF& frame)
{
    painter.save();
    QPen pen(QColor(0x1a, 0x73, 0xe8), 0.0, Qt::DashLine);
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(frame);
    painter.restore();
}

} // namespace workbench
