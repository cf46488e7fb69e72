#pragma once

#include "window/label/open_label.h"

#include <QString>

#include <functional>

class QPagedPaintDevice;

namespace window {

/// Most records that one export or print may have. A counter may have thousands of millions,
/// and nobody wants so many files by accident.
inline constexpr qint64 MaximumRecords = 10'000;

/// Records that are put out, counted from 0.
struct RecordRange
{
    qint64 first = 0;
    qint64 count = 1;
};

enum class OutputFormat : quint8 { Png, Svg, Pdf };

/// What to write, and where.
struct OutputOrder
{
    OutputFormat format = OutputFormat::Png;
    QString fileName; ///< of a single file, or what the names of several begin with
    int dpi = 300;    ///< of pictures
    RecordRange records;
};

/// What became of an order.
struct OutputReport
{
    QString error; ///< in words for a person; empty when all went well
    bool wasStopped = false;
    int files = 0; ///< that were written
};

/// Told before each record how many are done; false stops the work.
using Progress = std::function<bool(qint64 done)>;

[[nodiscard]] QString suffixOf(OutputFormat format);

/// The file of a record in a series of pictures or drawings: "name-007.png" for the seventh
/// of up to 999. A series of one has the name as it stands.
[[nodiscard]] QString fileNameInSeries(const OutputOrder& order, qint64 position);

/// Writes the files. PDF puts all records into one document. Afterwards the label shows the
/// last record that was put out; the caller shows the one that is wanted.
[[nodiscard]] OutputReport writeOutput(OpenLabel& label, const OutputOrder& order,
                                       const Progress& progress);

/// Prints one page for each record.
[[nodiscard]] OutputReport printOutput(OpenLabel& label, QPagedPaintDevice& printer,
                                       const RecordRange& records, const Progress& progress);

} // namespace window
