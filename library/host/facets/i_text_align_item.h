#pragma once

#include <Qt>

/// Where text stands in its box.
class ITextAlignItem
{
public:
    virtual ~ITextAlignItem() = default;

    /// Horizontal and vertical flags together; a missing direction means left or top.
    virtual void setTextAlignment(Qt::Alignment alignment) = 0;
};
