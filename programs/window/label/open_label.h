#pragma once

#include "window/label/issue_list_model.h"
#include "workbench/canvas/canvas.h"
#include "workbench/datasources/datasource_controller.h"
#include "workbench/import/issue_words.h"

#include <QList>
#include <QString>

#include <memory>

namespace window {

/// The label that a window shows.
struct OpenLabel
{
    std::unique_ptr<workbench::Canvas> canvas;
    std::unique_ptr<workbench::datasources::DatasourceController> sources;
    /// The *.label file that it is kept in; empty as long as it is kept in none.
    QString fileName;
    /// What it would be saved as: the name of the file that it was imported from, with the
    /// suffix of a label.
    QString suggestedName;
    /// What its import could not carry over.
    QList<workbench::ImportIssue> importIssues;
};

/// The suffix of saved labels, with its dot.
[[nodiscard]] QString labelSuffix();

/// Whether the file is a saved label by its name; all other files are imported.
[[nodiscard]] bool isSavedLabel(const QString& fileName);

/// The name that a label imported from this file gets: the last suffix is replaced.
[[nodiscard]] QString savedNameFor(const QString& importedFile);

/// What the label is called in titles and questions.
[[nodiscard]] QString displayName(const OpenLabel& label);

/// Shows a record of the data sources, counted from 0, on the label's items.
void showRecord(OpenLabel& label, qint64 record);

/// What a person should know about the label as it now is: what the import could not carry
/// over, and what items cannot show in the present record.
[[nodiscard]] QList<Issue> currentIssues(const OpenLabel& label);

} // namespace window
