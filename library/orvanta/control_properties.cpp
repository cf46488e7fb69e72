#include "orvanta/control_properties.h"

#include "orvanta/bounds.h"
#include "orvanta/element_values.h"
#include "orvanta/font.h"

#include <utility>

namespace orvanta {

namespace {

void takeText(const QDomElement& child, FamilyCheck /*unused*/, ControlProperties& properties)
{
    properties.text = child.text();
}

void takeTransparency(const QDomElement& child, FamilyCheck /*unused*/,
                      ControlProperties& properties)
{
    properties.transparent = readFlag(child);
}

void takeNegative(const QDomElement& child, FamilyCheck /*unused*/, ControlProperties& properties)
{
    properties.negative = readFlag(child);
}

void takeForeColor(const QDomElement& child, FamilyCheck /*unused*/, ControlProperties& properties)
{
    properties.foreColor = colorFromInteger(readInteger(child));
}

void takeBackColor(const QDomElement& child, FamilyCheck /*unused*/, ControlProperties& properties)
{
    properties.backColor = colorFromInteger(readInteger(child));
}

void takeBounds(const QDomElement& child, FamilyCheck /*unused*/, ControlProperties& properties)
{
    properties.bounds = readBounds(child);
}

void takeFont(const QDomElement& child, FamilyCheck isKnownFamily, ControlProperties& properties)
{
    const Font font = readFont(child, isKnownFamily);
    properties.fontFamily = font.family;
    properties.fontSize = font.size;
    properties.fontStyle = font.style;
}

constexpr Field<ControlProperties> PrintableControlFields[] = {
    {QLatin1String("text"), takeText},
    {QLatin1String("transparency"), takeTransparency},
    {QLatin1String("negative"), takeNegative},
    {QLatin1String("fore_color"), takeForeColor},
    {QLatin1String("back_color"), takeBackColor},
    {QLatin1String("bounds"), takeBounds},
    {QLatin1String("font"), takeFont},
};

} // namespace

bool ControlProperties::isBold() const
{
    return (fontStyle & BoldBit) != 0;
}

bool ControlProperties::isItalic() const
{
    return (fontStyle & ItalicBit) != 0;
}

bool ControlProperties::isUnderlined() const
{
    return (fontStyle & UnderlineBit) != 0;
}

ControlProperties readControlProperties(const QDomElement& printableControl,
                                        FamilyCheck isKnownFamily)
{
    ControlProperties properties;
    readFields(printableControl, PrintableControlFields, isKnownFamily, properties);
    return properties;
}

QColor colorFromInteger(qint32 value)
{
    const auto bits = static_cast<quint32>(value);
    return {static_cast<int>((bits >> 16) & 0xFF), static_cast<int>((bits >> 8) & 0xFF),
            static_cast<int>(bits & 0xFF)};
}

DrawingColors drawingColors(const ControlProperties& properties)
{
    DrawingColors result{properties.foreColor, properties.backColor};
    if (properties.negative) {
        std::swap(result.pen, result.fill);
    }
    // Only after the exchange: a negative object that is transparent keeps its outline
    // in the back colour.
    if (properties.transparent) {
        result.fill = colors::Transparent;
    }
    return result;
}

} // namespace orvanta
