#include "line_difference.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(LineDifference, IsEmptyForEqualTexts)
{
    EXPECT_EQ(firstDifference("a\nb\n", "a\nb\n"), QString());
}

TEST(LineDifference, ShowsTheFirstDifferentLineAndItsSurroundings)
{
    EXPECT_EQ(firstDifference("1\n2\n3\nold\n5\n", "1\n2\n3\nnew\n"),
              u"line 4 (5 lines expected, 4 came)\n"
              "  2\n"
              "  3\n"
              "- old\n"
              "- 5\n"
              "- \n"
              "+ new\n"
              "+ \n"_s);
}

TEST(LineDifference, SeesAMissingLineEnd)
{
    EXPECT_FALSE(firstDifference("a\n", "a").isEmpty());
    EXPECT_FALSE(firstDifference("", "a\n").isEmpty());
}

} // namespace
