// Ranges of records as people write them.

#include "cli/record_range.h"

#include <gtest/gtest.h>

namespace {

std::optional<cli::RecordRange> range(const char* text)
{
    return cli::recordRangeOf(QString::fromLatin1(text));
}

TEST(RecordRange, IsOneRecord)
{
    const auto one = range("7");
    ASSERT_TRUE(one);
    EXPECT_EQ(one->first, 7);
    EXPECT_EQ(one->last, 7);
}

TEST(RecordRange, IsFromOneToAnother)
{
    const auto some = range("3-12");
    ASSERT_TRUE(some);
    EXPECT_EQ(some->first, 3);
    EXPECT_EQ(some->last, 12);
}

TEST(RecordRange, HasNoEndUnlessOneIsNamed)
{
    EXPECT_EQ(range("3-")->first, 3);
    EXPECT_FALSE(range("3-")->last);
    EXPECT_EQ(range("all")->first, 1);
    EXPECT_FALSE(range("all")->last);
}

TEST(RecordRange, RefusesInvalidRanges)
{
    for (const char* text :
         {"", "0", "-3", "5-4", "1-2-3", "a", "3 - 5", "1.5", "0-3", "ALL", "9999999999999999"}) {
        EXPECT_FALSE(range(text)) << text;
    }
}

} // namespace
