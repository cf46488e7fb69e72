#include "repair/table_rows.h"

#include "repair/document.h"
#include "repair/flow_step.h"
#include "repair/lengths.h"

#include <QList>

#include <algorithm>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

Properties cellProperties(const Document& document, const QString& style)
{
    Properties result;
    const Node* const automatic = document.content->child(u"office:automatic-styles");
    if (automatic == nullptr) {
        return result;
    }
    for (const auto& each : automatic->children) {
        const Node* const properties = each->child(u"style:table-cell-properties");
        if (properties != nullptr && each->attribute(u"style:name") == style) {
            for (const Attribute& attribute : properties->attributes) {
                result.insert(attribute.name, attribute.value);
            }
        }
    }
    return result;
}

double columnShare(const Document& document, const QString& style)
{
    const Node* const automatic = document.content->child(u"office:automatic-styles");
    if (automatic != nullptr) {
        for (const auto& each : automatic->children) {
            const Node* const properties = each->child(u"style:table-column-properties");
            if (properties != nullptr && each->attribute(u"style:name") == style) {
                return pointsOf(*properties, u"style:column-width");
            }
        }
    }
    return 0.0;
}

void readColumns(const Document& document, const Node& parent, QList<double>& widths)
{
    for (const auto& child : parent.children) {
        if (child->is(u"table:table-column")) {
            const double width = columnShare(document, child->attribute(u"table:style-name"));
            const int count = repeats(*child, u"table:number-columns-repeated", MaximumColumns);
            for (int i = 0; i < count && widths.size() < MaximumColumns; ++i) {
                widths.append(width);
            }
        } else if (child->is(u"table:table-columns") || child->is(u"table:table-header-columns")) {
            readColumns(document, *child, widths);
        }
    }
}

Properties groundOf(const Properties& cell)
{
    Properties ground;
    addBorder(cell, ground);
    const QString fill = cell.value(u"fo:background-color"_s);
    if (fill.startsWith(u'#')) {
        ground.insert(u"draw:fill"_s, u"solid"_s);
        ground.insert(u"draw:fill-color"_s, fill);
    }
    const QString padding = cell.value(u"fo:padding"_s);
    if (!padding.isEmpty()) {
        ground.insert(u"fo:padding"_s, padding);
    }
    ground.insert(u"draw:textarea-vertical-align"_s, cell.value(u"style:vertical-align"_s));
    return ground;
}

/// Places the cells of one table.
class TableReader
{
public:
    TableReader(Document& document, QList<double> widths, double left, int& row)
        : m_document(document)
        , m_widths(std::move(widths))
        , m_left(left)
        , m_row(row)
    {}

    void readRows(Node& parent, int depth);
    [[nodiscard]] Node::Children take() { return std::move(m_cells); }

private:
    void readRow(Node& row);
    [[nodiscard]] double widthOf(qsizetype column, int span) const;

    Document& m_document;
    const QList<double> m_widths;
    const double m_left;
    int& m_row;
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
    qsizetype column = 0;
    for (const auto& cell : row.children) {
        const int count = repeats(*cell, u"table:number-columns-repeated", MaximumColumns);
        if (cell->is(u"table:table-cell")) {
            const int span = repeats(*cell, u"table:number-columns-spanned", MaximumColumns);
            const QRectF box(m_left + widthOf(0, static_cast<int>(column)), 0.0,
                             widthOf(column, span), 0.0);
            const Properties style =
                cellProperties(m_document, cell->attribute(u"table:style-name"));
            auto frame = textFrame(m_document, box, groundOf(style));
            frame->setAttribute(RowAttribute, QString::number(m_row));
            frame->setAttribute(FillsRowAttribute, u"true"_s);
            takeParagraphs(*cell, *frame->child(u"draw:text-box"), 0);
            m_cells.push_back(std::move(frame));
        }
        column += cell->isText() ? 0 : count;
    }
}

void TableReader::readRows(Node& parent, int depth)
{
    for (const auto& child : parent.children) {
        if (child->is(u"table:table-row") && ++m_rows <= MaximumRows) {
            readRow(*child);
        } else if (child->name.startsWith("table:table-"_L1) && depth < 10 &&
                   child->name.endsWith("rows"_L1)) {
            readRows(*child, depth + 1);
        }
    }
}

} // namespace

int repeats(const Node& node, QStringView attribute, int most)
{
    return std::clamp(node.attribute(attribute).toInt(), 1, most);
}

QList<double> columnWidths(const Document& document, const Node& table, double room)
{
    QList<double> widths;
    readColumns(document, table, widths);
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

void takeParagraphs(Node& parent, Node& target, int depth)
{
    for (auto& child : parent.children) {
        if (child->is(u"text:p") || child->is(u"text:h") || child->is(u"text:list")) {
            target.children.push_back(std::move(child));
        } else if (depth < 50 && !child->isText()) {
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

std::unique_ptr<Node> textFrame(Document& document, const QRectF& box, const Properties& graphic)
{
    StyleProperties style;
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

Node::Children tableCells(Document& document, Node& table, const QRectF& area, int& row)
{
    TableReader reader(document, columnWidths(document, table, area.width()), area.left(), row);
    reader.readRows(table, 0);
    return reader.take();
}

} // namespace repair
