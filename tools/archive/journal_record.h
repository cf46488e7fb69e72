#pragma once

#include "archive/file_stamp.h"
#include "archive/messages.h"

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class QIODevice;

namespace archive {

/// The outcome of one file, as the journal keeps it between commands.
struct JournalRecord
{
    FileStamp input; ///< its path is absolute
    QString options; ///< fingerprint of the options and the names of the outputs
    QString version; ///< of the program
    FileOutcome outcome = FileOutcome::Failed;
    QStringList errors;
    QList<FileStamp> outputs; ///< their paths are relative to the output folder
    QJsonObject report;       ///< empty when none was asked for
    bool operator==(const JournalRecord&) const = default;
};

/// Bytes that the tree of a line may take. A label with the maximum of data sources stays below.
inline constexpr qint64 MaximumLineTree = 512LL * 1024 * 1024;

/// The record as one line with its line feed.
[[nodiscard]] QByteArray lineOf(const JournalRecord& record);
/// The next line with its end, or its first `longest` bytes. Takes no more memory than the line
/// has; QIODevice::readLine(longest) would reserve the maximum for each line.
[[nodiscard]] QByteArray nextLine(QIODevice& journal, qint64 longest = MaximumLine);
/// Empty if the line is not a complete record.
[[nodiscard]] std::optional<JournalRecord> recordFromLine(const QByteArray& line);

/// The fingerprint of options and the names of their outputs.
[[nodiscard]] QString fingerprintOf(const QJsonObject& options, const QStringList& outputs);

/// The state of a file that counts as done.
struct Expectation
{
    FileStamp input;
    QString options;
    QString version;
    QString outputFolder;
    bool reportNeeded = false;
};

/// Whether a file was imported with these options, and it and all its outputs are unchanged.
[[nodiscard]] bool isDone(const JournalRecord& record, const Expectation& expected);

/// The outputs that are unchanged, with paths that begin with the output folder.
[[nodiscard]] QList<FileStamp> untouchedOutputs(const QList<FileStamp>& outputs,
                                                const QString& outputFolder);

} // namespace archive
