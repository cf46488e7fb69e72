#include "migration/census/table_borders.h"

#include <algorithm>

namespace migration {

namespace {

// Columns that are compared: more than fit on a page.
constexpr int WidestTable = 256;

} // namespace

void TableBorders::openRow()
{
    closeRow();
}

void TableBorders::openCell(const CellBorders& borders, int columns)
{
    m_last = {++m_cells, false, borders};
    m_bordered += borders.any() ? 1 : 0;
    m_covered = std::max(columns, 1) - 1;
    if (m_row.size() < WidestTable) {
        m_row.append(m_last);
    }
}

// Columns that a cell on the left or above also takes.
void TableBorders::openCovered(int columns)
{
    for (int i = 0; i < std::min(columns, WidestTable) && m_row.size() < WidestTable; ++i) {
        if (m_covered > 0) {
            --m_covered;
            m_row.append(m_last);
        } else {
            Cell cell = m_above.value(m_row.size());
            cell.isFromAbove = true;
            m_row.append(cell);
        }
    }
}

void TableBorders::compare(const Cell& cell, bool isDrawn)
{
    if (cell.borders.any() && !isDrawn) {
        m_partly.insert(cell.number);
    }
}

void TableBorders::closeRow()
{
    for (qsizetype column = 0; column < std::max(m_row.size(), m_above.size()); ++column) {
        const Cell cell = m_row.value(column);
        const Cell left = m_row.value(column - 1);
        const Cell above = m_above.value(column);
        if (cell.number != left.number) {
            const bool isDrawn = cell.borders.left || left.borders.right;
            compare(cell, isDrawn);
            compare(left, isDrawn);
        }
        if (!cell.isFromAbove) {
            const bool isDrawn = cell.borders.top || above.borders.bottom;
            compare(cell, isDrawn);
            compare(above, isDrawn);
        }
    }
    if (!m_row.isEmpty()) {
        compare(m_row.constLast(), m_row.constLast().borders.right);
    }
    m_above = m_row;
    m_row.clear();
    m_last = {};
    m_covered = 0;
}

void TableBorders::close()
{
    closeRow();
    closeRow(); // the lower side of the last row
}

} // namespace migration
