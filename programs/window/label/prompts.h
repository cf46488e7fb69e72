#pragma once

#include <QString>
#include <QtGlobal>

class QWidget;

namespace window {

/// The questions and messages of a window.
class Prompts
{
public:
    /// The user's answer about unsaved changes.
    enum class Changes : quint8 { Save, Discard, Cancel };

    /// The window is not owned; it is the dialogs' parent.
    explicit Prompts(QWidget* window);

    /// Asks what to do with the unsaved changes of a label.
    [[nodiscard]] Changes askUnsavedChanges(const QString& labelName, bool allowDiscard) const;
    /// A file to open; empty if the user canceled.
    /// Starts in the folder of this file, or else in the one of the last file.
    [[nodiscard]] QString askOpenFile(const QString& besides) const;
    /// A folder with labels; empty if the user canceled.
    [[nodiscard]] QString askFolder() const;
    /// A name to save the label under; empty if the user canceled.
    [[nodiscard]] QString askSaveFile(const QString& suggestedName) const;
    /// Shows what failed, and why.
    void showError(const QString& what, const QString& why) const;
    /// Shows what was done, and its details.
    void showResult(const QString& what, const QString& details) const;

private:
    QWidget* m_window;
};

} // namespace window
