#include "orvanta/text_control.h"

#include "orvanta/object_fields.h"

namespace orvanta {

namespace {

constexpr int LeftCode = 0;
constexpr int RightCode = 2;

void takeItems(const QDomElement& child, FamilyCheck /*unused*/, TextControl& control)
{
    control.items = readTexts(child);
}

void takeScaleable(const QDomElement& child, FamilyCheck /*unused*/, TextControl& control)
{
    control.scaleable = readFlag(child);
}

void takeAlignment(const QDomElement& child, FamilyCheck /*unused*/, TextControl& control)
{
    control.alignment = alignmentFromCode(readInteger(child));
}

constexpr Field<TextControl> TextFields[] = {
    {QLatin1String("printable_control"), takePrintableControl<TextControl>},
    {QLatin1String("items"), takeItems},
    {QLatin1String("scaleable"), takeScaleable},
    {QLatin1String("flip_horizontally"), takeFlipHorizontal<TextControl>},
    {QLatin1String("flip_vertically"), takeFlipVertical<TextControl>},
    {QLatin1String("rotation"), takeRotation<TextControl>},
    {QLatin1String("alignment"), takeAlignment},
};

} // namespace

TextControl readTextControl(const QDomElement& element, FamilyCheck isKnownFamily)
{
    TextControl control;
    readFields(element, TextFields, isKnownFamily, control);
    return control;
}

Qt::Alignment alignmentFromCode(int code)
{
    switch (code) {
    case LeftCode:
        return Qt::AlignLeft;
    case RightCode:
        return Qt::AlignRight;
    default:
        return Qt::AlignHCenter | Qt::AlignVCenter;
    }
}

} // namespace orvanta
