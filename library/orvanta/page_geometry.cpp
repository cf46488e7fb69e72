#include "orvanta/page_geometry.h"

#include "orvanta/elements.h"

using namespace Qt::Literals::StringLiterals;

namespace orvanta {

namespace {

// A position within the margin becomes the label's edge. Old labels depend on the opposite edge
// staying in place.
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
    {"x"_L1, takeLeft},
    {"y"_L1, takeTop},
    {"w"_L1, takeWidth},
    {"h"_L1, takeHeight},
};

} // namespace

QRectF readBounds(const QDomElement& bounds)
{
    QRectF rectangle;
    readFields(bounds, BoundsFields, nullptr, rectangle);
    return rectangle;
}

LabelPage readLabelPage(const QDomElement& root)
{
    const QDomElement bounds =
        root.firstChildElement(u"printable_control"_s).firstChildElement(u"bounds"_s);
    if (bounds.isNull()) {
        return {};
    }
    const QRectF rectangle = readBounds(bounds);
    return {rectangle.width(), rectangle.height(), rectangle.height() > rectangle.width()};
}

} // namespace orvanta
