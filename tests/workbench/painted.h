#pragma once

#include "workbench/canvas/canvas.h"

#include <QColor>
#include <QImage>
#include <QRect>

/// A white page of 200 by 100 points, painted one pixel to a point.
class Painted
{
public:
    Painted();

    /// Makes an item on the page; the class must be the one that the type names.
    template <class Class>
    Class& make(KestTypes::ShapeType type)
    {
        Item* item = canvas.getClassFactory()->create(type);
        canvas.importItem(item);
        return dynamic_cast<Class&>(*item);
    }

    [[nodiscard]] QImage image(double dpi = 72.0) const;
    [[nodiscard]] QColor at(int x, int y) const;
    /// The smallest rectangle that holds everything that is not white.
    [[nodiscard]] QRect ink() const;

    workbench::Canvas canvas;
};

/// The smallest rectangle of an image that holds every pixel of another colour than the ground.
[[nodiscard]] QRect inkOf(const QImage& image, const QColor& ground = Qt::white);
/// How many pixels of the rectangle have exactly this colour.
[[nodiscard]] int countOf(const QImage& image, const QRect& rectangle, const QColor& color);
