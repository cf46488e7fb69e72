#pragma once

#include "host/kest_types.h"
#include "tavrel/item_header.h"

#include <QString>

namespace tavrel {

struct ShapeRecord
{
    ItemHeader header;
    quint16 penWidth = 0; ///< points
    qint32 penStyle = 0;
    qint32 fillMode = 0;
    QString name;
};

/// How an item of a shape name is made.
enum class ShapeRule {
    Filled,         ///< a shape in its box
    HorizontalLine, ///< a line as long as the box is wide
    VerticalLine,   ///< a line as long as the box is high, turned upright
};

struct ShapeKind
{
    KestTypes::ShapeType type = KestTypes::Rectangle;
    ShapeRule rule = ShapeRule::Filled;
};

[[nodiscard]] ShapeRecord readShapeRecord(QDataStream& stream, const FileContext& file,
                                          qint64 itemNumber);

/// What a shape name means; a name that is not known is a rectangle.
[[nodiscard]] ShapeKind shapeKindOf(const QString& name);

/// The header of a vertical line's record as that of the same line lying: turned by a
/// quarter about its middle, its length in the width.
[[nodiscard]] ItemHeader uprightLineHeader(ItemHeader header);

} // namespace tavrel
