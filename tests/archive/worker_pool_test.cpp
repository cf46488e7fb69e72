// How a pool treats its workers.

#include "archive/messages.h"
#include "archive/worker_pool.h"
#include "tests/archive/test_folder.h"

#include <QEventLoop>

#include <csignal>

namespace {
using namespace Qt::StringLiterals;

/// Files one after the other for one worker, which reports its process id each time.
class Client final : public archive::PoolClient
{
public:
    explicit Client(int count)
        : m_count(count)
    {}

    std::optional<qsizetype> nextTask() override
    {
        return m_next < m_count ? std::optional<qsizetype>(m_next++) : std::nullopt;
    }

    QByteArray startLineFor(int) override { return archive::lineOf(archive::WorkerStart{}); }
    void workerStarted(const sandbox::Confinement&) override {}

    QByteArray lineFor(qsizetype task, int slot) override
    {
        EXPECT_EQ(slot, 0);
        archive::Job job;
        job.file = m_folder.write(u"%1.cnv"_s.arg(task), "pid");
        job.staging = m_folder.path();
        job.outputs = {{u"png"_s, u"unused"_s}};
        return archive::lineOf(job);
    }

    qint64 taskAnswered(qsizetype task, const QByteArray& line) override
    {
        EXPECT_TRUE(archive::resultFromLine(line));
        workers.append(m_folder.read(u"staged.png"_s));
        return archive::WorkerPool::MaximumMemory - (task == replacedAfter ? 0 : 1);
    }

    void taskFailed(qsizetype, const archive::WorkerEnd&) override { ADD_FAILURE(); }

    QList<QByteArray> workers;
    qsizetype replacedAfter = -1;

private:
    TestFolder m_folder;
    qsizetype m_count;
    qsizetype m_next = 0;
};

void run(Client& client)
{
    archive::WorkerPool pool(
        client, {QStringLiteral(ARCHIVE_TEST_PROGRAM), {u"worker"_s, u"512"_s}}, {}, 1);
    QEventLoop loop;
    QObject::connect(&pool, &archive::WorkerPool::drained, &loop, &QEventLoop::quit,
                     Qt::QueuedConnection);
    pool.start();
    loop.exec();
}

TEST(WorkerPool, KeepsAWorkerThatIsWell)
{
    Client client(5);
    run(client);
    EXPECT_EQ(client.workers, QList<QByteArray>(5, client.workers.value(0)));
}

TEST(WorkerPool, ReplacesAWorkerWhoseMemoryHasGrown)
{
    Client client(4);
    client.replacedAfter = 1;
    run(client);
    ASSERT_EQ(client.workers.size(), 4);
    EXPECT_EQ(client.workers.at(0), client.workers.at(1));
    EXPECT_NE(client.workers.at(1), client.workers.at(2));
    EXPECT_EQ(client.workers.at(2), client.workers.at(3));
}

TEST(WorkerPool, IsDoneAtOnceWithoutTasks)
{
    Client client(0);
    run(client);
    EXPECT_TRUE(client.workers.isEmpty());
}

TEST(WorkerEnd, HasAMessage)
{
    const archive::WorkerLimits limits{7, 300};
    const auto words = [&](archive::WorkerEnd::Kind kind, int code) {
        return archive::messageFor({kind, code}, limits);
    };
    EXPECT_TRUE(words(archive::WorkerEnd::TimedOut, 9).contains(u"7 second"_s));
    EXPECT_TRUE(
        words(archive::WorkerEnd::Exited, archive::WorkerExitOutOfMemory).contains(u"300 MiB"_s));
    EXPECT_TRUE(words(archive::WorkerEnd::Signaled, 11).contains(u"SIGSEGV"_s));
    EXPECT_TRUE(words(archive::WorkerEnd::Signaled, 9).contains(u"killed"_s));
    EXPECT_TRUE(words(archive::WorkerEnd::Signaled, SIGSYS).contains(u"sandbox"_s));
    EXPECT_TRUE(words(archive::WorkerEnd::Exited, 5).contains(u"status 5"_s));
}

TEST(WorkerEnd, DecidesTheOutcome)
{
    using End = archive::WorkerEnd;
    EXPECT_EQ(archive::outcomeOf({End::TimedOut, 9}), archive::FileOutcome::TimedOut);
    EXPECT_EQ(archive::outcomeOf({End::Exited, archive::WorkerExitOutOfMemory}),
              archive::FileOutcome::OutOfMemory);
    EXPECT_EQ(archive::outcomeOf({End::Exited, 0}), archive::FileOutcome::Crashed);
    EXPECT_EQ(archive::outcomeOf({End::Signaled, 11}), archive::FileOutcome::Crashed);
    EXPECT_EQ(archive::outcomeOf({End::Garbled, 0}), archive::FileOutcome::Crashed);
    EXPECT_FALSE((End{End::TimedOut, 9}.mayBeRetried()));
    EXPECT_TRUE((End{End::Signaled, 11}.mayBeRetried()));
}

} // namespace
