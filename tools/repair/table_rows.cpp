#include "repair/table_rows.h"

#include "repair/anchored_shapes.h"
#include "repair/box_edges.h"
#include "repair/document.h"
#include "repair/flow_step.h"
#include "repair/lengths.h"
#include "repair/page_end.h"
#include "repair/shape_place.h"
#include "repair/table_columns.h"

#include <QList>
#include <QStringList>

#include <algorithm>
#include <utility>
#include <vector>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

const QString BackgroundColor = u"fo:background-color"_s;

// The first color that is given, of a cell, its row, and its table.
QString firstColor(const QStringList& colors)
{
    const auto found = std::find_if(colors.begin(), colors.end(),
                                    [](const QString& color) { return color.startsWith(u'#'); });
    return found != colors.end() ? *found : QString();
}

struct RowCell
{
    Node* node = nullptr;
    int column = 0;
    int span = 1;
    Properties style;
    Edges own = {};
    Edges shown = {}; // with those of the cells beside it
};

// A border between two cells belongs to both.
void share(Edge& edge, const Edge& other)
{
    if (!edge.isDrawn()) {
        edge = other;
    }
}

Properties cellGround(const RowCell& cell, const QString& fill)
{
    Properties ground;
    if (cell.shown.isPen()) {
        writePen(cell.shown.left, ground);
    }
    if (!fill.isEmpty()) {
        ground.insert(u"draw:fill"_s, u"solid"_s);
        ground.insert(u"draw:fill-color"_s, fill);
    }
    // The border is between the paddings of two cells.
    const auto pad = [&](const QString& side, const Edge& edge) {
        const QString name = u"fo:padding-"_s + side;
        const QString all = cell.style.value(u"fo:padding"_s);
        const double padding = toPoints(cell.style.value(name, all)).value_or(0.0);
        ground.insert(name, toInches(padding + edge.width / 2.0));
    };
    pad(u"left"_s, cell.shown.left);
    pad(u"right"_s, cell.shown.right);
    pad(u"top"_s, cell.shown.top);
    pad(u"bottom"_s, cell.shown.bottom);
    ground.insert(u"draw:textarea-vertical-align"_s, cell.style.value(u"style:vertical-align"_s));
    return ground;
}

/// Places the cells of one table.
class TableReader
{
public:
    TableReader(Document& document, TableRange range, const TextPlace& place, QString fill,
                int& row, double above)
        : m_document(document)
        , m_left(place.column.left() + range.left)
        , m_widths(std::move(range.widths))
        , m_place(place)
        , m_above(above)
        , m_fill(std::move(fill))
        , m_row(row)
        , m_number(QString::number(document.newMark()))
    {}

    void readRows(Node& parent, int depth);
    [[nodiscard]] Node::Children take() { return std::move(m_cells); }

private:
    void readRow(Node& row);
    [[nodiscard]] std::vector<RowCell> cellsOf(const Node& row);
    void addCell(RowCell& cell, const QString& rowFill, double height);
    [[nodiscard]] double widthOf(qsizetype column, int span) const;

    Document& m_document;
    const double m_left; // on the page
    const QList<double> m_widths;
    const TextPlace& m_place;
    double m_above;       // the next row, until one is read
    const QString m_fill; // color of the table; may be empty
    int& m_row;
    const QString m_number; // of the table
    bool m_isHeader = false;
    int m_rows = 0;
    QList<Edges> m_edges; // by column, of the cells above; in a row, of those before
    Node::Children m_cells;
};

double TableReader::widthOf(qsizetype column, int span) const
{
    double width = 0.0;
    for (qsizetype i = column; i < std::min(column + span, m_widths.size()); ++i) {
        width += m_widths[i];
    }
    return width;
}

// The cells of a row, with the edges that they have in common with those beside and above them.
std::vector<RowCell> TableReader::cellsOf(const Node& row)
{
    std::vector<RowCell> cells;
    int column = 0;
    for (const auto& child : row.children) {
        if (child->is(u"table:table-cell") && column < MaximumColumns) {
            RowCell cell{child.get(), column,
                         repeats(*child, u"table:number-columns-spanned", MaximumColumns - column),
                         statedBy(m_document, *child, u"style:table-cell-properties"_s)};
            cell.own = edgesOf(cell.style);
            cells.push_back(std::move(cell));
        }
        column +=
            child->isText() ? 0 : repeats(*child, u"table:number-columns-repeated", MaximumColumns);
    }
    for (std::size_t i = 0; i < cells.size(); ++i) {
        RowCell& cell = cells[i];
        const int end = cell.column + cell.span;
        const bool hasNext = i + 1 < cells.size() && cells[i + 1].column == end;
        cell.shown = cell.own;
        share(cell.shown.right, hasNext ? cells[i + 1].own.left : Edge());
        share(cell.shown.left, m_edges.value(cell.column - 1).right);
        share(cell.shown.top, m_edges.value(cell.column).bottom);
        m_edges.resize(std::max<qsizetype>(m_edges.size(), end));
        std::fill(m_edges.begin() + cell.column, m_edges.begin() + end, cell.own);
    }
    return cells;
}

void TableReader::addCell(RowCell& cell, const QString& rowFill, double height)
{
    const QRectF box(m_left + widthOf(0, cell.column), m_above, widthOf(cell.column, cell.span),
                     height);
    const QString fill = firstColor({cell.style.value(BackgroundColor), rowFill, m_fill});
    auto frame = textFrame(m_document, box, cellGround(cell, fill));
    takeParagraphs(*cell.node, *frame->child(u"draw:text-box"), 0);
    Node::Children shapes = takeAllShapes(m_document, *frame->child(u"draw:text-box"),
                                          {m_place.page, box, m_place.depth});
    std::move(shapes.begin(), shapes.end(), std::back_inserter(m_cells));
    const QString rows =
        QString::number(repeats(*cell.node, u"table:number-rows-spanned", MaximumRows));
    const auto add = [&](std::unique_ptr<Node> part) {
        part->setAttribute(RowAttribute, QString::number(m_row));
        part->setAttribute(TableAttribute, m_number);
        if (part->attribute(EdgeAttribute) != "top"_L1) {
            part->setAttribute(FillsRowAttribute, rows);
        }
        if (m_isHeader) {
            part->setAttribute(HeaderAttribute, u"true"_s);
        }
        m_cells.push_back(std::move(part));
    };
    add(std::move(frame));
    if (!cell.shown.isPen()) {
        for (auto& edge : edgeBoxes(m_document, box, cell.own)) {
            if (edge->attribute(EdgeAttribute) == "bottom"_L1) {
                moveShape(*edge, {0.0, -box.bottom()}); // added when the height is known
            }
            add(std::move(edge));
        }
    }
}

void TableReader::readRow(Node& row)
{
    ++m_row;
    const Properties rowStyle = statedBy(m_document, row, u"style:table-row-properties"_s);
    const QString rowFill = rowStyle.value(BackgroundColor);
    const double height = std::min(leastHeight(rowStyle), m_place.page.box.height());
    for (RowCell& cell : cellsOf(row)) {
        addCell(cell, rowFill, height);
    }
    m_above = 0.0;
}

void TableReader::readRows(Node& parent, int depth)
{
    for (const auto& child : parent.children) {
        if (child->is(u"table:table-row") && ++m_rows <= MaximumRows) {
            readRow(*child);
        } else if (child->name.startsWith("table:table-"_L1) && depth < 10 &&
                   child->name.endsWith("rows"_L1)) {
            const bool isHeader =
                std::exchange(m_isHeader, m_isHeader || child->is(u"table:table-header-rows"));
            readRows(*child, depth + 1);
            m_isHeader = isHeader;
        }
    }
}

} // namespace

double leastHeight(const Properties& row)
{
    const QString least = row.value(u"style:min-row-height"_s);
    return std::max(
        0.0, toPoints(least.isEmpty() ? row.value(u"style:row-height"_s) : least).value_or(0.0));
}

int repeats(const Node& node, QStringView attribute, int most)
{
    return std::clamp(node.attribute(attribute).toInt(), 1, most);
}

void takeParagraphs(Node& parent, Node& target, int depth)
{
    for (auto& child : parent.children) {
        if (child->is(u"text:p") || child->is(u"text:h") || child->is(u"text:list")) {
            target.children.push_back(std::move(child));
        } else if (depth < 50 && !child->isText() && !isHidden(*child)) {
            takeParagraphs(*child, target, depth + 1);
        }
    }
    std::erase(parent.children, nullptr);
}

std::unique_ptr<Node> textFrame(Document& document, const QRectF& box, const Properties& graphic,
                                const Properties& text)
{
    StyleProperties style;
    style.text = text;
    style.graphic = {{u"draw:stroke"_s, u"none"_s},
                     {u"draw:fill"_s, u"none"_s},
                     {u"fo:padding"_s, u"0in"_s},
                     {u"fo:wrap-option"_s, u"wrap"_s},
                     {u"draw:textarea-horizontal-align"_s, u"justify"_s},
                     {u"draw:textarea-vertical-align"_s, u"top"_s}};
    for (auto it = graphic.begin(); it != graphic.end(); ++it) {
        if (!it.value().isEmpty()) {
            style.graphic.insert(it.key(), it.value());
        }
    }
    auto frame = Node::element(u"draw:frame"_s);
    frame->setAttribute(u"draw:style-name"_s, document.styleFor(u"graphic"_s, style));
    frame->setAttribute(u"svg:x"_s, toInches(box.x()));
    frame->setAttribute(u"svg:y"_s, toInches(box.y()));
    frame->setAttribute(u"svg:width"_s, toInches(box.width()));
    frame->setAttribute(u"svg:height"_s, toInches(std::max(box.height(), 1.0)));
    frame->append(Node::element(u"draw:text-box"_s));
    return frame;
}

Node::Children tableCells(Document& document, Node& table, const TextPlace& place, int& row,
                          double above)
{
    const Properties own = statedBy(document, table, u"style:table-properties"_s);
    TableReader reader(document, tableRange(document, table, own, place.column.width()), place,
                       own.value(BackgroundColor), row, above);
    reader.readRows(table, 0);
    return reader.take();
}

} // namespace repair
