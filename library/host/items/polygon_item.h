#pragma once

#include "host/items/fillable_item.h"

#include <QGraphicsPolygonItem>
#include <QObject>

/// A triangle, diamond, pentagon, hexagon or octagon that fills its box. The factory gets the kind
/// as the shape type; the host computes the corners.
class PolygonItem : public QObject, public QGraphicsPolygonItem, public FillableItem
{};
