#pragma once

#include "archive/worker_end.h"
#include "cli/job_options.h"

#include <QLatin1String>
#include <QString>
#include <QStringList>

class QCommandLineParser;

namespace cli {

struct Command;

/// Adds description, argument and options of a command, except --help.
void describeCommand(QCommandLineParser& parser, const Command& command);

/// Reads the values of parsed options; keeps the first error.
class OptionReader
{
public:
    explicit OptionReader(const QCommandLineParser& parser)
        : m_parser(parser)
    {}

    [[nodiscard]] const QString& error() const { return m_error; }

    [[nodiscard]] bool isSet(QLatin1String name) const;
    [[nodiscard]] QString text(QLatin1String name) const;
    [[nodiscard]] QStringList texts(QLatin1String name) const;
    /// A whole number; if the option is not given, the last parameter.
    [[nodiscard]] int number(QLatin1String name, int least, int most, int whenMissing);
    void fail(const QString& error);

private:
    const QCommandLineParser& m_parser;
    QString m_error;
};

/// --records. @param whenMissing the default, "1" or "all"
void takeRecords(OptionReader& given, const QString& whenMissing, JobOptions& options);
void takeReader(OptionReader& given, JobOptions& options);
/// --sheet, --first-position, --copies and --crop-marks.
void takeSheet(OptionReader& given, JobOptions& options);
/// --timeout and --memory-limit.
[[nodiscard]] archive::WorkerLimits takeLimits(OptionReader& given);

} // namespace cli
