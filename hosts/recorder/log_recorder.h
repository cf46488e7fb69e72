#pragma once

#include "recorder/recording.h"

#include <AbstractAppender.h>

#include <memory>

namespace recorder {

/// Writes log records to the trace, in order with the calls.
class LogRecorder : public AbstractAppender
{
public:
    explicit LogRecorder(std::shared_ptr<Recording> recording);

protected:
    void append(const QDateTime& timeStamp, Logger::LogLevel level, const char* file, int line,
                const char* function, const QString& category, const QString& message) override;

private:
    std::shared_ptr<Recording> m_recording;
};

} // namespace recorder
