#include "repair/embedded_sheet.h"

#include "repair/document.h"
#include "repair/lengths.h"
#include "repair/table_rows.h"

#include <QRectF>

#include <algorithm>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Of sheets that state none, in points.
constexpr double DefaultColumnWidth = 64.0;
constexpr double DefaultRowHeight = 12.8;
constexpr double CellPadding = 2.0;
const QString DefaultSheetSize = u"10pt"_s;
// A sheet in a document has a few hundred.
constexpr int MaximumSheetCells = 5'000;

/// Reads one sheet.
class SheetReader
{
public:
    explicit SheetReader(Document& document)
        : m_document(document)
    {}

    void readParts(const Node& parent, int depth);
    [[nodiscard]] Node::Children take() { return std::move(m_cells); }

private:
    /// A column of the sheet.
    struct Column
    {
        double left = 0.0;
        double width = 0.0;
        QString cellStyle;
    };

    void readColumn(const Node& column);
    void readSheetRow(const Node& row);
    void addCell(const Node& cell, const QRectF& box, const QString& style);
    [[nodiscard]] Column columnAt(int index) const;

    Document& m_document;
    QList<Column> m_columns;
    double m_top = 0.0; // of the next row
    int m_rowCount = 0;
    Node::Children m_cells;
};

void SheetReader::readParts(const Node& parent, int depth)
{
    for (const auto& child : parent.children) {
        if (child->is(u"table:table-column")) {
            readColumn(*child);
        } else if (child->is(u"table:table-row")) {
            readSheetRow(*child);
        } else if (depth < MaximumRowGroupDepth && child->name.startsWith("table:table-"_L1)) {
            readParts(*child, depth + 1);
        }
    }
}

void SheetReader::readColumn(const Node& column)
{
    const Properties style = statedBy(m_document, column, u"style:table-column-properties"_s);
    const double width =
        toPoints(style.value(u"style:column-width"_s)).value_or(DefaultColumnWidth);
    const int count = repeats(column, u"table:number-columns-repeated", MaximumColumns);
    for (int i = 0; i < count && m_columns.size() < MaximumColumns; ++i) {
        const Column before = m_columns.isEmpty() ? Column() : m_columns.constLast();
        m_columns.append({before.left + before.width, std::max(0.0, width),
                          column.attribute(u"table:default-cell-style-name")});
    }
}

SheetReader::Column SheetReader::columnAt(int index) const
{
    if (index < m_columns.size()) {
        return m_columns[index];
    }
    const Column last = m_columns.isEmpty() ? Column() : m_columns.constLast();
    const auto further = static_cast<double>(index - m_columns.size());
    return {last.left + last.width + further * DefaultColumnWidth, DefaultColumnWidth, {}};
}

void SheetReader::readSheetRow(const Node& row)
{
    const Properties style = statedBy(m_document, row, u"style:table-row-properties"_s);
    const double height =
        std::max(0.0, toPoints(style.value(u"style:row-height"_s)).value_or(DefaultRowHeight));
    const int rows = repeats(row, u"table:number-rows-repeated", MaximumRows);
    for (int i = 0; i < rows && m_rowCount < MaximumRows; ++i, ++m_rowCount) {
        int index = 0;
        for (const auto& cell : row.children) {
            if (!cell->name.endsWith("table-cell"_L1)) {
                continue;
            }
            const int count = repeats(*cell, u"table:number-columns-repeated", MaximumColumns);
            for (int j = 0; j < count && index < MaximumColumns; ++j, ++index) {
                const Column column = columnAt(index);
                const QString own = cell->attribute(u"table:style-name");
                addCell(*cell, QRectF(column.left, m_top, column.width, height),
                        own.isEmpty() ? column.cellStyle : own);
            }
        }
        m_top += height;
    }
}

// Numbers are at the right unless the style places them.
void SheetReader::addCell(const Node& cell, const QRectF& box, const QString& style)
{
    if (cell.is(u"table:covered-table-cell") || cell.allText().trimmed().isEmpty() ||
        std::ssize(m_cells) == MaximumSheetCells) {
        return;
    }
    StyleProperties shown;
    shown.text.insert(u"fo:font-size"_s, DefaultSheetSize);
    shown.overlay(m_document.table().resolved(u"table-cell"_s, style, false));
    if (!shown.paragraph.contains(u"fo:text-align"_s)) {
        const bool isNumber = cell.hasAttribute(u"office:value");
        shown.paragraph.insert(u"fo:text-align"_s, isNumber ? u"end"_s : u"start"_s);
    }
    // Text of a cell is in one line, and may reach over the next cell.
    auto frame = textFrame(m_document, box.adjusted(CellPadding, 0.0, -CellPadding, 0.0),
                           {{u"draw:auto-grow-width"_s, u"true"_s}});
    shown.graphic.clear();
    Node& target = *frame->child(u"draw:text-box");
    for (const auto& child : cell.children) {
        if (child->is(u"text:p")) {
            auto paragraph = child->clone();
            paragraph->setAttribute(u"text:style-name"_s,
                                    m_document.styleFor(u"paragraph"_s, shown));
            target.append(std::move(paragraph));
        }
    }
    m_cells.push_back(std::move(frame));
}

} // namespace

Node::Children sheetCells(Document& document, const Node& spreadsheet)
{
    const Node* const sheet = spreadsheet.child(u"table:table");
    if (sheet == nullptr) {
        return {};
    }
    SheetReader reader(document);
    reader.readParts(*sheet, 0);
    return reader.take();
}

} // namespace repair
