#pragma once

#include "host/facets/fill_color_item.h"
#include "host/facets/i_brush_item.h"
#include "host/items/contoured_item.h"

/// An item with an outline and an inside.
class FillableItem : public ContouredItem, public FillColorItem, public IBrushItem
{};
