#pragma once

#include <QByteArray>

class QPainter;

namespace workbench {

// Qt's SVG generator writes one group for each change of the painter's state, most of them empty,
// and cannot name groups. Invisible marks in the drawing show where an item begins.

/// Marks the start of the item of this number; all that is painted next belongs to it.
void markSvgItem(QPainter& painter, int number);

/// The drawing of Qt's generator without empty groups, and with a group "item-7" for the item
/// marked with the number 7. Groups before the first mark get no name. Returns the text unchanged
/// if it is not well-formed.
[[nodiscard]] QByteArray withNamedItems(const QByteArray& svg);

} // namespace workbench
