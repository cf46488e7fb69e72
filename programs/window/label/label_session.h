#pragma once

#include "window/label/label_files.h"
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
/// All file commands are here, with their questions and messages. If a command
/// fails, the open label does not change.
class LabelSession final : public QObject
{
    Q_OBJECT

public:
    /// @param window parent of the dialogs; not owned
    explicit LabelSession(QWidget* window);
    ~LabelSession() override;

    /// The open label; null if there is none.
    [[nodiscard]] OpenLabel* label() { return m_label ? &*m_label : nullptr; }
    [[nodiscard]] const OpenLabel* label() const { return m_label ? &*m_label : nullptr; }
    [[nodiscard]] bool hasUnsavedChanges() const;
    [[nodiscard]] QUndoStack& undoStack() { return m_undoStack; }
    [[nodiscard]] const Prompts& prompts() const { return m_prompts; }

    void openByDialog();
    /// Opens a saved label, or imports a legacy one. False if that failed or was canceled.
    bool openFile(const QString& fileName);
    /// As openFile(), without questions and messages, for a session without unsaved changes.
    /// Returns the reason if the file cannot be opened, else an empty text.
    [[nodiscard]] QString openFileQuietly(const QString& fileName);
    /// Shows a label of a folder in place of the open one, without a message box. If it cannot be
    /// opened, none is open and the reason is returned. Nothing if the user canceled.
    [[nodiscard]] std::optional<QString> browse(const QString& fileName);
    /// Imports the file of the open label again, with or without repairs. False if that failed or
    /// was canceled; the label is then unchanged.
    bool readAgain(Reading reading);
    bool save();
    bool saveAs();
    /// Closes the label. False if the user canceled.
    bool close();
    /// Asks about unsaved changes if there are any. True if they were saved or may be discarded.
    [[nodiscard]] bool confirmDiscard(bool allowDiscard = true);

    /// Moves items, with undo.
    void moveItems(const QList<ItemMove>& moves);

Q_SIGNALS:
    /// Emitted before the label is deleted: drop all references to its canvas.
    void aboutToReplaceLabel();
    /// Another label is open, or none.
    void labelReplaced();
    /// The label's name or its modified state has changed.
    void nameChanged();
    void recentFilesChanged();
    void saved(const QString& fileName);
    /// A message for the status bar.
    void noticeShown(const QString& text);

private:
    void setLabel(OpenLabel label);
    void clear();
    bool saveTo(const QString& fileName);
    void takeFile(const QString& fileName, OpenLabel label);
    void showFailure(const QString& fileName, const ReadLabel& read);

    Prompts m_prompts;
    RecentFiles m_recentFiles;
    QUndoStack m_undoStack;
    std::optional<OpenLabel> m_label;
};

} // namespace window
