#include "cli/opened_label.h"

#include "workbench/document/label_file.h"

namespace cli {
namespace {

OpenedLabel openSaved(const QString& fileName)
{
    OpenedLabel label;
    auto canvas = std::make_unique<workbench::Canvas>();
    auto datasources = std::make_unique<workbench::datasources::DatasourceController>();
    label.error = workbench::document::openLabel(fileName, *canvas, *datasources);
    if (label.error.isEmpty()) {
        label.canvas = std::move(canvas);
        label.datasources = std::move(datasources);
    }
    return label;
}

OpenedLabel openLegacy(const QString& fileName, ReaderKind reader)
{
    return {workbench::importLabel(fileName, reader), reader};
}

} // namespace

void OpenedLabel::showRecord(qint64 record)
{
    canvas->showRecord(record, [this](int id, qint64 wanted, const QStringList& fields) {
        return datasources->recordText(id, wanted, fields);
    });
}

OpenedLabel openAnyLabel(const QString& fileName, std::optional<ReaderKind> reader)
{
    if (reader) {
        return openLegacy(fileName, *reader);
    }
    const bool isSaved = fileName.endsWith(QLatin1String(".label"), Qt::CaseInsensitive);
    return isSaved ? openSaved(fileName) : openLegacy(fileName, readerForFile(fileName));
}

} // namespace cli
