#pragma once

#include "workbench/canvas/canvas.h"

#include <QColor>
#include <QImage>
#include <QRect>

/// A white page of 200 by 100 points, painted at one pixel per point.
class Painted
{
public:
    Painted();

    /// Creates an item on the page; the class must be that of the type.
    template <class Class>
    Class& make(KestTypes::ShapeType type)
    {
        Item* item = canvas.getClassFactory()->create(type);
        canvas.importItem(item);
        return dynamic_cast<Class&>(*item);
    }

    [[nodiscard]] QImage image(double dpi = 72.0) const;
    [[nodiscard]] QColor at(int x, int y) const;
    /// The bounding rectangle of everything that is not white.
    [[nodiscard]] QRect ink() const;

    workbench::Canvas canvas;
};

/// The bounding rectangle of all pixels of an image that differ from the background color.
[[nodiscard]] QRect inkOf(const QImage& image, const QColor& ground = Qt::white);
/// The number of pixels in the rectangle with exactly this color.
[[nodiscard]] int countOf(const QImage& image, const QRect& rectangle, const QColor& color);
