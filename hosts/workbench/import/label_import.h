#pragma once

#include "workbench/canvas/canvas.h"
#include "workbench/datasources/datasource_controller.h"
#include "workbench/import/import_log.h"
#include "workbench/import/issue_text.h"

#include "importer/reader_choice.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

namespace workbench {

/// The result of importing one file.
struct ImportResult
{
    /// The label; null if the import failed.
    std::unique_ptr<Canvas> canvas;
    /// The label's data sources; null if the import failed.
    std::unique_ptr<datasources::DatasourceController> datasources;
    /// What could not be imported.
    QList<ImportIssue> issues;
    /// User-visible reason for a failed import; empty on success.
    QString error;
    /// Whether the import failed because the process's memory limit was reached.
    bool isOutOfMemory = false;
    /// The log records, for developers.
    QList<LogRecord> log;
    /// The sources that wrote too many records; the log omits the rest.
    QStringList cutSources;

    [[nodiscard]] bool isImported() const { return canvas != nullptr; }
};

/// Imports one file onto its own canvas, without a window. The name selects the reader,
/// or else the content. Items that are bound to a data source show its first record.
[[nodiscard]] ImportResult importLabel(const QString& fileName);

/// Imports one file with this reader, regardless of the file's name.
[[nodiscard]] ImportResult importLabel(const QString& fileName, ReaderKind reader);

} // namespace workbench
