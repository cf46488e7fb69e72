#include "window/label/move_items.h"

#include <QCoreApplication>
#include <QGraphicsItem>

namespace window {

MoveItems::MoveItems(const QList<ItemMove>& moves)
    : QUndoCommand(QCoreApplication::translate("window::MoveItems", "Move"))
    , m_moves(moves)
{}

void MoveItems::undo()
{
    for (const ItemMove& move : std::as_const(m_moves)) {
        move.item->setPos(move.from);
    }
}

void MoveItems::redo()
{
    for (const ItemMove& move : std::as_const(m_moves)) {
        move.item->setPos(move.to);
    }
}

} // namespace window
