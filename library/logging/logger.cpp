#include "Logger.h"

#include "AbstractAppender.h"

#include <QList>
#include <QLoggingCategory>
#include <QMessageLogger>
#include <QMutex>
#include <QMutexLocker>

#include <cstdarg>

using namespace Qt::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(labelportCategory, "labelport", QtWarningMsg)

void handToQt(Logger::LogLevel level, const char* file, int line, const char* function,
              const QString& message)
{
    const QLoggingCategory& category = labelportCategory();
    const QMessageLogger out(file, line, function, category.categoryName());
    const QByteArray text = message.toLocal8Bit();
    if (level <= Logger::Debug && category.isDebugEnabled()) {
        out.debug("%s", text.constData());
    } else if (level == Logger::Info && category.isInfoEnabled()) {
        out.info("%s", text.constData());
    } else if (level == Logger::Warning && category.isWarningEnabled()) {
        out.warning("%s", text.constData());
    } else if (level >= Logger::Error && category.isCriticalEnabled()) {
        out.critical("%s", text.constData());
    }
}

} // namespace

struct Logger::Private
{
    QMutex mutex;
    QList<AbstractAppender*> appenders;
};

Logger::Logger()
    : d(std::make_unique<Private>())
{}

Logger::~Logger()
{
    qDeleteAll(d->appenders);
}

Logger* Logger::globalInstance()
{
    static Logger instance;
    return &instance;
}

QString Logger::levelToString(LogLevel level)
{
    switch (level) {
    case Trace:
        return u"trace"_s;
    case Debug:
        return u"debug"_s;
    case Info:
        return u"info"_s;
    case Warning:
        return u"warning"_s;
    case Error:
        return u"error"_s;
    case Fatal:
        return u"fatal"_s;
    }
    return {};
}

void Logger::registerAppender(AbstractAppender* appender)
{
    const QMutexLocker lock(&d->mutex);
    if (!d->appenders.contains(appender)) {
        d->appenders.append(appender);
    }
}

void Logger::removeAppender(AbstractAppender* appender)
{
    const QMutexLocker lock(&d->mutex);
    d->appenders.removeAll(appender);
}

void Logger::logToGlobalInstance(const QString& category, bool logToGlobal)
{
    Q_UNUSED(category)
    Q_UNUSED(logToGlobal)
}

void Logger::write(const QDateTime& timeStamp, LogLevel level, const char* file, int line,
                   const char* function, const char* category, const QString& message)
{
    const QMutexLocker lock(&d->mutex);
    for (AbstractAppender* appender : std::as_const(d->appenders)) {
        appender->write(timeStamp, level, file, line, function, QString::fromLatin1(category),
                        message);
    }
    handToQt(level, file, line, function, message);
}

Logger* cuteLoggerInstance()
{
    return Logger::globalInstance();
}

CuteMessageLogger::~CuteMessageLogger()
{
    if (m_streamed.isNull()) {
        return;
    }
    // QDebug appends a space to every value, including the last one.
    if (m_streamed.endsWith(QLatin1Char(' '))) {
        m_streamed.chop(1);
    }
    write(m_streamed);
}

void CuteMessageLogger::write(const char* format, ...) const
{
    va_list arguments;
    va_start(arguments, format);
    const QString message = QString::vasprintf(format, arguments);
    va_end(arguments);
    write(message);
}

void CuteMessageLogger::write(const QString& message) const
{
    m_logger->write(QDateTime::currentDateTime(), m_level, m_file, m_line, m_function, m_category,
                    message);
}

QDebug CuteMessageLogger::write() const
{
    return QDebug(&m_streamed);
}
