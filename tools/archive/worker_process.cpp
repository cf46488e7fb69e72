#include "archive/worker_process.h"

#include "archive/messages.h"

#include <chrono>
#include <csignal>

#include <sys/prctl.h>
#include <unistd.h>

namespace archive {
namespace {

/// Starting depends on the load of the machine, not on the file.
constexpr int StartSeconds = 120;

/// Runs in the new process before its program: only what is safe between fork and exec.
void bindToParent(pid_t parent)
{
    // A signal from the terminal is for the coordinator, which stops its workers.
    ::setpgid(0, 0);
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent) {
        ::_exit(WorkerExitBroken);
    }
}

} // namespace

void startTimerInRealTime(QTimer& timer, int seconds)
{
    timer.start(std::chrono::seconds(seconds));
}

WorkerProcess::WorkerProcess(const WorkerCommand& command, const WorkerLimits& limits)
    : m_limits(limits)
{
    m_process.setProgram(command.program);
    m_process.setArguments(command.arguments);
    // Output of libraries goes to standard error, as in one process.
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.setChildProcessModifier([parent = ::getpid()] { bindToParent(parent); });
    m_clock.setSingleShot(true);
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &WorkerProcess::readLines);
    connect(&m_process, &QProcess::finished, this, &WorkerProcess::noteEnd);
    connect(&m_process, &QProcess::errorOccurred, this, &WorkerProcess::noteError);
    connect(&m_clock, &QTimer::timeout, this, &WorkerProcess::noteTimeout);
}

WorkerProcess::~WorkerProcess()
{
    m_process.disconnect(this);
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

void WorkerProcess::start(const QByteArray& line)
{
    m_process.start();
    m_process.write(line);
    m_limits.startTimer(m_clock, StartSeconds);
}

void WorkerProcess::give(const QByteArray& line)
{
    m_state = State::Busy;
    startClock();
    m_process.write(line);
}

void WorkerProcess::dismiss()
{
    m_state = State::Gone;
    m_process.closeWriteChannel();
}

void WorkerProcess::startClock()
{
    if (m_limits.timeoutSeconds > 0) {
        m_limits.startTimer(m_clock, m_limits.timeoutSeconds);
    } else {
        m_clock.stop();
    }
}

void WorkerProcess::readLines()
{
    const qsizetype searched = m_unread.size();
    m_unread += m_process.readAllStandardOutput();
    qsizetype begin = 0;
    for (qsizetype end = m_unread.indexOf('\n', searched); end >= 0;
         end = m_unread.indexOf('\n', begin)) {
        const QByteArray line = m_unread.mid(begin, end - begin);
        begin = end + 1;
        take(line);
    }
    m_unread.remove(0, begin);
    if (m_unread.size() > MaximumLine) {
        kill(WorkerEnd::Garbled);
    }
}

void WorkerProcess::take(const QByteArray& line)
{
    if (m_state == State::Starting) {
        m_state = State::Idle;
        m_clock.stop();
        const QStringList codes = QString::fromLatin1(line).split(u' ');
        Q_EMIT ready(sandbox::confinementOf(codes));
    } else if (m_state == State::Busy && line == "+") {
        startClock();
    } else if (m_state == State::Busy) {
        m_clock.stop();
        m_state = State::Idle;
        ++m_served;
        Q_EMIT answered(line);
    }
}

void WorkerProcess::noteTimeout()
{
    // If this program was stopped for a while, an answer may be in the pipe.
    m_process.waitForReadyRead(0);
    const bool hasReplied = m_state == State::Idle;
    const bool isRunning = m_clock.isActive();
    if (!hasReplied && !isRunning) {
        kill(m_state == State::Starting ? WorkerEnd::NotStarted : WorkerEnd::TimedOut);
    }
}

void WorkerProcess::kill(WorkerEnd::Kind reason)
{
    if (!m_killedFor) {
        m_killedFor = reason;
        m_process.kill();
    }
}

void WorkerProcess::noteEnd(int code, QProcess::ExitStatus status)
{
    readLines(); // it may have answered before it ended
    if (m_killedFor) {
        end({*m_killedFor, code});
    } else {
        end({status == QProcess::CrashExit ? WorkerEnd::Signaled : WorkerEnd::Exited, code});
    }
}

void WorkerProcess::noteError(QProcess::ProcessError error)
{
    if (error == QProcess::FailedToStart) {
        end({WorkerEnd::NotStarted, 0});
    }
}

void WorkerProcess::end(const WorkerEnd& end)
{
    m_clock.stop();
    Q_EMIT ended(end);
}

} // namespace archive
