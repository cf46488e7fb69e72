// The text editor and the context menu of the canvas.
#include "window/canvas/canvas_view.h"
#include "window/canvas/locks.h"
#include "window/canvas/selection_tool.h"
#include "window/canvas/text_editor.h"

#include <QContextMenuEvent>
#include <QGraphicsScene>
#include <QKeyEvent>
#include <QMouseEvent>

namespace window {

bool CanvasView::isInEditor(const QPoint& at) const
{
    return m_editor->contains(m_editor->mapFromScene(mapToScene(at)));
}

bool CanvasView::editText(workbench::CanvasItem& item)
{
    endEditing(true);
    const workbench::ItemValues values = item.values();
    if (!TextEditor::canEdit(values)) {
        Q_EMIT hintShown(values.text ? immovableReason(values) : tr("The item has no text."));
        return false;
    }
    setFocus();
    m_editor = new TextEditor(item);
    // Queued: the editor is still handling the key.
    connect(m_editor, &TextEditor::finished, this, &CanvasView::endEditing, Qt::QueuedConnection);
    ensureVisible(m_editor);
    if (values.datasource && values.datasource->id >= 0) {
        Q_EMIT hintShown(
            tr("The item shows a data source; its own text is shown only without one."));
    }
    return true;
}

void CanvasView::endEditing(bool isAccepted)
{
    if (m_editor == nullptr) {
        return;
    }
    TextEditor* editor = m_editor;
    m_editor.clear(); // first: what follows may move the focus
    const ItemChange change = editor->change();
    delete editor;
    if (isAccepted && change.before != change.after) {
        Q_EMIT itemsChanged(tr("Change Text"), {change});
    }
}

// Double click: the text in place, any other item in the properties.
void CanvasView::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QPoint at = event->position().toPoint();
    if (m_editor != nullptr && isInEditor(at)) {
        QGraphicsView::mouseDoubleClickEvent(event);
        return;
    }
    workbench::CanvasItem* item =
        event->button() == Qt::LeftButton ? m_tool->itemForDoubleClick(at) : nullptr;
    if (item == nullptr || m_handReady) {
        mousePressEvent(event);
        return;
    }
    m_tool->selectOnly(item);
    if (item->values().text) {
        editText(*item);
    } else {
        Q_EMIT propertiesRequested();
    }
}

bool CanvasView::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && m_editor != nullptr) {
        if (TextEditor::isTextKey(*static_cast<QKeyEvent*>(event))) {
            event->accept();
            return true;
        }
        // A command of the window must find the text that was typed.
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool isModifier = key->key() >= Qt::Key_Shift && key->key() <= Qt::Key_Alt;
        if (!isModifier) {
            endEditing(true);
        }
    }
    return QGraphicsView::event(event);
}

void CanvasView::contextMenuEvent(QContextMenuEvent* event)
{
    endEditing(true);
    if (event->reason() == QContextMenuEvent::Mouse) {
        m_tool->selectAt(event->pos());
    }
    Q_EMIT menuRequested(event->globalPos());
    event->accept();
}

} // namespace window
