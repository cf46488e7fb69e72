#include "limits/svg/svg_values.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace svglimits;

TEST(SvgLength, CountsEveryUnitAtNinetySixToTheInch)
{
    const struct
    {
        QStringView text;
        double userUnits;
    } rows[] = {
        {u"96", 96.0},     {u"96px", 96.0}, {u"72pt", 96.0},   {u"6pc", 96.0},  {u"25.4mm", 96.0},
        {u"2.54cm", 96.0}, {u"1in", 96.0},  {u"101.6Q", 96.0}, {u"6em", 96.0},  {u"12ex", 96.0},
        {u" 1e2 ", 100.0}, {u"1IN", 96.0},  {u"-3", -3.0},     {u".5in", 48.0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text.toString().toStdString());
        const auto length = parseSvgLength(row.text);
        ASSERT_TRUE(length);
        EXPECT_FALSE(length->percent);
        EXPECT_NEAR(length->inUserUnits(), row.userUnits, 1e-9);
    }
}

TEST(SvgLength, KeepsPercentagesApart)
{
    const auto length = parseSvgLength(u"50%");
    ASSERT_TRUE(length);
    EXPECT_TRUE(length->percent);
    EXPECT_DOUBLE_EQ(length->value, 50.0);
}

TEST(SvgLength, RefusesInvalidLengths)
{
    for (const QStringView text : {u"", u"mm", u"auto", u"12 parsecs", u"1e999", u"nan", u"inf",
                                   u"1,5mm", u"%", u"10mm10"}) {
        EXPECT_FALSE(parseSvgLength(text)) << text.toString().toStdString();
    }
}

TEST(SvgNumbers, FindsNumbersHoweverTheyAreSeparated)
{
    const NumberSummary path = summarizeNumbers(u"M10-20.5.25,1e3L7 8e-2z");
    EXPECT_EQ(path.count, 6);
    EXPECT_DOUBLE_EQ(path.greatest, 1000.0);
    EXPECT_DOUBLE_EQ(summarizeNumbers(u"4 2.5,1").sum, 7.5);
    EXPECT_EQ(summarizeNumbers(u"Mz").count, 0);
}

TEST(SvgNumbers, TakesATooLargeNumberForInfinite)
{
    EXPECT_TRUE(std::isinf(summarizeNumbers(u"M 1e999 0").greatest));
    EXPECT_DOUBLE_EQ(summarizeNumbers(u"1e-999").greatest, 0.0);
    EXPECT_DOUBLE_EQ(summarizeNumbers(u"...").greatest, 0.0);
}
