#include "workbench/items/frame_painting.h"

#include <QPainter>
#include <QPen>

namespace workbench {

void prepareContentPainter(QPainter& painter, const QRectF& box, const BoxValues& values)
{
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    if (!values.flipHorizontal && !values.flipVertical) {
        return;
    }
    const QPointF centre = box.center();
    painter.translate(centre);
    painter.scale(values.flipHorizontal ? -1.0 : 1.0, values.flipVertical ? -1.0 : 1.0);
    painter.translate(-centre);
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
