#pragma once

#include "host/facets/i_pie_item.h"
#include "host/items/ellipse_item.h"

/// A segment of an ellipse.
class PieItem : public EllipseItem, public IPieItem
{};
