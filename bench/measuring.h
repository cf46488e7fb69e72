#pragma once

#include <QString>
#include <QStringList>

#include <ctime>

/// Time and memory of one piece of work.
namespace bench {

/// The processor time of this process, in seconds: other programs affect it far less than the
/// elapsed time.
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

/// The peak memory of this process, in bytes.
[[nodiscard]] qint64 peakBytes();

/// The current memory of this process, in bytes.
[[nodiscard]] qint64 currentBytes();

/// Increase of the peak memory by a piece of work, in bytes. Only the first measurement of a
/// process is meaningful, hence childOutput().
template <class Work>
[[nodiscard]] qint64 peakOf(const Work& work)
{
    const qint64 before = peakBytes();
    work();
    return peakBytes() - before;
}

/// Runs this program again with these arguments, and returns the line that it prints.
[[nodiscard]] QString childOutput(const QStringList& arguments);

} // namespace bench
