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

/// What became of one file, as it is remembered between commands.
struct JournalRecord
{
    FileStamp input; ///< its path is absolute
    QString options; ///< fingerprint of what was asked, outputs' names included
    QString version; ///< of the program
    Fate fate = Fate::Failed;
    QStringList errors;
    QList<FileStamp> outputs; ///< their paths are relative to the output folder
    QJsonObject report;       ///< empty when none was asked for
    bool operator==(const JournalRecord&) const = default;
};

/// Bytes that the tree of a line may take: that of a label of as many data sources as there
/// may be stays below.
inline constexpr qint64 MaximumLineTree = 512LL * 1024 * 1024;

[[nodiscard]] QByteArray lineOf(const JournalRecord& record);
/// The next line with its end, or as much of it as a line may have. Takes no more memory
/// than the line, while Qt's own takes that of the longest for each.
[[nodiscard]] QByteArray nextLine(QIODevice& journal, qint64 longest = MaximumLine);
/// Nothing when the line is no whole record.
[[nodiscard]] std::optional<JournalRecord> recordFromLine(const QByteArray& line);

/// The fingerprint of options and the outputs that they bring about.
[[nodiscard]] QString fingerprintOf(const QJsonObject& options, const QStringList& outputs);

/// What a file must be like to count as done.
struct Expectation
{
    FileStamp input;
    QString options;
    QString version;
    QString outputFolder;
    bool reportNeeded = false;
};

/// Whether a file was imported as it is now expected, and is unchanged with all its outputs.
[[nodiscard]] bool isDone(const JournalRecord& record, const Expectation& expected);

/// The outputs that stand as they were made, with paths that begin with the output folder.
[[nodiscard]] QList<FileStamp> untouchedOutputs(const JournalRecord& record,
                                                const QString& outputFolder);

} // namespace archive
