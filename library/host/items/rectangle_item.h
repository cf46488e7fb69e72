#pragma once

#include "host/items/fillable_item.h"

#include <QGraphicsRectItem>
#include <QObject>

/// A rectangle. Unknown legacy shapes become rectangles, too.
class RectangleItem : public QObject, public QGraphicsRectItem, public FillableItem
{};
