#pragma once

#include "host/file_controller.h"
#include "journal/journal.h"

/// Notes what the importer asks of the host's file handling.
class FakeFileController : public FileController
{
public:
    /// The user's answer about unsaved changes.
    bool mayGoOn = true;
    TalCanvasModel* askedAbout = nullptr;

    bool checkSaveChanges(TalCanvasModel* canvasModel, const QString& currentFileName,
                          bool allowDiscard) override;
    void saveImportedLabelAs(const QString& folder, const QString& baseName,
                             const QString& labelType) override;
    void emitLabelTypeLoadedSignal(QString labelType) override;
};

/// The folder that FileControllerTools answers with.
QString& defaultImportFolder();
