#include "workbench/rendering/page_painter.h"

#include "workbench/canvas/canvas.h"

#include <QGraphicsItem>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

namespace workbench {

bool isOnPage(const CanvasItem& item, const Canvas& canvas)
{
    return item.graphicsItem()->sceneBoundingRect().intersects(canvas.pageRect());
}

void paintUnplacedItem(QPainter& painter, const CanvasItem& item)
{
    QStyleOptionGraphicsItem option;
    option.exposedRect = item.graphicsItem()->boundingRect();
    // Painting does not change an item, but Qt's function is not const.
    const_cast<QGraphicsItem*>(item.graphicsItem())->paint(&painter, &option, nullptr);
}

void paintItem(QPainter& painter, const CanvasItem& item)
{
    painter.save();
    painter.setTransform(item.graphicsItem()->sceneTransform(), true);
    paintUnplacedItem(painter, item);
    painter.restore();
}

void paintPage(QPainter& painter, const Canvas& canvas, const BeforeItem& beforeItem)
{
    const QRectF page = canvas.pageRect();
    painter.save();
    painter.setClipRect(page, Qt::IntersectClip);
    painter.fillRect(page, canvas.canvasBackgroundColor());
    const QList<CanvasItem*> items = canvas.itemsFromBottom();
    int position = 0;
    for (const CanvasItem* item : items) {
        ++position;
        if (isOnPage(*item, canvas)) {
            if (beforeItem) {
                beforeItem(position);
            }
            paintItem(painter, *item);
        }
    }
    painter.restore();
}

} // namespace workbench
