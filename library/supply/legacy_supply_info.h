#pragma once

#include "supply/csv_table_model.h"

#include "labelport_export.h"

#include <QColor>
#include <QPixmap>
#include <QString>
#include <QVariant>

/// Colors and names of the label and ribbon supplies that old labels were designed for.
///
/// Old labels refer to supplies by their rows in compiled-in tables. Rows and columns count from 0
/// without the header line, and any number is allowed: there are defaults for rows outside a table.
/// The tables stay open as long as this object exists. They are parsed on demand, so an object must
/// not be used by two threads at the same time.
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
    /// Text of a cell of the color table; an invalid variant outside it.
    [[nodiscard]] QVariant primaryData(int row, int column) const;

    /// Color of a palette index; white by default.
    [[nodiscard]] QColor primaryColor(int index) const;
    /// Color of the label supply in a row; white by default.
    [[nodiscard]] QColor getLabelColor(int row);
    /// Color of the ribbon in a row; black by default.
    [[nodiscard]] QColor getRibbonColor(int row) const;

    /// "part number: name" of the label supply in a row, or only the one of them that it has.
    [[nodiscard]] QString getLabelName(int row) const;
    /// Always a null pixmap: the label table names background pictures, but does not contain them.
    [[nodiscard]] QPixmap getLabelBackground(int row);

private:
    CsvTableModel m_labelTable;
    CsvTableModel m_ribbonTable;
    CsvTableModel m_colorTable;
};
