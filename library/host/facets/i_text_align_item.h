#pragma once

#include <Qt>

/// The position of text in its box.
class ITextAlignItem
{
public:
    virtual ~ITextAlignItem() = default;

    /// Horizontal and vertical flags combined; a missing direction means left or top.
    virtual void setTextAlignment(Qt::Alignment alignment) = 0;
};
