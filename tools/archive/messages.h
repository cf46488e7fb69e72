#pragma once

#include "archive/file_stamp.h"
#include "sandbox/confinement.h"

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

/// Messages between the coordinator of an archive and its workers: one line of JSON each.
namespace archive {

/// One output of a job.
struct PlannedFile
{
    QString target; ///< "png"
    QString path;   ///< final path
    bool operator==(const PlannedFile&) const = default;
};

/// The first message to a worker.
struct WorkerStart
{
    sandbox::Permissions permissions; ///< it confines itself to them
    bool requiresSandbox = false;     ///< it exits if the sandbox is not complete
    bool operator==(const WorkerStart&) const = default;
};

/// A job: one file to import.
struct Job
{
    QString file;
    QString shownName;
    QList<PlannedFile> outputs;
    QString staging;     ///< an empty folder of the worker, to write to
    QJsonObject options; ///< of the command; opaque to the coordinator
    /// Between the name of an output and the number of a further page: "shelf-2.png".
    QString pageMark = QString(u'-');
    bool operator==(const Job&) const = default;
};

/// The outcome of one file.
enum class FileOutcome {
    Done,        ///< imported, and everything written
    Failed,      ///< could not be read or written completely
    Crashed,     ///< its worker crashed twice
    TimedOut,    ///< no progress within the time limit
    OutOfMemory, ///< exceeded the memory limit
};

[[nodiscard]] QString nameOf(FileOutcome outcome);
[[nodiscard]] std::optional<FileOutcome> outcomeOfName(const QString& name);

/// One output that a worker wrote.
struct StagedFile
{
    QString staged;   ///< current path
    FileStamp output; ///< final path; size and time of the staged file
    bool operator==(const StagedFile&) const = default;
};

/// The reply of a worker to a job.
struct FileResult
{
    FileOutcome outcome = FileOutcome::Failed;
    QStringList warnings; ///< user-visible
    QStringList errors;   ///< user-visible; empty on success
    QList<StagedFile> files;
    QJsonObject report; ///< opaque to the coordinator; empty if none was requested
    qint64 memory = 0;  ///< bytes that the worker uses now
    bool operator==(const FileResult&) const = default;
};

/// A message on one line, with its line break.
[[nodiscard]] QByteArray lineOf(const WorkerStart& start);
[[nodiscard]] QByteArray lineOf(const Job& job);
[[nodiscard]] QByteArray lineOf(const FileResult& result);

/// Empty if the line is not such a message.
[[nodiscard]] std::optional<WorkerStart> workerStartFromLine(const QByteArray& line);
[[nodiscard]] std::optional<Job> jobFromLine(const QByteArray& line);
[[nodiscard]] std::optional<FileResult> resultFromLine(const QByteArray& line);

/// Longest line of either kind, in bytes.
inline constexpr qint64 MaximumLine = 64LL * 1024 * 1024;

} // namespace archive
