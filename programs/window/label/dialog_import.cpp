#include "window/label/dialog_import.h"

#include "importer/legacy_template_importer.h"
#include "workbench/import/import_observer.h"

#include <QCoreApplication>
#include <QDir>

#include <new>
#include <utility>

namespace window {

DialogImport::DialogImport(std::function<bool(bool allowDiscard)> confirmDiscard)
    : m_confirmDiscard(std::move(confirmDiscard))
{}

ImportOutcome DialogImport::run(const QString& currentFileName)
{
    m_wasChosen = false;
    m_saveAs.clear();
    OpenLabel label;
    label.canvas = std::make_unique<workbench::Canvas>();
    label.sources = std::make_unique<workbench::datasources::DatasourceController>();
    LegacyTemplateImporter importer(label.canvas.get(), this, label.sources.get());
    const workbench::ImportObserver observer(importer);
    try {
        importer.importLegacyLabel(currentFileName);
    } catch (const std::bad_alloc&) {
        return {m_wasChosen, std::nullopt,
                QCoreApplication::translate("window::DialogImport",
                                            "There is not enough memory for this file.")};
    }
    if (!m_wasChosen || m_saveAs.isEmpty()) {
        return {m_wasChosen, std::nullopt, m_wasChosen ? observer.failure() : QString()};
    }
    showRecord(label, 0);
    label.importIssues = observer.issues(*label.canvas);
    label.suggestedName = m_saveAs;
    return {true, std::move(label), {}};
}

bool DialogImport::checkSaveChanges(TalCanvasModel* canvasModel, const QString& currentFileName,
                                    bool allowDiscard)
{
    // The question is about the window's label; the canvas here is the new one.
    Q_UNUSED(canvasModel)
    Q_UNUSED(currentFileName)
    return m_confirmDiscard(allowDiscard);
}

void DialogImport::saveImportedLabelAs(const QString& folder, const QString& baseName,
                                       const QString& labelType)
{
    Q_UNUSED(labelType)
    m_saveAs = QDir(folder).filePath(baseName + labelSuffix());
}

void DialogImport::emitLabelTypeLoadedSignal(QString labelType)
{
    // Called after a file was chosen and before it is read.
    Q_UNUSED(labelType)
    m_wasChosen = true;
}

} // namespace window
