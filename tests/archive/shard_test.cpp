// Parts of an archive.

#include "archive/shard.h"

#include <gtest/gtest.h>

namespace {
using namespace Qt::StringLiterals;

TEST(Shard, IsReadFromItsNumberAndTheirCount)
{
    const auto shard = archive::shardOf(u"3/8"_s);
    ASSERT_TRUE(shard);
    EXPECT_EQ(shard->number, 3);
    EXPECT_EQ(shard->count, 8);
    EXPECT_FALSE(shard->isEverything());
    EXPECT_TRUE(archive::shardOf(u"1/1"_s)->isEverything());
    EXPECT_TRUE(archive::shardOf(u"100000/100000"_s));
}

TEST(Shard, RefusesInvalidParts)
{
    for (const char* wrong : {"", "3", "0/8", "9/8", "-1/8", "3/0", "3/8/2", "a/b", "3 / 8",
                              "1/100001", "1/99999999999", "3/8\n"}) {
        SCOPED_TRACE(wrong);
        EXPECT_FALSE(archive::shardOf(QString::fromLatin1(wrong)));
    }
}

TEST(Shard, TogetherTakeEachInputOnce)
{
    constexpr int count = 7;
    for (qsizetype index = 0; index < 100; ++index) {
        int takers = 0;
        for (int number = 1; number <= count; ++number) {
            takers += archive::Shard{number, count}.takes(index) ? 1 : 0;
        }
        EXPECT_EQ(takers, 1) << index;
    }
}

} // namespace
