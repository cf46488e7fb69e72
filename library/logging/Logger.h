#pragma once

// The part of the CuteLogger interface that LabelPort calls, for systems that
// have no CuteLogger package. Records are written to the registered appenders and
// Qt's logging category "labelport", and to no other place.

#include <QByteArray>
#include <QDateTime>
#include <QDebug>
#include <QString>

#include <memory>

class AbstractAppender;

/// The central logger. One per process, see cuteLoggerInstance().
///
/// Records may be written from any thread; appenders are called one at a time.
class Q_DECL_EXPORT Logger
{
public:
    /// Severity of a record, in ascending order.
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
    /// Unregisters an appender and returns its ownership to the caller.
    void removeAppender(AbstractAppender* appender);

    /// Links a category to the global appenders. Here all are linked: kept for CuteLogger, which
    /// drops records of other categories.
    void logToGlobalInstance(const QString& category, bool logToGlobal = false);

    /// Passes one record to all appenders.
    void write(const QDateTime& timeStamp, LogLevel level, const char* file, int line,
               const char* function, const char* category, const QString& message);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

/// The logger that the library's log calls use.
[[nodiscard]] Q_DECL_EXPORT Logger* cuteLoggerInstance();
#define loggerInstance cuteLoggerInstance

/// One log call: stores its source location, then writes one message.
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
    {} ///< Stores the source location; a write() follows.
    ~CuteMessageLogger();
    CuteMessageLogger(const CuteMessageLogger&) = delete;
    CuteMessageLogger& operator=(const CuteMessageLogger&) = delete;

    /// Writes a printf-style message; text arguments are local 8-bit.
    void write(const char* format, ...) const Q_ATTRIBUTE_FORMAT_PRINTF(2, 3);
    /// Writes a message unchanged.
    void write(const QString& message) const;
    /// Returns a stream; its content is written when this object is destroyed.
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
