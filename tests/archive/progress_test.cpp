// The progress line of an archive.

#include "archive/progress.h"
#include "console/file_name.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {
using namespace Qt::StringLiterals;

TEST(Progress, ShowsRateTimeLeftAndFailures)
{
    const archive::Progress half{1000, 500, 0, 3, 10'000, {}, 0};
    EXPECT_EQ(archive::progressLine(half, 120),
              u"[###############...............]  500/1000  50 files/s  0:10 left  "
              "3 failed"_s);
}

TEST(Progress, CountsSkippedFilesAsDoneButNotAsWork)
{
    const archive::Progress resumed{1000, 510, 500, 0, 10'000, {}, 0};
    EXPECT_TRUE(
        archive::progressLine(resumed, 120).endsWith(u"510/1000  1.0 files/s  8:10 left"_s));
}

TEST(Progress, PromisesNothingBeforeTheFirstFile)
{
    EXPECT_EQ(archive::progressLine({10, 0, 0, 0, 0, {}, 0}, 120),
              u"[..............................]  0/10"_s);
}

TEST(Progress, NamesAFileThatTakesLong)
{
    archive::Progress progress{1000, 500, 0, 0, 10'000, {}, 0};
    progress.slowFile = console::fileNameFromBytes("old/a\x1B\xF6.odg");
    progress.slowMilliseconds = 65'000;
    EXPECT_TRUE(archive::progressLine(progress, 120).endsWith(u"0:10 left  a\\x1B\\xF6.odg 1:05"_s))
        << qPrintable(archive::progressLine(progress, 120));
    progress.slowFile = QString(200, u'x');
    EXPECT_TRUE(archive::progressLine(progress, 120).endsWith(u"x\u2026 1:05"_s));
}

TEST(Progress, FitsEveryTerminal)
{
    archive::Progress progress{1000, 500, 0, 3, 10'000, {}, 0};
    progress.slowFile = QString(200, u'x');
    for (int columns = 0; columns < 120; ++columns) {
        EXPECT_LE(archive::progressLine(progress, columns).size(), columns);
    }
    EXPECT_EQ(archive::progressLine(progress, 40).left(8), u"500/1000"_s);
}

TEST(Progress, WritesDurationsAsClocksDo)
{
    EXPECT_EQ(archive::durationText(0), u"0:00"_s);
    EXPECT_EQ(archive::durationText(65), u"1:05"_s);
    EXPECT_EQ(archive::durationText(3599), u"59:59"_s);
    EXPECT_EQ(archive::durationText(3723), u"1:02:03"_s);
}

} // namespace
