#pragma once

#include "workbench/import/import_log.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace workbench {

class Canvas;

/// Something that an import could not carry over, in words for a person.
struct ImportIssue
{
    QString text;
    int item = -1;   ///< index of the item on the canvas that it is about, -1 for none
    int repeats = 1; ///< how often it was met
    bool operator==(const ImportIssue&) const = default;
};

/// The issues of a successful import: what the message boxes say, what the log tells of
/// parts that were left out, and what the items cannot show. The same text about no item
/// stands once, with the number of its repeats.
[[nodiscard]] QList<ImportIssue>
collectIssues(const Canvas& canvas, const QList<LogRecord>& records, const QStringList& messages);

} // namespace workbench
