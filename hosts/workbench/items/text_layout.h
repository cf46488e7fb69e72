#pragma once

#include "workbench/items/item_values.h"

#include <QFont>
#include <QRectF>
#include <QSizeF>
#include <QString>

class QPainter;

namespace workbench {

/// The font of the values. Its pixel size is the size in points: a unit of the scene is a
/// point, so text has its true size whatever the resolution of the output.
[[nodiscard]] QFont toFont(const FontValues& values);
[[nodiscard]] QFont toFont(const FontValues& values, int size);

/// A text in one format. Line feeds begin a new line.
struct PlainText
{
    QString text;
    QFont font;
    Qt::Alignment alignment;
    QColor color = Qt::black;
    bool wraps = false; ///< whether lines break at the width of the box
};

/// The size of the text, broken at the width when it wraps.
[[nodiscard]] QSizeF measureText(const PlainText& text, double width);

/// Where something begins that is aligned within a box with this much room left over.
[[nodiscard]] double verticalOffset(Qt::Alignment alignment, double room);

/// Paints the text where its alignment says within the box; it may stand out of it.
void paintText(QPainter& painter, const PlainText& text, const QRectF& box);

/// Paints the text as large as it fits into the box, in one size for both directions.
void paintTextFilling(QPainter& painter, const PlainText& text, const QRectF& box);

} // namespace workbench
