#pragma once

#include "Logger.h"

/// Receives log records. Derive, override append(), and register with Logger.
class Q_DECL_EXPORT AbstractAppender
{
public:
    AbstractAppender() = default;
    virtual ~AbstractAppender();
    AbstractAppender(const AbstractAppender&) = delete;
    AbstractAppender& operator=(const AbstractAppender&) = delete;

    /// Records below this level are not passed to append(); initially Logger::Debug.
    void setDetailsLevel(Logger::LogLevel level) { m_detailsLevel = level; }
    [[nodiscard]] Logger::LogLevel detailsLevel() const
    {
        return m_detailsLevel;
    } ///< The level set last.

    /// Called by the logger: filters by level, then appends.
    void write(const QDateTime& timeStamp, Logger::LogLevel level, const char* file, int line,
               const char* function, const QString& category, const QString& message);

protected:
    virtual void append(const QDateTime& timeStamp, Logger::LogLevel level, const char* file,
                        int line, const char* function, const QString& category,
                        const QString& message) = 0; ///< One record; calls are serialized.

private:
    Logger::LogLevel m_detailsLevel = Logger::Debug;
};
