#pragma once

#include "tavrel/item_building.h"

#include <QString>

/// Shapes and lines.
namespace tavrel {

/// A shape or a line as the file stores it.
struct ShapeRecord
{
    ItemHeader header;
    quint16 penWidth = 0; ///< points
    qint32 penStyle = 0;
    qint32 fillMode = 0;
    QString name;
};

/// How an item is built from a shape's name.
enum class ShapeRule {
    Filled,         ///< a shape in its box
    HorizontalLine, ///< a line as long as the box is wide
    VerticalLine,   ///< a vertical line as long as the box is high
};

/// A type of shape, and how its record is interpreted.
struct ShapeKind
{
    KestTypes::ShapeType type = KestTypes::Rectangle;
    ShapeRule rule = ShapeRule::Filled;
};

/// Reads a record after its type code. Values beyond the end of the stream are zero or empty.
[[nodiscard]] ShapeRecord readShapeRecord(QDataStream& stream, const FileContext& file,
                                          qint64 itemNumber);

/// The kind of a shape name, case-sensitive; a rectangle for an unknown name.
[[nodiscard]] ShapeKind shapeKindOf(const QString& name);

/// Converts the header of a vertical line to that of a horizontal line that is turned by 90
/// degrees about its middle. Its length is in the width.
[[nodiscard]] ItemHeader uprightLineHeader(ItemHeader header);

/// Builds a shape or a line. Terminates the process if the host's factory creates nothing for a
/// line.
BuildResult buildShape(const HostCanvas& host, const ShapeRecord& record);

} // namespace tavrel
