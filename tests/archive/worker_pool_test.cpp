// How a pool treats its workers.

#include "archive/messages.h"
#include "archive/worker_pool.h"
#include "tests/archive/test_folder.h"

#include <QEventLoop>

namespace {

/// Files one after the other for one worker, who tells the number of its process each time.
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

    QByteArray lineFor(qsizetype task, int slot) override
    {
        EXPECT_EQ(slot, 0);
        archive::Job job;
        job.file = m_folder.write(QStringLiteral("%1.cnv").arg(task), "pid");
        job.staging = m_folder.path();
        job.outputs = {{QStringLiteral("png"), QStringLiteral("unused")}};
        return archive::lineOf(job);
    }

    qint64 taskAnswered(qsizetype task, const QByteArray& line) override
    {
        EXPECT_TRUE(archive::resultFromLine(line));
        workers.append(m_folder.read(QStringLiteral("staged.png")));
        return archive::WorkerPool::MaximumMemory - (task == wornAfter ? 0 : 1);
    }

    void taskDied(qsizetype, const archive::WorkerDeath&) override { ADD_FAILURE(); }

    QList<QByteArray> workers;
    qsizetype wornAfter = -1;

private:
    TestFolder m_folder;
    qsizetype m_count;
    qsizetype m_next = 0;
};

void run(Client& client)
{
    archive::WorkerPool pool(
        client,
        {QStringLiteral(ARCHIVE_TEST_PROGRAM), {QStringLiteral("worker"), QStringLiteral("512")}},
        {}, 1);
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
    client.wornAfter = 1;
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

TEST(WorkerDeath, IsPutIntoWords)
{
    const archive::WorkerLimits limits{7, 300};
    const auto words = [&](archive::WorkerDeath::Kind kind, int code) {
        return archive::wordsFor({kind, code}, limits);
    };
    EXPECT_TRUE(words(archive::WorkerDeath::TimedOut, 9).contains(QStringLiteral("7 seconds")));
    EXPECT_TRUE(words(archive::WorkerDeath::Exited, archive::WorkerExitOutOfMemory)
                    .contains(QStringLiteral("300 MiB")));
    EXPECT_TRUE(words(archive::WorkerDeath::Signalled, 11).contains(QStringLiteral("SIGSEGV")));
    EXPECT_TRUE(words(archive::WorkerDeath::Signalled, 9).contains(QStringLiteral("killed")));
    EXPECT_TRUE(words(archive::WorkerDeath::Exited, 5).contains(QStringLiteral("status 5")));
}

TEST(WorkerDeath, DecidesAboutItsFile)
{
    using Death = archive::WorkerDeath;
    EXPECT_EQ(archive::fateOf({Death::TimedOut, 9}), archive::Fate::TimedOut);
    EXPECT_EQ(archive::fateOf({Death::Exited, archive::WorkerExitOutOfMemory}),
              archive::Fate::OutOfMemory);
    EXPECT_EQ(archive::fateOf({Death::Exited, 0}), archive::Fate::Crashed);
    EXPECT_EQ(archive::fateOf({Death::Signalled, 11}), archive::Fate::Crashed);
    EXPECT_EQ(archive::fateOf({Death::Garbled, 0}), archive::Fate::Crashed);
    EXPECT_FALSE((Death{Death::TimedOut, 9}.deservesAnotherTry()));
    EXPECT_TRUE((Death{Death::Signalled, 11}.deservesAnotherTry()));
}

} // namespace
