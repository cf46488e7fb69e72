#include "window/label/label_files.h"

#include "migration/file_report_builder.h"
#include "workbench/document/label_file.h"
#include "workbench/import/label_import.h"

#include <QFileInfo>

#include <utility>

namespace window {

namespace {

// The places of issues need the item list; the window paints the label itself.
constexpr migration::ReportOptions WithPlaces{.thumbnail = false, .itemList = true};

QString shownName(const QString& fileName)
{
    return QFileInfo(fileName).fileName();
}

OpenLabel emptyLabel()
{
    OpenLabel label;
    label.canvas = std::make_unique<workbench::Canvas>();
    label.sources = std::make_unique<workbench::datasources::DatasourceController>();
    return label;
}

} // namespace

ReadLabel readSavedLabel(const QString& fileName)
{
    workbench::ImportResult result;
    result.canvas = std::make_unique<workbench::Canvas>();
    result.datasources = std::make_unique<workbench::datasources::DatasourceController>();
    const QString error =
        workbench::document::openLabel(fileName, *result.canvas, *result.datasources);
    if (!error.isEmpty()) {
        return {std::nullopt, error};
    }
    OpenLabel label;
    label.report =
        migration::makeSavedLabelReport(fileName, shownName(fileName), result, WithPlaces);
    label.canvas = std::move(result.canvas);
    label.importedItems = label.canvas->items();
    label.sources = std::move(result.datasources);
    label.fileName = QFileInfo(fileName).absoluteFilePath();
    label.suggestedName = label.fileName;
    return {std::move(label), {}};
}

ReadLabel readLegacyLabel(const QString& fileName, Reading reading)
{
    const QString file = QFileInfo(fileName).absoluteFilePath();
    ImportProcess import; // the imported label is in its folder
    ImportedFiles imported = import.run({file}, reading);
    if (imported.reports.isEmpty()) {
        return {std::nullopt, imported.error, imported.isCanceled};
    }
    migration::FileReport& report = imported.reports.first();
    if (report.status != migration::Status::Imported || report.outputs.isEmpty()) {
        return {std::nullopt, report.error};
    }
    OpenLabel label = emptyLabel();
    const QString error =
        workbench::document::openLabel(report.outputs.constFirst(), *label.canvas, *label.sources);
    if (!error.isEmpty()) {
        return {std::nullopt, error};
    }
    label.importedFile = file;
    label.isAsWritten = reading == Reading::AsWritten;
    label.hasOtherReading = label.isAsWritten || !report.repaired.isEmpty();
    label.report = std::move(report);
    label.importedItems = label.canvas->items();
    label.suggestedName = savedNameFor(fileName);
    return {std::move(label), {}};
}

QString writeLabel(const OpenLabel& label, const QString& fileName)
{
    return workbench::document::saveLabel(fileName, *label.canvas, *label.sources);
}

} // namespace window
