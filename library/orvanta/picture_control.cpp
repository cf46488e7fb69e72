#include "orvanta/picture_control.h"

#include "orvanta/object_fields.h"
#include "orvanta/picture_content.h"

namespace orvanta {

namespace {

void takeImage(const QDomElement& child, FamilyCheck /*unused*/, PictureControl& control)
{
    control.bytes = readPictureContent(child);
}

constexpr Field<PictureControl> PictureFields[] = {
    {QLatin1String("printable_control"), takePrintableControl<PictureControl>},
    {QLatin1String("flip_horizontally"), takeFlipHorizontal<PictureControl>},
    {QLatin1String("flip_vertically"), takeFlipVertical<PictureControl>},
    {QLatin1String("rotation"), takeRotation<PictureControl>},
    {QLatin1String("image"), takeImage},
};

} // namespace

PictureControl readPictureControl(const QDomElement& element, FamilyCheck isKnownFamily)
{
    PictureControl control;
    readFields(element, PictureFields, isKnownFamily, control);
    return control;
}

} // namespace orvanta
