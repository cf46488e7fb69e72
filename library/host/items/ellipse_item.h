#pragma once

#include "host/items/fillable_item.h"

#include <QGraphicsEllipseItem>
#include <QObject>

/// An ellipse that fills its box; a circle when the box is square.
class EllipseItem : public QObject, public QGraphicsEllipseItem, public FillableItem
{};
