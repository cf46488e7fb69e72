#pragma once

#include "importer/reader_choice.h"
#include "workbench/canvas/canvas.h"
#include "workbench/datasources/datasource_controller.h"
#include "workbench/import/issue_words.h"

#include <QString>

#include <memory>
#include <optional>

namespace cli {

/// A label that was imported, or opened from the workbench's own format.
struct OpenedLabel
{
    std::unique_ptr<workbench::Canvas> canvas; ///< null when it failed
    std::unique_ptr<workbench::datasources::DatasourceController> datasources;
    QList<workbench::ImportIssue> issues;
    QString error;              ///< why it failed, for a person
    bool isOutOfMemory = false; ///< whether that was for want of memory

    [[nodiscard]] bool isOpen() const { return canvas != nullptr; }
    /// Brings the canvas to a record, counted from 0.
    void showRecord(qint64 record);
};

/// Opens a file by its name: a saved label (*.label), or else a legacy one; or by a reader of
/// legacy labels whatever its name.
[[nodiscard]] OpenedLabel openAnyLabel(const QString& fileName,
                                       std::optional<ReaderKind> reader = std::nullopt);

} // namespace cli
