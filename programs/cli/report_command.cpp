#include "cli/report_command.h"

#include "cli/command_line.h"
#include "cli/exit_status.h"
#include "cli/messages.h"
#include "migration/report/report_merger.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace cli {
namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("cli::ReportCommand", text);
}

void addOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        tr("Makes one report of the JSON reports of several commands, as one command over all\n"
           "files would have written it.\n\n"
           "Examples:\n"
           "  labelport report merge part-1.json part-2.json --to all.html\n"
           "  labelport report merge part-*.json --to all.json --to all.html"));
    parser.addPositionalArgument(QStringLiteral("merge"), tr("What to do: put reports together."));
    parser.addPositionalArgument(QStringLiteral("report"),
                                 tr("Report that an import wrote as JSON."),
                                 QStringLiteral("REPORT.json..."));
    parser.addOption({QStringLiteral("to"),
                      tr("Report to write, as .json or .html; may be given several times."),
                      tr("file")});
}

} // namespace

int runReport(const QStringList& arguments)
{
    // No translation: it is typed so.
    const QString command = QStringLiteral("labelport report");
    QCommandLineParser parser;
    addOptions(parser);
    if (const std::optional<int> status = parseCommand(parser, command, arguments)) {
        return *status;
    }
    QStringList reports = parser.positionalArguments();
    if (reports.isEmpty() || reports.takeFirst() != QLatin1String("merge")) {
        return refuseArguments(command, tr("Reports can be put together: \"report merge\"."));
    }
    const QStringList outputs = parser.values(QStringLiteral("to"));
    if (reports.isEmpty() || outputs.isEmpty()) {
        return refuseArguments(command, tr("It takes the reports to put together, and --to says "
                                           "where the whole goes."));
    }
    for (const QString& output : outputs) {
        const QString error = migration::mergeReports(reports, output);
        if (!error.isEmpty()) {
            printMessage(error);
            return ExitFailure;
        }
        printResult(output);
    }
    return ExitSuccess;
}

} // namespace cli
