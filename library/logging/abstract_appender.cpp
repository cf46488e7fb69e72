#include "AbstractAppender.h"

AbstractAppender::~AbstractAppender() = default;

void AbstractAppender::write(const QDateTime& timeStamp, Logger::LogLevel level, const char* file,
                             int line, const char* function, const QString& category,
                             const QString& message)
{
    if (level >= m_detailsLevel) {
        append(timeStamp, level, file, line, function, category, message);
    }
}
