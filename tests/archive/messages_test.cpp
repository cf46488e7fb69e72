// What coordinator and worker say to each other.

#include "archive/messages.h"

#include <gtest/gtest.h>

namespace {

const QString Strange = QStringLiteral("a \"b\"\n\\ \u00e4 \U0001F3F7");

TEST(Messages, CarryAJob)
{
    const archive::Job job{Strange,
                           QStringLiteral("shown"),
                           {{QStringLiteral("png"), QStringLiteral("out/a.png")},
                            {QStringLiteral("svg"), QStringLiteral("out/a.svg")}},
                           QStringLiteral("staging"),
                           {{QStringLiteral("out/a.png"), 1LL << 40, 1'700'000'000'123}},
                           {{QStringLiteral("dpi"), 300}}};
    const QByteArray line = archive::lineOf(job);
    EXPECT_EQ(line.count('\n'), 1);
    EXPECT_TRUE(line.endsWith('\n'));
    EXPECT_EQ(archive::jobFromLine(line), job);
}

TEST(Messages, CarryAResult)
{
    for (const archive::Fate fate :
         {archive::Fate::Done, archive::Fate::Failed, archive::Fate::Crashed,
          archive::Fate::TimedOut, archive::Fate::OutOfMemory}) {
        const archive::FileResult result{
            fate,
            {Strange},
            {QStringLiteral("one"), QStringLiteral("two")},
            {{QStringLiteral("staged"), {QStringLiteral("out"), 5, 6}, true}},
            {{QStringLiteral("file"), Strange}},
            12'345'678'901};
        const QByteArray line = archive::lineOf(result);
        EXPECT_EQ(line.count('\n'), 1);
        EXPECT_EQ(archive::resultFromLine(line), result);
    }
}

TEST(Messages, ThatAreTornAreNone)
{
    const QByteArray job = archive::lineOf(archive::Job{Strange, {}, {}, {}, {}, {}});
    const QByteArray result = archive::lineOf(archive::FileResult{});
    EXPECT_FALSE(archive::jobFromLine(job.left(job.size() / 2)));
    EXPECT_FALSE(archive::resultFromLine(result.left(result.size() / 2)));
    EXPECT_FALSE(archive::jobFromLine(result));
    EXPECT_FALSE(archive::resultFromLine(job));
    EXPECT_FALSE(archive::resultFromLine("[]"));
    EXPECT_FALSE(archive::resultFromLine(R"({"fate":"happy"})"));
}

} // namespace
