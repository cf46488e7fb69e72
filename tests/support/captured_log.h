#pragma once

#include <AbstractAppender.h>

#include <QString>
#include <QStringList>

/// Collects the log records that are written during its lifetime.
class CapturedLog : private AbstractAppender
{
public:
    struct Record
    {
        Logger::LogLevel level;
        QString source;
        QString function;
        QString message;
    };

    CapturedLog() { loggerInstance()->registerAppender(this); }
    ~CapturedLog() override { loggerInstance()->removeAppender(this); }
    CapturedLog(const CapturedLog&) = delete;
    CapturedLog& operator=(const CapturedLog&) = delete;

    [[nodiscard]] const QList<Record>& records() const { return m_records; }
    [[nodiscard]] QStringList messages() const
    {
        QStringList all;
        for (const Record& record : m_records) {
            all.append(record.message);
        }
        return all;
    }
    void clear() { m_records.clear(); }

private:
    void append(const QDateTime&, Logger::LogLevel level, const char* file, int,
                const char* function, const QString&, const QString& message) override
    {
        m_records.append({level, QString::fromUtf8(file), QString::fromUtf8(function), message});
    }

    QList<Record> m_records;
};
