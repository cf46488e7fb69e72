#include "workbench/import/import_log.h"

#include <Logger.h>

#include <QFileInfo>
#include <QHash>

#include <memory>

namespace workbench {

namespace {

constexpr int MaximumRecordsOfSource = 1'000;

} // namespace

class ImportLog::Appender final : public AbstractAppender
{
public:
    QList<LogRecord> records;
    QStringList cutSources;
    QHash<QString, int> recordsOfSource;

    void clear()
    {
        records.clear();
        cutSources.clear();
        recordsOfSource.clear();
    }

protected:
    void append(const QDateTime& timeStamp, Logger::LogLevel level, const char* file, int line,
                const char* function, const QString& category, const QString& message) override
    {
        Q_UNUSED(timeStamp)
        Q_UNUSED(line)
        Q_UNUSED(function)
        const QString source = QFileInfo(QString::fromLocal8Bit(file)).completeBaseName();
        int& count = recordsOfSource[source];
        if (count < MaximumRecordsOfSource) {
            ++count;
            records.append({level >= Logger::Error, source, message, category});
        } else if (!cutSources.contains(source)) {
            cutSources.append(source);
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

const QStringList& ImportLog::cutSources() const
{
    return m_appender->cutSources;
}

void ImportLog::clear()
{
    m_appender->clear();
}

} // namespace workbench
