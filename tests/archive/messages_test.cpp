// What coordinator and worker say to each other.

#include "archive/messages.h"

#include <gtest/gtest.h>

namespace {
using namespace Qt::StringLiterals;

const QString SpecialCharacters = u"a \"b\"\n\\ \u00e4 \U0001F3F7"_s;

TEST(Messages, CarryAJob)
{
    const archive::Job job{SpecialCharacters,
                           u"shown"_s,
                           {{u"png"_s, u"out/a.png"_s}, {u"svg"_s, u"out/a.svg"_s}},
                           u"staging"_s,
                           {{u"dpi"_s, 300}}};
    const QByteArray line = archive::lineOf(job);
    EXPECT_EQ(line.count('\n'), 1);
    EXPECT_TRUE(line.endsWith('\n'));
    EXPECT_EQ(archive::jobFromLine(line), job);
}

TEST(Messages, CarryAStart)
{
    const archive::WorkerStart start{{{SpecialCharacters, u"/a"_s}, {u"/b"_s}}, true};
    const QByteArray line = archive::lineOf(start);
    EXPECT_EQ(line.count('\n'), 1);
    EXPECT_EQ(archive::workerStartFromLine(line), start);
    EXPECT_FALSE(archive::workerStartFromLine(line.left(line.size() / 2)));
}

TEST(Messages, CarryAResult)
{
    for (const archive::FileOutcome outcome :
         {archive::FileOutcome::Done, archive::FileOutcome::Failed, archive::FileOutcome::Crashed,
          archive::FileOutcome::TimedOut, archive::FileOutcome::OutOfMemory}) {
        const archive::FileResult result{outcome,
                                         {SpecialCharacters},
                                         {u"one"_s, u"two"_s},
                                         {{u"staged"_s, {u"out"_s, 5, 6}}},
                                         {{u"file"_s, SpecialCharacters}},
                                         12'345'678'901};
        const QByteArray line = archive::lineOf(result);
        EXPECT_EQ(line.count('\n'), 1);
        EXPECT_EQ(archive::resultFromLine(line), result);
    }
}

TEST(Messages, IncompleteLinesAreIgnored)
{
    const QByteArray job = archive::lineOf(archive::Job{SpecialCharacters, {}, {}, {}, {}});
    const QByteArray result = archive::lineOf(archive::FileResult{});
    EXPECT_FALSE(archive::jobFromLine(job.left(job.size() / 2)));
    EXPECT_FALSE(archive::resultFromLine(result.left(result.size() / 2)));
    EXPECT_FALSE(archive::jobFromLine(result));
    EXPECT_FALSE(archive::resultFromLine(job));
    EXPECT_FALSE(archive::resultFromLine("[]"));
    EXPECT_FALSE(archive::resultFromLine(R"({"outcome":"happy"})"));
}

} // namespace
