#pragma once

#include "cli/record_range.h"
#include "importer/reader_choice.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>

namespace cli {

/// How each file is imported and written: what a worker needs besides names.
struct JobOptions
{
    int dpi = 300;
    RecordRange records;
    QString sheet;         ///< of PDF documents; empty: pages of the label's size
    int firstPosition = 0; ///< on the first sheet
    int copies = 1;        ///< of each record, in PDF documents
    bool cropMarks = false;
    bool zplNative = false;           ///< the printer draws barcodes and lines
    std::optional<ReaderKind> reader; ///< empty: selected by name or content
    bool asWritten = false;           ///< without repair
    bool force = false;               ///< overwrite files that are not ours
    bool items = false;               ///< list every item in the report
    bool thumbnail = false;           ///< add a picture to the report
};

/// The options that have an influence on the outputs.
[[nodiscard]] QJsonObject outputOptions(const JobOptions& options);
/// The other options.
[[nodiscard]] QJsonObject otherOptions(const JobOptions& options);
/// Reads both, from one object.
[[nodiscard]] JobOptions jobOptionsFromJson(const QJsonObject& object);

/// The names that --reader accepts.
[[nodiscard]] QStringList readerNames();
[[nodiscard]] QString unknownReaderMessage(const QString& name);

} // namespace cli
