#pragma once

#include "host/items/fillable_item.h"

#include <QGraphicsRectItem>
#include <QObject>

/// A rectangle; also what an unknown legacy shape becomes.
class RectangleItem : public QObject, public QGraphicsRectItem, public FillableItem
{};
