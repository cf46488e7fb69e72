#include "cli/worker_jobs.h"

#include "archive/worker_pool.h"
#include "cli/import_worker.h"
#include "sandbox/readable_paths.h"

#include <QCoreApplication>
#include <QEventLoop>

namespace cli {
namespace {

class Jobs final : public archive::PoolClient
{
public:
    Jobs(const QList<archive::Job>& jobs, const archive::WorkerLimits& limits,
         const archive::WorkerStart& start)
        : m_start(start)
        , m_jobs(jobs)
        , m_limits(limits)
        , m_results(jobs.size())
    {
        for (archive::FileResult& result : m_results) {
            result.errors = {QCoreApplication::translate("cli::InspectCommand",
                                                         "Cannot start the worker process.")};
        }
    }

    [[nodiscard]] const QList<archive::FileResult>& results() const { return m_results; }

    std::optional<qsizetype> nextTask() override
    {
        return m_taken < m_jobs.size() ? std::optional(m_taken++) : std::nullopt;
    }

    QByteArray startLineFor(int) override { return archive::lineOf(m_start); }
    void workerStarted(const sandbox::Confinement&) override {}

    QByteArray lineFor(qsizetype task, int) override { return archive::lineOf(m_jobs.at(task)); }

    qint64 taskAnswered(qsizetype task, const QByteArray& line) override
    {
        std::optional<archive::FileResult> result = archive::resultFromLine(line);
        if (!result) {
            taskFailed(task, {archive::WorkerEnd::Garbled, 0});
            return 0;
        }
        archive::nameMemoryLimit(*result, m_limits);
        m_results[task] = *result;
        return result->memory;
    }

    void taskFailed(qsizetype task, const archive::WorkerEnd& end) override
    {
        m_results[task].outcome = archive::outcomeOf(end);
        m_results[task].errors = QStringList{archive::messageFor(end, m_limits)};
    }

private:
    const archive::WorkerStart& m_start;
    const QList<archive::Job>& m_jobs;
    const archive::WorkerLimits& m_limits;
    QList<archive::FileResult> m_results;
    qsizetype m_taken = 0;
};

} // namespace

QList<archive::FileResult> runJobs(const QList<archive::Job>& jobs,
                                   const archive::WorkerLimits& limits, int workers,
                                   const archive::WorkerStart& start)
{
    Jobs client(jobs, limits, start);
    QEventLoop loop;
    archive::WorkerPool pool(client, workerCommand(limits.memoryMiB), limits, workers);
    for (const auto end : {&archive::WorkerPool::drained, &archive::WorkerPool::broken}) {
        QObject::connect(&pool, end, &loop, &QEventLoop::quit, Qt::QueuedConnection);
    }
    pool.start();
    loop.exec();
    return client.results();
}

sandbox::Permissions permissionsFor(const QStringList& files, const QString& folder)
{
    sandbox::ReadablePaths readable;
    for (const QString& file : files) {
        readable.addFile(file);
    }
    return {readable.paths(), folder.isEmpty() ? QStringList() : QStringList{folder}};
}

} // namespace cli
