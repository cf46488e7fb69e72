#include "archive/progress.h"

#include "console/file_name.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStringList>

#include <algorithm>
#include <cstdio>

#include <sys/ioctl.h>
#include <unistd.h>

namespace archive {
using namespace Qt::StringLiterals;
namespace {

struct ProgressTr
{
    Q_DECLARE_TR_FUNCTIONS(archive::Progress)
};

QString bar(double share, int width)
{
    const int full = static_cast<int>(share * width);
    return u'[' + QString(full, u'#') + QString(width - full, u'.') + u']';
}

/// Files imported by this command per second; skipped files take no time.
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
        return u"%1"_s.arg(number, 2, 10, QLatin1Char('0'));
    };
    const qint64 minutes = seconds / 60;
    const QString tail = u':' + twoDigits(seconds % 60);
    return minutes < 60 ? QString::number(minutes) + tail
                        : QString::number(minutes / 60) + u':' + twoDigits(minutes % 60) + tail;
}

[[nodiscard]] static QString slowFileText(const Progress& progress)
{
    const QString name = console::shownFileName(QFileInfo(progress.slowFile).fileName());
    constexpr int longest = 30;
    const QString shown = name.size() > longest ? name.left(longest - 1) + QChar(0x2026) : name;
    return u"%1 %2"_s.arg(shown, durationText(progress.slowMilliseconds / 1000));
}

QString progressLine(const Progress& progress, int columns)
{
    const double rate = rateOf(progress);
    QStringList parts{u"%1/%2"_s.arg(progress.done).arg(progress.total)};
    if (rate > 0.0) {
        const auto left =
            static_cast<qint64>(static_cast<double>(progress.total - progress.done) / rate + 0.5);
        parts.append(ProgressTr::tr("%1 files/s").arg(rate, 0, 'f', rate < 10.0 ? 1 : 0));
        parts.append(ProgressTr::tr("%1 left").arg(durationText(left)));
    }
    if (progress.failed > 0) {
        parts.append(ProgressTr::tr("%1 failed").arg(progress.failed));
    }
    if (!progress.slowFile.isEmpty()) {
        parts.append(slowFileText(progress));
    }
    const QString words = parts.join(u"  "_s);
    const int room = std::min(30, columns - static_cast<int>(words.size()) - 4);
    constexpr int smallestBar = 5;
    const double share = progress.total > 0 ? static_cast<double>(progress.done) /
                                                  static_cast<double>(progress.total)
                                            : 1.0;
    const QString line = room < smallestBar ? words : bar(share, room) + u"  "_s + words;
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
    write(u"\r\033[K"_s + (isRed ? u"\033[31m"_s : QString()) + line +
          (isRed ? u"\033[0m"_s : QString()));
    m_isShown = true;
    m_sinceShown.start();
}

void ProgressDisplay::clear()
{
    if (m_isShown) {
        write(u"\r\033[K"_s);
        m_isShown = false;
    }
}

bool isTerminal()
{
    return ::isatty(STDERR_FILENO) == 1 && qgetenv("TERM") != "dumb";
}

bool supportsColor()
{
    // By convention an empty variable counts as not set.
    return isTerminal() && qgetenv("NO_COLOR").isEmpty();
}

} // namespace archive
