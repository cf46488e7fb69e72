// A coordinator that is stopped or killed, and taken up again.

#include "tests/archive/test_folder.h"

#include <QProcess>

#include <csignal>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
using namespace Qt::StringLiterals;

constexpr int PatienceMilliseconds = 60'000;

/// A pipe by which a worker that hangs gives its number. It ends when the worker does.
class WorkerPipe
{
public:
    explicit WorkerPipe(const QString& path)
    {
        const QByteArray name = QFile::encodeName(path);
        EXPECT_EQ(::mkfifo(name.constData(), 0600), 0);
        m_end = ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    }
    ~WorkerPipe() { ::close(m_end); }
    WorkerPipe(const WorkerPipe&) = delete;
    WorkerPipe& operator=(const WorkerPipe&) = delete;

    /// The number of the worker that hangs now; 0 when none comes.
    [[nodiscard]] qint64 waitForWorker() const
    {
        char number[32];
        const ssize_t size =
            happens(POLLIN, PatienceMilliseconds) ? ::read(m_end, number, sizeof number) : 0;
        return QByteArray(number, qMax<ssize_t>(size, 0)).toLongLong();
    }
    /// Whether the worker ends within this time.
    [[nodiscard]] bool ends(int milliseconds) const { return happens(POLLHUP, milliseconds); }

private:
    [[nodiscard]] bool happens(short event, int milliseconds) const
    {
        pollfd end{m_end, event, 0};
        return ::poll(&end, 1, milliseconds) == 1 && (end.revents & event) != 0;
    }

    int m_end;
};

/// Ten good files, then one that hangs.
class StoppedArchive : public ::testing::Test
{
protected:
    StoppedArchive()
    {
        for (int number = 0; number < 10; ++number) {
            folder.write(u"in/a%1.cnv"_s.arg(number), "ok");
        }
    }

    void startCoordinator(QProcess& process, bool isResuming = false)
    {
        QStringList arguments = {u"coordinate"_s, folder.path(u"in"_s), folder.path(u"out"_s),
                                 u"2"_s};
        if (isResuming) {
            arguments.append(u"resume"_s);
        }
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QStringLiteral(ARCHIVE_TEST_PROGRAM), arguments);
        ASSERT_TRUE(process.waitForStarted());
    }

    /// Waits until all good files are done and the bad one is in work; its worker's number.
    qint64 waitUntilItHangs(QProcess& coordinator)
    {
        while (outputs().size() < 10) {
            // It prints a line when an output is there.
            if (!coordinator.waitForReadyRead(PatienceMilliseconds)) {
                ADD_FAILURE() << "only " << outputs().size() << " outputs";
                break;
            }
        }
        return worker.waitForWorker();
    }

    QStringList outputs() const { return QDir(folder.path(u"out"_s)).entryList(QDir::Files); }

    QStringList hidden() const
    {
        return QDir(folder.path(u"out"_s))
            .entryList({u".labelport-work*"_s}, QDir::Dirs | QDir::Hidden);
    }

    TestFolder folder;
    const QString badFile = folder.write(u"in/b.cnv"_s, "hang");
    WorkerPipe worker{badFile + u".hanging"_s};
};

class StoppingSignal : public StoppedArchive, public testing::WithParamInterface<int>
{};
INSTANTIATE_TEST_SUITE_P(Signals, StoppingSignal, testing::Values(SIGINT, SIGTERM));

TEST_P(StoppingSignal, EndsItCleanly)
{
    QProcess coordinator;
    startCoordinator(coordinator);
    ASSERT_GT(waitUntilItHangs(coordinator), 0);
    ::kill(static_cast<pid_t>(coordinator.processId()), GetParam());
    ASSERT_TRUE(coordinator.waitForFinished(PatienceMilliseconds));
    EXPECT_EQ(coordinator.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(coordinator.exitCode(), 130);
    EXPECT_TRUE(worker.ends(0));
    EXPECT_EQ(hidden(), QStringList());
}

TEST_F(StoppedArchive, EndsAtOnceByASecondSignal)
{
    QProcess coordinator;
    startCoordinator(coordinator);
    ASSERT_GT(waitUntilItHangs(coordinator), 0);
    ::kill(static_cast<pid_t>(coordinator.processId()), SIGINT);
    ::kill(static_cast<pid_t>(coordinator.processId()), SIGTERM);
    ASSERT_TRUE(coordinator.waitForFinished(PatienceMilliseconds));
    EXPECT_EQ(coordinator.exitCode(), 130);
}

TEST_F(StoppedArchive, LeavesNoWorkerBehindWhenItIsKilled)
{
    QProcess coordinator;
    startCoordinator(coordinator);
    ASSERT_GT(waitUntilItHangs(coordinator), 0);
    coordinator.kill();
    ASSERT_TRUE(coordinator.waitForFinished(PatienceMilliseconds));
    EXPECT_TRUE(worker.ends(PatienceMilliseconds));
}

TEST_F(StoppedArchive, IsTakenUpAgainAfterItWasKilled)
{
    {
        QProcess coordinator;
        startCoordinator(coordinator);
        ASSERT_GT(waitUntilItHangs(coordinator), 0);
        coordinator.kill();
        ASSERT_TRUE(coordinator.waitForFinished(PatienceMilliseconds));
    }
    EXPECT_EQ(hidden().size(), 1);
    folder.write(u"in/b.cnv"_s, "ok now");
    QProcess again;
    startCoordinator(again, true);
    ASSERT_TRUE(again.waitForFinished(PatienceMilliseconds));
    EXPECT_EQ(again.exitCode(), 0);
    EXPECT_EQ(QString::fromLocal8Bit(again.readAllStandardOutput()),
              folder.path(u"out/b.png"_s) + u'\n');
    EXPECT_EQ(outputs().size(), 11);
    EXPECT_EQ(hidden(), QStringList());
}

TEST_F(StoppedArchive, TriesAFileAgainWhoseWorkerIsKilled)
{
    QProcess coordinator;
    startCoordinator(coordinator);
    const qint64 pid = waitUntilItHangs(coordinator);
    ASSERT_GT(pid, 0);
    folder.write(u"in/b.cnv"_s, "ok now");
    ::kill(static_cast<pid_t>(pid), SIGKILL);
    ASSERT_TRUE(coordinator.waitForFinished(PatienceMilliseconds));
    EXPECT_EQ(coordinator.exitCode(), 0);
    EXPECT_EQ(folder.read(u"out/b.png"_s), "ok now");
}

} // namespace
