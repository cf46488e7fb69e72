#include "workbench/import/label_import.h"

#include "host/file_controller.h"
#include "importer/legacy_template_importer.h"
#include "importer/reader_choice.h"
#include "workbench/import/file_check.h"
#include "workbench/import/import_observer.h"

#include <QCoreApplication>

#include <new>

namespace workbench {

namespace {

// An import without a window has no open label and saves nothing.
class NoFiles final : public FileController
{
public:
    bool checkSaveChanges(TalCanvasModel*, const QString&, bool) override { return true; }
    void saveImportedLabelAs(const QString&, const QString&, const QString&) override {}
    void emitLabelTypeLoadedSignal(QString) override {}
};

void showFirstRecord(Canvas& canvas, const datasources::DatasourceController& sources)
{
    canvas.showRecord(0, [&sources](int id, qint64 record, const QStringList& fields) {
        return sources.recordText(id, record, fields);
    });
}

ImportResult importReadableFile(const QString& fileName, ReaderKind reader)
{
    ImportResult result;
    auto canvas = std::make_unique<Canvas>();
    auto sources = std::make_unique<datasources::DatasourceController>();
    NoFiles files;
    LegacyTemplateImporter importer(canvas.get(), &files, sources.get());
    const ImportObserver observer(importer);
    const bool imported = (importer.*readerOf(reader).importFile)(fileName);
    result.log = observer.log();
    result.cutSources = observer.cutSources();
    if (!imported) {
        if (isPasswordProtected(fileName)) {
            result.error = passwordProtectedMessage();
            return result;
        }
        const QString misnamed = misnamedFileHint(fileName, reader);
        result.error = misnamed.isEmpty() ? observer.failure() : misnamed;
        return result;
    }
    showFirstRecord(*canvas, *sources);
    result.issues = observer.issues(*canvas);
    result.canvas = std::move(canvas);
    result.datasources = std::move(sources);
    return result;
}

} // namespace

ImportResult importLabel(const QString& fileName)
{
    return importLabel(fileName, readerByNameOrContent(fileName));
}

ImportResult importLabel(const QString& fileName, ReaderKind reader)
{
    ImportResult result;
    result.error = fileAccessError(fileName);
    if (!result.error.isEmpty()) {
        return result;
    }
    try {
        return importReadableFile(fileName, reader);
    } catch (const std::bad_alloc&) {
        result.isOutOfMemory = true;
        result.error = QCoreApplication::translate("workbench::LabelImport",
                                                   "There is not enough memory for this file.");
        return result;
    }
}

} // namespace workbench
