#pragma once

/// How the inside of an item is filled. The colour is FillColorItem's.
class IBrushItem
{
public:
    virtual ~IBrushItem() = default;

    /// Whether the inside is filled at all, whatever its colour.
    virtual void setFilled(bool filled) = 0;
    /// A Qt::BrushStyle; Qt::NoBrush (0) leaves the inside open. The number comes
    /// from a file: treat an unknown one as Qt::SolidPattern.
    virtual void setBrushStyle(int style) = 0;
};
