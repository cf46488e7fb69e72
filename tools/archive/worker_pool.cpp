#include "archive/worker_pool.h"

#include <algorithm>

namespace archive {
namespace {

/// After this many failed starts in a row, the pool is broken.
constexpr int ToleratedFailedStarts = 4;

} // namespace

WorkerPool::WorkerPool(PoolClient& client, const WorkerCommand& command, const WorkerLimits& limits,
                       int count)
    : m_client(client)
    , m_command(command)
    , m_limits(limits)
    , m_slots(static_cast<std::size_t>(std::max(count, 1)))
{}

WorkerPool::~WorkerPool() = default;

void WorkerPool::start()
{
    for (std::size_t slot = 0; slot < m_slots.size(); ++slot) {
        const std::optional<qsizetype> task = m_client.nextTask();
        if (!task) {
            break;
        }
        m_begun.push_back(*task);
        fill(slot);
    }
    noteIfDrained();
}

void WorkerPool::stopTaking()
{
    m_isStopping = true;
    m_begun.clear();
    m_secondTries.clear();
    noteIfDrained();
}

void WorkerPool::fill(std::size_t slot)
{
    auto worker = std::make_unique<WorkerProcess>(m_command, m_limits);
    connect(worker.get(), &WorkerProcess::ready, this,
            [this, slot](const sandbox::Confinement& confinement) {
                m_failedStarts = 0;
                m_client.workerStarted(confinement);
                feed(slot);
            });
    connect(worker.get(), &WorkerProcess::answered, this,
            [this, slot](const QByteArray& line) { handleReply(slot, line); });
    // Queued, because the worker is deleted, which it must not be while it emits.
    connect(
        worker.get(), &WorkerProcess::ended, this,
        [this, slot](const WorkerEnd& end) { noteEnd(slot, end); }, Qt::QueuedConnection);
    m_slots[slot].worker = std::move(worker);
    m_slots[slot].worker->start(m_client.startLineFor(static_cast<int>(slot)));
}

void WorkerPool::feedAll()
{
    for (std::size_t slot = 0; slot < m_slots.size(); ++slot) {
        feed(slot);
    }
    noteIfDrained();
}

void WorkerPool::feed(std::size_t slot)
{
    const WorkerProcess* worker = m_slots[slot].worker.get();
    if (m_isOver || worker == nullptr || !worker->isIdle()) {
        return;
    }
    const auto takeFirst = [](std::deque<qsizetype>& tasks) {
        const qsizetype task = tasks.front();
        tasks.pop_front();
        return task;
    };
    if (!m_secondTries.empty() && worker->served() == 0) {
        hand(slot, takeFirst(m_secondTries), true);
    } else if (!m_begun.empty()) {
        hand(slot, takeFirst(m_begun), false);
    } else if (!m_isStopping) {
        if (const std::optional<qsizetype> task = m_client.nextTask()) {
            hand(slot, *task, false);
        }
    }
}

void WorkerPool::hand(std::size_t slot, qsizetype task, bool isSecondTry)
{
    Slot& entry = m_slots[slot];
    entry.task = task;
    entry.isSecondTry = isSecondTry;
    entry.worker->give(m_client.lineFor(task, static_cast<int>(slot)));
}

void WorkerPool::handleReply(std::size_t slot, const QByteArray& line)
{
    const qsizetype task = *m_slots[slot].task;
    m_slots[slot].task.reset();
    const qint64 memory = m_client.taskAnswered(task, line);
    const bool needsReplacement =
        m_slots[slot].worker->served() >= MaximumServed || memory >= MaximumMemory;
    if (needsReplacement && !m_isStopping) {
        recycle(slot);
    }
    feedAll();
}

void WorkerPool::noteEnd(std::size_t slot, const WorkerEnd& end)
{
    Slot& entry = m_slots[slot];
    const bool wasReady = entry.worker->isReady();
    const std::optional<qsizetype> task = std::exchange(entry.task, std::nullopt);
    const bool wasSecondTry = entry.isSecondTry;
    entry.worker.reset();

    if (task && !wasSecondTry && end.mayBeRetried() && !m_isStopping) {
        m_secondTries.push_back(*task);
    } else if (task && !m_isStopping) {
        m_client.taskFailed(*task, end);
    }
    m_failedStarts += wasReady ? 0 : 1;
    if (m_failedStarts >= ToleratedFailedStarts) {
        m_isOver = true;
        Q_EMIT broken();
        return;
    }
    if (!m_isStopping) {
        fill(slot);
    }
    feedAll();
}

void WorkerPool::recycle(std::size_t slot)
{
    std::erase_if(m_leaving, [](const auto& worker) { return worker->processId() == 0; });
    m_leaving.push_back(std::move(m_slots[slot].worker));
    m_leaving.back()->disconnect(this);
    m_leaving.back()->dismiss();
    fill(slot);
}

void WorkerPool::noteIfDrained()
{
    const bool isAtWork = std::any_of(m_slots.begin(), m_slots.end(),
                                      [](const Slot& slot) { return slot.task.has_value(); });
    const bool isWaiting = !m_begun.empty() || !m_secondTries.empty();
    if (isAtWork || isWaiting || m_isOver) {
        return;
    }
    // There may be another task that waits for a worker to start.
    const std::optional<qsizetype> task = m_isStopping ? std::nullopt : m_client.nextTask();
    if (task) {
        m_begun.push_back(*task);
    } else {
        m_isOver = true;
        // Queued, so that it is not emitted within start().
        QMetaObject::invokeMethod(this, &WorkerPool::drained, Qt::QueuedConnection);
    }
}

} // namespace archive
