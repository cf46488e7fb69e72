#pragma once

#include "repair/styles.h"

#include <QList>

namespace repair {

class Document;
class Node;

/// Of the columns of a table: their widths in points, and their parts of the table's width; 0 for
/// those that state none.
struct ColumnWidths
{
    QList<double> points;
    QList<double> parts;
};
[[nodiscard]] ColumnWidths statedWidths(const Document& document, const Node& table);
/// Columns without a width share the rest of the room; columns that are too wide are narrowed.
[[nodiscard]] QList<double> fittedWidths(QList<double> widths, double room);
/// Where a table is in its column of text, in points.
struct TableRange
{
    double left = 0.0;
    QList<double> widths; // of the columns
};

/// @param own  what the style of the table states
/// @param room points, of the column of text
[[nodiscard]] TableRange tableRange(const Document& document, const Node& table,
                                    const Properties& own, double room);

} // namespace repair
