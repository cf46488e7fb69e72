#include "repair/table_columns.h"

#include "repair/document.h"
#include "repair/lengths.h"
#include "repair/table_rows.h"

#include <algorithm>
#include <numeric>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// "13262*"
double partOf(const QString& relative)
{
    return relative.endsWith(u'*') ? std::max(0.0, relative.chopped(1).toDouble()) : 0.0;
}

void readColumns(const Document& document, const Node& parent, ColumnWidths& widths)
{
    for (const auto& child : parent.children) {
        if (child->is(u"table:table-column")) {
            const Properties column =
                statedBy(document, *child, u"style:table-column-properties"_s);
            const double width = toPoints(column.value(u"style:column-width"_s)).value_or(0.0);
            const int count = repeats(*child, u"table:number-columns-repeated", MaximumColumns);
            for (int i = 0; i < count && widths.points.size() < MaximumColumns; ++i) {
                widths.points.append(width);
                widths.parts.append(partOf(column.value(u"style:rel-column-width"_s)));
            }
        } else if (child->is(u"table:table-columns") || child->is(u"table:table-header-columns")) {
            readColumns(document, *child, widths);
        }
    }
}

} // namespace

ColumnWidths statedWidths(const Document& document, const Node& table)
{
    ColumnWidths widths;
    readColumns(document, table, widths);
    return widths;
}

QList<double> fittedWidths(QList<double> widths, double room)
{
    double given = 0.0;
    qsizetype open = 0;
    for (const double width : widths) {
        given += width;
        open += width > 0.0 ? 0 : 1;
    }
    const double share = open > 0 ? std::max(0.0, room - given) / static_cast<double>(open) : 0.0;
    const double scale = given > room && room > 0.0 ? room / given : 1.0;
    for (double& width : widths) {
        width = width > 0.0 ? width * scale : share;
    }
    return widths;
}

TableRange tableRange(const Document& document, const Node& table, const Properties& own,
                      double room)
{
    const QString align = own.value(u"table:align"_s);
    const double left = toPoints(own.value(u"fo:margin-left"_s)).value_or(0.0);
    const double right = toPoints(own.value(u"fo:margin-right"_s)).value_or(0.0);
    const QString share = own.value(u"style:rel-width"_s);
    double width = share.endsWith(u'%') ? share.chopped(1).toDouble() / 100.0 * room
                                        : toPoints(own.value(u"style:width"_s)).value_or(0.0);
    if (align == "margins"_L1 || !(width > 0.0)) {
        width = room - left - right;
    }
    const bool isWidthStated = align == "margins"_L1 || own.contains(u"style:width"_s);
    const ColumnWidths stated = statedWidths(document, table);
    const bool hasParts = !stated.parts.isEmpty() && !stated.parts.contains(0.0);
    TableRange range{left, fittedWidths(hasParts ? stated.parts : stated.points, width)};
    const double sum = std::accumulate(range.widths.begin(), range.widths.end(), 0.0);
    const double scale =
        (isWidthStated || hasParts) && sum > 0.0 && width > 0.0 ? width / sum : 1.0;
    for (double& column : range.widths) {
        column *= scale;
    }
    if (align == "center"_L1) {
        range.left = (room - sum * scale) / 2.0;
    } else if (align == "right"_L1) {
        range.left = room - right - sum * scale;
    }
    return range;
}

} // namespace repair
