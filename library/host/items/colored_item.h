#pragma once

#include "host/facets/i_color_item.h"
#include "host/items/item.h"

/// An item with a color of its own.
class ColoredItem : public Item, public IColorItem
{};
