#pragma once

#include "repair/item_plan.h"

#include <QPointF>

namespace workbench {
class CanvasItem;
}

namespace repair {

/// The items of one object.
struct ObjectItems
{
    const ItemPlan* plan = nullptr;
    workbench::CanvasItem* shape = nullptr;
    workbench::CanvasItem* text = nullptr;
};

void moveItems(const ObjectItems& items, const QPointF& offset);
[[nodiscard]] double bottomOf(workbench::CanvasItem& item);
/// Makes a frame at least as high as its text.
void growWithText(const ObjectItems& items);

} // namespace repair
