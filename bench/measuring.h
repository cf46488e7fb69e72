#pragma once

#include <QString>
#include <QStringList>

#include <ctime>

/// Time and memory of one piece of work.
namespace bench {

/// The processor time of this process, in seconds: what other programs do meanwhile disturbs
/// it far less than the time on the clock.
[[nodiscard]] inline double processSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

template <class Work>
[[nodiscard]] double secondsOf(const Work& work)
{
    const double start = processSeconds();
    work();
    return processSeconds() - start;
}

/// The most memory that this process has had at once, in bytes.
[[nodiscard]] qint64 peakBytes();

/// The memory that this process has now, in bytes.
[[nodiscard]] qint64 currentBytes();

/// By how much a piece of work raises the peak, in bytes. Only the first such measurement of a
/// process means anything, hence childOutput().
template <class Work>
[[nodiscard]] qint64 peakOf(const Work& work)
{
    const qint64 before = peakBytes();
    work();
    return peakBytes() - before;
}

/// Runs this program again with these arguments, and gives the line that it prints.
[[nodiscard]] QString childOutput(const QStringList& arguments);

} // namespace bench
