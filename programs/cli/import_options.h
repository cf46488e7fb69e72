#pragma once

#include "archive/shard.h"
#include "archive/worker_end.h"
#include "cli/job_options.h"
#include "exporting/targets.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

class QCommandLineParser;

namespace cli {

/// The arguments of `labelport import`.
struct ImportOptions
{
    QStringList files;            ///< files and folders; "-" is standard input
    QString filesFrom;            ///< list of further files; "-" is standard input; empty for none
    bool isNullSeparated = false; ///< names of that list end with NUL
    QString base;                 ///< named files below it keep their subfolders; empty for none
    QList<exporting::Target> targets; ///< in the order given, each once
    QString output;    ///< file of the only output; "-" is standard output; may be empty
    QString outputDir; ///< the current folder when it was not given
    JobOptions job;
    int workers = 1;
    archive::WorkerLimits limits;
    archive::Shard shard;
    bool resume = false;
    bool quiet = false;
    bool endsNamesWithNull = false; ///< names on standard output
    bool json = false;              ///< events on standard output
    QStringList reports;            ///< files to write a report to
    bool failOnLoss = false;
    bool requiresSandbox = false; ///< the workers have a complete sandbox, or import nothing
};

inline constexpr int MaximumWorkers = 1024;
inline constexpr int MaximumTimeout = 1'000'000;
/// MiB. A worker needs the minimum to start.
inline constexpr int MinimumMemory = 128;
inline constexpr int MaximumMemory = 16'777'216;

/// Reads the arguments after `labelport import`. If there is nothing to import (help was shown, or
/// the arguments were wrong and that was reported), returns the exit status.
[[nodiscard]] std::variant<ImportOptions, int> parseImportArguments(const QStringList& arguments);

/// Runs the command with these options; returns the exit status.
[[nodiscard]] int importAll(const ImportOptions& options);

/// Whether the only output goes to standard output.
[[nodiscard]] bool writesToStandardOutput(const ImportOptions& options);

/// The values of --timeout and --memory-limit; empty if one is wrong.
[[nodiscard]] std::optional<archive::WorkerLimits> limitsOf(const QCommandLineParser& parser,
                                                            QString& error);

} // namespace cli
