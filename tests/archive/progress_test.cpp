// The line that tells how far an archive is.

#include "archive/progress.h"

#include <gtest/gtest.h>

namespace {

TEST(Progress, TellsRateTimeLeftAndFailures)
{
    const archive::Progress half{1000, 500, 0, 3, 10'000};
    EXPECT_EQ(archive::progressLine(half, 120),
              QStringLiteral("[###############...............]  500/1000  50 files/s  0:10 left  "
                             "3 failed"));
}

TEST(Progress, CountsSkippedFilesAsDoneButNotAsWork)
{
    const archive::Progress resumed{1000, 510, 500, 0, 10'000};
    EXPECT_TRUE(archive::progressLine(resumed, 120)
                    .endsWith(QStringLiteral("510/1000  1.0 files/s  8:10 left")));
}

TEST(Progress, PromisesNothingBeforeTheFirstFile)
{
    EXPECT_EQ(archive::progressLine({10, 0, 0, 0, 0}, 120),
              QStringLiteral("[..............................]  0/10"));
}

TEST(Progress, FitsEveryTerminal)
{
    const archive::Progress progress{1000, 500, 0, 3, 10'000};
    for (int columns = 0; columns < 120; ++columns) {
        EXPECT_LE(archive::progressLine(progress, columns).size(), columns);
    }
    EXPECT_EQ(archive::progressLine(progress, 40).left(8), QStringLiteral("500/1000"));
}

TEST(Progress, WritesDurationsAsClocksDo)
{
    EXPECT_EQ(archive::durationText(0), QStringLiteral("0:00"));
    EXPECT_EQ(archive::durationText(65), QStringLiteral("1:05"));
    EXPECT_EQ(archive::durationText(3599), QStringLiteral("59:59"));
    EXPECT_EQ(archive::durationText(3723), QStringLiteral("1:02:03"));
}

} // namespace
