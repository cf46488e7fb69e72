#include "orvanta/page_geometry.h"

using namespace Qt::Literals::StringLiterals;

namespace orvanta {

namespace {

// A position within the margin becomes the label's edge. Old labels depend on the opposite edge
// staying in place.
void takeLeft(const Element& child, FamilyCheck /*unused*/, QRectF& rectangle)
{
    const double x = readDouble(child);
    if (x > CanvasMargin) {
        rectangle.setLeft((x - CanvasMargin) * PointsPerPixel);
    }
}

void takeTop(const Element& child, FamilyCheck /*unused*/, QRectF& rectangle)
{
    const double y = readDouble(child);
    if (y > CanvasMargin) {
        rectangle.setTop((y - CanvasMargin) * PointsPerPixel);
    }
}

void takeWidth(const Element& child, FamilyCheck /*unused*/, QRectF& rectangle)
{
    rectangle.setWidth(readDouble(child) * PointsPerPixel);
}

void takeHeight(const Element& child, FamilyCheck /*unused*/, QRectF& rectangle)
{
    rectangle.setHeight(readDouble(child) * PointsPerPixel);
}

constexpr Field<QRectF> BoundsFields[] = {
    {"x"_L1, takeLeft},
    {"y"_L1, takeTop},
    {"w"_L1, takeWidth},
    {"h"_L1, takeHeight},
};

} // namespace

QRectF readBounds(const Element& bounds)
{
    QRectF rectangle;
    readFields(bounds, BoundsFields, nullptr, rectangle);
    return rectangle;
}

LabelPage readLabelPage(const Element& root)
{
    const Element bounds =
        root.firstChildElement(u"printable_control"_s).firstChildElement(u"bounds"_s);
    if (bounds.isNull()) {
        return {};
    }
    const QRectF rectangle = readBounds(bounds);
    return {rectangle.width(), rectangle.height(), rectangle.height() > rectangle.width()};
}

} // namespace orvanta
