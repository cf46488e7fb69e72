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
/// A host makes one importer for a canvas and keeps it. One import runs at a time: a call that
/// comes out of a running one, by way of the host, is logged and returns false at once.
/// The importer may be deleted by who receives its signals; the import then ends. Everything
/// happens on the thread that calls, which must be the one of the user interface. Readers are made
/// when their format is first met and live as long as the importer.
class LABELPORT_EXPORT LegacyTemplateImporter : public QObject
{
    Q_OBJECT

public:
    /// @param canvasModel          the canvas that imports fill
    /// @param fileController       asked and told about files by importLegacyLabel() only
    /// @param datasourceController where labels with changing content make their sources
    ///
    /// None of the three is owned; all must outlive the importer.
    LegacyTemplateImporter(TalCanvasModel* canvasModel, FileController* fileController,
                           DatasourceController* datasourceController);
    ~LegacyTemplateImporter() override;

    /// The import command: asks about unsaved changes, lets the user pick a file, imports
    /// it and has the host save the result beside it.
    ///
    /// Returns silently when the user cancels. A failed import saves nothing; the reader
    /// has then reported what went wrong.
    ///
    /// @param currentFileName the file of the label that is open now, for the question
    void importLegacyLabel(const QString& currentFileName);

    /// Imports a binary canvas file. True when the label is on the canvas.
    [[nodiscard]] bool importLabelFromTavrelFile(const QString& fileName);
    /// Imports an XML label file. True when the label is on the canvas.
    [[nodiscard]] bool importLabelFromOrvantaFile(const QString& fileName);
    /// Imports an OpenDocument text or drawing. True when the label is on the canvas.
    [[nodiscard]] bool importLabelFromOpenOfficeFile(const QString& fileName);

Q_SIGNALS:
    /// A reader has a message box for the user. The host shows it when and how it likes;
    /// the box stays the reader's.
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
