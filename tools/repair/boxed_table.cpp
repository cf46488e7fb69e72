#include "repair/boxed_table.h"

#include "repair/box_edges.h"
#include "repair/document.h"
#include "repair/lengths.h"
#include "repair/page_area.h"
#include "repair/table_columns.h"
#include "repair/table_rows.h"
#include "repair/transform.h"

#include <algorithm>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Tables within one another, and sections.
constexpr int MaximumBoxDepth = 20;

bool hasTable(const Node& node, int depth)
{
    return depth < MaximumBoxDepth &&
           std::any_of(node.children.begin(), node.children.end(), [depth](const auto& child) {
               return child->is(u"table:table") ||
                      (child->is(u"text:section") && !isHidden(*child) &&
                       hasTable(*child, depth + 1));
           });
}

double paddingOf(const Properties& properties, const QString& side)
{
    const QString ofSide = properties.value(u"fo:padding-"_s + side);
    return toPoints(ofSide.isEmpty() ? properties.value(u"fo:padding"_s) : ofSide).value_or(0.0);
}

// Fill and padding of a cell as those of a text box.
Properties groundOf(const Properties& cell)
{
    Properties ground;
    const QString color = cell.value(u"fo:background-color"_s);
    if (color.startsWith(u'#')) {
        ground = {{u"draw:fill"_s, u"solid"_s}, {u"draw:fill-color"_s, color}};
    }
    for (auto it = cell.begin(); it != cell.end(); ++it) {
        if (it.key().startsWith("fo:padding"_L1)) {
            ground.insert(it.key(), it.value());
        }
    }
    return ground;
}

QRectF withoutPadding(const QRectF& box, const Properties& properties)
{
    return box.adjusted(paddingOf(properties, u"left"_s), paddingOf(properties, u"top"_s),
                        -paddingOf(properties, u"right"_s), -paddingOf(properties, u"bottom"_s));
}

/// Places blocks of text below one another.
class BoxedText
{
public:
    BoxedText(Document& document, const QRectF& room, int depth)
        : m_document(document)
        , m_left(room.left())
        , m_width(std::max(room.width(), 1.0))
        , m_y(room.top())
        , m_depth(depth)
    {}

    void add(Node& container);
    /// The lower end, in points.
    [[nodiscard]] double bottom();
    [[nodiscard]] Node::Children take() { return std::move(m_parts); }

private:
    void placeParagraphs();
    void addTable(Node& table);
    void addRows(Node& parent, const TableRange& range, int depth);
    void addRow(Node& row, const TableRange& range);

    Document& m_document;
    const double m_left;
    const double m_width;
    double m_y;
    const int m_depth;
    int m_rows = 0;
    Node::Children m_paragraphs; // that have no place yet
    Node::Children m_parts;
};

void BoxedText::add(Node& container)
{
    for (auto& child : container.children) {
        if (child->is(u"table:table") && m_depth < MaximumBoxDepth) {
            placeParagraphs();
            addTable(*child);
        } else if (child->is(u"text:p") || child->is(u"text:h") || child->is(u"text:list")) {
            m_paragraphs.push_back(std::move(child));
        } else if (child->is(u"text:section") && !isHidden(*child) && hasTable(*child, m_depth)) {
            add(*child);
        } else if (!child->isText() && !isHidden(*child)) {
            Node rest;
            takeParagraphs(*child, rest, m_depth);
            std::ranges::move(rest.children, std::back_inserter(m_paragraphs));
        }
    }
    std::erase(container.children, nullptr);
}

double BoxedText::bottom()
{
    placeParagraphs();
    return m_y;
}

void BoxedText::placeParagraphs()
{
    if (m_paragraphs.empty()) {
        return;
    }
    double height = 0.0;
    for (const auto& block : m_paragraphs) {
        height += textHeight(m_document, *block, m_width);
    }
    auto frame = textFrame(m_document, {m_left, m_y, m_width, height}, {});
    frame->child(u"draw:text-box")->children = std::exchange(m_paragraphs, {});
    m_parts.push_back(std::move(frame));
    m_y += height;
}

void BoxedText::addTable(Node& table)
{
    const TableRange range = tableRange(
        m_document, table, statedBy(m_document, table, u"style:table-properties"_s), m_width);
    addRows(table, range, 0);
}

void BoxedText::addRows(Node& parent, const TableRange& range, int depth)
{
    for (const auto& child : parent.children) {
        if (child->is(u"table:table-row") && ++m_rows <= MaximumRows) {
            addRow(*child, range);
        } else if (child->name.startsWith("table:table-"_L1) && child->name.endsWith("rows"_L1) &&
                   depth < MaximumBoxDepth) {
            addRows(*child, range, depth + 1);
        }
    }
}

void BoxedText::addRow(Node& row, const TableRange& range)
{
    struct Cell
    {
        std::unique_ptr<Node> frame;
        Node::Children content;
        QRectF box; // without a height
        Edges edges;
    };
    std::vector<Cell> cells;
    double height = leastHeight(statedBy(m_document, row, u"style:table-row-properties"_s));
    double x = m_left + range.left;
    qsizetype column = 0;
    for (const auto& cell : row.children) {
        const qsizetype count = repeats(*cell, u"table:number-columns-repeated", MaximumColumns);
        const qsizetype span = repeats(*cell, u"table:number-columns-spanned", MaximumColumns);
        const auto widthOf = [&](qsizetype columns) {
            const qsizetype end = std::min(column + columns, range.widths.size());
            double width = 0.0;
            for (qsizetype i = column; i < end; ++i) {
                width += range.widths[i];
            }
            return width;
        };
        if (cell->is(u"table:table-cell")) {
            const Properties style = statedBy(m_document, *cell, u"style:table-cell-properties"_s);
            const Properties ground = groundOf(style);
            const QRectF box(x, m_y, widthOf(span), 0.0);
            BoxedText inside(m_document, withoutPadding(box, ground), m_depth + 1);
            inside.add(*cell);
            height = std::max(height, inside.bottom() - m_y + paddingOf(ground, u"bottom"_s));
            cells.push_back(
                {textFrame(m_document, box, ground), inside.take(), box, edgesOf(style)});
        }
        x += cell->isText() ? 0.0 : widthOf(count);
        column += cell->isText() ? 0 : count;
    }
    for (Cell& cell : cells) {
        cell.frame->setAttribute(u"svg:height"_s, toInches(height));
        m_parts.push_back(std::move(cell.frame));
        std::ranges::move(cell.content, std::back_inserter(m_parts));
        cell.box.setHeight(height);
        std::ranges::move(fixedEdges(m_document, cell.box, cell.edges),
                          std::back_inserter(m_parts));
    }
    m_y += height;
}

} // namespace

Node::Children boxedTableParts(Document& document, Node& frame)
{
    Node* const box = frame.child(u"draw:text-box");
    if (box == nullptr || !hasTable(*box, 0)) {
        return {};
    }
    const Placement placement = placementOf(frame);
    const QRectF place(placement.toPage.map(QPointF()), placement.size);
    BoxedText text(document, withoutPadding(place, graphicOf(document, frame)), 0);
    text.add(*box);
    (void)text.bottom();
    Node::Children parts;
    parts.push_back(frame.clone());
    parts.front()->child(u"draw:text-box")->children.clear();
    std::ranges::move(text.take(), std::back_inserter(parts));
    return parts;
}

} // namespace repair
