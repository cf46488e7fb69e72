#include "archive/stop_signals.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace archive {
namespace {

constexpr std::array Signals{SIGINT, SIGTERM, SIGHUP};

std::array<int, 2> pipeEnds{-1, -1};

extern "C" void wakeUp(int)
{
    const int before = errno;
    const char byte = 's';
    // If the pipe is full, the program has already been notified.
    [[maybe_unused]] const ssize_t written = ::write(pipeEnds[1], &byte, 1);
    errno = before;
}

} // namespace

StopSignals::StopSignals()
{
    if (::pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return; // signals end the program by default
    }
    m_notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &StopSignals::noteSignal);
    for (const int number : Signals) {
        // A signal that the parent process ignores, as nohup does, stays ignored.
        if (std::signal(number, &wakeUp) == SIG_IGN) {
            std::signal(number, SIG_IGN);
        }
    }
}

StopSignals::~StopSignals()
{
    for (const int number : Signals) {
        if (std::signal(number, SIG_DFL) == SIG_IGN) {
            std::signal(number, SIG_IGN);
        }
    }
    delete m_notifier;
    for (int& end : pipeEnds) {
        if (end >= 0) {
            ::close(end);
            end = -1;
        }
    }
}

void StopSignals::noteSignal()
{
    std::array<char, 64> bytes{};
    ssize_t count = ::read(pipeEnds[0], bytes.data(), bytes.size());
    for (; count > 0; --count) {
        Q_EMIT stopRequested(++m_times);
    }
}

} // namespace archive
