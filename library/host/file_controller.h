#pragma once

#include <QString>

class TalCanvasModel;

/// The host's file handling around an interactive import.
class FileController
{
public:
    virtual ~FileController() = default;

    /// Asks the user what to do with unsaved changes of the open label.
    ///
    /// @param canvasModel     the canvas with the open label
    /// @param currentFileName the open label's file name, as the host gave it
    /// @param allowDiscard    whether the question may offer to discard; importers pass true
    /// @return true if the import may continue, false if the user canceled it
    [[nodiscard]] virtual bool checkSaveChanges(TalCanvasModel* canvasModel,
                                                const QString& currentFileName,
                                                bool allowDiscard) = 0;

    /// Saves the imported label by the host's own save procedure.
    ///
    /// @param folder    the folder to save in, absolute
    /// @param baseName  the file name without the last suffix
    /// @param labelType empty from importers
    virtual void saveImportedLabelAs(const QString& folder, const QString& baseName,
                                     const QString& labelType) = 0;

    /// Announces to the host that a label type was loaded; importers pass an empty text,
    /// because legacy labels have no label type of the host.
    virtual void emitLabelTypeLoadedSignal(QString labelType) = 0;
};
