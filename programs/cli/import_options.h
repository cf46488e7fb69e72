#pragma once

#include "cli/job_options.h"
#include "cli/targets.h"
#include "archive/shard.h"
#include "archive/worker_death.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <variant>

class QCommandLineParser;

namespace cli {

/// What `labelport import` was asked to do.
struct ImportOptions
{
    QStringList files;            ///< files and folders; "-" is standard input
    QString filesFrom;            ///< list of further ones, "-" for standard input; empty for none
    bool isNullSeparated = false; ///< of that list
    QString base;                 ///< named files below it keep their subfolders; empty for none
    QList<Target> targets;        ///< in the order given, each once
    QString outputDir;            ///< the current folder when it was not given
    JobOptions job;
    int workers = 1;
    archive::WorkerLimits limits;
    archive::Shard shard;
    bool resume = false;
    bool quiet = false;
    QStringList reports; ///< files to write a report to
    bool failOnLoss = false;
};

/// The user asked for the command's help.
struct HelpWanted
{
    QString text;
};

/// The command line was wrong; the message says how.
struct UsageError
{
    QString message;
};

/// Least and most dots per inch that a picture may be asked for.
inline constexpr int MinimumDpi = 10;
inline constexpr int MaximumDpi = 2400;
inline constexpr int MaximumWorkers = 1024;
inline constexpr int MaximumTimeout = 1'000'000;
/// Least memory of a worker, in MiB: it has to start.
inline constexpr int MinimumMemory = 128;
inline constexpr int MaximumMemory = 16'777'216;

/// Reads the arguments that follow `labelport import`.
[[nodiscard]] std::variant<ImportOptions, HelpWanted, UsageError>
parseImportArguments(const QStringList& arguments);

/// What --timeout and --memory-limit were given to a command that has them.
[[nodiscard]] std::variant<archive::WorkerLimits, UsageError>
limitsOf(const QCommandLineParser& parser);

} // namespace cli
