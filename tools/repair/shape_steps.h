#pragma once

#include "repair/styles.h"

#include <QImage>
#include <QString>

namespace repair {

class Document;
class Node;

// Each step returns how often it changed something.

/// Replaces captions by a box and a line.
int splitCaptions(Document& document);
/// Replaces dimension lines by their lines and their text.
int splitMeasures(Document& document);
/// Gives the texts of lines and connectors boxes of their own.
int splitLineTexts(Document& document);
/// Replaces the tables of a drawing by their cells.
int splitTables(Document& document);
/// Draws connectors; straight ones become lines.
int drawConnectors(Document& document);
/// Draws polygons, polylines, and paths.
int drawPaths(Document& document);
/// Draws custom shapes, arcs, and shapes with a fill or skew that no item has.
int drawShapes(Document& document);
/// Writes the position of rotated shapes in the form that the reader supports.
int rewriteRotations(Document& document);
/// Replaces embedded documents without a picture that can be read by what they contain.
int unpackDocuments(Document& document);
/// The same for charts, which are drawn again from their values.
int drawCharts(Document& document);
/// Leaves in each frame one picture that can be read.
int choosePictures(Document& document);
/// Replaces pictures that are shown mirrored by mirrored ones.
int mirrorPictures(Document& document);

/// A picture of the package; null if it is missing, damaged, a vector drawing, or larger than the
/// reader accepts.
[[nodiscard]] QImage readPicture(const Document& document, const QString& reference);
/// Whether one of the pictures of a frame can be read.
[[nodiscard]] bool hasReadablePicture(const Document& document, const Node& frame);

/// On which side of a dimension line its text is: "above" or "below".
inline const QString LineTextAttribute = QLatin1String("labelport:line-text");

/// The rectangle of a shape's text in its box, where it is not the box: "x y width height" in
/// points.
inline const QString TextAreaAttribute = QLatin1String("labelport:text-area");
/// By how many degrees, clockwise, the text of a shape is turned in it.
inline const QString TextTurnAttribute = QLatin1String("labelport:text-turn");
/// The color behind a text that was taken out of its shape; a property of its graphic style.
inline const QString GroundProperty = QLatin1String("labelport:ground");

} // namespace repair
