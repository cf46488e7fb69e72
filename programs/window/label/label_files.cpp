#include "window/label/label_files.h"

#include "importer/reader_choice.h"
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
    label.sources = std::move(result.datasources);
    label.fileName = QFileInfo(fileName).absoluteFilePath();
    label.suggestedName = label.fileName;
    return {std::move(label), {}};
}

ReadLabel readLegacyLabel(const QString& fileName)
{
    const ReaderKind reader = readerByNameOrContent(fileName, fileName);
    workbench::ImportResult result = workbench::importLabel(fileName, reader);
    if (!result.isImported()) {
        return {std::nullopt, result.error};
    }
    OpenLabel label;
    label.report =
        migration::makeFileReport(fileName, shownName(fileName), reader, result, WithPlaces);
    label.canvas = std::move(result.canvas);
    label.sources = std::move(result.datasources);
    label.importedItems = label.canvas->items();
    label.suggestedName = savedNameFor(fileName);
    return {std::move(label), {}};
}

QString writeLabel(const OpenLabel& label, const QString& fileName)
{
    return workbench::document::saveLabel(fileName, *label.canvas, *label.sources);
}

} // namespace window
