#include "repair/object_items.h"

#include "host/items/rich_text_item.h"
#include "workbench/items/canvas_item.h"

namespace repair {

void moveItems(const ObjectItems& items, const QPointF& offset)
{
    for (workbench::CanvasItem* const item : {items.shape, items.text}) {
        if (item != nullptr) {
            item->graphicsItem()->moveBy(offset.x(), offset.y());
        }
    }
}

double bottomOf(workbench::CanvasItem& item)
{
    return item.graphicsItem()->pos().y() + item.contractItem()->getItemHeight();
}

} // namespace repair
