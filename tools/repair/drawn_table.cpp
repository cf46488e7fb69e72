#include "repair/drawn_table.h"

#include "repair/box_edges.h"
#include "repair/document.h"
#include "repair/lengths.h"
#include "repair/table_columns.h"
#include "repair/table_rows.h"
#include "repair/transform.h"

#include <QList>

#include <algorithm>
#include <iterator>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// 0.25 cm beside the text of a cell and 0.125 cm above it, where a cell states nothing.
const QString SidePadding = u"0.098425in"_s;
const QString TopPadding = u"0.049213in"_s;

double rowHeight(const Document& document, const QString& style)
{
    const Node* const automatic = document.content->child(u"office:automatic-styles");
    if (automatic != nullptr) {
        for (const auto& each : automatic->children) {
            const Node* const properties = each->child(u"style:table-row-properties");
            if (properties != nullptr && each->attribute(u"style:name") == style) {
                return pointsOf(*properties, u"style:row-height");
            }
        }
    }
    return 0.0;
}

// The rows of a drawing's table, which have no headers.
QList<Node*> rowsOf(const Node& table)
{
    QList<Node*> rows;
    for (const auto& child : table.children) {
        if (child->is(u"table:table-row") && rows.size() < MaximumRows) {
            rows.append(child.get());
        }
    }
    return rows;
}

// The heights in points; rows without one share what the frame leaves.
QList<double> rowHeights(const Document& document, const QList<Node*>& rows, double room)
{
    QList<double> heights;
    double given = 0.0;
    int open = 0;
    for (const Node* const row : rows) {
        heights.append(rowHeight(document, row->attribute(u"table:style-name")));
        given += heights.last();
        open += heights.last() > 0.0 ? 0 : 1;
    }
    for (double& height : heights) {
        height = height > 0.0 ? height : std::max(0.0, room - given) / open;
    }
    return heights;
}

// Ground, border and fonts of a cell in a drawing. What it does not state is that of shapes.
StyleProperties drawnCell(Document& document, const QString& style)
{
    const StyleProperties cell = document.table().resolved(u"table-cell"_s, style, true);
    const StyleProperties shapes = document.table().resolved(u"graphic"_s, u"standard"_s, true);
    StyleProperties result;
    result.graphic = {
        {u"draw:fill"_s, shapes.graphic.value(u"draw:fill"_s, u"solid"_s)},
        {u"draw:fill-color"_s, shapes.graphic.value(u"draw:fill-color"_s, u"#729fcf"_s)}};
    result.text = shapes.text;
    if (!cell.graphic.contains(u"fo:padding"_s)) {
        result.graphic.insert(u"fo:padding-left"_s, SidePadding);
        result.graphic.insert(u"fo:padding-right"_s, SidePadding);
        result.graphic.insert(u"fo:padding-top"_s, TopPadding);
        result.graphic.insert(u"fo:padding-bottom"_s, TopPadding);
    }
    result.overlay(cell);
    if (const Edges edges = edgesOf(cell.paragraph); edges.isPen()) {
        writePen(edges.left, result.graphic);
    }
    return result;
}

double sumOf(const QList<double>& lengths, qsizetype first, int count)
{
    double sum = 0.0;
    for (qsizetype i = first; i < std::min(first + count, lengths.size()); ++i) {
        sum += lengths[i];
    }
    return sum;
}

// Borders that no pen around the cell draws.
void addSides(Document& document, const QRectF& box, const StyleProperties& style,
              Node::Children& sides)
{
    const Edges edges = edgesOf(style.paragraph);
    if (edges.isPen()) {
        return;
    }
    Node::Children made = edgeBoxes(document, box, edges);
    std::move(made.begin(), made.end(), std::back_inserter(sides));
}

} // namespace

Node::Children drawnTableCells(Document& document, Node& frame)
{
    Node::Children cells;
    Node* const table = frame.child(u"table:table");
    if (table == nullptr) {
        return cells;
    }
    const Placement placement = placementOf(frame);
    const QList<double> widths =
        fittedWidths(statedWidths(document, *table).points, placement.size.width());
    const QList<Node*> rows = rowsOf(*table);
    const QList<double> heights = rowHeights(document, rows, placement.size.height());
    const QPointF corner = placement.toPage.map(QPointF());
    Node::Children sides; // above all cells
    double y = corner.y();
    for (qsizetype row = 0; row < rows.size(); ++row) {
        const QString rowStyle = rows[row]->attribute(u"table:default-cell-style-name");
        double x = corner.x();
        qsizetype column = 0;
        for (const auto& cell : rows[row]->children) {
            const int span = repeats(*cell, u"table:number-columns-spanned", MaximumColumns);
            if (cell->is(u"table:table-cell") && column < widths.size()) {
                const QString own = cell->attribute(u"table:style-name");
                const StyleProperties style = drawnCell(document, own.isEmpty() ? rowStyle : own);
                const int rowSpan = repeats(*cell, u"table:number-rows-spanned", MaximumRows);
                const QRectF place(x, y, sumOf(widths, column, span), sumOf(heights, row, rowSpan));
                auto box = textFrame(document, place, style.graphic, style.text);
                takeParagraphs(*cell, *box->child(u"draw:text-box"), 0);
                cells.push_back(std::move(box));
                addSides(document, place, style, sides);
            }
            // Cells that a wide one covers are listed too.
            x += !cell->isText() && column < widths.size() ? widths[column] : 0.0;
            column += cell->isText() ? 0 : 1;
        }
        y += heights[row];
    }
    std::move(sides.begin(), sides.end(), std::back_inserter(cells));
    return cells;
}

} // namespace repair
