#pragma once

// The part of the CuteLogger interface that LabelPort calls, for systems that
// have no CuteLogger package. Records go to the registered appenders and to
// Qt's logging category "labelport"; nothing is written anywhere else.

#include <QByteArray>
#include <QDateTime>
#include <QDebug>
#include <QString>

#include <memory>

class AbstractAppender;

/// The hub that log records pass through. One per process, see cuteLoggerInstance().
///
/// Records may be written from any thread; appenders are called one at a time.
class Q_DECL_EXPORT Logger
{
public:
    /// Severity of a record, in rising order.
    enum LogLevel { Trace, Debug, Info, Warning, Error, Fatal };

    Logger();
    ~Logger();
    Logger(const Logger&) = delete;
    Logger& operator=(const Logger&) = delete;

    /// The process-wide logger.
    [[nodiscard]] static Logger* globalInstance();
    /// Name of a level in lower-case letters, "debug" or "error" for instance.
    [[nodiscard]] static QString levelToString(LogLevel level);

    /// Adds an appender, which the logger then owns until removeAppender().
    void registerAppender(AbstractAppender* appender);
    /// Takes an appender out again and gives its ownership back to the caller.
    void removeAppender(AbstractAppender* appender);

    /// Links a category to the global appenders. Here all are: kept for CuteLogger, which drops
    /// records of other categories.
    void logToGlobalInstance(const QString& category, bool logToGlobal = false);

    /// Hands one record to all appenders.
    void write(const QDateTime& timeStamp, LogLevel level, const char* file, int line,
               const char* function, const char* category, const QString& message);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

/// The logger that the log calls of the library write to.
[[nodiscard]] Q_DECL_EXPORT Logger* cuteLoggerInstance();
#define loggerInstance cuteLoggerInstance

/// One log call: names the place, then writes one message.
class Q_DECL_EXPORT CuteMessageLogger
{
public:
    CuteMessageLogger(Logger* logger, Logger::LogLevel level, const char* file, int line,
                      const char* function, const char* category = nullptr)
        : m_logger(logger)
        , m_level(level)
        , m_file(file)
        , m_line(line)
        , m_function(function)
        , m_category(category)
    {} ///< Names the place; a write() follows.
    ~CuteMessageLogger();
    CuteMessageLogger(const CuteMessageLogger&) = delete;
    CuteMessageLogger& operator=(const CuteMessageLogger&) = delete;

    /// Writes a printf-style message; text arguments are local 8-bit.
    void write(const char* format, ...) const Q_ATTRIBUTE_FORMAT_PRINTF(2, 3);
    /// Writes a message as it stands.
    void write(const QString& message) const;
    /// Gives a stream; what was put into it is written when this object goes.
    [[nodiscard]] QDebug write() const;

private:
    Logger* m_logger;
    Logger::LogLevel m_level;
    const char* m_file;
    int m_line;
    const char* m_function;
    const char* m_category;
    mutable QString m_streamed;
};
