#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QtGlobal>

namespace archive {

/// How far an archive is.
struct Progress
{
    qint64 total = 0;
    qint64 done = 0;    ///< finished in any way, skipped ones included
    qint64 skipped = 0; ///< done by an earlier command
    qint64 failed = 0;
    qint64 milliseconds = 0; ///< since the beginning
};

/// One line for a person: a bar, counts, files per second, the time left, failures so far.
///
/// @param columns most characters; what has no room is left out, the bar first
[[nodiscard]] QString progressLine(const Progress& progress, int columns);

/// A duration as 0:05, 12:34 or 1:02:03.
[[nodiscard]] QString durationText(qint64 seconds);

/// A line at the bottom of a terminal that tells the progress, and makes way for messages.
class ProgressDisplay
{
public:
    /// @param isOn     whether there is anybody to look: standard error is a terminal
    /// @param isColored whether failures are shown in red
    ProgressDisplay(bool isOn, bool isColored);
    ~ProgressDisplay();
    ProgressDisplay(const ProgressDisplay&) = delete;
    ProgressDisplay& operator=(const ProgressDisplay&) = delete;

    /// Shows the progress, at most ten times a second.
    void show(const Progress& progress);
    /// Takes the line away, before something else is printed.
    void clear();

private:
    bool m_isOn;
    bool m_isColored;
    bool m_isShown = false;
    QElapsedTimer m_sinceShown;
};

/// Whether standard error is a terminal that can move its cursor.
[[nodiscard]] bool isTerminal();
/// Whether colours are welcome: on a terminal, and NO_COLOR is not set.
[[nodiscard]] bool wantsColor();

} // namespace archive
