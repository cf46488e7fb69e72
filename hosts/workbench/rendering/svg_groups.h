#pragma once

#include <QByteArray>

class QPainter;

namespace workbench {

// Qt's SVG generator writes one group for each change of the painter's state, most of them empty,
// and cannot give groups a name. Invisible marks in the drawing say where an item begins.

/// Marks that what is painted from here on belongs to the item of this number.
void markSvgItem(QPainter& painter, int number);

/// The drawing of Qt's generator without empty groups, and with a group "item-7" for the item
/// marked with the number 7. Groups before the first mark get no name. Returns the text unchanged
/// if it is not well-formed.
[[nodiscard]] QByteArray withNamedItems(const QByteArray& svg);

} // namespace workbench
