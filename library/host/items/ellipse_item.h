#pragma once

#include "host/items/fillable_item.h"

#include <QGraphicsEllipseItem>
#include <QObject>

/// An ellipse that fills its box; a circle if the box is square.
class EllipseItem : public QObject, public QGraphicsEllipseItem, public FillableItem
{};
