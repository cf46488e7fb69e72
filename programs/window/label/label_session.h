#pragma once

#include "window/label/move_items.h"
#include "window/label/open_label.h"
#include "window/label/prompts.h"
#include "window/label/recent_files.h"

#include <QObject>
#include <QUndoStack>

#include <optional>

namespace window {

/// The open label of a window, or none.
///
/// All commands on files go through here, with their questions and messages. A command
/// that fails leaves the label that lies there as it is.
class LabelSession final : public QObject
{
    Q_OBJECT

public:
    /// @param window stands behind the dialogs; not owned
    explicit LabelSession(QWidget* window);
    ~LabelSession() override;

    /// The open label; null if there is none.
    [[nodiscard]] OpenLabel* label() { return m_label ? &*m_label : nullptr; }
    [[nodiscard]] const OpenLabel* label() const { return m_label ? &*m_label : nullptr; }
    [[nodiscard]] bool hasUnsavedChanges() const;
    [[nodiscard]] QUndoStack& undoStack() { return m_undoStack; }
    [[nodiscard]] const Prompts& prompts() const { return m_prompts; }

    void openByDialog();
    /// Opens a saved label, or imports a legacy one. False when that failed or was canceled.
    bool openFile(const QString& fileName);
    /// As openFile(), without questions and messages, for a session without unsaved changes.
    /// Returns the reason if the file cannot be opened, else an empty text.
    [[nodiscard]] QString openFileQuietly(const QString& fileName);
    /// Imports by the dialog of the importer and saves the label beside the legacy file.
    void importByDialog();
    bool save();
    bool saveAs();
    /// Closes the label. False if the user canceled.
    bool close();
    /// Asks about unsaved changes if there are any. True when they may go, or are saved.
    [[nodiscard]] bool confirmDiscard(bool allowDiscard = true);

    /// Moves items, so that it can be undone.
    void moveItems(const QList<ItemMove>& moves);

Q_SIGNALS:
    /// The label is about to leave: let go of its canvas.
    void aboutToReplaceLabel();
    /// Another label lies there, or none.
    void labelReplaced();
    /// The label's name, or whether it has unsaved changes, is another.
    void nameChanged();
    void recentFilesChanged();
    /// Something went well that is worth a line.
    void noticeShown(const QString& text);

private:
    void setLabel(OpenLabel label);
    void clear();
    void saveImported();
    bool saveTo(const QString& fileName);
    void showFileError(const QString& fileName, const QString& why);

    Prompts m_prompts;
    RecentFiles m_recentFiles;
    QUndoStack m_undoStack;
    std::optional<OpenLabel> m_label;
};

} // namespace window
