#pragma once

#include "host/facets/i_size_item.h"

/// What every item has: a size. A host adds what its own editor needs here.
class IBasicItem : public ISizeItem
{
public:
};
