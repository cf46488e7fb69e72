#pragma once

#include "exporting/export_file.h"

#include <QStringList>

namespace exporting {

/// One line of a CSV file (RFC 4180), with its line break.
[[nodiscard]] QByteArray csvLine(const QStringList& cells);

/// Writes what each item shows that is bound to a data source, a line for each record: its number,
/// counted from 1, and a column "item-N" for each item, counted from the bottom as in drawings. See
/// exportFile().
[[nodiscard]] QString writeRecordsCsv(const ExportJob& job, const QString& fileName);

} // namespace exporting
