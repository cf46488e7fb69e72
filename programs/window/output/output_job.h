#pragma once

#include "exporting/export_findings.h"
#include "exporting/targets.h"
#include "window/label/open_label.h"

#include <QString>

#include <functional>

namespace window {

/// Most records of one export or print. A counter may have billions, and writing
/// that many files is never intended.
inline constexpr qint64 MaximumRecords = 10'000;

/// The records to write, counted from 0.
struct RecordRange
{
    qint64 first = 0;
    qint64 count = 1;
};

/// The content and the target of an export.
struct OutputOrder
{
    exporting::Target target = exporting::Target::Png;
    QString fileName;                ///< of a single file, or the common prefix of several
    exporting::OptionValues options; ///< of the target
    RecordRange records;
};

/// The result of an export.
struct OutputReport
{
    QString error; ///< user-visible; empty on success
    bool wasStopped = false;
    int files = 0; ///< written files
    /// What became of the items, if the target cannot express all.
    exporting::ExportFindings findings = {};
};

/// Called before each record with the number of finished ones; return false to cancel.
using Progress = std::function<bool(qint64 done)>;

/// Whether all selected records go into one file.
[[nodiscard]] bool writesOneFile(const OutputOrder& order);

/// The file of a record in a series of pictures or drawings: "name-007.png" for the seventh
/// of up to 999. A single record has the name unchanged.
[[nodiscard]] QString fileNameInSeries(const OutputOrder& order, qint64 position);

/// Writes the files. Afterwards the label shows the last written record; the caller restores the
/// shown one.
[[nodiscard]] OutputReport writeOutput(OpenLabel& label, const OutputOrder& order,
                                       const Progress& progress);

} // namespace window
