#pragma once

#include "host/facets/pen_item.h"
#include "host/items/colored_item.h"

/// An item with an outline.
class ContouredItem : public ColoredItem, public PenItem
{};
