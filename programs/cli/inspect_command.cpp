#include "cli/file_reports.h"
#include "cli/import_options.h"
#include "cli/import_worker.h"
#include "cli/job_options.h"
#include "cli/option_reader.h"
#include "cli/option_table.h"
#include "cli/subcommands.h"
#include "cli/worker_jobs.h"
#include "console/command_line.h"
#include "console/output.h"
#include "console/standard_input.h"
#include "migration/report/text_report.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTemporaryFile>

namespace cli {
using namespace Qt::StringLiterals;
namespace {

struct InspectCommandTr
{
    Q_DECLARE_TR_FUNCTIONS(cli::InspectCommand)
};

/// The options that the worker gets.
QJsonObject allOptions(const JobOptions& options)
{
    QJsonObject all = outputOptions(options);
    const QJsonObject others = otherOptions(options);
    for (auto entry = others.begin(); entry != others.end(); ++entry) {
        all.insert(entry.key(), entry.value());
    }
    return all;
}

int print(const archive::Input& input, const archive::FileResult& result, bool asJson)
{
    const migration::FileReport report = finalReport({input, result, {}, false});
    if (asJson) {
        console::printBytes(
            QJsonDocument(migration::toJson(report)).toJson(QJsonDocument::Indented));
    } else {
        console::printText(migration::describeAsText(report));
    }
    return result.outcome == archive::FileOutcome::Done ? console::ExitSuccess
                                                        : console::ExitFailure;
}

/// The options of the file; empty, with the reason in `error`, if they are wrong.
std::optional<JobOptions> optionsOf(const QCommandLineParser& parser, QString& error)
{
    JobOptions options;
    options.items = true;
    options.asWritten = parser.isSet(u"as-written"_s);
    const QString reader = parser.value(u"reader"_s);
    options.reader = readerOfName(reader);
    if (parser.isSet(u"reader"_s) && !options.reader) {
        error = unknownReaderMessage(reader);
        return std::nullopt;
    }
    return options;
}

} // namespace

int runInspect(const QStringList& arguments)
{
    const QString command = u"labelport inspect"_s;
    QCommandLineParser parser;
    describeCommand(parser, commandOf("inspect"));
    if (const std::optional<int> status = console::parseCommand(parser, command, arguments)) {
        return *status;
    }
    const QStringList files = parser.positionalArguments();
    QString error =
        files.size() == 1 ? QString() : InspectCommandTr::tr("inspect needs exactly one file.");
    const std::optional<JobOptions> options =
        error.isEmpty() ? optionsOf(parser, error) : std::nullopt;
    const std::optional<archive::WorkerLimits> limits =
        options ? limitsOf(parser, error) : std::nullopt;
    if (!limits) {
        return console::refuseArguments(command, error);
    }
    archive::Input input{files.first(), files.first(), {}};
    QTemporaryFile standardInput;
    if (files.first() == "-"_L1) {
        error = console::copyStandardInput(standardInput);
        input = {standardInput.fileName(), u"stdin"_s, {}};
    }
    const bool requiresSandbox = parser.isSet(u"require-sandbox"_s);
    if (error.isEmpty() && requiresSandbox) {
        error = sandboxProblem();
    }
    if (!error.isEmpty()) {
        console::printMessage(error);
        return console::ExitFailure;
    }
    const QTemporaryDir folder; // the only one in which the worker may write
    if (!folder.isValid()) {
        console::printMessage(InspectCommandTr::tr("Cannot create a temporary folder: %1.")
                                  .arg(folder.errorString()));
        return console::ExitFailure;
    }
    archive::Job job;
    job.file = input.path;
    job.shownName = input.shownName;
    job.options = allOptions(*options);
    return print(
        input,
        runJobs({job}, *limits, 1, {permissionsFor({input.path}, folder.path()), requiresSandbox})
            .first(),
        parser.isSet(u"json"_s));
}

} // namespace cli
