// A coordinator that is stopped or killed, and taken up again.

#include "tests/archive/test_folder.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QProcess>
#include <QThread>

#include <csignal>
#include <functional>

namespace {

/// Whether a process still runs; one that only waits to be counted does not.
bool isRunning(qint64 pid)
{
    QFile status(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!status.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray fields = status.readAll();
    return fields.mid(fields.lastIndexOf(')') + 2, 1) != "Z";
}

bool comesTrue(const std::function<bool()>& condition)
{
    constexpr qint64 patience = 60'000;
    QElapsedTimer clock;
    clock.start();
    while (!condition() && clock.elapsed() < patience) {
        QThread::msleep(5);
    }
    return condition();
}

/// Ten good files, then one that hangs.
class StoppedArchive : public ::testing::Test
{
protected:
    StoppedArchive()
    {
        for (int number = 0; number < 10; ++number) {
            folder.write(QStringLiteral("in/a%1.cnv").arg(number), "ok");
        }
        folder.write(QStringLiteral("in/b.cnv"), "hang");
    }

    void startCoordinator(QProcess& process, bool isResuming = false)
    {
        QStringList arguments = {QStringLiteral("coordinate"), folder.path(QStringLiteral("in")),
                                 folder.path(QStringLiteral("out")), QStringLiteral("2")};
        if (isResuming) {
            arguments.append(QStringLiteral("resume"));
        }
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QStringLiteral(ARCHIVE_TEST_PROGRAM), arguments);
        ASSERT_TRUE(process.waitForStarted());
    }

    /// Waits until all good files are done and the bad one is in work; its worker's number.
    qint64 waitUntilItHangs()
    {
        EXPECT_TRUE(comesTrue([this] {
            return folder.has(QStringLiteral("in/b.cnv.hanging")) && outputs().size() == 10;
        }));
        return folder.read(QStringLiteral("in/b.cnv.hanging")).toLongLong();
    }

    QStringList outputs() const
    {
        return QDir(folder.path(QStringLiteral("out"))).entryList(QDir::Files);
    }

    QStringList hidden() const
    {
        return QDir(folder.path(QStringLiteral("out")))
            .entryList({QStringLiteral(".labelport-work*")}, QDir::Dirs | QDir::Hidden);
    }

    TestFolder folder;
};

TEST_F(StoppedArchive, EndsCleanlyByASignal)
{
    for (const int number : {SIGINT, SIGTERM}) {
        QFile::remove(folder.path(QStringLiteral("in/b.cnv.hanging")));
        QProcess coordinator;
        startCoordinator(coordinator, true);
        const qint64 worker = waitUntilItHangs();
        ::kill(static_cast<pid_t>(coordinator.processId()), number);
        ASSERT_TRUE(coordinator.waitForFinished(60'000));
        EXPECT_EQ(coordinator.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(coordinator.exitCode(), 130);
        EXPECT_FALSE(isRunning(worker));
        EXPECT_EQ(hidden(), QStringList());
    }
}

TEST_F(StoppedArchive, EndsAtOnceByASecondSignal)
{
    QProcess coordinator;
    startCoordinator(coordinator);
    waitUntilItHangs();
    ::kill(static_cast<pid_t>(coordinator.processId()), SIGINT);
    ::kill(static_cast<pid_t>(coordinator.processId()), SIGTERM);
    ASSERT_TRUE(coordinator.waitForFinished(60'000));
    EXPECT_EQ(coordinator.exitCode(), 130);
}

TEST_F(StoppedArchive, LeavesNoWorkerBehindWhenItIsKilled)
{
    QProcess coordinator;
    startCoordinator(coordinator);
    const qint64 worker = waitUntilItHangs();
    coordinator.kill();
    ASSERT_TRUE(coordinator.waitForFinished(60'000));
    EXPECT_TRUE(comesTrue([&] { return !isRunning(worker); }));
}

TEST_F(StoppedArchive, IsTakenUpAgainAfterItWasKilled)
{
    {
        QProcess coordinator;
        startCoordinator(coordinator);
        waitUntilItHangs();
        coordinator.kill();
        ASSERT_TRUE(coordinator.waitForFinished(60'000));
    }
    EXPECT_EQ(hidden().size(), 1);
    folder.write(QStringLiteral("in/b.cnv"), "ok now");
    QProcess again;
    startCoordinator(again, true);
    ASSERT_TRUE(again.waitForFinished(60'000));
    EXPECT_EQ(again.exitCode(), 0);
    EXPECT_EQ(QString::fromLocal8Bit(again.readAllStandardOutput()),
              folder.path(QStringLiteral("out/b.png")) + QLatin1Char('\n'));
    EXPECT_EQ(outputs().size(), 11);
    EXPECT_EQ(hidden(), QStringList());
}

TEST_F(StoppedArchive, TriesAFileAgainWhoseWorkerIsKilled)
{
    QProcess coordinator;
    startCoordinator(coordinator);
    const qint64 worker = waitUntilItHangs();
    folder.write(QStringLiteral("in/b.cnv"), "ok now");
    ::kill(static_cast<pid_t>(worker), SIGKILL);
    ASSERT_TRUE(coordinator.waitForFinished(60'000));
    EXPECT_EQ(coordinator.exitCode(), 0);
    EXPECT_EQ(folder.read(QStringLiteral("out/b.png")), "ok now");
}

} // namespace
