// Whole archives, with workers that suffer what their files say.

#include "tests/archive/run_fixture.h"

#include <QSet>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {
using namespace Qt::StringLiterals;

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
    input(u"a.cnv"_s, "ok one");
    input(u"b/c/d.cnv"_s, "ok two");
    EXPECT_EQ(run(), lines({"done a.cnv: a.png", "done b/c/d.cnv: b/c/d.png"}));
    EXPECT_EQ(output(u"a.png"_s), "ok one");
    EXPECT_EQ(output(u"b/c/d.png"_s), "ok two");
    EXPECT_EQ(unexpectedFiles(), QStringList());
}

TEST_F(ArchiveRun, IsOverAtOnceWithoutFiles)
{
    EXPECT_EQ(run(), QStringList());
}

TEST_F(ArchiveRun, WritesSeveralTargetsInTheirOrder)
{
    settings.targets = lines({"svg", "png"});
    input(u"a.cnv"_s, "ok");
    EXPECT_EQ(run(), lines({"done a.cnv: a.svg a.png"}));
}

TEST_F(ArchiveRun, ContinuesAfterEveryKindOfBadFile)
{
    input(u"a.cnv"_s, "crash");
    input(u"b.cnv"_s, "fail");
    input(u"c.cnv"_s, "exit");
    input(u"d.cnv"_s, "ok fine");
    EXPECT_EQ(run(), lines({"crashed a.cnv: The import crashed twice (SIGABRT). If a larger "
                            "--memory-limit does not help, please report the file.",
                            "failed b.cnv: it failed",
                            "crashed c.cnv: The worker process exited twice with status 5; please "
                            "report the file.",
                            "done d.cnv: d.png"}));
    EXPECT_EQ(progress.failed, 3);
    EXPECT_EQ(progress.done, 4);
}

TEST_F(ArchiveRun, TriesAFileAgainWhoseWorkerWasKilled)
{
    input(u"a.cnv"_s, "kill-once");
    input(u"b.cnv"_s, "crash-once");
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
    input(u"a.cnv"_s, "hang");
    input(u"b.cnv"_s, "ok");
    EXPECT_EQ(run(), lines({"timed-out a.cnv: The file made no progress for 300 second(s); see "
                            "--timeout.",
                            "done b.cnv: b.png"}));
    EXPECT_EQ(started, 2);
}

TEST_F(ArchiveRun, GivesAFileItsTimeAgainWithEachSignOfLife)
{
    int started = 0;
    settings.limits.startTimer = [&](QTimer& /*timer*/, int seconds) {
        started += seconds == settings.limits.timeoutSeconds ? 1 : 0;
    };
    input(u"a.cnv"_s, "alive");
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
    input(u"a.cnv"_s, "memory");
    input(u"b.cnv"_s, "ok");
    EXPECT_EQ(run(), lines({"out-of-memory a.cnv: The file needs more than 512 MiB of memory; see "
                            "--memory-limit.",
                            "done b.cnv: b.png"}));
}

TEST_F(ArchiveRun, ReportsACrashOfALibraryThatDoesNotCheckItsMemory)
{
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "SKIPPED: no bounds of memory under the sanitizer";
#endif
    input(u"a.cnv"_s, "memory-unasked");
    EXPECT_EQ(run(), lines({"crashed a.cnv: The import crashed twice (SIGSEGV). If a larger "
                            "--memory-limit does not help, please report the file."}));
}

TEST_F(ArchiveRun, GivesAFileUpWhoseWorkerTalksNonsense)
{
    settings.command = {u"/bin/sh"_s,
                        {u"-c"_s, u"echo +; while read job; do echo "
                                  "nonsense; done"_s}};
    input(u"a.cnv"_s, "ok");
    EXPECT_EQ(run(), lines({"crashed a.cnv: The worker process sent an invalid reply twice; please "
                            "report the file."}));
}

TEST_F(ArchiveRun, SaysWhenNoWorkerStarts)
{
    input(u"a.cnv"_s, "ok");
    for (const char* program : {"/bin/false", "/no/such/program"}) {
        SCOPED_TRACE(program);
        settings.command = {QString::fromLatin1(program), {}};
        EXPECT_EQ(run(), QStringList());
        ASSERT_EQ(warnings.size(), 1);
        EXPECT_TRUE(warnings.first().contains(u"Cannot start the worker processes"_s));
    }
}

TEST_F(ArchiveRun, ReportsTheSameForAnyNumberOfWorkers)
{
    const QList<QByteArray> contents = {"ok", "fail", "crash", "ok", "crash-once", "ok", "exit"};
    for (int number = 0; number < 28; ++number) {
        input(u"%1/%2.cnv"_s.arg(number % 3).arg(number), contents.at(number % contents.size()));
    }
    QStringList first;
    for (const int workers : {1, 2, 5}) {
        SCOPED_TRACE(workers);
        settings.workers = workers;
        settings.outputFolder = folder.path(u"out%1"_s.arg(workers));
        const QStringList reported = run();
        EXPECT_EQ(reported.size(), 28);
        first = first.isEmpty() ? reported : first;
        EXPECT_EQ(reported, first);
    }
}

// A worker that did other files before is replaced from time to time.
TEST_F(ArchiveRun, ReplacesWornWorkers)
{
    settings.workers = 1;
    constexpr int count = archive::WorkerPool::MaximumServed + 1;
    for (int number = 0; number < count; ++number) {
        input(u"%1.cnv"_s.arg(number, 4, 10, QLatin1Char('0')), "pid");
    }
    EXPECT_EQ(run().size(), count);
    const QByteArray first = output(u"0000.png"_s);
    EXPECT_EQ(output(u"%1.png"_s.arg(count - 2, 4, 10, QLatin1Char('0'))), first);
    EXPECT_NE(output(u"%1.png"_s.arg(count - 1, 4, 10, QLatin1Char('0'))), first);
}

TEST_F(ArchiveRun, WritesNeitherOfTwoFilesThatWouldBecomeOne)
{
    input(u"a.cnv"_s, "ok");
    inputs.append({inputs.first().path, u"other/a.cnv"_s, {}});
    const QStringList reported = run();
    ASSERT_EQ(reported.size(), 2);
    for (const QString& line : reported) {
        EXPECT_TRUE(line.contains(u"Another input has the same name"_s));
    }
    EXPECT_FALSE(folder.has(u"out/a.png"_s));
}

TEST_F(ArchiveRun, NeverOverwritesAForeignFile)
{
    folder.write(u"out/a.png"_s, "the user's");
    input(u"a.cnv"_s, "ok");
    const QStringList reported = run();
    EXPECT_TRUE(reported.value(0).startsWith(u"failed a.cnv: "_s));
    EXPECT_TRUE(reported.value(0).contains(u"--force"_s));
    EXPECT_EQ(output(u"a.png"_s), "the user's");
    settings.mayReplace = [](const QString&) { return true; };
    EXPECT_EQ(run(), lines({"done a.cnv: a.png"}));
}

TEST_F(ArchiveRun, DividesAnArchiveIntoParts)
{
    for (int number = 0; number < 10; ++number) {
        input(u"%1.cnv"_s.arg(number), "ok");
    }
    const QStringList whole = run();
    QStringList together;
    settings.outputFolder = folder.path(u"parts"_s);
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
    input(u"a.cnv"_s, "ok");
    settings.outputFolder = u"/proc"_s;
    EXPECT_TRUE(run().value(0).startsWith(u"Cannot write to \"/proc\": "_s));
}

} // namespace
