#include "workbench/rendering/page_painter.h"

#include "workbench/canvas/canvas.h"

#include <QGraphicsItem>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

namespace workbench {

namespace {

void paintItem(QPainter& painter, QGraphicsItem& item)
{
    QStyleOptionGraphicsItem option;
    option.exposedRect = item.boundingRect();
    painter.save();
    painter.setTransform(item.sceneTransform(), true);
    item.paint(&painter, &option, nullptr);
    painter.restore();
}

} // namespace

void paintPage(QPainter& painter, const Canvas& canvas, const BeforeItem& beforeItem)
{
    const QRectF page = canvas.pageRect();
    painter.save();
    painter.setClipRect(page, Qt::IntersectClip);
    painter.fillRect(page, canvas.canvasBackgroundColor());
    const QList<CanvasItem*> items = canvas.itemsFromBottom();
    int position = 0;
    for (CanvasItem* item : items) {
        ++position;
        if (item->graphicsItem()->sceneBoundingRect().intersects(page)) {
            if (beforeItem) {
                beforeItem(position);
            }
            paintItem(painter, *item->graphicsItem());
        }
    }
    painter.restore();
}

} // namespace workbench
