#pragma once

#include "host/file_controller.h"
#include "window/label/open_label.h"

#include <functional>
#include <optional>

namespace window {

/// What came of one run of the importer's own import dialog.
struct ImportOutcome
{
    /// Whether a file was chosen; if not, nothing has happened.
    bool wasChosen = false;
    /// The label with the name to save it under; nothing when the import failed.
    std::optional<OpenLabel> label;
    /// Why the import failed, in words for a person.
    QString error;
};

/// Runs the import dialog once, onto a new canvas: a failed import leaves the open label
/// as it is.
class DialogImport final : public FileController
{
public:
    /// @param confirmDiscard asks about the unsaved changes of the open label; false stops the
    /// import
    explicit DialogImport(std::function<bool(bool allowDiscard)> confirmDiscard);

    /// @param currentFileName the file of the open label
    [[nodiscard]] ImportOutcome run(const QString& currentFileName);

    bool checkSaveChanges(TalCanvasModel* canvasModel, const QString& currentFileName,
                          bool allowDiscard) override;
    void saveImportedLabelAs(const QString& folder, const QString& baseName,
                             const QString& labelType) override;
    void emitLabelTypeLoadedSignal(QString labelType) override;

private:
    std::function<bool(bool)> m_confirmDiscard;
    bool m_wasChosen = false;
    QString m_saveAs; // empty as long as nothing was imported
};

} // namespace window
