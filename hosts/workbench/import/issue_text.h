#pragma once

#include "workbench/import/import_log.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace workbench {

class Canvas;

/// Something that could not be imported.
struct ImportIssue
{
    QString text;      ///< for the user
    int item = -1;     ///< index of the affected item on the canvas, -1 for none
    int repeats = 1;   ///< how often it occurred
    QString code = {}; ///< as in KnownMessage; empty if unknown
    bool operator==(const ImportIssue&) const = default;
};

/// The issues of a successful import: from the message boxes, from the log records about parts
/// that were skipped, and from items that cannot be drawn. Equal issues are listed once, with
/// the number of repeats.
[[nodiscard]] QList<ImportIssue>
collectIssues(const Canvas& canvas, const QList<LogRecord>& records, const QStringList& messages);

} // namespace workbench
