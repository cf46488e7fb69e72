#include "log_catcher.h"

class LogCatcher::Appender : public AbstractAppender
{
public:
    explicit Appender(QList<Record>& records)
        : m_records(records)
    {}

protected:
    void append(const QDateTime&, Logger::LogLevel level, const char* file, int,
                const char* function, const QString&, const QString& message) override
    {
        m_records.append({level, QString::fromUtf8(file), QString::fromUtf8(function), message});
    }

private:
    QList<Record>& m_records;
};

LogCatcher::LogCatcher()
    : m_appender(std::make_unique<Appender>(m_records))
{
    loggerInstance()->registerAppender(m_appender.get());
}

LogCatcher::~LogCatcher()
{
    loggerInstance()->removeAppender(m_appender.get());
}

QStringList LogCatcher::messages() const
{
    QStringList messages;
    for (const Record& record : m_records) {
        messages.append(record.message);
    }
    return messages;
}
