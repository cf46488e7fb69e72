#pragma once

#include "tavrel/file_context.h"

#include <QDataStream>
#include <QPointF>
#include <QSizeF>

namespace tavrel {

/// What every item record starts with. Lengths are in points; none of them is checked, so
/// they may be infinite or not a number.
struct ItemHeader
{
    bool movable = false;
    double x = 0.0;
    double y = 0.0;
    double zValue = 0.0;
    double rotation = 0.0; ///< degrees
    double width = -1.0;
    double height = -1.0;

    [[nodiscard]] QPointF position() const { return {x, y}; }
    [[nodiscard]] QSizeF size() const { return {width, height}; }
};

/// @param itemNumber the item's number in the order of reading: of two items in one layer
///                   the later one stands in front
[[nodiscard]] ItemHeader readItemHeader(QDataStream& stream, const FileContext& file,
                                        qint64 itemNumber);

} // namespace tavrel
