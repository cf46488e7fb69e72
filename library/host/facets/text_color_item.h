#pragma once

#include <QColor>

/// The color of an item's characters.
class TextColorItem
{
public:
    virtual ~TextColorItem() = default;

    virtual void setTextColor(const QColor& color) = 0; ///< May be translucent.
};
