#pragma once

#include "workbench/import/import_log.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace workbench {

/// The user-visible reason for a failed import. Never empty.
///
/// @param records  what was logged during the import
/// @param messages the texts of the message boxes that the reader requested
[[nodiscard]] QString importFailureReason(const QList<LogRecord>& records,
                                          const QStringList& messages);

} // namespace workbench
