#include "painted.h"

#include "workbench/rendering/page_image.h"

Painted::Painted()
{
    canvas.importCanvasParameters(200.0, 100.0, false, false);
}

QImage Painted::image(double dpi) const
{
    return workbench::renderPage(canvas, dpi).image;
}

QColor Painted::at(int x, int y) const
{
    return image().pixelColor(x, y);
}

QRect Painted::ink() const
{
    return inkOf(image());
}

QRect inkOf(const QImage& image, const QColor& ground)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != ground) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

int countOf(const QImage& image, const QRect& rectangle, const QColor& color)
{
    int count = 0;
    for (int y = rectangle.top(); y <= rectangle.bottom(); ++y) {
        for (int x = rectangle.left(); x <= rectangle.right(); ++x) {
            count += image.pixelColor(x, y) == color ? 1 : 0;
        }
    }
    return count;
}
