#pragma once

#include <QList>
#include <QPointF>
#include <QUndoCommand>

class QGraphicsItem;

namespace window {

/// One item's way.
struct ItemMove
{
    QGraphicsItem* item = nullptr;
    QPointF from;
    QPointF to;
};

/// Moves items and back. The items must outlive the command: the stack is emptied before
/// a canvas goes.
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
