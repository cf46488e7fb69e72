#pragma once

#include "migration/model/file_report.h"
#include "workbench/canvas/canvas.h"
#include "workbench/datasources/datasource_controller.h"

#include <QString>

#include <memory>

namespace window {

/// The label that a window shows.
struct OpenLabel
{
    std::unique_ptr<workbench::Canvas> canvas;
    std::unique_ptr<workbench::datasources::DatasourceController> sources;
    /// The label's *.label file; empty if it was never saved.
    QString fileName;
    /// The suggested file name: the name of the imported file with the
    /// suffix of saved labels.
    QString suggestedName;
    /// The imported items; the places in the report refer to them by index. Some may have been
    /// deleted since.
    QList<workbench::CanvasItem*> importedItems;
    /// The legacy file that was imported; empty for a saved label.
    QString importedFile;
    bool isAsWritten = false; ///< imported without repairs, at the user's wish
    /// Whether the document was repaired, or is shown as written.
    bool hasOtherReading = false;
    /// What the import lost, changed and repaired.
    migration::FileReport report;
};

/// The suffix of saved labels, with its dot.
[[nodiscard]] QString labelSuffix();

/// The name patterns of legacy labels for file dialogs: "*.cnv *.roc …".
[[nodiscard]] QString legacyPatterns();

/// Whether the file name is that of a saved label; all other files are imported.
[[nodiscard]] bool isSavedLabel(const QString& fileName);

/// The file name for a label imported from this file: the last suffix is replaced.
[[nodiscard]] QString savedNameFor(const QString& importedFile);

/// The label's name in titles and questions.
[[nodiscard]] QString displayName(const OpenLabel& label);

/// Shows a record of the data sources, counted from 0, on the label's items.
void showRecord(OpenLabel& label, qint64 record);

} // namespace window
