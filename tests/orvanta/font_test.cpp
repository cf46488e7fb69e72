#include "orvanta/font.h"

#include "tests/orvanta/element_support.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using element_support::knowsFamily;
using element_support::ParsedElement;

TEST(Font, KeepsDefaultsForWhatIsMissing)
{
    const orvanta::Font font = orvanta::readFont(ParsedElement("<font/>").element(), knowsFamily);
    EXPECT_EQ(font.family, QStringLiteral("Arial"));
    EXPECT_EQ(font.size, 24.0);
    EXPECT_EQ(font.style, 0);
}

TEST(Font, TheDefaultFamilyIsNotChecked)
{
    const auto knowsNothing = [](QString) { return false; };
    EXPECT_EQ(orvanta::readFont(ParsedElement("<font/>").element(), knowsNothing).family,
              QStringLiteral("Arial"));
}

TEST(Font, ReadsFamilySizeAndStyle)
{
    const orvanta::Font font = orvanta::readFont(
        ParsedElement("<font><family>Courier New</family><size>10.7</size><style>5</style></font>")
            .element(),
        knowsFamily);
    EXPECT_EQ(font.family, QStringLiteral("Courier New"));
    EXPECT_EQ(font.size, 10.7);
    EXPECT_EQ(font.style, 5);
}

TEST(Font, AFamilyThatTheHostLacksBecomesTheFallback)
{
    for (const char* xml :
         {"<font><family>Old Sans</family></font>", "<font><family/></font>",
          "<font><family>arial</family></font>", "<font><family>Arial </family></font>",
          "<font><family>Arial</family><family>Old Sans</family></font>"}) {
        SCOPED_TRACE(xml);
        EXPECT_EQ(orvanta::readFont(ParsedElement(xml).element(), knowsFamily).family,
                  QStringLiteral("_Nare Vol"));
    }
}

TEST(Font, WhatIsNoNumberIsZero)
{
    const orvanta::Font font = orvanta::readFont(
        ParsedElement("<font><size>big</size><style>bold</style></font>").element(), knowsFamily);
    EXPECT_EQ(font.size, 0.0);
    EXPECT_EQ(font.style, 0);
}

TEST(Font, SizesAreCutToWholePointsAndKeptWithinAnInt)
{
    constexpr int Most = std::numeric_limits<int>::max();
    constexpr int Least = std::numeric_limits<int>::min();
    const struct
    {
        double size;
        int points;
    } rows[] = {
        {10.0, 10},
        {10.7, 10},
        {0.9, 0},
        {-10.7, -10},
        {2147483647.0, Most},
        {2147483648.0, Most},
        {1e300, Most},
        {std::numeric_limits<double>::infinity(), Most},
        {-2147483648.0, Least},
        {-1e300, Least},
        {std::nan(""), 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.size);
        EXPECT_EQ(orvanta::wholePoints(row.size), row.points);
    }
}
