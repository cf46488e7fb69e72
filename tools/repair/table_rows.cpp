#include "repair/table_rows.h"

#include "repair/anchored_shapes.h"
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

Properties cellGround(const Properties& cell, const QString& fill)
{
    Properties ground;
    addBorder(cell, ground);
    if (!fill.isEmpty()) {
        ground.insert(u"draw:fill"_s, u"solid"_s);
        ground.insert(u"draw:fill-color"_s, fill);
    }
    // The border is between the paddings of two cells.
    const double border = toPoints(ground.value(u"svg:stroke-width"_s)).value_or(0.0);
    for (const QString& name : {u"fo:padding"_s, u"fo:padding-left"_s, u"fo:padding-right"_s,
                                u"fo:padding-top"_s, u"fo:padding-bottom"_s}) {
        if (const auto padding = toPoints(cell.value(name))) {
            ground.insert(name, toInches(*padding + border / 2.0));
        }
    }
    ground.insert(u"draw:textarea-vertical-align"_s, cell.value(u"style:vertical-align"_s));
    return ground;
}

// The least height of a row, in points.
double rowHeight(const Properties& row)
{
    const QString least = row.value(u"style:min-row-height"_s);
    return std::max(
        0.0, toPoints(least.isEmpty() ? row.value(u"style:row-height"_s) : least).value_or(0.0));
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

void TableReader::readRow(Node& row)
{
    ++m_row;
    const Properties rowStyle = statedBy(m_document, row, u"style:table-row-properties"_s);
    const QString rowFill = rowStyle.value(BackgroundColor);
    const double height = std::min(rowHeight(rowStyle), m_place.page.box.height());
    qsizetype column = 0;
    for (const auto& cell : row.children) {
        const int count = repeats(*cell, u"table:number-columns-repeated", MaximumColumns);
        if (cell->is(u"table:table-cell")) {
            const int span = repeats(*cell, u"table:number-columns-spanned", MaximumColumns);
            const QRectF box(m_left + widthOf(0, static_cast<int>(column)), m_above,
                             widthOf(column, span), height);
            const Properties style = statedBy(m_document, *cell, u"style:table-cell-properties"_s);
            const QString fill = firstColor({style.value(BackgroundColor), rowFill, m_fill});
            auto frame = textFrame(m_document, box, cellGround(style, fill));
            frame->setAttribute(RowAttribute, QString::number(m_row));
            frame->setAttribute(
                FillsRowAttribute,
                QString::number(repeats(*cell, u"table:number-rows-spanned", MaximumRows)));
            frame->setAttribute(TableAttribute, m_number);
            if (m_isHeader) {
                frame->setAttribute(HeaderAttribute, u"true"_s);
            }
            takeParagraphs(*cell, *frame->child(u"draw:text-box"), 0);
            Node::Children shapes = takeAllShapes(m_document, *frame->child(u"draw:text-box"),
                                                  {m_place.page, box, m_place.depth});
            std::move(shapes.begin(), shapes.end(), std::back_inserter(m_cells));
            m_cells.push_back(std::move(frame));
        }
        column += cell->isText() ? 0 : count;
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

Properties statedBy(const Document& document, const Node& part, const QString& tag)
{
    return statedInStyle(document, part.attribute(u"table:style-name"), tag);
}

Properties statedInStyle(const Document& document, const QString& style, const QString& tag)
{
    Properties result;
    const Node* const automatic = document.content->child(u"office:automatic-styles");
    if (automatic == nullptr || style.isEmpty()) {
        return result;
    }
    for (const auto& each : automatic->children) {
        const Node* const properties = each->child(tag);
        if (properties != nullptr && each->attribute(u"style:name") == style) {
            for (const Attribute& attribute : properties->attributes) {
                result.insert(attribute.name, attribute.value);
            }
        }
    }
    return result;
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

void addBorder(const Properties& source, Properties& target)
{
    QString border = source.value(u"fo:border"_s);
    for (const QString& side : {u"fo:border-bottom"_s, u"fo:border-left"_s, u"fo:border-top"_s}) {
        if (border.isEmpty() || border == "none"_L1) {
            border = source.value(side);
        }
    }
    const QStringList parts = border.split(u' ', Qt::SkipEmptyParts);
    if (parts.size() == 3) {
        target.insert(u"draw:stroke"_s, u"solid"_s);
        target.insert(u"svg:stroke-width"_s, parts[0]);
        target.insert(u"svg:stroke-color"_s, parts[2]);
    }
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
