#pragma once

#include "importer/reader_choice.h"
#include "workbench/import/label_import.h"

#include <QString>

#include <optional>

namespace cli {

/// A label that was imported, or opened from the workbench's own format.
struct OpenedLabel : workbench::ImportResult
{
    /// Who read a legacy label; nothing for a saved one.
    std::optional<ReaderKind> reader;

    [[nodiscard]] bool isOpen() const { return isImported(); }
    /// Brings the canvas to a record, counted from 0.
    void showRecord(qint64 record);
};

/// Opens a file by its name: a saved label (*.label), or else a legacy one; or by a reader of
/// legacy labels whatever its name.
[[nodiscard]] OpenedLabel openAnyLabel(const QString& fileName,
                                       std::optional<ReaderKind> reader = std::nullopt);

} // namespace cli
