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

void growWithText(const ObjectItems& items)
{
    if (items.shape == nullptr || items.text == nullptr) {
        return;
    }
    Item* const box = items.shape->contractItem();
    const double grown =
        bottomOf(*items.text) + items.plan->space - items.shape->graphicsItem()->pos().y();
    if (grown > box->getItemHeight()) {
        box->setItemSize({box->getItemWidth(), grown});
    }
}

} // namespace repair
