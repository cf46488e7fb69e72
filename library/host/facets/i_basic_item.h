#pragma once

#include "host/facets/i_size_item.h"

/// The base of every item: a size. A host may add what its own editor needs.
class IBasicItem : public ISizeItem
{
public:
};
