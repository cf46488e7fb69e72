#pragma once

#include "labelport_export.h"

#include <QObject>
#include <QString>
#include <QWidget>

#include <memory>

class DatasourceController;
class FileController;
class LegacyOrvanta;
class LegacyTavrel;
class OpenOfficeReader;
class TalCanvasModel;

/// Imports labels of older programs into the host's canvas.
///
/// A host creates one importer for a canvas and keeps it. One import runs at a time: a call
/// from within a running import, through the host, is logged and returns false at once.
/// A receiver of its signals may delete the importer; the import then ends. All work
/// is done on the calling thread, which must be the GUI thread. Readers are created
/// for the first file of their format and live as long as the importer.
class LABELPORT_EXPORT LegacyTemplateImporter : public QObject
{
    Q_OBJECT

public:
    /// @param canvasModel          the canvas that imports fill
    /// @param fileController       used by importLegacyLabel() only, for questions and notices
    /// @param datasourceController creates the sources of labels with variable content
    ///
    /// None of the three is owned; all must outlive the importer.
    LegacyTemplateImporter(TalCanvasModel* canvasModel, FileController* fileController,
                           DatasourceController* datasourceController);
    ~LegacyTemplateImporter() override;

    /// The import command: asks about unsaved changes, lets the user choose a file, imports
    /// it and has the host save the result in the same folder.
    ///
    /// Returns silently if the user cancels. A failed import saves nothing; the reader
    /// has then reported the error.
    ///
    /// @param currentFileName the file of the label that is open now, for the question
    void importLegacyLabel(const QString& currentFileName);

    /// Imports a binary canvas file. Returns true if the label is on the canvas.
    [[nodiscard]] bool importLabelFromTavrelFile(const QString& fileName);
    /// Imports an XML label file. Returns true if the label is on the canvas.
    [[nodiscard]] bool importLabelFromOrvantaFile(const QString& fileName);
    /// Imports an OpenDocument text or drawing. Returns true if the label is on the canvas.
    [[nodiscard]] bool importLabelFromOpenOfficeFile(const QString& fileName);

Q_SIGNALS:
    /// A reader has a message box for the user. The host decides when and how to show it;
    /// the reader owns the box.
    void popupShowSignal(QWidget* popup);
    /// The user has closed the box; it is about to be deleted.
    void popupHideSignal();

private:
    [[nodiscard]] QString chooseFile();
    void rememberFolderOf(const QString& fileName);
    [[nodiscard]] bool importByName(const QString& fileName);
    [[nodiscard]] bool isBusy(const char* function) const;

    std::unique_ptr<LegacyOrvanta> m_orvantaReader;
    std::unique_ptr<LegacyTavrel> m_tavrelReader;
    std::unique_ptr<OpenOfficeReader> m_openOfficeReader;
    TalCanvasModel* m_canvasModel = nullptr;
    FileController* m_fileController = nullptr;
    DatasourceController* m_datasourceController = nullptr;
    QString m_importFolder;
    bool m_isImporting = false;

    class RunningImport;
};
