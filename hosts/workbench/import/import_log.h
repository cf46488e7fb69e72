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
    QString source;       ///< name of the source file, without suffix
    QString message;
    QString category = {}; ///< a code of messages/refusals.h, or empty
    bool operator==(const LogRecord&) const = default;
};

/// Collects log records during its lifetime.
///
/// A damaged file can fill a log: of each source only the first thousand records are kept;
/// cutSources() lists the sources that wrote more.
class ImportLog
{
public:
    ImportLog();
    ~ImportLog();
    ImportLog(const ImportLog&) = delete;
    ImportLog& operator=(const ImportLog&) = delete;

    [[nodiscard]] const QList<LogRecord>& records() const;
    /// The sources that wrote more records than were kept.
    [[nodiscard]] const QStringList& cutSources() const;
    void clear();

private:
    class Appender;
    Appender* m_appender; // owned by the logger while registered
};

} // namespace workbench
