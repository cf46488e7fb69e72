#include "apps/cli/import_command.h"

#include "apps/cli/exit_status.h"
#include "apps/cli/import_options.h"
#include "apps/cli/label_writer.h"
#include "apps/cli/messages.h"
#include "apps/cli/opened_label.h"
#include "apps/cli/output_plan.h"

#include <QDir>

namespace cli {
namespace {

void printAbout(const QString& file, const QString& text)
{
    printMessage(QStringLiteral("%1: %2").arg(file, text));
}

void printIssues(const QString& file, const QList<workbench::ImportIssue>& issues)
{
    for (const workbench::ImportIssue& issue : issues) {
        const QString times =
            issue.repeats > 1 ? QStringLiteral(" (%1 times)").arg(issue.repeats) : QString();
        printAbout(file, QStringLiteral("warning: ") + issue.text + times);
    }
}

/// Where the outputs of all files go: for each target, the plan of all files.
using Plans = QList<QList<PlannedOutput>>;

Plans plansOf(const ImportOptions& options)
{
    Plans plans;
    for (const Target target : options.targets) {
        plans.append(planOutputs(options.files, options.outputDir, nameOf(target)));
    }
    return plans;
}

/// Writes one output of an opened label; says what was written and what went wrong.
bool writeOutput(OpenedLabel& label, Target target, const PlannedOutput& planned,
                 const ImportOptions& options)
{
    if (planned.contested) {
        printAbout(planned.input,
                   QStringLiteral("another of the given files has the same name, so both would "
                                  "become %1; import them into different folders with --output-dir")
                       .arg(planned.output));
        return false;
    }
    const Written written =
        writeLabel(label, target, planned.output, {options.dpi, options.records, options.force});
    for (const QString& file : written.files) {
        printResult(file);
    }
    if (!written.error.isEmpty()) {
        printAbout(planned.input, written.error);
    }
    return written.error.isEmpty();
}

/// Imports the file of this index and writes all its targets. True when all went well.
bool importOne(qsizetype index, const Plans& plans, const ImportOptions& options)
{
    const QString& file = options.files.at(index);
    OpenedLabel label = openAnyLabel(file);
    printIssues(file, label.issues);
    if (!label.isOpen()) {
        printAbout(file, label.error);
        return false;
    }
    bool allWritten = true;
    for (qsizetype target = 0; target < options.targets.size(); ++target) {
        allWritten =
            writeOutput(label, options.targets.at(target), plans.at(target).at(index), options) &&
            allWritten;
    }
    return allWritten;
}

int importAll(const ImportOptions& options)
{
    if (!QDir().mkpath(options.outputDir)) {
        printMessage(QStringLiteral("The folder %1 cannot be made.").arg(options.outputDir));
        return ExitFailure;
    }
    const Plans plans = plansOf(options);
    qsizetype failures = 0;
    for (qsizetype index = 0; index < options.files.size(); ++index) {
        failures += importOne(index, plans, options) ? 0 : 1;
    }
    if (failures > 0 && options.files.size() > 1) {
        printMessage(
            QStringLiteral("%1 of %2 files failed.").arg(failures).arg(options.files.size()));
    }
    return failures == 0 ? ExitSuccess : ExitFailure;
}

} // namespace

int runImport(const QStringList& arguments)
{
    const auto parsed = parseImportArguments(arguments);
    if (const auto* help = std::get_if<HelpWanted>(&parsed)) {
        printText(help->text);
        return ExitSuccess;
    }
    if (const auto* error = std::get_if<UsageError>(&parsed)) {
        printMessage(error->message);
        printMessage(QStringLiteral("\"labelport import --help\" tells more."));
        return ExitUsage;
    }
    return importAll(std::get<ImportOptions>(parsed));
}

} // namespace cli
