#include "opendocument/graphic_style.h"

#include "numeric/saturation.h"
#include "opendocument/code_table.h"

#include <QStringList>

namespace opendocument {

namespace {

using namespace Qt::StringLiterals;

struct WrapCodes
{
    int foreground;
    int background;
};

constexpr NamedCode<WrapCodes> Wraps[] = {
    {"left"_L1, {WrapLeft, WrapLeft}},
    {"right"_L1, {WrapRight, WrapRight}},
    {"parallel"_L1, {WrapParallel, WrapParallel}},
    {"run-through"_L1, {WrapRunThroughForeground, WrapRunThroughBackground}},
    {"dynamic"_L1, {WrapDynamicForeground, WrapDynamicBackground}},
};

constexpr NamedCode<int> BorderStyles[] = {
    {"solid"_L1, Qt::SolidLine},
    {"none"_L1, Qt::NoPen},
};

constexpr NamedCode<int> JoinStyles[] = {
    // A line without joins gets round ones: old labels depend on it.
    {"none"_L1, Qt::RoundJoin},
    {"bevel"_L1, Qt::BevelJoin},
    {"miter"_L1, Qt::MiterJoin},
};

constexpr NamedCode<int> CapStyles[] = {
    {"round"_L1, Qt::RoundCap},
    {"square"_L1, Qt::SquareCap},
    {"flat"_L1, Qt::FlatCap},
};

constexpr NamedCode<int> Fills[] = {
    {"none"_L1, Qt::NoBrush},
    {"solid"_L1, Qt::SolidPattern},
    {"bitmap"_L1, Qt::SolidPattern},
    {"gradient"_L1, Qt::LinearGradientPattern},
};

constexpr NamedCode<int> Markers[] = {
    {"Dimension_20_Lines"_L1, 8},
    {"Double_20_Arrow"_L1, 5},
    {"Small_20_Arrow"_L1, 3},
};
constexpr int OtherMarker = 1;

void readWrap(const xmllimits::Element& properties, OOGraphicStyle& style)
{
    if (const auto codes = codeOf(Wraps, properties.attribute(u"style:wrap"_s))) {
        const bool isBackground = properties.attribute(u"style:run-through"_s) == "background"_L1;
        style.wrap = isBackground ? codes->background : codes->foreground;
    }
}

void readBorderPart(const QString& part, const LengthUnit& unit, OOGraphicStyle& style)
{
    if (part.startsWith(u'#')) {
        style.penColor = part;
    } else if (part.endsWith(unit.suffix)) {
        // A width in a unit other than the page's is ignored: old labels depend on it.
        if (const auto width = toLength(part, unit.factor)) {
            style.penWidth = saturatedToInt(*width);
        }
    } else if (const auto code = codeOf(BorderStyles, part)) {
        style.penStyle = *code;
    }
}

void readBorder(const xmllimits::Element& properties, const LengthUnit& unit, OOGraphicStyle& style)
{
    if (properties.hasAttribute(u"fo:border"_s)) {
        const QStringList parts = properties.attribute(u"fo:border"_s).split(u' ');
        for (const QString& part : parts) {
            readBorderPart(part, unit, style);
        }
    }
}

void readSpacing(const xmllimits::Element& properties, double factor, Margins& margins)
{
    // The other three apply only together with the first: old labels depend on it.
    if (!properties.hasAttribute(u"draw:start-line-spacing-horizontal"_s)) {
        return;
    }
    readLength(properties, u"draw:start-line-spacing-horizontal"_s, factor, margins.left);
    readLength(properties, u"draw:start-line-spacing-vertical"_s, factor, margins.above);
    readLength(properties, u"draw:end-line-spacing-horizontal"_s, factor, margins.right);
    readLength(properties, u"draw:end-line-spacing-vertical"_s, factor, margins.below);
}

Qt::Alignment horizontalPosOf(const QString& value)
{
    if (value == "center"_L1) {
        return Qt::AlignHCenter;
    }
    // Everything else is at the right, including "left": old labels depend on it.
    return value == "from-left"_L1 ? Qt::AlignLeft : Qt::AlignRight;
}

Qt::Alignment verticalPosOf(const QString& value)
{
    if (value == "center"_L1) {
        return Qt::AlignVCenter;
    }
    return value == "from-top"_L1 ? Qt::AlignTop : Qt::AlignBottom;
}

void readPosition(const xmllimits::Element& properties, OOGraphicStyle& style)
{
    if (properties.hasAttribute(u"style:horizontal-pos"_s)) {
        style.horizontalPos = horizontalPosOf(properties.attribute(u"style:horizontal-pos"_s));
    }
    if (properties.hasAttribute(u"style:vertical-pos"_s)) {
        style.verticalPos = verticalPosOf(properties.attribute(u"style:vertical-pos"_s));
    }
    if (properties.hasAttribute(u"style:mirror"_s)) {
        const QString mirror = properties.attribute(u"style:mirror"_s);
        const bool both = mirror == "horizontal vertical"_L1;
        style.mirrorHorizontal = both || mirror == "horizontal"_L1;
        style.mirrorVertical = both || mirror == "vertical"_L1;
    }
    if (properties.hasAttribute(u"text:anchor-type"_s)) {
        style.anchorParagraph = properties.attribute(u"text:anchor-type"_s) == "paragraph"_L1;
    }
}

// The name of the dash style gives the kind of dashes; programs build it from words.
int dashedPenOf(const QString& dashName)
{
    const QString lower = dashName.toLower();
    if (!lower.contains("dash"_L1)) {
        return Qt::DotLine;
    }
    return lower.contains("dot"_L1) ? Qt::DashDotLine : Qt::DashLine;
}

void readStroke(const xmllimits::Element& properties, OOGraphicStyle& style)
{
    const QString stroke = properties.attribute(u"draw:stroke"_s);
    if (stroke == "dash"_L1) {
        style.penStyle = dashedPenOf(properties.attribute(u"draw:stroke-dash"_s));
    } else if (const auto code = codeOf(BorderStyles, stroke)) {
        style.penStyle = *code;
    }
}

void readStrokeWidth(const xmllimits::Element& properties, double factor, OOGraphicStyle& style)
{
    double width = 0;
    if (readLength(properties, u"svg:stroke-width"_s, factor, width)) {
        style.penWidth = saturatedToInt(width);
        if (style.penWidth == 0 && width > 0) {
            style.penWidth = 1;
        }
    }
}

void readStrokeDetails(const xmllimits::Element& properties, double factor, OOGraphicStyle& style)
{
    readStrokeWidth(properties, factor, style);
    const QString color = properties.attribute(u"svg:stroke-color"_s);
    if (!color.isEmpty()) {
        style.penColor = color;
    }
    const auto join = codeOf(JoinStyles, properties.attribute(u"draw:stroke-linejoin"_s));
    style.joinStyle = join.value_or(style.joinStyle);
    const auto cap = codeOf(CapStyles, properties.attribute(u"svg:stroke-linecap"_s));
    style.capStyle = cap.value_or(style.capStyle);
}

// The name of the hatch gives its kind; programs build it from words.
int hatchOf(const QString& hatchName)
{
    const QString lower = hatchName.toLower();
    if (lower.contains("crossed"_L1)) {
        return lower.contains("_45_"_L1) ? Qt::DiagCrossPattern : Qt::CrossPattern;
    }
    return lower.contains("_0_"_L1) ? Qt::HorPattern : Qt::Dense1Pattern;
}

void readFill(const xmllimits::Element& properties, OOGraphicStyle& style)
{
    const QString fill = properties.attribute(u"draw:fill"_s);
    if (fill == "hatch"_L1) {
        style.brushStyle = hatchOf(properties.attribute(u"draw:fill-hatch-name"_s));
    } else if (const auto code = codeOf(Fills, fill)) {
        style.brushStyle = *code;
    }
}

void readOpacity(const xmllimits::Element& properties, OOGraphicStyle& style)
{
    if (!properties.hasAttribute(u"draw:opacity"_s)) {
        return;
    }
    if (!properties.attribute(u"draw:opacity-name"_s).isEmpty()) {
        style.brushStyle = Qt::LinearGradientPattern;
    } else if (properties.attribute(u"draw:opacity"_s) == "0%"_L1) {
        style.brushStyle = Qt::NoBrush;
    } else if (style.brushStyle == BrushStyleNotGiven) {
        style.brushStyle = Qt::SolidPattern;
    }
}

void readFillColor(const xmllimits::Element& properties, OOGraphicStyle& style)
{
    const QString color = properties.attribute(u"draw:fill-color"_s);
    if (color.isEmpty()) {
        return;
    }
    style.fillColor = color;
    if (style.brushStyle == BrushStyleNotGiven) {
        style.brushStyle = Qt::SolidPattern;
    }
}

// An empty name removes an inherited marker: programs write "none" this way.
int markerOf(const QString& name, int shift)
{
    return name.isEmpty() ? MarkerNotGiven : codeOf(Markers, name).value_or(OtherMarker) << shift;
}

void readMarkers(const xmllimits::Element& properties, OOGraphicStyle& style)
{
    if (properties.hasAttribute(u"draw:marker-start"_s)) {
        style.markerStart = markerOf(properties.attribute(u"draw:marker-start"_s), 4);
    }
    if (properties.hasAttribute(u"draw:marker-end"_s)) {
        style.markerEnd = markerOf(properties.attribute(u"draw:marker-end"_s), 0);
    }
}

} // namespace

void readGraphicProperties(const xmllimits::Element& properties, const LengthUnit& unit,
                           OOGraphicStyle& style)
{
    readWrap(properties, style);
    readBorder(properties, unit, style);
    readSpacing(properties, unit.factor, style.margins);
    readPosition(properties, style);
    readStroke(properties, style);
    if (style.penStyle != Qt::NoPen) {
        readStrokeDetails(properties, unit.factor, style);
    }
    readFill(properties, style);
    readOpacity(properties, style);
    readFillColor(properties, style);
    readMarkers(properties, style);
}

} // namespace opendocument
