#pragma once

#include <QObject>

class QSocketNotifier;

namespace archive {

/// Converts the signals that ask a program to stop (SIGINT, SIGTERM, SIGHUP) into a Qt signal.
/// A program may have one such object at a time; its destructor restores the default handlers.
class StopSignals final : public QObject
{
    Q_OBJECT

public:
    StopSignals();
    ~StopSignals() override;

Q_SIGNALS:
    /// @param times how many signals have arrived
    void stopRequested(int times);

private:
    void noteSignal();

    QSocketNotifier* m_notifier = nullptr;
    int m_times = 0;
};

} // namespace archive
