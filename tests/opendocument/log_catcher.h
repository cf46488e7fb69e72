#pragma once

#include <AbstractAppender.h>

#include <QList>
#include <QString>
#include <QStringList>

/// Collects the log records that are written while it lives.
class LogCatcher
{
public:
    struct Record
    {
        Logger::LogLevel level;
        QString source;
        QString function;
        QString message;
    };

    LogCatcher();
    ~LogCatcher();
    LogCatcher(const LogCatcher&) = delete;
    LogCatcher& operator=(const LogCatcher&) = delete;

    [[nodiscard]] const QList<Record>& records() const { return m_records; }
    [[nodiscard]] QStringList messages() const;

private:
    class Appender;

    QList<Record> m_records;
    std::unique_ptr<Appender> m_appender;
};
