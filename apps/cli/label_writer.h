#pragma once

#include "apps/cli/record_range.h"
#include "apps/cli/targets.h"

#include <QString>
#include <QStringList>

namespace cli {

struct OpenedLabel;

/// How outputs are made.
struct WriteOptions
{
    int dpi = 300;
    RecordRange records;
    bool force = false;
};

/// What became of one output.
struct Written
{
    QStringList files; ///< what was written, in order
    QString error;     ///< why it went no further; empty when all was written
};

/// Writes a label as one target.
///
/// @param output the file to write; the files of a series of pictures or drawings carry the
///        record's number before the suffix, "asset-0007.png"
[[nodiscard]] Written writeLabel(OpenedLabel& label, Target target, const QString& output,
                                 const WriteOptions& options);

} // namespace cli
