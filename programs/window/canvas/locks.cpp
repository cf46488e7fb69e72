#include "window/canvas/locks.h"

#include "window/properties/item_description.h"

#include <QCoreApplication>
#include <QGraphicsItem>

namespace window {

namespace {

struct LocksTr
{
    Q_DECLARE_TR_FUNCTIONS(window::Locks)
};

} // namespace

QString immovableReason(const workbench::ItemValues& values)
{
    const QString title = itemTitle(values);
    if (values.placement.readOnly) {
        return LocksTr::tr("%1 is read-only. To move it, clear “Read-only” in its properties.")
            .arg(title);
    }
    if (values.placement.userBackground) {
        return LocksTr::tr("%1 belongs to the background. To move it, clear “Background” in its "
                           "properties.")
            .arg(title);
    }
    if (!values.placement.movable) {
        return LocksTr::tr("%1 is locked. To move it, set “Movable” in its properties.").arg(title);
    }
    return {};
}

bool isMovable(const QGraphicsItem& item)
{
    // Read-only items and background items accept no mouse buttons.
    return item.flags().testFlag(QGraphicsItem::ItemIsMovable) &&
           item.acceptedMouseButtons() != Qt::NoButton;
}

} // namespace window
