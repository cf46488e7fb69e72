#pragma once

#include "archive/file_stamp.h"

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// What the coordinator of an archive and its workers say to each other: one line of JSON for
/// each message.
namespace archive {

/// One output that a job is to have.
struct PlannedFile
{
    QString target; ///< "png"
    QString path;   ///< where it is to stand in the end
    bool operator==(const PlannedFile&) const = default;
};

/// One file, as it is handed to a worker.
struct Job
{
    QString file;
    QString shownName;
    QList<PlannedFile> outputs;
    QString staging;        ///< folder of the worker's own, empty, to write to
    QList<FileStamp> known; ///< outputs that an earlier command made of this file
    QJsonObject options;    ///< of the command; mean nothing to the coordinator
    bool operator==(const Job&) const = default;
};

/// What became of a file.
enum class Fate {
    Done,        ///< imported, and everything written
    Failed,      ///< could not be read, or not all of it written
    Crashed,     ///< its worker died of it, twice
    TimedOut,    ///< took longer than it may
    OutOfMemory, ///< needed more memory than it may
};

[[nodiscard]] QString nameOf(Fate fate);
[[nodiscard]] std::optional<Fate> fateOfName(const QString& name);

/// One file that a worker wrote.
struct StagedFile
{
    QString staged;          ///< where it is now
    FileStamp output;        ///< where it is to stand; size and time of the staged file
    bool mayReplace = false; ///< what stands there now may be replaced
    bool operator==(const StagedFile&) const = default;
};

/// What a worker answers for a job.
struct FileResult
{
    Fate fate = Fate::Failed;
    QStringList warnings; ///< for a person
    QStringList errors;   ///< for a person; empty when it is done
    QList<StagedFile> files;
    QJsonObject report; ///< means nothing to the coordinator; empty when none was asked for
    qint64 memory = 0;  ///< bytes that the worker holds now
    bool operator==(const FileResult&) const = default;
};

/// A message on one line, its end included.
[[nodiscard]] QByteArray lineOf(const Job& job);
[[nodiscard]] QByteArray lineOf(const FileResult& result);

/// Nothing when the line is not such a message.
[[nodiscard]] std::optional<Job> jobFromLine(const QByteArray& line);
[[nodiscard]] std::optional<FileResult> resultFromLine(const QByteArray& line);

/// Longest line of either kind, in bytes.
inline constexpr qint64 MaximumLine = 64LL * 1024 * 1024;

} // namespace archive
