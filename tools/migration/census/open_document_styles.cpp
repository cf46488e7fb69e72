#include "migration/census/open_document_styles.h"

#include <algorithm>
#include <array>
#include <utility>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

enum class Test : quint8 {
    IsNot,     ///< every value but this one
    Is,        ///< this value alone
    IsNonZero, ///< a length other than 0
    IsOpacity, ///< neither all nor nothing
    IsClip,    ///< a rectangle that cuts something off
};

enum class Target : quint8 { Text, Shape, ShapeText };

// A property that a label does not show, and the values that ask for it.
struct Property
{
    QLatin1String group; ///< "text", "paragraph" or "graphic"
    QLatin1String name;
    Test test;
    QLatin1String value;
    LossKind kind;
    Target target = Target::Text;
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
    Property{"paragraph"_L1, "fo:margin-top"_L1, Test::IsNonZero, {}, FormatLoss},
    Property{"paragraph"_L1, "fo:margin-bottom"_L1, Test::IsNonZero, {}, FormatLoss},
    Property{"paragraph"_L1, "fo:break-before"_L1, Test::IsNot, "auto"_L1, LossKind::PageBreak},
    Property{"paragraph"_L1, "fo:break-after"_L1, Test::IsNot, "auto"_L1, LossKind::PageBreak},
    Property{"paragraph"_L1, "fo:text-indent"_L1, Test::IsNonZero, {}, FormatLoss},
    Property{"paragraph"_L1, "fo:line-height"_L1, Test::IsNot, "100%"_L1, FormatLoss},
    Property{"paragraph"_L1, "fo:text-align"_L1, Test::Is, "justify"_L1, FormatLoss},
    Property{"paragraph"_L1, "fo:background-color"_L1, Test::IsNot, "transparent"_L1, FormatLoss},
    Property{"paragraph"_L1, "fo:border"_L1, Test::IsNot, "none"_L1, LetterLoss},
    Property{"paragraph"_L1, "fo:border-top"_L1, Test::IsNot, "none"_L1, LetterLoss},
    Property{"paragraph"_L1, "fo:border-bottom"_L1, Test::IsNot, "none"_L1, LetterLoss},
    Property{"paragraph"_L1, "fo:border-left"_L1, Test::IsNot, "none"_L1, LetterLoss},
    Property{"paragraph"_L1, "fo:border-right"_L1, Test::IsNot, "none"_L1, LetterLoss},
    Property{"graphic"_L1, "draw:fill"_L1, Test::Is, "gradient"_L1, FillLoss, Target::Shape},
    Property{"graphic"_L1, "draw:fill"_L1, Test::Is, "hatch"_L1, FillLoss, Target::Shape},
    Property{"graphic"_L1, "draw:fill"_L1, Test::Is, "bitmap"_L1, LossKind::PictureFill, Target::Shape},
    Property{"graphic"_L1, "draw:opacity"_L1, Test::IsOpacity, {}, LossKind::Transparency, Target::Shape},
    Property{"graphic"_L1, "draw:opacity-name"_L1, Test::IsNot, ""_L1, LossKind::Transparency, Target::Shape},
    Property{"graphic"_L1, "svg:stroke-opacity"_L1, Test::IsOpacity, {}, LossKind::Transparency, Target::Shape},
    Property{"graphic"_L1, "draw:shadow"_L1, Test::Is, "visible"_L1, EffectLoss, Target::Shape},
    Property{"graphic"_L1, "style:shadow"_L1, Test::IsNot, "none"_L1, EffectLoss, Target::Shape},
    Property{"graphic"_L1, "fo:clip"_L1, Test::IsClip, {}, EffectLoss, Target::Shape},
    Property{"graphic"_L1, "draw:image-opacity"_L1, Test::IsOpacity, {}, EffectLoss, Target::Shape},
    Property{"graphic"_L1, "draw:color-mode"_L1, Test::IsNot, "standard"_L1, EffectLoss, Target::Shape},
    Property{"graphic"_L1, "draw:color-inversion"_L1, Test::Is, "true"_L1, EffectLoss, Target::Shape},
    Property{"graphic"_L1, "draw:luminance"_L1, Test::IsNonZero, {}, EffectLoss, Target::Shape},
    Property{"graphic"_L1, "draw:contrast"_L1, Test::IsNonZero, {}, EffectLoss, Target::Shape},
    Property{"graphic"_L1, "draw:textarea-vertical-align"_L1, Test::Is, "middle"_L1, FormatLoss, Target::ShapeText},
    Property{"graphic"_L1, "draw:textarea-vertical-align"_L1, Test::Is, "bottom"_L1, FormatLoss, Target::ShapeText},
};
// clang-format on
static_assert(Properties.size() <= 64);

bool isNonZero(const QString& value)
{
    return std::any_of(value.begin(), value.end(), [](QChar c) { return c >= u'1' && c <= u'9'; });
}

bool hasEffect(const Property& property, const QString& value)
{
    switch (property.test) {
    case Test::IsNot:
        return value != property.value;
    case Test::Is:
        return value == property.value;
    case Test::IsOpacity:
        return value != "100%"_L1 && value != "0%"_L1 && value != "1"_L1;
    case Test::IsNonZero:
    case Test::IsClip:
        break;
    }
    return isNonZero(value);
}

LossSet changesOf(quint64 dropped, Target target)
{
    LossSet changes;
    for (std::size_t row = 0; row < Properties.size(); ++row) {
        if ((dropped >> row & 1) != 0 && Properties[row].target == target) {
            changes.add(Properties[row].kind);
        }
    }
    return changes;
}

// Of a list in CSS.
QString firstFamily(const QString& families)
{
    return families.section(u',', 0, 0).remove(u'\'').remove(u'"').trimmed();
}

QString valueOf(const QXmlStreamAttributes& attributes, QLatin1String name)
{
    return attributes.value(name).toString();
}

bool isTextFamily(const QString& family)
{
    return family == "paragraph"_L1 || family == "text"_L1;
}

} // namespace

void StyleBook::take(const QString& name, const QXmlStreamAttributes& attributes)
{
    if (name == "style:page-layout"_L1) {
        m_sectionName.clear();
    } else if (name == "style:font-face"_L1) {
        m_faces.insert(valueOf(attributes, "style:name"_L1),
                       firstFamily(valueOf(attributes, "svg:font-family"_L1)));
    } else if (name == "style:style"_L1 || name == "style:default-style"_L1) {
        startStyle(attributes, name == "style:default-style"_L1);
    } else if (name.startsWith("text:list-level-style"_L1)) {
        m_isInList = true;
    } else if (name == "text:outline-level-style"_L1) {
        m_isInList = true;
        if (!attributes.value("style:num-format"_L1).isEmpty()) {
            m_numberedLevels.insert(attributes.value("text:level"_L1).toInt());
        }
    } else if (name == "text:linenumbering-configuration"_L1) {
        m_numbersLines = attributes.value("text:number-lines"_L1) != "false"_L1;
    } else if (name == "style:text-properties"_L1) {
        // Those of a bullet are not those of the text.
        if (!std::exchange(m_isInList, false)) {
            takeProperties(u"text"_s, attributes);
        }
    } else if (name == "style:paragraph-properties"_L1) {
        m_isInList = false;
        takeProperties(u"paragraph"_s, attributes);
    } else if (name == "style:graphic-properties"_L1) {
        takeProperties(u"graphic"_s, attributes);
    } else if (name == "style:tab-stops"_L1) {
        current().hasTabStops = false; // instead of those of the parent
    } else if (name == "style:tab-stop"_L1) {
        current().hasTabStops = true;
    } else if (name == "style:table-cell-properties"_L1 && !m_cellName.isEmpty()) {
        takeCell(attributes);
    } else if (!m_sectionName.isEmpty()) {
        takeSection(name, attributes);
    }
}

void StyleBook::takeSection(const QString& name, const QXmlStreamAttributes& attributes)
{
    bool isShown = false;
    if (name == "style:section-properties"_L1) {
        const QString background = valueOf(attributes, "fo:background-color"_L1);
        isShown = (!background.isEmpty() && background != "transparent"_L1) ||
                  isNonZero(valueOf(attributes, "fo:margin-left"_L1)) ||
                  isNonZero(valueOf(attributes, "fo:margin-right"_L1));
    } else if (name == "style:columns"_L1) {
        isShown = attributes.value("fo:column-count"_L1).toInt() > 1;
    }
    if (isShown) {
        m_sections.insert(m_sectionName);
    }
}

void StyleBook::startStyle(const QXmlStreamAttributes& attributes, bool isDefault)
{
    m_isInList = false;
    const QString family = valueOf(attributes, "style:family"_L1);
    const QString name = valueOf(attributes, "style:name"_L1);
    m_cellName = family == "table-cell"_L1 ? name : QString();
    m_sectionName = family == "section"_L1 ? name : QString();
    const QString parent = valueOf(attributes, "style:parent-style-name"_L1);
    takeMasterPage(family, name, parent, attributes);
    if (isTextFamily(family)) {
        // A parent must precede its styles.
        Style style = textStyle(parent);
        if (!m_texts.contains(parent)) {
            style.font.clear();
            style.color.clear();
        }
        style.hasNoNumbers = attributes.hasAttribute("style:list-style-name"_L1)
                                 ? attributes.value("style:list-style-name"_L1).isEmpty()
                                 : style.hasNoNumbers;
        m_current = isDefault ? (family == "paragraph"_L1 ? &m_defaultText : &m_ignored)
                              : &*m_texts.insert(name, style);
    } else if (family == "graphic"_L1) {
        m_current = isDefault ? &m_defaultShape : &*m_shapes.insert(name, shapeStyle(parent));
    } else {
        m_current = &m_ignored;
    }
}

const std::array<StyleBook::Value, 9> StyleBook::Values{{
    {"text"_L1, "fo:color"_L1, &Style::color},
    {"graphic"_L1, "draw:fill"_L1, &Style::fill},
    {"graphic"_L1, "draw:fill-color"_L1, &Style::fillColor},
    {"graphic"_L1, "draw:opacity"_L1, &Style::opacity},
    {"graphic"_L1, "fo:background-color"_L1, &Style::background},
    {"graphic"_L1, "draw:stroke"_L1, &Style::stroke},
    {"graphic"_L1, "svg:stroke-width"_L1, &Style::strokeWidth},
    {"graphic"_L1, "style:wrap"_L1, &Style::wrap},
    {"graphic"_L1, "draw:auto-grow-height"_L1, &Style::growsHeight},
}};

StyleBook::Style& StyleBook::current()
{
    return m_current != nullptr ? *m_current : m_ignored;
}

void StyleBook::takeProperties(const QString& group, const QXmlStreamAttributes& attributes)
{
    Style& style = current();
    for (std::size_t row = 0; row < Properties.size(); ++row) {
        const Property& property = Properties[row];
        if (property.group != group || !attributes.hasAttribute(property.name)) {
            continue;
        }
        const quint64 bit = quint64(1) << row;
        const bool dropped = hasEffect(property, valueOf(attributes, property.name));
        style.dropped = dropped ? style.dropped | bit : style.dropped & ~bit;
    }
    for (const auto& [valueGroup, attribute, value] : Values) {
        if (valueGroup == group && attributes.hasAttribute(attribute)) {
            style.*value = valueOf(attributes, attribute);
        }
    }
    if (group != "text"_L1) {
        return;
    }
    style.isSized = style.isSized || attributes.hasAttribute("fo:font-size"_L1);
    if (attributes.hasAttribute("fo:font-family"_L1)) {
        style.font = firstFamily(valueOf(attributes, "fo:font-family"_L1));
    }
    if (attributes.hasAttribute("style:font-name"_L1)) {
        const QString face = valueOf(attributes, "style:font-name"_L1);
        style.font = m_faces.value(face, face);
    }
    if (valueOf(attributes, "style:use-window-font-color"_L1) == "true"_L1) {
        style.color = AutomaticColor;
    }
}

const StyleBook::Style& StyleBook::textStyle(const QString& name) const
{
    const auto found = m_texts.constFind(name);
    return found != m_texts.constEnd() ? *found : m_defaultText;
}

const StyleBook::Style& StyleBook::shapeStyle(const QString& name) const
{
    const auto found = m_shapes.constFind(name);
    return found != m_shapes.constEnd() ? *found : m_defaultShape;
}

LossSet StyleBook::textChanges(const QString& style) const
{
    return changesOf(textStyle(style).dropped, Target::Text);
}

LossSet StyleBook::shapeChanges(const QString& style) const
{
    return changesOf(shapeStyle(style).dropped, Target::Shape);
}

LossSet StyleBook::shapeTextChanges(const QString& style) const
{
    LossSet changes = changesOf(shapeStyle(style).dropped, Target::ShapeText);
    changes.add(changesOf(shapeStyle(style).dropped, Target::Text));
    return changes;
}

} // namespace migration
