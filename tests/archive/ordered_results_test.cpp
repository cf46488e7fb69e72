// Results in the order of their files.

#include "archive/ordered_results.h"

#include <gtest/gtest.h>

namespace {

archive::FileResult result(int number)
{
    archive::FileResult value;
    value.memory = number;
    return value;
}

QList<qsizetype> takeAll(archive::OrderedResults& results)
{
    QList<qsizetype> indexes;
    while (const auto next = results.takeNext()) {
        EXPECT_EQ(next->result.memory, next->index);
        indexes.append(next->index);
    }
    return indexes;
}

TEST(OrderedResults, WaitForEarlierOnes)
{
    archive::OrderedResults results;
    results.add(2, result(2), 10);
    results.add(1, result(1), 10);
    EXPECT_EQ(takeAll(results), QList<qsizetype>());
    results.add(0, result(0), 10);
    EXPECT_EQ(takeAll(results), (QList<qsizetype>{0, 1, 2}));
}

TEST(OrderedResults, PassOverWhatIsSkipped)
{
    archive::OrderedResults results;
    results.skip(0);
    results.add(1, result(1), 10);
    results.skip(2);
    results.skip(3);
    results.add(4, result(4), 10);
    EXPECT_EQ(takeAll(results), (QList<qsizetype>{1, 4}));
}

TEST(OrderedResults, ReportWhenTooMuchWaits)
{
    archive::OrderedResults results;
    results.add(1, result(1), archive::MaximumWaitingBytes - 1);
    EXPECT_FALSE(results.isFull());
    results.add(2, result(2), 1);
    EXPECT_TRUE(results.isFull());
    results.add(0, result(0), 0);
    takeAll(results);
    EXPECT_FALSE(results.isFull());
}

TEST(OrderedResults, GiveOutWhatIsLeftAfterAStop)
{
    archive::OrderedResults results;
    results.add(5, result(5), 1);
    results.skip(7);
    results.add(9, result(9), 1);
    EXPECT_EQ(results.takeAny()->index, 5);
    EXPECT_EQ(results.takeAny()->index, 9);
    EXPECT_FALSE(results.takeAny());
}

} // namespace
