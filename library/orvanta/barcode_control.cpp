#include "orvanta/barcode_control.h"

#include "orvanta/object_fields.h"

namespace orvanta {

namespace {

void takeTexts(const QDomElement& child, FamilyCheck /*unused*/, BarcodeControl& control)
{
    control.texts = readTexts(child);
}

void takeBarcodeType(const QDomElement& child, FamilyCheck /*unused*/, BarcodeControl& control)
{
    control.hostType = hostBarcodeCode(readInteger(child));
}

constexpr Field<BarcodeControl> BarcodeFields[] = {
    {QLatin1String("printable_control"), takePrintableControl<BarcodeControl>},
    {QLatin1String("ArrayOfString"), takeTexts},
    {QLatin1String("barcode_type"), takeBarcodeType},
};

} // namespace

BarcodeControl readBarcodeControl(const QDomElement& element, FamilyCheck isKnownFamily)
{
    BarcodeControl control;
    readFields(element, BarcodeFields, isKnownFamily, control);
    return control;
}

} // namespace orvanta
