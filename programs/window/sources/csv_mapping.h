#pragma once

#include "workbench/canvas/canvas.h"
#include "workbench/datasources/csv_table.h"

#include <QList>
#include <QString>

namespace window {

/// An item that can show a column of a CSV file.
struct MappedItem
{
    workbench::CanvasItem* item = nullptr;
    QString column; ///< empty for none
};

/// The texts and barcodes of a label, each with the column that its content suggests.
///
/// A label that lost its database shows the values of its last record: if a column has the item's
/// content in one of its records, it is that column. An item with the name of a column as content,
/// also as "<Name>", "[Name]" or "%Name%", shows this column.
///
/// @param source identifier of the file's data source, whose bindings are kept; -1 if it is new
[[nodiscard]] QList<MappedItem> proposedMapping(const workbench::Canvas& canvas,
                                                const workbench::datasources::CsvTable& table,
                                                int source);

} // namespace window
