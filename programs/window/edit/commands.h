#pragma once

#include "workbench/canvas/canvas.h"

#include <QList>
#include <QUndoCommand>

namespace window {

// Every change of a label is one of these commands. Items must outlive them: clear the undo stack
// before deleting a canvas.

/// The values of one item before and after a change.
struct ItemChange
{
    workbench::CanvasItem* item = nullptr;
    workbench::ItemValues before;
    workbench::ItemValues after;
};

/// Whether nothing keeps an item from being moved.
[[nodiscard]] inline bool isMovable(const workbench::ItemValues& values)
{
    const workbench::PlacementValues& placement = values.placement;
    return placement.movable && !placement.readOnly && !placement.userBackground;
}

/// Changes the values of items.
class ChangeItems final : public QUndoCommand
{
public:
    /// @param text  name of the step in the menu: "Change Font"
    ChangeItems(const QString& text, const QList<ItemChange>& changes);

    void undo() override;
    void redo() override;

private:
    QList<ItemChange> m_changes;
};

/// Adds new items on top, and selects them.
class AddItems final : public QUndoCommand
{
public:
    AddItems(const QString& text, workbench::Canvas& canvas,
             const QList<workbench::ItemValues>& values);

    void undo() override;
    void redo() override;

private:
    workbench::Canvas& m_canvas;
    QList<workbench::CanvasItem*> m_items;
    QList<workbench::ItemValues> m_values;     // until the first redo()
    QList<workbench::DetachedItem> m_detached; // while undone
};

/// Removes items, and keeps them for undo.
class RemoveItems final : public QUndoCommand
{
public:
    RemoveItems(const QString& text, workbench::Canvas& canvas,
                const QList<workbench::CanvasItem*>& items);

    void undo() override;
    void redo() override;

private:
    workbench::Canvas& m_canvas;
    QList<workbench::CanvasItem*> m_items;
    QList<workbench::DetachedItem> m_detached; // while removed
};

/// Changes the page: size, colors, orientation.
class ChangePage final : public QUndoCommand
{
public:
    ChangePage(workbench::Canvas& canvas, const workbench::PageValues& after);

    void undo() override { m_canvas.setPage(m_before); }
    void redo() override { m_canvas.setPage(m_after); }

private:
    workbench::Canvas& m_canvas;
    workbench::PageValues m_before;
    workbench::PageValues m_after;
};

} // namespace window
