#pragma once

#include "cli/record_range.h"
#include "importer/reader_choice.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>

namespace cli {

/// How each file is imported and written: what a worker is told besides names.
struct JobOptions
{
    int dpi = 300;
    RecordRange records;
    std::optional<ReaderKind> reader; ///< none: the name decides
    bool force = false;               ///< overwrite what is not ours
    bool report = false;              ///< report on the file
    bool items = false;               ///< list every item in the report
};

/// The options that decide about what is written.
[[nodiscard]] QJsonObject decisiveOptions(const JobOptions& options);
/// The others.
[[nodiscard]] QJsonObject otherOptions(const JobOptions& options);
/// Reads both, from one object.
[[nodiscard]] JobOptions jobOptionsFromJson(const QJsonObject& object);

/// The names by which readers are chosen.
[[nodiscard]] std::optional<ReaderKind> readerOfName(const QString& name);
[[nodiscard]] QString nameOf(ReaderKind reader);
[[nodiscard]] QStringList readerNames();
/// What is said of a name that is none, for a person.
[[nodiscard]] QString unknownReaderWords(const QString& name);

} // namespace cli
