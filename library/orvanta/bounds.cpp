#include "orvanta/bounds.h"

#include "orvanta/element_values.h"
#include "orvanta/fields.h"

namespace orvanta {

namespace {

// What lies within the margin is pulled to the label's edge. Old labels depend on the
// other edge staying where it is while this one moves.
void takeLeft(const QDomElement& child, FamilyCheck /*unused*/, QRectF& rectangle)
{
    const double x = readDouble(child);
    if (x > CanvasMargin) {
        rectangle.setLeft((x - CanvasMargin) * PointsPerPixel);
    }
}

void takeTop(const QDomElement& child, FamilyCheck /*unused*/, QRectF& rectangle)
{
    const double y = readDouble(child);
    if (y > CanvasMargin) {
        rectangle.setTop((y - CanvasMargin) * PointsPerPixel);
    }
}

void takeWidth(const QDomElement& child, FamilyCheck /*unused*/, QRectF& rectangle)
{
    rectangle.setWidth(readDouble(child) * PointsPerPixel);
}

void takeHeight(const QDomElement& child, FamilyCheck /*unused*/, QRectF& rectangle)
{
    rectangle.setHeight(readDouble(child) * PointsPerPixel);
}

constexpr Field<QRectF> BoundsFields[] = {
    {QLatin1String("x"), takeLeft},
    {QLatin1String("y"), takeTop},
    {QLatin1String("w"), takeWidth},
    {QLatin1String("h"), takeHeight},
};

} // namespace

QRectF readBounds(const QDomElement& bounds)
{
    QRectF rectangle;
    readFields(bounds, BoundsFields, nullptr, rectangle);
    return rectangle;
}

} // namespace orvanta
