#pragma once

#include "workbench/canvas/canvas.h"
#include "workbench/datasources/datasource_controller.h"
#include "workbench/import/import_log.h"
#include "workbench/import/issue_words.h"

#include "importer/reader_choice.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

namespace workbench {

/// What became of one file.
struct ImportResult
{
    /// The label; null when the import failed.
    std::unique_ptr<Canvas> canvas;
    /// The label's data sources; null when the import failed.
    std::unique_ptr<datasources::DatasourceController> datasources;
    /// What could not be imported.
    QList<ImportIssue> issues;
    /// Why the import failed, in words for a person; empty when it did not.
    QString error;
    /// Whether it failed because the memory that the process may have did not suffice.
    bool isOutOfMemory = false;
    /// What was logged, for developers.
    QList<LogRecord> log;
    /// The sources whose records are not all in the log, because there were too many.
    QStringList cutSources;

    [[nodiscard]] bool isImported() const { return canvas != nullptr; }
};

/// Imports one file onto a canvas of its own, without any window. The reader is selected by the name
/// or else by the content. Items that are bound to a data source show its first record.
[[nodiscard]] ImportResult importLabel(const QString& fileName);

/// Imports one file with this reader, whatever its name.
[[nodiscard]] ImportResult importLabel(const QString& fileName, ReaderKind reader);

} // namespace workbench
