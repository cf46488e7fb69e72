// How the attributes of graphic properties change a graphic style.

#include "documents.h"

#include "opendocument/graphic_style.h"

#include <limits>

#include <gtest/gtest.h>

using namespace opendocument;
using namespace Qt::StringLiterals;

namespace {

OOGraphicStyle after(const QByteArray& attributes, OOGraphicStyle style = {})
{
    readGraphicProperties(elementOf("<p " + attributes + "/>"), LengthUnit{u"in"_s, 72.0}, style);
    return style;
}

QByteArray attribute(const QByteArray& name, const QByteArray& value)
{
    return name + "=\"" + value + "\" ";
}

} // namespace

TEST(GraphicStyle, StartsWithTheDefaults)
{
    const OOGraphicStyle style;
    EXPECT_EQ(int(style.horizontalPos), 0x1F);
    EXPECT_EQ(style.margins, Margins());
    EXPECT_EQ(int(style.verticalPos), 0x1E0);
    EXPECT_TRUE(style.anchorParagraph);
    EXPECT_FALSE(style.mirrorHorizontal);
    EXPECT_FALSE(style.mirrorVertical);
    EXPECT_EQ(style.rotation, 500.0);
    EXPECT_EQ(style.wrap, 0);
    EXPECT_EQ(style.penWidth, 0);
    EXPECT_EQ(style.penStyle, 6);
    EXPECT_EQ(style.capStyle, 0x30);
    EXPECT_EQ(style.joinStyle, 0x1C0);
    EXPECT_EQ(style.brushStyle, -1);
    EXPECT_EQ(style.markerStart, -1);
    EXPECT_EQ(style.markerEnd, -1);
    EXPECT_TRUE(style.penColor.isEmpty() && style.fillColor.isEmpty());
}

TEST(GraphicStyle, IsLeftAloneByAbsentProperties)
{
    OOGraphicStyle style;
    style.wrap = 3;
    style.penStyle = 4;
    style.brushStyle = 9;
    style.markerEnd = 5;
    style.mirrorVertical = true;
    style.anchorParagraph = false;
    readGraphicProperties(xmllimits::Element(), LengthUnit(), style);
    style = after("", style);
    EXPECT_EQ(style.wrap, 3);
    EXPECT_EQ(style.penStyle, 4);
    EXPECT_EQ(style.brushStyle, 9);
    EXPECT_EQ(style.markerEnd, 5);
    EXPECT_TRUE(style.mirrorVertical);
    EXPECT_FALSE(style.anchorParagraph);
}

TEST(GraphicStyle, WrapHasACodeForEachWayAndLayer)
{
    const struct
    {
        QByteArray wrap;
        int foreground;
        int background;
    } rows[] = {{"left", 1, 1},    {"right", 2, 2}, {"parallel", 3, 3}, {"run-through", 4, 5},
                {"dynamic", 6, 7}, {"none", 0, 0},  {"biggest", 0, 0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.wrap.toStdString());
        const QByteArray wrap = attribute("style:wrap", row.wrap);
        EXPECT_EQ(after(wrap).wrap, row.foreground);
        EXPECT_EQ(after(wrap + attribute("style:run-through", "foreground")).wrap, row.foreground);
        EXPECT_EQ(after(wrap + attribute("style:run-through", "background")).wrap, row.background);
    }
    OOGraphicStyle inherited;
    inherited.wrap = 2;
    EXPECT_EQ(after(attribute("style:wrap", "none"), inherited).wrap, 2)
        << "\"none\" does not take an inherited wrap away";
}

TEST(GraphicStyle, BorderGivesPenColorWidthAndStyle)
{
    const OOGraphicStyle style = after(attribute("fo:border", "0.05in solid #00FF00"));
    EXPECT_EQ(style.penWidth, 3) << "3.6 points, truncated";
    EXPECT_EQ(style.penStyle, 1);
    EXPECT_EQ(style.penColor, u"#00FF00"_s);
    EXPECT_EQ(after(attribute("fo:border", "none")).penStyle, 0);
}

TEST(GraphicStyle, BorderWidthInAnotherUnitIsPassedOver)
{
    OOGraphicStyle inherited;
    inherited.penWidth = 7;
    const OOGraphicStyle style = after(attribute("fo:border", "0.5pt solid #000000"), inherited);
    EXPECT_EQ(style.penWidth, 7);
    EXPECT_EQ(style.penStyle, 1);
    EXPECT_EQ(style.penColor, u"#000000"_s);
}

TEST(GraphicStyle, BorderSurvivesAnyContent)
{
    const OOGraphicStyle style =
        after(attribute("fo:border", "  dashed xin in 1e308in nanin solid  #1 "));
    EXPECT_EQ(style.penWidth, 0);
    EXPECT_EQ(style.penStyle, 1);
    EXPECT_EQ(style.penColor, u"#1"_s);
    EXPECT_EQ(after(attribute("fo:border", "1e300in")).penWidth, std::numeric_limits<int>::max());
}

TEST(GraphicStyle, SpacingNeedsTheFirstOfItsAttributes)
{
    const QByteArray others = attribute("draw:start-line-spacing-vertical", "2in") +
                              attribute("draw:end-line-spacing-horizontal", "3in") +
                              attribute("draw:end-line-spacing-vertical", "4in");
    EXPECT_EQ(after(others).margins, Margins());
    EXPECT_EQ(after(others + attribute("draw:start-line-spacing-horizontal", "1in")).margins,
              (Margins{144, 288, 72, 216}));
    EXPECT_EQ(after(others + attribute("draw:start-line-spacing-horizontal", "x")).margins,
              (Margins{144, 288, 0, 216}));
}

TEST(GraphicStyle, HorizontalPositionPutsLeftAtTheRight)
{
    const struct
    {
        QByteArray value;
        int code;
    } rows[] = {{"center", 4}, {"from-left", 1}, {"left", 2}, {"right", 2}, {"inside", 2}, {"", 2}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.value.toStdString());
        EXPECT_EQ(int(after(attribute("style:horizontal-pos", row.value)).horizontalPos), row.code);
    }
}

TEST(GraphicStyle, VerticalPositionIsCenterTopOrBottom)
{
    const struct
    {
        QByteArray value;
        int code;
    } rows[] = {{"center", 0x80}, {"from-top", 0x20}, {"top", 0x40}, {"bottom", 0x40}, {"", 0x40}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.value.toStdString());
        EXPECT_EQ(int(after(attribute("style:vertical-pos", row.value)).verticalPos), row.code);
    }
}

TEST(GraphicStyle, MirrorSetsOneBothOrNone)
{
    const struct
    {
        QByteArray value;
        bool horizontal;
        bool vertical;
    } rows[] = {{"vertical", false, true},
                {"horizontal", true, false},
                {"horizontal vertical", true, true},
                {"vertical horizontal", false, false},
                {"none", false, false},
                {"horizontal-on-odd", false, false}};
    OOGraphicStyle inherited;
    inherited.mirrorHorizontal = inherited.mirrorVertical = true;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.value.toStdString());
        const OOGraphicStyle style = after(attribute("style:mirror", row.value), inherited);
        EXPECT_EQ(style.mirrorHorizontal, row.horizontal);
        EXPECT_EQ(style.mirrorVertical, row.vertical);
    }
}

TEST(GraphicStyle, IsAnchoredToTheParagraphOrNot)
{
    OOGraphicStyle inherited;
    inherited.anchorParagraph = false;
    EXPECT_TRUE(after(attribute("text:anchor-type", "paragraph"), inherited).anchorParagraph);
    EXPECT_FALSE(after(attribute("text:anchor-type", "page")).anchorParagraph);
    EXPECT_FALSE(after(attribute("text:anchor-type", "char")).anchorParagraph);
}

TEST(GraphicStyle, StrokeGivesThePenStyle)
{
    EXPECT_EQ(after(attribute("draw:stroke", "none")).penStyle, 0);
    EXPECT_EQ(after(attribute("draw:stroke", "solid")).penStyle, 1);
    EXPECT_EQ(after(attribute("draw:stroke", "wavy")).penStyle, 6);
    EXPECT_EQ(after(attribute("draw:stroke", "")).penStyle, 6);
}

TEST(GraphicStyle, DashesAreReportedByTheNameOfTheirStyle)
{
    const struct
    {
        QByteArray name;
        int code;
    } rows[] = {{"Fine_20_Dashed", 2}, {"2_20_Dots_20_1_20_Dash", 4},
                {"DASH-DOT", 4},       {"Ultrafine_20_Dotted", 3},
                {"Line", 3},           {"", 3}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name.toStdString());
        EXPECT_EQ(after(attribute("draw:stroke", "dash") + attribute("draw:stroke-dash", row.name))
                      .penStyle,
                  row.code);
    }
    EXPECT_EQ(after(attribute("draw:stroke", "dash")).penStyle, 3);
    EXPECT_EQ(after(attribute("draw:stroke-dash", "Fine_20_Dashed")).penStyle, 6);
}

TEST(GraphicStyle, StrokeWidthIsTruncatedButNeverToNothing)
{
    const struct
    {
        QByteArray value;
        int width;
    } rows[] = {{"0.01in", 1}, {"0in", 0},      {"0.05in", 3}, {"1in", 72},
                {"xin", 0},    {"-0.001in", 0}, {"-1in", -72}, {"1e300in", 2147483647}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.value.toStdString());
        EXPECT_EQ(after(attribute("svg:stroke-width", row.value)).penWidth, row.width);
    }
}

TEST(GraphicStyle, StrokeColorIsTakenUnlessEmpty)
{
    OOGraphicStyle inherited;
    inherited.penColor = u"#111111"_s;
    EXPECT_EQ(after(attribute("svg:stroke-color", "#222222"), inherited).penColor, u"#222222"_s);
    EXPECT_EQ(after(attribute("svg:stroke-color", ""), inherited).penColor, u"#111111"_s);
}

TEST(GraphicStyle, JoinsAndCapsHaveTheirCodes)
{
    const struct
    {
        QByteArray value;
        int code;
    } joins[] = {{"none", 0x80}, {"bevel", 0x40}, {"miter", 0}, {"round", 0x1C0}, {"", 0x1C0}},
      caps[] = {{"round", 0x20}, {"square", 0x10}, {"flat", 0}, {"butt", 0x30}, {"", 0x30}};
    for (const auto& row : joins) {
        SCOPED_TRACE(row.value.toStdString());
        EXPECT_EQ(after(attribute("draw:stroke-linejoin", row.value)).joinStyle, row.code);
    }
    for (const auto& row : caps) {
        SCOPED_TRACE(row.value.toStdString());
        EXPECT_EQ(after(attribute("svg:stroke-linecap", row.value)).capStyle, row.code);
    }
}

TEST(GraphicStyle, NoStrokeHasNoDetails)
{
    const QByteArray details =
        attribute("svg:stroke-width", "1in") + attribute("svg:stroke-color", "#222222") +
        attribute("draw:stroke-linejoin", "bevel") + attribute("svg:stroke-linecap", "round");
    for (const QByteArray& none :
         {attribute("draw:stroke", "none"), attribute("fo:border", "none")}) {
        const OOGraphicStyle style = after(details + none);
        EXPECT_EQ(style.penWidth, 0);
        EXPECT_EQ(style.penColor, QString());
        EXPECT_EQ(style.joinStyle, 0x1C0);
        EXPECT_EQ(style.capStyle, 0x30);
    }
    EXPECT_EQ(after(details + attribute("fo:border", "none") + attribute("draw:stroke", "solid"))
                  .penWidth,
              72)
        << "the stroke is read after the border";
    EXPECT_EQ(after(details).penWidth, 72) << "a pen that is not given takes them";
}

TEST(GraphicStyle, FillGivesTheBrushStyle)
{
    const struct
    {
        QByteArray value;
        int code;
    } rows[] = {{"none", 0},      {"solid", 1},  {"bitmap", 1},
                {"gradient", 15}, {"other", -1}, {"", -1}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.value.toStdString());
        EXPECT_EQ(after(attribute("draw:fill", row.value)).brushStyle, row.code);
    }
}

TEST(GraphicStyle, HatchesAreReportedByName)
{
    const struct
    {
        QByteArray name;
        int code;
    } rows[] = {{"Red_20_Crossed_20_45_20_Degrees", 14},
                {"Blue_20_CROSSED_20_0_20_Degrees", 11},
                {"Crossed", 11},
                {"Black_20_0_20_Degrees", 9},
                {"Black_20_90_20_Degrees", 2},
                {"Black_45_", 2},
                {"", 2}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name.toStdString());
        EXPECT_EQ(
            after(attribute("draw:fill", "hatch") + attribute("draw:fill-hatch-name", row.name))
                .brushStyle,
            row.code);
    }
}

TEST(GraphicStyle, OpacityChangesTheBrush)
{
    const QByteArray solid = attribute("draw:fill", "solid");
    const QByteArray hatch = attribute("draw:fill", "hatch");
    EXPECT_EQ(after(attribute("draw:opacity", "50%")).brushStyle, 1);
    EXPECT_EQ(after(hatch + attribute("draw:opacity", "50%")).brushStyle, 2);
    EXPECT_EQ(after(solid + attribute("draw:opacity", "0%")).brushStyle, 0);
    EXPECT_EQ(after(solid + attribute("draw:opacity", "0%") + attribute("draw:opacity-name", "g"))
                  .brushStyle,
              15);
    EXPECT_EQ(after(attribute("draw:opacity-name", "g")).brushStyle, -1)
        << "the name counts only beside the opacity";
    EXPECT_EQ(after(solid + attribute("draw:opacity", "") + attribute("draw:opacity-name", ""))
                  .brushStyle,
              1);
}

TEST(GraphicStyle, FillColorMakesAnOpenBrushSolid)
{
    const OOGraphicStyle style = after(attribute("draw:fill-color", "#334455"));
    EXPECT_EQ(style.fillColor, u"#334455"_s);
    EXPECT_EQ(style.brushStyle, 1);
    EXPECT_EQ(
        after(attribute("draw:fill-color", "#334455") + attribute("draw:fill", "none")).brushStyle,
        0);
    const OOGraphicStyle empty = after(attribute("draw:fill-color", ""));
    EXPECT_EQ(empty.fillColor, QString());
    EXPECT_EQ(empty.brushStyle, -1);
}

TEST(GraphicStyle, MarkersHaveTheirCodesAtEachEnd)
{
    const struct
    {
        QByteArray name;
        int start;
        int end;
    } rows[] = {{"Dimension_20_Lines", 0x80, 8},
                {"Double_20_Arrow", 0x50, 5},
                {"Small_20_Arrow", 0x30, 3},
                {"Arrow", 0x10, 1},
                {"Circle", 0x10, 1},
                {"", -1, -1}};
    OOGraphicStyle inherited;
    inherited.markerStart = inherited.markerEnd = 5;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name.toStdString());
        EXPECT_EQ(after(attribute("draw:marker-start", row.name), inherited).markerStart,
                  row.start);
        EXPECT_EQ(after(attribute("draw:marker-end", row.name), inherited).markerEnd, row.end);
    }
    EXPECT_EQ(after(attribute("draw:marker-end", "Arrow")).markerStart, -1);
}
