#include "numeric/saturation.h"

#include <limits>

#include <gtest/gtest.h>

namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr int Largest = std::numeric_limits<int>::max();
constexpr int Smallest = std::numeric_limits<int>::min();

TEST(Saturation, TruncatesTowardZero)
{
    EXPECT_EQ(saturatedToInt(1.99), 1);
    EXPECT_EQ(saturatedToInt(-1.99), -1);
    EXPECT_EQ(saturatedToInt(0.9), 0);
    EXPECT_EQ(saturatedToInt(-10.7), -10);
    EXPECT_EQ(saturatedToInt(2147483646.9), 2147483646);
    EXPECT_EQ(saturatedToInt(-2147483648.0), Smallest);
}

TEST(Saturation, GivesTheNearestIntOutsideTheRange)
{
    EXPECT_EQ(saturatedToInt(2147483648.0), Largest);
    EXPECT_EQ(saturatedToInt(-2147483649.0), Smallest);
    EXPECT_EQ(saturatedToInt(1e300), Largest);
    EXPECT_EQ(saturatedToInt(-1e300), Smallest);
    EXPECT_EQ(saturatedToInt(Infinity), Largest);
    EXPECT_EQ(saturatedToInt(-Infinity), Smallest);
    EXPECT_EQ(saturatedToInt(NotANumber), 0);
}

} // namespace
