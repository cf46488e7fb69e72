#pragma once

#include "workbench/import/import_log.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace workbench {

/// Why an import failed, in words for a person. Never empty.
///
/// @param records  what was logged meanwhile
/// @param messages the texts of the message boxes that the import announced
[[nodiscard]] QString whyImportFailed(const QList<LogRecord>& records, const QStringList& messages);

} // namespace workbench
