#pragma once

#include "repair/item_plan.h"

#include <QMap>

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

/// Places the objects of a text document, whose texts have their sizes: its rows one below the
/// other from `top`, in points, and the objects in its texts at their marks.
///
/// @param objects by their order
void placeObjects(const QMap<int, ObjectItems>& objects, double top);

} // namespace repair
