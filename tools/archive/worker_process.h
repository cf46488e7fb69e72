#pragma once

#include "archive/worker_end.h"

#include <QByteArray>
#include <QObject>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <optional>

namespace archive {

/// How a worker is started.
struct WorkerCommand
{
    QString program;
    QStringList arguments;
};

/// One worker: a process of its own that confines itself, is given one file at a time, as a line on
/// its standard input, and answers with a line on its standard output. A line that begins with "+"
/// is a heartbeat: once when it is ready, with the active parts of its sandbox; then after each
/// step.
///
/// The process is killed when this object is deleted, and when the program ends in any way.
class WorkerProcess final : public QObject
{
    Q_OBJECT

public:
    WorkerProcess(const WorkerCommand& command, const WorkerLimits& limits);
    ~WorkerProcess() override;

    /// @param line the first line for the worker, from lineOf(WorkerStart)
    void start(const QByteArray& line);
    /// Sends a job; the worker must be idle.
    void give(const QByteArray& line);
    /// Lets an idle worker exit.
    void dismiss();

    [[nodiscard]] bool isReady() const { return m_state != State::Starting; }
    [[nodiscard]] bool isIdle() const { return m_state == State::Idle; }
    [[nodiscard]] bool isBusy() const { return m_state == State::Busy; }
    /// The number of files for which it has replied.
    [[nodiscard]] int served() const { return m_served; }
    [[nodiscard]] qint64 processId() const { return m_process.processId(); }

Q_SIGNALS:
    /// The worker can take its first job; these parts of its sandbox are active.
    void ready(const sandbox::Confinement& confinement);
    /// The reply to the job. The worker is idle again.
    void answered(const QByteArray& line);
    /// The process has ended, busy or not. No other signal follows.
    void ended(const archive::WorkerEnd& end);

private:
    enum class State { Starting, Idle, Busy, Gone };

    void readLines();
    void take(const QByteArray& line);
    void noteTimeout();
    void kill(WorkerEnd::Kind reason);
    void noteEnd(int code, QProcess::ExitStatus status);
    void noteError(QProcess::ProcessError error);
    void end(const WorkerEnd& end);
    void startClock();

    WorkerLimits m_limits;
    QProcess m_process;
    QTimer m_clock;
    QByteArray m_unread;
    State m_state = State::Starting;
    std::optional<WorkerEnd::Kind> m_killedFor;
    int m_served = 0;
};

} // namespace archive
