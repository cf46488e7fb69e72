#pragma once

#include "recorder/recording.h"

#include <AbstractAppender.h>

#include <memory>

namespace recorder {

/// Puts log records into the trace, between the calls that they were written between.
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
