#pragma once

#include "migration/model/file_report.h"

#include <QJsonObject>
#include <QMap>
#include <QString>

namespace migration {

/// What the reports of a run add up to. Grows with the kinds of problems, not the files.
struct Totals
{
    qint64 files = 0;
    qint64 whole = 0;           ///< imported, nothing lost, nothing changed
    qint64 changed = 0;         ///< imported, no loss, but not whole
    qint64 withLoss = 0;        ///< imported, with a loss as hasLoss() has it
    qint64 failed = 0;          ///< of every other status
    qint64 objectsInFiles = 0;  ///< of the imported files whose objects are known
    qint64 objectsImported = 0; ///< of the same files
    qint64 uncounted = 0;       ///< imported files whose objects are not known
    QMap<QString, qint64> filesByStatus;
    QMap<QString, qint64> filesByReader;
    QMap<QString, qint64> filesByCode; ///< files with a problem of this code

    void add(const FileReport& report);
};

/// What a file is filed under: "whole", "changed", "loss", or its status where it is not
/// imported.
[[nodiscard]] QString stateOf(const FileReport& report);

[[nodiscard]] QJsonObject toJson(const Totals& totals);

} // namespace migration
