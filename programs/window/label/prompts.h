#pragma once

#include <QString>
#include <QtGlobal>

class QWidget;

namespace window {

/// The questions and messages of a window.
class Prompts
{
public:
    enum class Changes : quint8 { Save, Discard, Cancel };
    enum class Existing : quint8 { Replace, Rename, Later };

    /// The window is not owned; it is the dialogs' parent.
    explicit Prompts(QWidget* window);

    /// Asks what to do with the unsaved changes of a label.
    [[nodiscard]] Changes askUnsavedChanges(const QString& labelName, bool allowDiscard) const;
    /// Asks what to do if the imported label's file already exists.
    [[nodiscard]] Existing askExisting(const QString& fileName) const;
    /// A file to open; empty if the user canceled.
    [[nodiscard]] QString askOpenFile() const;
    /// A name to save the label under; empty if the user canceled.
    [[nodiscard]] QString askSaveFile(const QString& suggestedName) const;
    /// Shows what failed, and why.
    void showError(const QString& what, const QString& why) const;

private:
    QWidget* m_window;
};

} // namespace window
