// Whole archives, with workers that suffer what their files say.

#include "tests/archive/run_fixture.h"

#include <QSet>
#include <QTimer>

namespace {

using ArchiveRun = RunFixture;

QStringList lines(std::initializer_list<const char*> texts)
{
    QStringList list;
    for (const char* text : texts) {
        list.append(QString::fromLatin1(text));
    }
    return list;
}

TEST_F(ArchiveRun, WritesTheOutputsOfAllFilesInTheirFolders)
{
    input(QStringLiteral("a.cnv"), "ok one");
    input(QStringLiteral("b/c/d.cnv"), "ok two");
    EXPECT_EQ(run(), lines({"done a.cnv: a.png", "done b/c/d.cnv: b/c/d.png"}));
    EXPECT_EQ(output(QStringLiteral("a.png")), "ok one");
    EXPECT_EQ(output(QStringLiteral("b/c/d.png")), "ok two");
    EXPECT_EQ(strays(), QStringList());
}

TEST_F(ArchiveRun, IsOverAtOnceWithoutFiles)
{
    EXPECT_EQ(run(), QStringList());
}

TEST_F(ArchiveRun, WritesSeveralTargetsInTheirOrder)
{
    settings.targets = lines({"svg", "png"});
    input(QStringLiteral("a.cnv"), "ok");
    EXPECT_EQ(run(), lines({"done a.cnv: a.svg a.png"}));
}

TEST_F(ArchiveRun, GoesOnBehindEveryKindOfBadFile)
{
    input(QStringLiteral("a.cnv"), "crash");
    input(QStringLiteral("b.cnv"), "fail");
    input(QStringLiteral("c.cnv"), "exit");
    input(QStringLiteral("d.cnv"), "ok fine");
    EXPECT_EQ(run(), lines({"crashed a.cnv: its import crashed twice (SIGABRT); please report the "
                            "file",
                            "failed b.cnv: it failed",
                            "crashed c.cnv: its import ended twice by itself (status 5); please "
                            "report the file",
                            "done d.cnv: d.png"}));
    EXPECT_EQ(progress.failed, 3);
    EXPECT_EQ(progress.done, 4);
}

TEST_F(ArchiveRun, TriesAFileAgainWhoseWorkerWasKilled)
{
    input(QStringLiteral("a.cnv"), "kill-once");
    input(QStringLiteral("b.cnv"), "crash-once");
    EXPECT_EQ(run(), lines({"done a.cnv: a.png", "done b.cnv: b.png"}));
}

TEST_F(ArchiveRun, GivesAFileUpThatHangs)
{
    int started = 0;
    settings.workers = 1;
    settings.limits.startTimer = [&](QTimer& timer, int seconds) {
        // The time of the first file is over at once, that of the second never.
        if (seconds == settings.limits.timeoutSeconds && ++started == 1) {
            timer.start(0);
        }
    };
    input(QStringLiteral("a.cnv"), "hang");
    input(QStringLiteral("b.cnv"), "ok");
    EXPECT_EQ(run(), lines({"timed-out a.cnv: the file took more than 300 seconds without getting "
                            "on (--timeout)",
                            "done b.cnv: b.png"}));
    EXPECT_EQ(started, 2);
}

TEST_F(ArchiveRun, GivesAFileItsTimeAgainWithEachSignOfLife)
{
    int started = 0;
    settings.limits.startTimer = [&](QTimer& /*timer*/, int seconds) {
        started += seconds == settings.limits.timeoutSeconds ? 1 : 0;
    };
    input(QStringLiteral("a.cnv"), "alive");
    EXPECT_EQ(run(), lines({"done a.cnv: a.png"}));
    EXPECT_EQ(started, 1 + 3);
}

TEST(WorkerLimits, CountSeconds)
{
    QTimer timer;
    archive::WorkerLimits().startTimer(timer, 5);
    EXPECT_TRUE(timer.isActive());
    EXPECT_EQ(timer.interval(), 5000);
}

TEST_F(ArchiveRun, GivesAFileUpThatNeedsTooMuchMemory)
{
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "SKIPPED: no bounds of memory under the sanitizer";
#endif
    input(QStringLiteral("a.cnv"), "memory");
    input(QStringLiteral("b.cnv"), "ok");
    EXPECT_EQ(run(), lines({"out-of-memory a.cnv: the file needed more than 512 MiB of memory "
                            "(--memory-limit)",
                            "done b.cnv: b.png"}));
}

TEST_F(ArchiveRun, KnowsACrashForWantOfMemoryFromAnyOther)
{
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "SKIPPED: no bounds of memory under the sanitizer";
#endif
    input(QStringLiteral("a.cnv"), "memory-unasked");
    input(QStringLiteral("b.cnv"), "crash");
    EXPECT_EQ(run(), lines({"out-of-memory a.cnv: the file needed more than 512 MiB of memory "
                            "(--memory-limit)",
                            "crashed b.cnv: its import crashed twice (SIGABRT); please report "
                            "the file"}));
}

TEST_F(ArchiveRun, GivesAFileUpWhoseWorkerTalksNonsense)
{
    settings.command = {QStringLiteral("/bin/sh"),
                        {QStringLiteral("-c"), QStringLiteral("echo +; while read job; do echo "
                                                              "nonsense; done")}};
    input(QStringLiteral("a.cnv"), "ok");
    EXPECT_EQ(run(), lines({"crashed a.cnv: its import ended in disorder, twice; please report "
                            "the file"}));
}

TEST_F(ArchiveRun, SaysWhenNoWorkerStarts)
{
    input(QStringLiteral("a.cnv"), "ok");
    for (const char* program : {"/bin/false", "/no/such/program"}) {
        SCOPED_TRACE(program);
        settings.command = {QString::fromLatin1(program), {}};
        EXPECT_EQ(run(), QStringList());
        ASSERT_EQ(troubles.size(), 1);
        EXPECT_TRUE(troubles.first().contains(QStringLiteral("cannot be started")));
    }
}

TEST_F(ArchiveRun, TellsTheSameForAnyNumberOfWorkers)
{
    const QList<QByteArray> contents = {"ok", "fail", "crash", "ok", "crash-once", "ok", "exit"};
    for (int number = 0; number < 28; ++number) {
        input(QStringLiteral("%1/%2.cnv").arg(number % 3).arg(number),
              contents.at(number % contents.size()));
    }
    QStringList first;
    for (const int workers : {1, 2, 5}) {
        SCOPED_TRACE(workers);
        settings.workers = workers;
        settings.outputFolder = folder.path(QStringLiteral("out%1").arg(workers));
        const QStringList told = run();
        EXPECT_EQ(told.size(), 28);
        first = first.isEmpty() ? told : first;
        EXPECT_EQ(told, first);
    }
}

// A worker that did other files before is replaced from time to time.
TEST_F(ArchiveRun, ReplacesWornWorkers)
{
    settings.workers = 1;
    constexpr int count = archive::WorkerPool::MaximumServed + 1;
    for (int number = 0; number < count; ++number) {
        input(QStringLiteral("%1.cnv").arg(number, 4, 10, QLatin1Char('0')), "pid");
    }
    EXPECT_EQ(run().size(), count);
    const QByteArray first = output(QStringLiteral("0000.png"));
    EXPECT_EQ(output(QStringLiteral("%1.png").arg(count - 2, 4, 10, QLatin1Char('0'))), first);
    EXPECT_NE(output(QStringLiteral("%1.png").arg(count - 1, 4, 10, QLatin1Char('0'))), first);
}

TEST_F(ArchiveRun, WritesNeitherOfTwoFilesThatWouldBecomeOne)
{
    input(QStringLiteral("a.cnv"), "ok");
    inputs.append({inputs.first().path, QStringLiteral("other/a.cnv"), {}});
    const QStringList told = run();
    ASSERT_EQ(told.size(), 2);
    for (const QString& line : told) {
        EXPECT_TRUE(line.contains(QStringLiteral("another of the given files has the same name")));
    }
    EXPECT_FALSE(folder.has(QStringLiteral("out/a.png")));
}

TEST_F(ArchiveRun, LeavesSomebodysFileAlone)
{
    folder.write(QStringLiteral("out/a.png"), "somebody's");
    input(QStringLiteral("a.cnv"), "ok");
    const QStringList told = run();
    EXPECT_TRUE(told.value(0).startsWith(QStringLiteral("failed a.cnv: ")));
    EXPECT_TRUE(told.value(0).contains(QStringLiteral("--force")));
    EXPECT_EQ(output(QStringLiteral("a.png")), "somebody's");
    settings.mayReplace = [](const QString&) { return true; };
    EXPECT_EQ(run(), lines({"done a.cnv: a.png"}));
}

TEST_F(ArchiveRun, DividesAnArchiveIntoParts)
{
    for (int number = 0; number < 10; ++number) {
        input(QStringLiteral("%1.cnv").arg(number), "ok");
    }
    const QStringList whole = run();
    QStringList together;
    settings.outputFolder = folder.path(QStringLiteral("parts"));
    for (int number = 1; number <= 3; ++number) {
        settings.shard = {number, 3};
        together += run();
        EXPECT_EQ(progress.total, progress.done);
    }
    together.sort();
    EXPECT_EQ(together, whole);
}

TEST_F(ArchiveRun, SaysWhereItCannotWrite)
{
    input(QStringLiteral("a.cnv"), "ok");
    settings.outputFolder = QStringLiteral("/proc");
    EXPECT_EQ(run(), lines({"Nothing can be written to the folder /proc."}));
}

} // namespace
