#pragma once

#include "window/edit/commands.h"

#include <QGraphicsTextItem>

namespace window {

/// Edits the text of an item in place: the text has its font, color and position while it is typed.
/// Rich text keeps its formats; Ctrl+B, Ctrl+I and Ctrl+U change those of the selected characters.
///
/// The editor is an additional item of the scene. The edited item is transparent meanwhile.
class TextEditor final : public QGraphicsTextItem
{
    Q_OBJECT

public:
    /// Whether an item has a text of its own to edit.
    [[nodiscard]] static bool canEdit(const workbench::ItemValues& values);

    /// Adds itself to the item's scene. The item is not owned and must outlive the editor.
    explicit TextEditor(workbench::CanvasItem& item);
    ~TextEditor() override;

    /// The item with the text that was typed.
    [[nodiscard]] ItemChange change() const;

    /// Whether a key belongs to the text rather than to a command of the window.
    [[nodiscard]] static bool isTextKey(const QKeyEvent& event);

Q_SIGNALS:
    /// The user ended editing by Ctrl+Enter, or canceled it by Esc.
    void finished(bool isAccepted);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool changeFormat(const QKeyEvent& event);

    workbench::CanvasItem& m_item;
    workbench::ItemValues m_before;
    bool m_isRich = false;
};

} // namespace window
