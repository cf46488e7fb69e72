#pragma once

#include <QObject>

class QSocketNotifier;

namespace archive {

/// Turns the signals by which a person or a system asks a program to stop (SIGINT, SIGTERM,
/// SIGHUP) into a Qt signal. One at a time in a program; the signals work as before when it
/// goes.
class StopSignals final : public QObject
{
    Q_OBJECT

public:
    StopSignals();
    ~StopSignals() override;

Q_SIGNALS:
    /// @param times how often it was asked by now
    void stopRequested(int times);

private:
    void noteSignal();

    QSocketNotifier* m_notifier = nullptr;
    int m_times = 0;
};

} // namespace archive
