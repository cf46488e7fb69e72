#pragma once

#include <AbstractAppender.h>

#include <QList>
#include <QString>
#include <QStringList>

namespace workbench {

/// One record of the log.
struct LogRecord
{
    bool isError = false; ///< of error level or above; all others count as debug
    QString source;       ///< file name of the source that wrote it
    QString message;
    bool operator==(const LogRecord&) const = default;
};

/// Collects what is logged for as long as it lives.
///
/// A damaged file can fill a log: after a thousand records of one source no more of it are
/// kept, and cutSources() says so.
class ImportLog
{
public:
    ImportLog();
    ~ImportLog();
    ImportLog(const ImportLog&) = delete;
    ImportLog& operator=(const ImportLog&) = delete;

    [[nodiscard]] const QList<LogRecord>& records() const;
    /// The sources that have written more than was kept.
    [[nodiscard]] const QStringList& cutSources() const;
    void clear();

private:
    class Appender;
    Appender* m_appender; // the logger's while it is registered, ours in the end
};

} // namespace workbench
