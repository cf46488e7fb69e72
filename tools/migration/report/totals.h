#pragma once

#include "migration/model/file_report.h"

#include <QJsonObject>
#include <QMap>
#include <QString>

namespace migration {

/// The sums over all files of a report. Grows with the number of codes, not of files.
struct Totals
{
    qint64 files = 0;
    qint64 whole = 0;           ///< imported, nothing lost, nothing changed
    qint64 changed = 0;         ///< imported without a loss, but not whole
    qint64 withLoss = 0;        ///< imported, and hasLoss()
    qint64 failed = 0;          ///< not imported
    qint64 objectsInFiles = 0;  ///< of the imported files whose objects are counted
    qint64 objectsImported = 0; ///< of the same files
    qint64 uncounted = 0;       ///< imported files whose objects are not counted
    QMap<QString, qint64> filesByStatus;
    QMap<QString, qint64> filesByReader;
    QMap<QString, qint64> filesByCode; ///< files with a problem of this code

    void add(const FileReport& report);
};

/// The state of a file: "whole", "changed" or "loss", or its status if it is not imported.
[[nodiscard]] QString stateOf(const FileReport& report);
/// The same for the user.
[[nodiscard]] QString stateWords(const QString& state);

[[nodiscard]] QJsonObject toJson(const Totals& totals);

} // namespace migration
