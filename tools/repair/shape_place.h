#pragma once

#include <QRectF>
#include <QString>

namespace repair {

class Node;

/// The row of an object of a text document: a number that grows down the page.
inline const QString RowAttribute = QLatin1String("labelport:row");
/// The number of the mark that an object left in its text. Its place is relative to the mark.
inline const QString AnchorAttribute = QLatin1String("labelport:anchor");
/// Whether the object is a character of its line. Otherwise it has its own place across the page.
inline const QString InLineAttribute = QLatin1String("labelport:in-line");

/// Whether the object is a part of an embedded document: the frame decides how high the row is.
inline const QString InsideFrameAttribute = QLatin1String("labelport:inside-frame");

/// Where an object is, in points; a group with all that it contains.
[[nodiscard]] QRectF boundsOf(const Node& shape);
/// Moves an object of any kind, in points.
void moveShape(Node& shape, const QPointF& offset);
/// Gives a part of an object the object's place in the text.
void keepPlace(const Node& shape, Node& part);

} // namespace repair
