#pragma once

#include "window/label/open_label.h"

#include <QString>

#include <functional>

class QPagedPaintDevice;

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

enum class OutputFormat : quint8 { Png, Svg, Pdf };

/// The content and the target of an export.
struct OutputOrder
{
    OutputFormat format = OutputFormat::Png;
    QString fileName; ///< of a single file, or the common prefix of several
    int dpi = 300;    ///< of pictures, in dots per inch
    RecordRange records;
};

/// The result of an export or print.
struct OutputReport
{
    QString error; ///< user-visible; empty on success
    bool wasStopped = false;
    int files = 0; ///< written files
};

/// Called before each record with the number of finished ones; return false to cancel.
using Progress = std::function<bool(qint64 done)>;

[[nodiscard]] QString suffixOf(OutputFormat format);

/// The file of a record in a series of pictures or drawings: "name-007.png" for the seventh
/// of up to 999. A single record has the name unchanged.
[[nodiscard]] QString fileNameInSeries(const OutputOrder& order, qint64 position);

/// Writes the files. PDF puts all records into one document. Afterwards the label shows the
/// last written record; the caller restores the shown one.
[[nodiscard]] OutputReport writeOutput(OpenLabel& label, const OutputOrder& order,
                                       const Progress& progress);

/// Prints one page for each record.
[[nodiscard]] OutputReport printOutput(OpenLabel& label, QPagedPaintDevice& printer,
                                       const RecordRange& records, const Progress& progress);

} // namespace window
