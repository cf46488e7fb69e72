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
    qint64 complete = 0; ///< files of each verdict
    qint64 changed = 0;
    qint64 lossy = 0;
    qint64 failed = 0;
    qint64 objectsInFiles = 0;  ///< of the imported files whose objects are counted
    qint64 objectsImported = 0; ///< of the same files
    qint64 uncounted = 0;       ///< imported files whose objects are not counted
    QMap<QString, qint64> filesByStatus;
    QMap<QString, qint64> filesByReader;
    QMap<QString, qint64> filesBySandbox; ///< imported files, by parts of the sandbox
    QMap<QString, qint64> filesByCode;    ///< files with a problem of this code

    /// Adds the numbers of one file.
    void add(const FileReport& report);
    /// Files that were imported without a complete sandbox.
    [[nodiscard]] qint64 exposed() const;

private:
    [[nodiscard]] qint64& filesOf(Verdict verdict);
};

/// The last line of a report in JSON Lines.
[[nodiscard]] QJsonObject toJson(const Totals& totals);

} // namespace migration
