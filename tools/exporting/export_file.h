#pragma once

#include "exporting/export_findings.h"
#include "exporting/targets.h"

#include <QString>

#include <functional>

namespace workbench {
class Canvas;
}
namespace workbench::datasources {
class DatasourceController;
}

namespace exporting {

/// Called before each record with the number of finished ones; return false to stop.
using BeforeRecord = std::function<bool(qint64 done)>;

/// A label, and what to write of it.
struct ExportJob
{
    workbench::Canvas& canvas;
    const workbench::datasources::DatasourceController& sources;
    qint64 firstRecord = 0; ///< counted from 0
    /// 1 for a target with a file for each record.
    qint64 recordCount = 1;
    QString title; ///< of drawings and documents
    OptionValues options;
    BeforeRecord beforeRecord;
    /// The final name of the file, by which a label for gLabels finds its records; empty: that of
    /// the written file.
    QString finalName = {};
    /// Filled by targets that cannot express all items; may be null.
    ExportFindings* findings = nullptr;
};

/// Writes one file, and its table of records if it has one: see recordsFileOf(). It is replaced
/// completely or, on failure or if stopped, not at all. Afterwards the canvas shows the last
/// written record. Not for Target::Label.
/// @return the error for the user; empty on success, and if stopped
[[nodiscard]] QString exportFile(Target target, const ExportJob& job, const QString& fileName);

/// Shows the record of a page, counted from 0, before it is written. False if the job was stopped.
[[nodiscard]] bool prepareRecord(const ExportJob& job, qint64 page);

/// A message about a file that cannot be written.
[[nodiscard]] QString cannotWrite(const QString& fileName, const QString& reason);

/// Shows a record, counted from 0, on the canvas.
void showRecord(workbench::Canvas& canvas,
                const workbench::datasources::DatasourceController& sources, qint64 record);

/// The name of this program in pictures, drawings and documents that it writes.
inline constexpr const char* SoftwareMark = "LabelPort";

} // namespace exporting
