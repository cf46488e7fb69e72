// The fragments of CSS for the differences of one text style from another.

#include "opendocument/style_fragments.h"

#include <gtest/gtest.h>

using namespace opendocument;
using namespace Qt::StringLiterals;

namespace {

OOTextStyle other()
{
    OOTextStyle style;
    style.fontFamily = u"Arial"_s;
    style.fontSize = 10.5;
    style.bold = style.italic = style.underline = true;
    style.alignment = Qt::AlignRight;
    return style;
}

} // namespace

TEST(StyleFragments, AreEmptyWhereNothingDiffers)
{
    const OOTextStyle style = other();
    const StyleFragments css(style, style, 0.75);
    EXPECT_EQ(css.family() + css.size() + css.weight() + css.slant() + css.decoration() +
                  css.alignmentAttribute(),
              QString());
}

TEST(StyleFragments, ReportEachDifference)
{
    const OOTextStyle base;
    const OOTextStyle style = other();
    const StyleFragments css(style, base, 0.75);
    EXPECT_EQ(css.family(), u" font-family:'Arial';"_s);
    EXPECT_EQ(css.size(), u" font-size:7.88pt;"_s);
    EXPECT_EQ(css.weight(), u" font-weight:700;"_s);
    EXPECT_EQ(css.slant(), u" font-style:italic;"_s);
    EXPECT_EQ(css.decoration(), u" text-decoration:underline;"_s);

    const StyleFragments back(base, style, 1);
    EXPECT_EQ(back.size(), u" font-size:12.00pt;"_s);
    EXPECT_EQ(back.weight(), u" font-weight:400;"_s);
    EXPECT_EQ(back.slant(), u" font-style:normal;"_s);
    EXPECT_EQ(back.decoration(), u" text-decoration:none;"_s);
}

TEST(StyleFragments, TakeNearlyEqualSizesForEqual)
{
    const OOTextStyle base;
    OOTextStyle style;
    style.fontSize = 12.0004;
    EXPECT_EQ(StyleFragments(style, base, 1).size(), QString());
    style.fontSize = 12.0006;
    EXPECT_EQ(StyleFragments(style, base, 1).size(), u" font-size:12.00pt;"_s);
}

TEST(StyleFragments, MayBeForcedExceptTheFamily)
{
    const OOTextStyle style;
    const StyleFragments css(style, style, 1, Fragment::Always);
    EXPECT_EQ(css.family(), QString());
    EXPECT_EQ(css.size(), u" font-size:12.00pt;"_s);
    EXPECT_EQ(css.weight(), u" font-weight:400;"_s);
    EXPECT_EQ(css.slant(), u" font-style:normal;"_s);
    EXPECT_EQ(css.decoration(), u" text-decoration:none;"_s);
}

TEST(StyleFragments, AlignmentIsAnAttribute)
{
    const struct
    {
        Qt::Alignment alignment;
        QString different;
        QString forced;
    } rows[] = {
        {Qt::AlignRight, u" align=\"right\""_s, u" align=\"right\""_s},
        {Qt::AlignHCenter, u" align=\"center\""_s, u" align=\"center\""_s},
        {Qt::AlignLeft, u" align=\"left\""_s, u" align=\"left\""_s},
        {Qt::AlignJustify, QString(), u" align=\"left\""_s},
        {Qt::AlignHorizontal_Mask, QString(), u" align=\"left\""_s},
    };
    OOTextStyle base;
    base.alignment = Qt::AlignAbsolute;
    for (const auto& row : rows) {
        SCOPED_TRACE(int(row.alignment));
        OOTextStyle style;
        style.alignment = row.alignment;
        EXPECT_EQ(StyleFragments(style, base, 1).alignmentAttribute(), row.different);
        EXPECT_EQ(StyleFragments(style, style, 1).alignmentAttribute(), QString());
        EXPECT_EQ(StyleFragments(style, style, 1, Fragment::Always).alignmentAttribute(),
                  row.forced);
    }
}
