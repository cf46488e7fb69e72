#pragma once

#include "workbench/items/item_values.h"

#include <QFont>
#include <QList>
#include <QRectF>
#include <QSizeF>
#include <QString>

class QPainter;

namespace workbench {

/// The font of the values. Its pixel size is the size in points: the scene's unit is the
/// point, so text has its true size at any resolution of the output.
[[nodiscard]] QFont toFont(const FontValues& values);
[[nodiscard]] QFont toFont(const FontValues& values, int size);

/// A text in one format. Line feeds start a new line.
struct PlainText
{
    QString text;
    QFont font;
    Qt::Alignment alignment;
    QColor color = Qt::black;
    bool wraps = false; ///< whether lines break at the width of the box
};

/// The size of the text, broken at the width if it wraps.
[[nodiscard]] QSizeF measureText(const PlainText& text, double width);

/// The offset of an aligned object in a box with this much free space.
[[nodiscard]] double verticalOffset(Qt::Alignment alignment, double room);

/// One line of a text, as it is painted.
struct TextLine
{
    QString text;
    QRectF box;            ///< as wide as the characters
    double baseline = 0.0; ///< y
};

/// A text broken into lines, and the font size for them.
struct TextLines
{
    QList<TextLine> lines;
    double fontSize = 0.0; ///< points
};

/// The lines of a text with its alignment in the box.
[[nodiscard]] TextLines textLines(const PlainText& text, const QRectF& box);

/// The lines of a text that is as large as it fits into the box. None if it is blank.
[[nodiscard]] TextLines textLinesFilling(const PlainText& text, const QRectF& box);

/// Paints the text with its alignment in the box; it may extend beyond the box.
void paintText(QPainter& painter, const PlainText& text, const QRectF& box);

/// The rectangle of the lines that paintText() paints.
[[nodiscard]] QRectF textRect(const PlainText& text, const QRectF& box);

/// The same for paintTextFilling(); empty for an empty text.
[[nodiscard]] QRectF fillingTextRect(const PlainText& text, const QRectF& box);

/// Paints the text as large as it fits into the box, keeping its proportions.
void paintTextFilling(QPainter& painter, const PlainText& text, const QRectF& box);

} // namespace workbench
