#include "tavrel/printer_dots.h"

#include <limits>

#include <gtest/gtest.h>

using namespace tavrel;

namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr qint32 Largest = std::numeric_limits<qint32>::max();
constexpr qint32 Smallest = std::numeric_limits<qint32>::min();

TEST(Lengths, RoundPointsHalfAwayFromZero)
{
    EXPECT_EQ(roundedPoints(7, 300.0), 2);  // 1.68
    EXPECT_EQ(roundedPoints(5, 300.0), 1);  // 1.2
    EXPECT_EQ(roundedPoints(25, 300.0), 6); // 6.0
    EXPECT_EQ(roundedPoints(1, 144.0), 1);  // 0.5
    EXPECT_EQ(roundedPoints(-1, 144.0), -1);
    EXPECT_EQ(roundedPoints(5, 144.0), 3); // 2.5; the nearest even would be 2
}

TEST(Lengths, TruncatePenWidths)
{
    EXPECT_EQ(penWidth(10, 300.0), 2); // 2.4
    EXPECT_EQ(penWidth(12, 300.0), 2); // 2.88
    EXPECT_EQ(penWidth(305, 305.0), 72);
    EXPECT_EQ(penWidth(0, 300.0), 0);
}

TEST(Lengths, KeepTheLowSixteenBitsOfPenWidths)
{
    EXPECT_EQ(penWidth(65536 + 7, 72.0), 7);
    EXPECT_EQ(penWidth(-1, 72.0), 65535);
    EXPECT_EQ(penWidth(-1, 300.0), 0); // -0.24
}

TEST(Lengths, AreDefinedForAnyResolution)
{
    EXPECT_EQ(roundedPoints(1, 0.0), Largest);
    EXPECT_EQ(roundedPoints(-1, 0.0), Smallest);
    EXPECT_EQ(roundedPoints(0, 0.0), 0);
    EXPECT_EQ(roundedPoints(1, NotANumber), 0);
    EXPECT_EQ(roundedPoints(1, Infinity), 0);
    EXPECT_EQ(penWidth(1, 0.0), 65535); // saturated first: 0x7FFFFFFF
    EXPECT_EQ(penWidth(-1, 0.0), 0);    // 0x80000000
    EXPECT_EQ(penWidth(1, NotANumber), 0);
    EXPECT_EQ(penWidth(2, 1e-300), 65535);
}

} // namespace
