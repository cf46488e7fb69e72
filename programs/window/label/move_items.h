#pragma once

#include <QList>
#include <QPointF>
#include <QUndoCommand>

class QGraphicsItem;

namespace window {

/// The move of one item.
struct ItemMove
{
    QGraphicsItem* item = nullptr;
    QPointF from;
    QPointF to;
};

/// Moves items, with undo. The items must outlive the command: clear the undo stack before
/// deleting a canvas.
class MoveItems final : public QUndoCommand
{
public:
    explicit MoveItems(const QList<ItemMove>& moves);

    void undo() override;
    void redo() override;

private:
    QList<ItemMove> m_moves;
};

} // namespace window
