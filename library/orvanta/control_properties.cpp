#include "orvanta/control_properties.h"

#include "host/facets/i_font_item.h"
#include "orvanta/page_geometry.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace orvanta {

namespace {

void takeFamily(const Element& child, FamilyCheck isKnownFamily, Font& font)
{
    const QString family = child.text();
    font.family = isKnownFamily(family) ? family : QString(FallbackFontFamily);
}

void takeSize(const Element& child, FamilyCheck /*unused*/, Font& font)
{
    font.size = readDouble(child);
}

void takeStyle(const Element& child, FamilyCheck /*unused*/, Font& font)
{
    font.style = readInteger(child);
}

constexpr Field<Font> FontFields[] = {
    {"family"_L1, takeFamily},
    {"size"_L1, takeSize},
    {"style"_L1, takeStyle},
};

void takeText(const Element& child, FamilyCheck /*unused*/, ControlProperties& properties)
{
    properties.text = child.text();
}

void takeTransparency(const Element& child, FamilyCheck /*unused*/, ControlProperties& properties)
{
    properties.transparent = readFlag(child);
}

void takeNegative(const Element& child, FamilyCheck /*unused*/, ControlProperties& properties)
{
    properties.negative = readFlag(child);
}

void takeForeColor(const Element& child, FamilyCheck /*unused*/, ControlProperties& properties)
{
    properties.foreColor = colorFromInteger(readInteger(child));
}

void takeBackColor(const Element& child, FamilyCheck /*unused*/, ControlProperties& properties)
{
    properties.backColor = colorFromInteger(readInteger(child));
}

void takeBounds(const Element& child, FamilyCheck /*unused*/, ControlProperties& properties)
{
    properties.bounds = readBounds(child);
}

void takeFont(const Element& child, FamilyCheck isKnownFamily, ControlProperties& properties)
{
    const Font font = readFont(child, isKnownFamily);
    properties.fontFamily = font.family;
    properties.fontSize = font.size;
    properties.fontStyle = font.style;
}

constexpr Field<ControlProperties> PrintableControlFields[] = {
    {"text"_L1, takeText},
    {"transparency"_L1, takeTransparency},
    {"negative"_L1, takeNegative},
    {"fore_color"_L1, takeForeColor},
    {"back_color"_L1, takeBackColor},
    {"bounds"_L1, takeBounds},
    {"font"_L1, takeFont},
};

} // namespace

Font readFont(const Element& font, FamilyCheck isKnownFamily)
{
    Font result;
    readFields(font, FontFields, isKnownFamily, result);
    return result;
}

ControlProperties readControlProperties(const Element& printableControl, FamilyCheck isKnownFamily)
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
    // After the exchange: a negative transparent object has its outline in the back color.
    if (properties.transparent) {
        result.fill = colors::Transparent;
    }
    return result;
}

} // namespace orvanta
