#include "recorder/log_recorder.h"

namespace recorder {

LogRecorder::LogRecorder(std::shared_ptr<Recording> recording)
    : m_recording(std::move(recording))
{}

void LogRecorder::append(const QDateTime& /*timeStamp*/, Logger::LogLevel level, const char* file,
                         int /*line*/, const char* function, const QString& /*category*/,
                         const QString& message)
{
    if (Recording::current() != m_recording) {
        return;
    }
    // Neither time nor line number: code added above a log call must not change the trace.
    m_recording->trace()->log(Logger::levelToString(level).toLower(), QString::fromUtf8(file),
                              QString::fromUtf8(function), message);
}

} // namespace recorder
