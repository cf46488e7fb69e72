#pragma once

#include <QColor>

/// The color that fills an item.
class FillColorItem
{
public:
    virtual ~FillColorItem() = default;

    /// Qt::transparent (alpha 0) leaves the inside open; an invalid color changes nothing.
    virtual void setFillColor(const QColor& color) = 0;
};
