#include "cli/existing_output.h"
#include "cli/option_reader.h"
#include "cli/option_table.h"
#include "cli/subcommands.h"
#include "console/command_line.h"
#include "console/file_name.h"
#include "console/output.h"
#include "migration/report/report_merger.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace cli {
using namespace Qt::StringLiterals;
namespace {

struct ReportCommandTr
{
    Q_DECLARE_TR_FUNCTIONS(cli::ReportCommand)
};

/// What is wrong with the arguments; empty if nothing is.
QString usageProblem(const QStringList& words, const QStringList& outputs)
{
    if (words.isEmpty()) {
        return ReportCommandTr::tr(
            "No command given: labelport report merge REPORT.json... --to FILE");
    }
    if (words.first() != "merge"_L1) {
        return ReportCommandTr::tr("Unknown command \"report %1\".").arg(words.first()) +
               console::suggestion(words.first(), {u"merge"_s});
    }
    if (words.size() == 1 || outputs.isEmpty()) {
        return ReportCommandTr::tr("Specify the reports to merge, and the output file with --to.");
    }
    for (const QString& output : outputs) {
        const QString problem = reportNameProblem(output);
        if (!problem.isEmpty()) {
            return problem;
        }
    }
    return {};
}

} // namespace

int runReport(const QStringList& arguments)
{
    const QString command = u"labelport report"_s;
    QCommandLineParser parser;
    describeCommand(parser, commandOf("report"));
    if (const std::optional<int> status = console::parseCommand(parser, command, arguments)) {
        return *status;
    }
    const QStringList words = parser.positionalArguments();
    const QStringList outputs = parser.values(u"to"_s);
    const QString wrong = usageProblem(words, outputs);
    if (!wrong.isEmpty()) {
        return console::refuseArguments(command, wrong);
    }
    for (const QString& output : outputs) {
        QString problem = reportProblem(output, parser.isSet(u"force"_s));
        if (problem.isEmpty()) {
            problem = migration::mergeReports(words.mid(1), output);
        }
        if (!problem.isEmpty()) {
            console::printMessage(problem);
            return console::ExitFailure;
        }
        console::printFileName(output, false);
    }
    return console::ExitSuccess;
}

} // namespace cli
