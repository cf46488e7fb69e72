#pragma once

#include <QList>
#include <QPointF>

namespace workbench {
class CanvasItem;
}

namespace repair {

/// A mark in a text.
struct Mark
{
    int number = 0;
    int paragraph = 0;
    QPointF corner;   ///< of its picture, from the corner of the text's item
    double top = 0.0; ///< of its line
};

/// The marks that objects left in the text of an item.
[[nodiscard]] QList<Mark> marksOf(workbench::CanvasItem& item);

} // namespace repair
