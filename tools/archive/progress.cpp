#include "archive/progress.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <cstdio>

#include <sys/ioctl.h>
#include <unistd.h>

namespace archive {
namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("archive::Progress", text);
}

QString bar(double share, int width)
{
    const int full = static_cast<int>(share * width);
    return QLatin1Char('[') + QString(full, QLatin1Char('#')) +
           QString(width - full, QLatin1Char('.')) + QLatin1Char(']');
}

/// Files that this command did itself per second; what was skipped took no time.
double rateOf(const Progress& progress)
{
    const qint64 worked = progress.done - progress.skipped;
    return progress.milliseconds > 0
               ? 1000.0 * static_cast<double>(worked) / static_cast<double>(progress.milliseconds)
               : 0.0;
}

int terminalColumns()
{
    winsize size{};
    const bool isKnown = ::ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return isKnown ? size.ws_col : 80;
}

void write(const QString& text)
{
    const QByteArray bytes = text.toLocal8Bit();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
    std::fflush(stderr);
}

} // namespace

QString durationText(qint64 seconds)
{
    const auto twoDigits = [](qint64 number) {
        return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
    };
    const qint64 minutes = seconds / 60;
    const QString tail = QLatin1Char(':') + twoDigits(seconds % 60);
    return minutes < 60
               ? QString::number(minutes) + tail
               : QString::number(minutes / 60) + QLatin1Char(':') + twoDigits(minutes % 60) + tail;
}

QString progressLine(const Progress& progress, int columns)
{
    const double rate = rateOf(progress);
    QStringList parts{QStringLiteral("%1/%2").arg(progress.done).arg(progress.total)};
    if (rate > 0.0) {
        const auto left =
            static_cast<qint64>(static_cast<double>(progress.total - progress.done) / rate + 0.5);
        parts.append(tr("%1 files/s").arg(rate, 0, 'f', rate < 10.0 ? 1 : 0));
        parts.append(tr("%1 left").arg(durationText(left)));
    }
    if (progress.failed > 0) {
        parts.append(tr("%1 failed").arg(progress.failed));
    }
    const QString words = parts.join(QStringLiteral("  "));
    const int room = std::min(30, columns - static_cast<int>(words.size()) - 4);
    constexpr int smallestBar = 5;
    const double share = progress.total > 0 ? static_cast<double>(progress.done) /
                                                  static_cast<double>(progress.total)
                                            : 1.0;
    const QString line =
        room < smallestBar ? words : bar(share, room) + QStringLiteral("  ") + words;
    return line.left(std::max(columns, 0));
}

ProgressDisplay::ProgressDisplay(bool isOn, bool isColored)
    : m_isOn(isOn)
    , m_isColored(isColored)
{}

ProgressDisplay::~ProgressDisplay()
{
    clear();
}

void ProgressDisplay::show(const Progress& progress)
{
    constexpr qint64 pause = 100;
    if (!m_isOn || (m_isShown && m_sinceShown.elapsed() < pause)) {
        return;
    }
    const bool isRed = m_isColored && progress.failed > 0;
    // The last column stays free: some terminals begin a new line when it is used.
    const QString line = progressLine(progress, terminalColumns() - 1);
    write(QStringLiteral("\r\033[K") + (isRed ? QStringLiteral("\033[31m") : QString()) + line +
          (isRed ? QStringLiteral("\033[0m") : QString()));
    m_isShown = true;
    m_sinceShown.start();
}

void ProgressDisplay::clear()
{
    if (m_isShown) {
        write(QStringLiteral("\r\033[K"));
        m_isShown = false;
    }
}

bool isTerminal()
{
    return ::isatty(STDERR_FILENO) == 1 && qgetenv("TERM") != "dumb";
}

bool wantsColor()
{
    // By convention the variable counts when it is set to anything but nothing.
    return isTerminal() && qgetenv("NO_COLOR").isEmpty();
}

} // namespace archive
