#include "migration/census/open_document_properties.h"

#include <algorithm>
#include <array>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

enum class Test : quint8 {
    IsNot,       ///< every value but these, which are separated by "|"
    Is,          ///< this value alone
    IsNonZero,   ///< a length other than 0
    IsOpacity,   ///< neither all nor nothing
    IsClip,      ///< a rectangle that cuts something off
    IsSeveral,   ///< a number above 1
    IsVertical,  ///< a direction of text
    IsLength,    ///< not a share of the usual one
    IsOtherSide, ///< a border that differs from that at the top
    IsLine,      ///< a border with dots, dashes or reliefs
};

// A property that a label does not show, and the values that ask for it.
struct Property
{
    QLatin1String group;
    QLatin1String name;
    Test test;
    QLatin1String value;
    LossKind kind;
    PropertyTarget target = PropertyTarget::Text;
};

constexpr auto FormatLoss = LossKind::TextFormat;
constexpr auto LetterLoss = LossKind::TextEffect;
constexpr auto EffectLoss = LossKind::EffectDropped;
constexpr auto FillLoss = LossKind::FillSimplified;

// clang-format off
constexpr std::array Properties{
    Property{"text"_L1, "fo:color"_L1, Test::IsNot, "#000000"_L1, LossKind::TextColor},
    Property{"text"_L1, "style:text-position"_L1, Test::IsNot, "0% 100%"_L1, FormatLoss},
    Property{"text"_L1, "style:text-line-through-style"_L1, Test::IsNot, "none"_L1, FormatLoss},
    Property{"text"_L1, "style:text-line-through-type"_L1, Test::IsNot, "none"_L1, FormatLoss},
    Property{"text"_L1, "style:text-outline"_L1, Test::Is, "true"_L1, LetterLoss},
    Property{"text"_L1, "fo:text-shadow"_L1, Test::IsNot, "none"_L1, LetterLoss},
    Property{"text"_L1, "fo:font-variant"_L1, Test::IsNot, "normal"_L1, FormatLoss},
    Property{"text"_L1, "fo:text-transform"_L1, Test::IsNot, "none"_L1, FormatLoss},
    Property{"text"_L1, "fo:letter-spacing"_L1, Test::IsNonZero, {}, FormatLoss},
    Property{"text"_L1, "style:text-scale"_L1, Test::IsNot, "100%"_L1, LetterLoss},
    Property{"text"_L1, "fo:background-color"_L1, Test::IsNot, "transparent"_L1, FormatLoss},
    Property{"text"_L1, "style:font-relief"_L1, Test::IsNot, "none"_L1, LetterLoss},
    Property{"text"_L1, "style:text-rotation-angle"_L1, Test::IsNonZero, {}, LetterLoss},
    Property{"text"_L1, "style:text-underline-style"_L1, Test::IsNot, "none|solid"_L1, LetterLoss},
    Property{"text"_L1, "style:text-underline-type"_L1, Test::IsNot, "none|single"_L1, LetterLoss},
    Property{"text"_L1, "style:text-underline-color"_L1, Test::IsNot, "font-color"_L1, LetterLoss},
    Property{"text"_L1, "style:text-underline-width"_L1, Test::IsNot, "auto|normal"_L1, LetterLoss},
    Property{"text"_L1, "style:text-overline-style"_L1, Test::IsNot, "none"_L1, LetterLoss},
    Property{"text"_L1, "style:text-line-through-type"_L1, Test::IsNot, "none|single"_L1, LetterLoss},
    Property{"text"_L1, "style:text-line-through-text"_L1, Test::IsNot, ""_L1, LetterLoss},
    Property{"text"_L1, "style:text-emphasize"_L1, Test::IsNot, "none"_L1, LetterLoss},
    Property{"text"_L1, "fo:border"_L1, Test::IsNot, "none"_L1, LetterLoss},
    Property{"text"_L1, "loext:border"_L1, Test::IsNot, "none"_L1, LetterLoss},
    Property{"paragraph"_L1, "fo:margin-top"_L1, Test::IsNonZero, {}, FormatLoss},
    Property{"paragraph"_L1, "fo:margin-bottom"_L1, Test::IsNonZero, {}, FormatLoss},
    Property{"paragraph"_L1, "fo:break-before"_L1, Test::IsNot, "auto"_L1, LossKind::PageBreak},
    Property{"paragraph"_L1, "fo:break-after"_L1, Test::IsNot, "auto"_L1, LossKind::PageBreak},
    Property{"paragraph"_L1, "fo:text-indent"_L1, Test::IsNonZero, {}, FormatLoss},
    Property{"paragraph"_L1, "fo:line-height"_L1, Test::IsNot, "100%"_L1, FormatLoss},
    Property{"paragraph"_L1, "fo:text-align"_L1, Test::Is, "justify"_L1, FormatLoss},
    Property{"paragraph"_L1, "fo:background-color"_L1, Test::IsNot, "transparent"_L1, FormatLoss},
    Property{"paragraph"_L1, "fo:border"_L1, Test::IsNot, "none"_L1, FormatLoss},
    Property{"paragraph"_L1, "fo:border-top"_L1, Test::IsNot, "none"_L1, FormatLoss},
    Property{"paragraph"_L1, "fo:border-bottom"_L1, Test::IsNot, "none"_L1, FormatLoss},
    Property{"paragraph"_L1, "fo:border-left"_L1, Test::IsNot, "none"_L1, FormatLoss},
    Property{"paragraph"_L1, "fo:border-right"_L1, Test::IsNot, "none"_L1, FormatLoss},
    Property{"paragraph"_L1, "fo:border"_L1, Test::IsLine, {}, LetterLoss},
    Property{"paragraph"_L1, "fo:border-top"_L1, Test::IsLine, {}, LetterLoss},
    Property{"paragraph"_L1, "fo:border-bottom"_L1, Test::IsLine, {}, LetterLoss},
    Property{"paragraph"_L1, "fo:border-left"_L1, Test::IsLine, {}, LetterLoss},
    Property{"paragraph"_L1, "fo:border-right"_L1, Test::IsLine, {}, LetterLoss},
    Property{"text"_L1, "fo:text-transform"_L1, Test::Is, "capitalize"_L1, LetterLoss},
    Property{"paragraph"_L1, "fo:line-height"_L1, Test::IsLength, {}, LetterLoss},
    Property{"paragraph"_L1, "style:line-height-at-least"_L1, Test::IsLength, {}, LetterLoss},
    Property{"paragraph"_L1, "style:line-spacing"_L1, Test::IsLength, {}, LetterLoss},
    Property{"paragraph"_L1, "style:shadow"_L1, Test::IsNot, "none"_L1, LetterLoss},
    Property{"paragraph"_L1, "style:writing-mode"_L1, Test::IsVertical, {}, LetterLoss},
    Property{"style:drop-cap"_L1, "style:lines"_L1, Test::IsSeveral, {}, LetterLoss},
    Property{"style:background-image"_L1, "xlink:href"_L1, Test::IsNot, ""_L1, LetterLoss},
    Property{"graphic"_L1, "draw:fill"_L1, Test::Is, "gradient"_L1, FillLoss, PropertyTarget::Shape},
    Property{"graphic"_L1, "draw:fill"_L1, Test::Is, "hatch"_L1, FillLoss, PropertyTarget::Shape},
    Property{"graphic"_L1, "draw:fill"_L1, Test::Is, "bitmap"_L1, LossKind::PictureFill, PropertyTarget::Shape},
    Property{"graphic"_L1, "draw:opacity"_L1, Test::IsOpacity, {}, LossKind::Transparency, PropertyTarget::Shape},
    Property{"graphic"_L1, "draw:opacity-name"_L1, Test::IsNot, ""_L1, LossKind::Transparency, PropertyTarget::Shape},
    Property{"graphic"_L1, "svg:stroke-opacity"_L1, Test::IsOpacity, {}, LossKind::Transparency, PropertyTarget::Shape},
    Property{"graphic"_L1, "draw:shadow"_L1, Test::Is, "visible"_L1, EffectLoss, PropertyTarget::Shape},
    Property{"graphic"_L1, "style:shadow"_L1, Test::IsNot, "none"_L1, EffectLoss, PropertyTarget::Shape},
    Property{"graphic"_L1, "fo:clip"_L1, Test::IsClip, {}, EffectLoss, PropertyTarget::Shape},
    Property{"graphic"_L1, "draw:image-opacity"_L1, Test::IsOpacity, {}, EffectLoss, PropertyTarget::Shape},
    Property{"graphic"_L1, "draw:color-mode"_L1, Test::IsNot, "standard"_L1, EffectLoss, PropertyTarget::Shape},
    Property{"graphic"_L1, "draw:color-inversion"_L1, Test::Is, "true"_L1, EffectLoss, PropertyTarget::Shape},
    Property{"graphic"_L1, "draw:luminance"_L1, Test::IsNonZero, {}, EffectLoss, PropertyTarget::Shape},
    Property{"graphic"_L1, "draw:contrast"_L1, Test::IsNonZero, {}, EffectLoss, PropertyTarget::Shape},
    Property{"style:background-image"_L1, "xlink:href"_L1, Test::IsNot, ""_L1, EffectLoss, PropertyTarget::Shape},
    Property{"style:columns"_L1, "fo:column-count"_L1, Test::IsSeveral, {}, LossKind::LayoutSimplified, PropertyTarget::Shape},
    Property{"graphic"_L1, "style:writing-mode"_L1, Test::IsVertical, {}, LetterLoss, PropertyTarget::Shape},
    Property{"graphic"_L1, "loext:writing-mode"_L1, Test::IsVertical, {}, LetterLoss, PropertyTarget::Shape},
    Property{"graphic"_L1, "fo:border-left"_L1, Test::IsOtherSide, {}, EffectLoss, PropertyTarget::Shape},
    Property{"graphic"_L1, "fo:border-right"_L1, Test::IsOtherSide, {}, EffectLoss, PropertyTarget::Shape},
    Property{"graphic"_L1, "fo:border-bottom"_L1, Test::IsOtherSide, {}, EffectLoss, PropertyTarget::Shape},
    Property{"graphic"_L1, "draw:gamma"_L1, Test::IsNot, "100%|1"_L1, EffectLoss, PropertyTarget::Shape},
    Property{"graphic"_L1, "draw:red"_L1, Test::IsNonZero, {}, EffectLoss, PropertyTarget::Shape},
    Property{"graphic"_L1, "draw:green"_L1, Test::IsNonZero, {}, EffectLoss, PropertyTarget::Shape},
    Property{"graphic"_L1, "draw:blue"_L1, Test::IsNonZero, {}, EffectLoss, PropertyTarget::Shape},
    Property{"graphic"_L1, "loext:glow-radius"_L1, Test::IsNonZero, {}, EffectLoss, PropertyTarget::Shape},
    Property{"graphic"_L1, "loext:softedge-radius"_L1, Test::IsNonZero, {}, EffectLoss, PropertyTarget::Shape},
    Property{"graphic"_L1, "draw:textarea-vertical-align"_L1, Test::Is, "middle"_L1, FormatLoss, PropertyTarget::ShapeText},
    Property{"graphic"_L1, "draw:textarea-vertical-align"_L1, Test::Is, "bottom"_L1, FormatLoss, PropertyTarget::ShapeText},
};
// clang-format on
static_assert(Properties.size() <= DroppedProperties().size());

bool hasEffect(const Property& property, const QString& value,
               const QXmlStreamAttributes& attributes)
{
    switch (property.test) {
    case Test::IsNot:
        return !QString(property.value).split(u'|').contains(value);
    case Test::Is:
        return value == property.value;
    case Test::IsOpacity:
        return value != "100%"_L1 && value != "0%"_L1 && value != "1"_L1;
    case Test::IsSeveral:
        return value.toInt() > 1;
    case Test::IsLength:
        return isNonZero(value) && !value.endsWith(u'%');
    case Test::IsVertical:
        return isVerticalMode(value);
    case Test::IsOtherSide:
        return value != attributes.value("fo:border-top"_L1);
    case Test::IsLine:
        return value.contains(u' ') && !value.contains("solid"_L1) &&
               !value.contains("double"_L1) && !value.contains("hidden"_L1);
    case Test::IsNonZero:
    case Test::IsClip:
        break;
    }
    return isNonZero(value);
}

} // namespace

void takeDropped(const QString& group, const QXmlStreamAttributes& attributes,
                 DroppedProperties& dropped)
{
    for (std::size_t row = 0; row < Properties.size(); ++row) {
        const Property& property = Properties[row];
        if (property.group == group && attributes.hasAttribute(property.name)) {
            dropped.set(
                row, hasEffect(property, attributes.value(property.name).toString(), attributes));
        }
    }
}

LossSet changesOf(const DroppedProperties& dropped, PropertyTarget target)
{
    LossSet changes;
    for (std::size_t row = 0; row < Properties.size(); ++row) {
        if (dropped.test(row) && Properties[row].target == target) {
            changes.add(Properties[row].kind);
        }
    }
    return changes;
}

bool isNonZero(const QString& value)
{
    return std::any_of(value.begin(), value.end(), [](QChar c) { return c >= u'1' && c <= u'9'; });
}

bool isVerticalMode(QStringView writingMode)
{
    return writingMode.startsWith("tb"_L1) || writingMode.startsWith("bt"_L1);
}

} // namespace migration
