#pragma once

#include "archive/worker_process.h"

#include <QObject>

#include <deque>
#include <memory>
#include <optional>
#include <vector>

namespace archive {

/// The source of a pool's tasks.
class PoolClient
{
public:
    virtual ~PoolClient() = default;

    /// The next task, if one can be started now. Called again whenever a worker becomes idle.
    [[nodiscard]] virtual std::optional<qsizetype> nextTask() = 0;
    /// The line that the worker of a slot (counted from 0) receives before its first job.
    [[nodiscard]] virtual QByteArray startLineFor(int slot) = 0;
    /// A worker has started, with these active parts of its sandbox.
    virtual void workerStarted(const sandbox::Confinement& confinement) = 0;
    /// The job of a task for the worker of a slot. Called twice for a task that is tried again.
    [[nodiscard]] virtual QByteArray lineFor(qsizetype task, int slot) = 0;
    /// @return the memory that the worker holds by its own account, in bytes
    virtual qint64 taskAnswered(qsizetype task, const QByteArray& line) = 0;
    /// The worker of the task ended, and the task is not tried again.
    virtual void taskFailed(qsizetype task, const WorkerEnd& end) = 0;
};

/// Hands tasks to worker processes, one at a time each, and replaces those that exit.
///
/// A task whose worker dies is tried once more by a new worker, so that neither a signal from
/// outside nor an earlier file decides whether a file is imported. A task that exceeds the time
/// limit is not tried again.
class WorkerPool final : public QObject
{
    Q_OBJECT

public:
    /// Files after which a worker is replaced, so that no leak grows.
    static constexpr int MaximumServed = 400;
    /// Memory at which a worker is replaced earlier, in bytes.
    static constexpr qint64 MaximumMemory = 512LL * 1024 * 1024;

    /// @param count  most workers at a time; no more are started than there are tasks
    WorkerPool(PoolClient& client, const WorkerCommand& command, const WorkerLimits& limits,
               int count);
    ~WorkerPool() override;

    /// Starts the workers; emits drained() or broken() later.
    void start();
    /// Starts no further task; current tasks are finished.
    void stopTaking();

Q_SIGNALS:
    /// All tasks are finished.
    void drained();
    /// Workers cannot be started.
    void broken();

private:
    struct Slot
    {
        std::unique_ptr<WorkerProcess> worker;
        std::optional<qsizetype> task;
        bool isSecondTry = false;
    };

    void fill(std::size_t slot);
    void feedAll();
    void feed(std::size_t slot);
    void hand(std::size_t slot, qsizetype task, bool isSecondTry);
    void handleReply(std::size_t slot, const QByteArray& line);
    void noteEnd(std::size_t slot, const WorkerEnd& end);
    void recycle(std::size_t slot);
    void noteIfDrained();

    PoolClient& m_client;
    WorkerCommand m_command;
    WorkerLimits m_limits;
    std::vector<Slot> m_slots;
    std::vector<std::unique_ptr<WorkerProcess>> m_leaving;
    std::deque<qsizetype> m_secondTries;
    std::deque<qsizetype> m_begun; ///< taken from the client before there was a worker for it
    int m_failedStarts = 0;
    bool m_isStopping = false;
    bool m_isOver = false;
};

} // namespace archive
