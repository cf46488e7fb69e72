#include "window/edit/commands.h"

#include <QCoreApplication>
#include <QGraphicsItem>

#include <utility>

namespace window {

namespace {

void select(QGraphicsScene& scene, const QList<workbench::CanvasItem*>& items)
{
    {
        // One change of the selection, not one for each item.
        const QSignalBlocker silence(&scene);
        scene.clearSelection();
        for (workbench::CanvasItem* item : items) {
            item->graphicsItem()->setSelected(true);
        }
    }
    Q_EMIT scene.selectionChanged();
}

} // namespace

ChangeItems::ChangeItems(const QString& text, const QList<ItemChange>& changes)
    : QUndoCommand(text)
    , m_changes(changes)
{}

void ChangeItems::undo()
{
    for (const ItemChange& change : std::as_const(m_changes)) {
        change.item->setValues(change.before);
    }
}

void ChangeItems::redo()
{
    for (const ItemChange& change : std::as_const(m_changes)) {
        change.item->setValues(change.after);
    }
}

AddItems::AddItems(const QString& text, workbench::Canvas& canvas,
                   const QList<workbench::ItemValues>& values)
    : QUndoCommand(text)
    , m_canvas(canvas)
    , m_values(values)
{}

void AddItems::undo()
{
    m_detached = m_canvas.detachItems(m_items);
}

void AddItems::redo()
{
    m_canvas.attachItems(std::exchange(m_detached, {}));
    for (const workbench::ItemValues& values : std::exchange(m_values, {})) {
        if (workbench::CanvasItem* item = m_canvas.addItem(values)) {
            m_items.append(item);
        }
    }
    select(*m_canvas.scene(), m_items);
}

RemoveItems::RemoveItems(const QString& text, workbench::Canvas& canvas,
                         const QList<workbench::CanvasItem*>& items)
    : QUndoCommand(text)
    , m_canvas(canvas)
    , m_items(items)
{}

void RemoveItems::undo()
{
    m_canvas.attachItems(std::exchange(m_detached, {}));
    select(*m_canvas.scene(), m_items);
}

void RemoveItems::redo()
{
    m_detached = m_canvas.detachItems(m_items);
}

ChangePage::ChangePage(workbench::Canvas& canvas, const workbench::PageValues& after)
    : QUndoCommand(QCoreApplication::translate("window::ChangePage", "Change Page"))
    , m_canvas(canvas)
    , m_before(canvas.page())
    , m_after(after)
{}

} // namespace window
