#include "workbench/import/import_log.h"

#include <Logger.h>

#include <QFileInfo>

#include <memory>

namespace workbench {

namespace {

constexpr qsizetype kMaximumRecords = 1'000;

} // namespace

class ImportLog::Appender final : public AbstractAppender
{
public:
    QList<LogRecord> records;

protected:
    void append(const QDateTime& timeStamp, Logger::LogLevel level, const char* file, int line,
                const char* function, const QString& category, const QString& message) override
    {
        Q_UNUSED(timeStamp)
        Q_UNUSED(line)
        Q_UNUSED(function)
        Q_UNUSED(category)
        if (records.size() < kMaximumRecords) {
            const QString source = QFileInfo(QString::fromLocal8Bit(file)).fileName();
            records.append({level >= Logger::Error, source, message});
        }
    }
};

ImportLog::ImportLog()
    : m_appender(new Appender)
{
    loggerInstance()->registerAppender(m_appender);
}

ImportLog::~ImportLog()
{
    loggerInstance()->removeAppender(m_appender);
    delete m_appender;
}

const QList<LogRecord>& ImportLog::records() const
{
    return m_appender->records;
}

void ImportLog::clear()
{
    m_appender->records.clear();
}

} // namespace workbench
