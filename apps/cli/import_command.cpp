#include "apps/cli/import_command.h"

#include "apps/cli/existing_output.h"
#include "apps/cli/exit_status.h"
#include "apps/cli/import_options.h"
#include "apps/cli/messages.h"
#include "apps/cli/output_plan.h"
#include "workbench/import/label_import.h"
#include "workbench/rendering/page_image.h"

#include <QDir>

namespace cli {
namespace {

void printAbout(const QString& file, const QString& text)
{
    printMessage(QStringLiteral("%1: %2").arg(file, text));
}

/// Why the picture may not be written under its name; empty when it may.
QString obstacleTo(const PlannedOutput& planned, bool force)
{
    if (planned.contested) {
        return QStringLiteral("another of the given files has the same name, so both would become "
                              "%1; import them into different folders with --output-dir")
            .arg(planned.output);
    }
    if (!force && !mayOverwrite(planned.output)) {
        return QStringLiteral("%1 exists and was not made by labelport; it is left as it is "
                              "(--force overwrites it)")
            .arg(planned.output);
    }
    return {};
}

QString writePicture(const workbench::Canvas& canvas, int dpi, const QString& fileName)
{
    workbench::PageImage page = workbench::renderPage(canvas, dpi);
    if (!page.error.isEmpty()) {
        return page.error;
    }
    page.image.setText(QStringLiteral("Software"), QLatin1String(SoftwareMark));
    return workbench::writePng(page.image, fileName);
}

void printIssues(const QString& file, const QList<workbench::ImportIssue>& issues)
{
    for (const workbench::ImportIssue& issue : issues) {
        const QString times =
            issue.repeats > 1 ? QStringLiteral(" (%1 times)").arg(issue.repeats) : QString();
        printAbout(file, QStringLiteral("warning: ") + issue.text + times);
    }
}

/// Imports one file and writes what it shows; says what went wrong. True when all went well.
bool importOne(const PlannedOutput& planned, const ImportOptions& options)
{
    QString problem = obstacleTo(planned, options.force);
    if (problem.isEmpty()) {
        const workbench::ImportResult result = workbench::importLabel(planned.input);
        printIssues(planned.input, result.issues);
        problem = result.isImported() ? writePicture(*result.canvas, options.dpi, planned.output)
                                      : result.error;
    }
    if (!problem.isEmpty()) {
        printAbout(planned.input, problem);
        return false;
    }
    printResult(planned.output);
    return true;
}

int importAll(const ImportOptions& options)
{
    if (!QDir().mkpath(options.outputDir)) {
        printMessage(QStringLiteral("The folder %1 cannot be made.").arg(options.outputDir));
        return ExitFailure;
    }
    int failures = 0;
    const QList<PlannedOutput> plan =
        planOutputs(options.files, options.outputDir, options.targets.constFirst());
    for (const PlannedOutput& planned : plan) {
        failures += importOne(planned, options) ? 0 : 1;
    }
    if (failures > 0 && plan.size() > 1) {
        printMessage(QStringLiteral("%1 of %2 files failed.").arg(failures).arg(plan.size()));
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
