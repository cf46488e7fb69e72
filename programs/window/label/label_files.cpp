#include "window/label/label_files.h"

#include "workbench/document/label_file.h"
#include "workbench/import/label_import.h"

#include <QFileInfo>

#include <utility>

namespace window {

ReadLabel readSavedLabel(const QString& fileName)
{
    OpenLabel label;
    label.canvas = std::make_unique<workbench::Canvas>();
    label.sources = std::make_unique<workbench::datasources::DatasourceController>();
    const QString error = workbench::document::openLabel(fileName, *label.canvas, *label.sources);
    if (!error.isEmpty()) {
        return {std::nullopt, error};
    }
    label.fileName = QFileInfo(fileName).absoluteFilePath();
    label.suggestedName = label.fileName;
    return {std::move(label), {}};
}

ReadLabel readLegacyLabel(const QString& fileName)
{
    workbench::ImportResult result = workbench::importLabel(fileName);
    if (!result.isImported()) {
        return {std::nullopt, result.error};
    }
    OpenLabel label;
    label.canvas = std::move(result.canvas);
    label.sources = std::move(result.datasources);
    label.importIssues = result.issues;
    label.suggestedName = savedNameFor(fileName);
    return {std::move(label), {}};
}

QString writeLabel(const OpenLabel& label, const QString& fileName)
{
    return workbench::document::saveLabel(fileName, *label.canvas, *label.sources);
}

} // namespace window
