#pragma once

/// How the inside of an item is filled. For the color see FillColorItem.
class IBrushItem
{
public:
    virtual ~IBrushItem() = default;

    /// Whether the inside is filled, whatever its color.
    virtual void setFilled(bool filled) = 0;
    /// A Qt::BrushStyle; Qt::NoBrush (0) leaves the inside open. The number comes
    /// from a file: treat an unknown one as Qt::SolidPattern.
    virtual void setBrushStyle(int style) = 0;
};
