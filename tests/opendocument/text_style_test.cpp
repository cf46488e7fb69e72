// How the attributes of text and paragraph properties change a text style.

#include "documents.h"

#include "opendocument/text_style.h"

#include <gtest/gtest.h>

using namespace opendocument;
using namespace Qt::StringLiterals;

namespace {

bool isKnown(QString family)
{
    return family == u"Arial"_s;
}

OOTextStyle afterText(const QByteArray& attributes, OOTextStyle style = {})
{
    readTextProperties(elementOf("<p " + attributes + "/>"), &isKnown, style);
    return style;
}

OOTextStyle afterParagraph(const QByteArray& attributes, OOTextStyle style = {})
{
    readParagraphProperties(elementOf("<p " + attributes + "/>"), 72.0, style);
    return style;
}

} // namespace

TEST(TextStyle, StartsWithTheDefaults)
{
    const OOTextStyle style;
    EXPECT_EQ(style.fontFamily, u"_Nare Vol"_s);
    EXPECT_EQ(style.fontSize, 12.0);
    EXPECT_FALSE(style.bold);
    EXPECT_FALSE(style.italic);
    EXPECT_FALSE(style.underline);
    EXPECT_EQ(style.auxValue, 1.0);
    EXPECT_EQ(int(style.alignment), 0x1F);
    EXPECT_FALSE(style.hasAlignment());
    EXPECT_EQ(style.margins, Margins());
    EXPECT_TRUE(style.textColor.isEmpty());
}

TEST(TextStyle, IsLeftAloneByAbsentProperties)
{
    OOTextStyle style;
    style.fontSize = 30;
    style.bold = style.italic = style.underline = true;
    style.alignment = Qt::AlignRight;
    style.margins.left = 4;
    style.textColor = u"red"_s;
    readTextProperties(xmllimits::Element(), &isKnown, style);
    readParagraphProperties(xmllimits::Element(), 72, style);
    style = afterParagraph("", afterText("", style));
    EXPECT_EQ(style.fontSize, 30);
    EXPECT_TRUE(style.bold && style.italic && style.underline);
    EXPECT_EQ(style.alignment, Qt::AlignRight);
    EXPECT_EQ(style.margins.left, 4);
    EXPECT_EQ(style.textColor, u"red"_s);
}

TEST(TextStyle, FontSizeComesInPointsPixelsOrPercent)
{
    const struct
    {
        QByteArray value;
        double size;
    } rows[] = {
        {"14pt", 14},       {"14px", 14},    {"10.5pt", 10.5}, {"150%", 18},    {"50%", 6},
        {"5%", 0.6},        {"14in", 12},    {"14", 12},       {"pt", 12},      {"%", 12},
        {"", 12},           {"xpt", 12},     {"nanpt", 12},    {"1e308pt", 12}, {"1e300%", 12},
        {"10000pt", 10000}, {"10001pt", 12}, {"-3pt", -3},     {"14PT", 12},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.value.toStdString());
        EXPECT_NEAR(afterText("fo:font-size=\"" + row.value + "\"").fontSize, row.size, 1e-9);
    }
}

TEST(TextStyle, PercentScalesTheInheritedSize)
{
    OOTextStyle inherited;
    inherited.fontSize = 20;
    EXPECT_EQ(afterText("fo:font-size=\"150%\"", inherited).fontSize, 30);
}

TEST(TextStyle, FamilyIsTakenOnlyWhenTheHostKnowsIt)
{
    EXPECT_EQ(afterText("style:font-name=\"Arial\"").fontFamily, u"Arial"_s);
    EXPECT_EQ(afterText("style:font-name=\"Wingdings\"").fontFamily, u"_Nare Vol"_s);
}

TEST(TextStyle, FlagsAreSetAndCleared)
{
    EXPECT_TRUE(afterText("fo:font-style=\"italic\"").italic);
    EXPECT_TRUE(afterText("fo:font-weight=\"bold\"").bold);
    EXPECT_TRUE(afterText("style:text-underline-style=\"solid\"").underline);
    EXPECT_TRUE(afterText("style:text-underline-style=\"\"").underline);

    OOTextStyle all;
    all.bold = all.italic = all.underline = true;
    EXPECT_FALSE(afterText("fo:font-style=\"oblique\"", all).italic);
    EXPECT_FALSE(afterText("fo:font-weight=\"700\"", all).bold) << "numbers are not bold";
    EXPECT_FALSE(afterText("style:text-underline-style=\"none\"", all).underline);
}

TEST(TextStyle, MarginsNeedALeftOne)
{
    const OOTextStyle both = afterParagraph("fo:margin-left=\"1in\" fo:margin-right=\"2in\"");
    EXPECT_EQ(both.margins, (Margins{0, 0, 72, 144}));
    EXPECT_EQ(afterParagraph("fo:margin-right=\"2in\"").margins, Margins());
    EXPECT_EQ(afterParagraph("fo:margin-left=\"1in\"").margins, (Margins{0, 0, 72, 0}));
    EXPECT_EQ(afterParagraph("fo:margin-left=\"x\" fo:margin-right=\"2in\"").margins,
              (Margins{0, 0, 0, 144}));
    EXPECT_EQ(afterParagraph("fo:margin-top=\"1in\" fo:margin-bottom=\"1in\" "
                             "fo:margin-left=\"0in\"")
                  .margins,
              Margins())
        << "the first two are never set";
}

TEST(TextStyle, AlignmentIsCenterEndOrLeft)
{
    const struct
    {
        QByteArray value;
        Qt::Alignment alignment;
    } rows[] = {{"center", Qt::AlignHCenter}, {"end", Qt::AlignRight},  {"start", Qt::AlignLeft},
                {"left", Qt::AlignLeft},      {"right", Qt::AlignLeft}, {"justify", Qt::AlignLeft},
                {"", Qt::AlignLeft}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.value.toStdString());
        EXPECT_EQ(afterParagraph("fo:text-align=\"" + row.value + "\"").alignment, row.alignment);
    }
}

TEST(TextStyle, ColorIsReadFromTheParagraphOnly)
{
    EXPECT_EQ(afterParagraph("fo:color=\"#FF0000\"").textColor, u"#FF0000"_s);
    EXPECT_EQ(afterText("fo:color=\"#FF0000\"").textColor, QString());
}
