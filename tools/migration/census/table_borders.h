#pragma once

#include <QList>
#include <QSet>
#include <QtGlobal>

namespace migration {

/// The sides on which the style of a cell draws a border.
struct CellBorders
{
    bool top = false;
    bool left = false;
    bool bottom = false;
    bool right = false;

    [[nodiscard]] bool any() const { return top || left || bottom || right; }
};

/// Finds the cells of a table that have borders on some sides only. A border between two cells
/// belongs to both.
class TableBorders
{
public:
    void openRow();
    void openCell(const CellBorders& borders, int columns);
    void openCovered(int columns);
    void close();

    /// Cells with a border on any side.
    [[nodiscard]] qint64 bordered() const { return m_bordered; }
    /// Those of them that have none on another side.
    [[nodiscard]] qint64 partly() const { return m_partly.size(); }

private:
    /// A cell in one column of a row.
    struct Cell
    {
        int number = 0; ///< 0 for none
        bool isFromAbove = false;
        CellBorders borders;
    };

    void closeRow();
    void compare(const Cell& cell, bool isDrawn);

    QList<Cell> m_above;
    QList<Cell> m_row;
    Cell m_last;       ///< of the row
    int m_covered = 0; ///< columns of the last cell that are still to come
    int m_cells = 0;
    qint64 m_bordered = 0;
    QSet<int> m_partly; ///< numbers of cells
};

} // namespace migration
