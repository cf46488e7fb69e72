#pragma once

#include "host/file_controller.h"
#include "window/label/open_label.h"

#include <functional>
#include <optional>

namespace window {

/// The result of the importer's own import dialog.
struct ImportOutcome
{
    /// Whether a file was chosen; if not, nothing has changed.
    bool wasChosen = false;
    /// The label with its suggested file name; nothing if the import failed.
    std::optional<OpenLabel> label;
    /// User-visible reason for a failed import.
    QString error;
};

/// Runs the import dialog once, onto a new canvas: a failed import does not change
/// the open label.
class DialogImport final : public FileController
{
public:
    /// @param confirmDiscard asks about the unsaved changes of the open label; false cancels the
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
    QString m_saveAs; // empty until a label is imported
};

} // namespace window
