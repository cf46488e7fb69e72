#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QtGlobal>

namespace archive {

/// The state of a run.
struct Progress
{
    qint64 total = 0;
    qint64 done = 0;    ///< finished in any way, including skipped ones
    qint64 skipped = 0; ///< imported by an earlier command
    qint64 failed = 0;
    qint64 milliseconds = 0; ///< since the beginning
    QString slowFile;        ///< the current file that started first, if it takes long; else empty
    qint64 slowMilliseconds = 0; ///< since its start
};

/// One line for a terminal: a bar, counts, files per second, the time left, failures so far, and a
/// file that takes long.
///
/// @param columns maximum of characters; the bar is left out first
[[nodiscard]] QString progressLine(const Progress& progress, int columns);

/// A duration as 0:05, 12:34 or 1:02:03.
[[nodiscard]] QString durationText(qint64 seconds);

/// A progress line at the bottom of a terminal.
class ProgressDisplay
{
public:
    /// @param isOn      whether standard error is a terminal
    /// @param isColored whether failures are shown in red
    ProgressDisplay(bool isOn, bool isColored);
    ~ProgressDisplay();
    ProgressDisplay(const ProgressDisplay&) = delete;
    ProgressDisplay& operator=(const ProgressDisplay&) = delete;

    /// Shows the progress, at most ten times a second.
    void show(const Progress& progress);
    /// Removes the line, before something else is printed.
    void clear();

private:
    bool m_isOn;
    bool m_isColored;
    bool m_isShown = false;
    QElapsedTimer m_sinceShown;
};

/// Whether standard error is a terminal that can move its cursor.
[[nodiscard]] bool isTerminal();
/// Whether to use colors: on a terminal, unless NO_COLOR is set.
[[nodiscard]] bool supportsColor();

} // namespace archive
