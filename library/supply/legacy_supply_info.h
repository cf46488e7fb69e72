#pragma once

#include "supply/csv_table_model.h"

#include "labelport_export.h"

#include <QColor>
#include <QPixmap>
#include <QString>
#include <QVariant>

/// Colours and names of the label and ribbon supplies that old labels were designed for.
///
/// An old label names its supplies by their rows in three tables that are compiled in. Rows and
/// columns count from 0, the header line does not count, and any number may be asked for: what
/// is outside a table has a default. The tables stay open as long as this object lives; they are
/// parsed on demand, so one object must not be used from two threads at once.
class LABELPORT_EXPORT LegacySupplyInfo
{
public:
    LegacySupplyInfo();
    ~LegacySupplyInfo();
    LegacySupplyInfo(const LegacySupplyInfo&) = delete;
    LegacySupplyInfo& operator=(const LegacySupplyInfo&) = delete;

    /// Text of a cell of the label table; an invalid variant outside it.
    [[nodiscard]] QVariant labelData(int row, int column) const;
    /// Text of a cell of the ribbon table; an invalid variant outside it.
    [[nodiscard]] QVariant ribbonData(int row, int column) const;
    /// Text of a cell of the colour table; an invalid variant outside it.
    [[nodiscard]] QVariant primaryData(int row, int column) const;

    /// Colour of a palette index; white when there is none.
    [[nodiscard]] QColor primaryColor(int index) const;
    /// Colour of the label supply in a row; white when there is none.
    [[nodiscard]] QColor getLabelColor(int row);
    /// Colour of the ribbon in a row; black when there is none.
    [[nodiscard]] QColor getRibbonColor(int row) const;

    /// "part number: name" of the label supply in a row, or whichever of the two it has.
    [[nodiscard]] QString getLabelName(int row) const;
    /// Always a null pixmap: the background pictures that the label table names were never part
    /// of the tables.
    [[nodiscard]] QPixmap getLabelBackground(int row);

private:
    CsvTableModel m_labelTable;
    CsvTableModel m_ribbonTable;
    CsvTableModel m_colorTable;
};
