#include "orvanta/shape_control.h"

#include "orvanta/object_fields.h"

namespace orvanta {

namespace {

void takeShapeIndex(const QDomElement& child, FamilyCheck /*unused*/, ShapeControl& control)
{
    control.shapeIndex = readInteger(child);
}

void takeLineWidth(const QDomElement& child, FamilyCheck /*unused*/, ShapeControl& control)
{
    control.lineWidth = readInteger(child);
}

void takeSides(const QDomElement& child, FamilyCheck /*unused*/, ShapeControl& control)
{
    control.sides = readInteger(child);
}

constexpr Field<ShapeControl> ShapeFields[] = {
    {QLatin1String("printable_control"), takePrintableControl<ShapeControl>},
    {QLatin1String("flip_horizontally"), takeFlipHorizontal<ShapeControl>},
    {QLatin1String("flip_vertically"), takeFlipVertical<ShapeControl>},
    {QLatin1String("rotation"), takeRotation<ShapeControl>},
    {QLatin1String("shape_index"), takeShapeIndex},
    {QLatin1String("line_width"), takeLineWidth},
    {QLatin1String("sides"), takeSides},
};

} // namespace

ShapeControl readShapeControl(const QDomElement& element, FamilyCheck isKnownFamily)
{
    ShapeControl control;
    readFields(element, ShapeFields, isKnownFamily, control);
    return control;
}

} // namespace orvanta
