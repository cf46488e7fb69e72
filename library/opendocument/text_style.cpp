#include "opendocument/text_style.h"

#include "opendocument/numbers.h"
#include "opendocument/opendocument_limits.h"

#include <cmath>

namespace opendocument {

namespace {

using namespace Qt::StringLiterals;

// The font size of a value, in points; nothing for an unknown unit.
std::optional<double> fontSizeOf(const QString& value, double inheritedSize)
{
    const QString unit = unitOf(value);
    // Pixels are read as points: old labels depend on it.
    if (unit == "pt"_L1 || unit == "px"_L1) {
        return toNumber(withoutTail(value, 2));
    }
    const auto percent = value.endsWith(u'%') ? toNumber(withoutTail(value, 1)) : std::nullopt;
    return percent ? std::optional(*percent / 100.0 * inheritedSize) : std::nullopt;
}

Qt::Alignment alignmentOf(const QString& value)
{
    if (value == "center"_L1) {
        return Qt::AlignHCenter;
    }
    return value == "end"_L1 ? Qt::AlignRight : Qt::AlignLeft;
}

} // namespace

void readTextProperties(const xmllimits::Element& properties, IsValidFamily isValidFamily,
                        OOTextStyle& style)
{
    const auto size = fontSizeOf(properties.attribute(u"fo:font-size"_s), style.fontSize);
    if (size && std::abs(*size) <= limits::FontSize) {
        style.fontSize = *size;
    }
    if (properties.hasAttribute(u"style:font-name"_s)) {
        const QString family = properties.attribute(u"style:font-name"_s);
        style.fontFamily = isValidFamily(family) ? family : style.fontFamily;
    }
    if (properties.hasAttribute(u"fo:font-style"_s)) {
        style.italic = properties.attribute(u"fo:font-style"_s) == "italic"_L1;
    }
    if (properties.hasAttribute(u"fo:font-weight"_s)) {
        // Numeric weights are not bold, however heavy: old labels depend on it.
        style.bold = properties.attribute(u"fo:font-weight"_s) == "bold"_L1;
    }
    if (properties.hasAttribute(u"style:text-underline-style"_s)) {
        style.underline = properties.attribute(u"style:text-underline-style"_s) != "none"_L1;
    }
}

void readParagraphProperties(const xmllimits::Element& properties, double unitFactor,
                             OOTextStyle& style)
{
    // The right margin applies only together with a left one: old labels depend on it.
    if (properties.hasAttribute(u"fo:margin-left"_s)) {
        readLength(properties, u"fo:margin-left"_s, unitFactor, style.margins.left);
        readLength(properties, u"fo:margin-right"_s, unitFactor, style.margins.right);
    }
    if (properties.hasAttribute(u"fo:text-align"_s)) {
        style.alignment = alignmentOf(properties.attribute(u"fo:text-align"_s));
    }
    // The color is read here and not from the text properties, where documents
    // usually have it: old labels depend on their texts keeping the host's color.
    if (properties.hasAttribute(u"fo:color"_s)) {
        style.textColor = properties.attribute(u"fo:color"_s);
    }
}

} // namespace opendocument
