#pragma once

#include "host/items/fillable_item.h"

#include <QGraphicsPolygonItem>
#include <QObject>

/// A triangle, diamond, pentagon, hexagon or octagon that fills its box. Which of
/// them is told to the factory by the shape type; the corners are the host's business.
class PolygonItem : public QObject, public QGraphicsPolygonItem, public FillableItem
{};
