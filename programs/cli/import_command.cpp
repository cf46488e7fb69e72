#include "archive/publish.h"
#include "archive/run.h"
#include "archive/stop_signals.h"
#include "cli/archive_reports.h"
#include "cli/existing_output.h"
#include "cli/import_events.h"
#include "cli/import_inputs.h"
#include "cli/import_options.h"
#include "cli/import_reporter.h"
#include "cli/import_worker.h"
#include "cli/subcommands.h"
#include "console/output.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTimer>

namespace cli {
namespace {

/// From this many named files on, keep a journal as for a folder.
constexpr qsizetype ManyFiles = 32;

bool isArchive(const ImportOptions& options, const archive::InputList& list)
{
    return list.searched || !options.filesFrom.isEmpty() || options.resume ||
           !options.shard.isEverything() || list.inputs.size() > ManyFiles;
}

archive::RunSettings settingsFor(const ImportOptions& options, const ImportInputs& inputs)
{
    const archive::InputList& list = inputs.list;
    archive::RunSettings settings;
    for (const exporting::Target target : options.targets) {
        settings.targets.append(exporting::nameOf(target));
    }
    settings.tables = exporting::recordsSuffixes(settings.targets);
    settings.outputFolder = options.outputDir;
    settings.outputFile = writesToStandardOutput(options) ? QString() : options.output;
    settings.shard = inputs.part ? inputs.part->shard : options.shard;
    settings.names = inputs.part ? inputs.part->names : QList<archive::OutputName>();
    settings.isPart = inputs.part.has_value();
    settings.options = outputOptions(options.job);
    // A later run may resume this one with a report; its pages need the pictures.
    JobOptions job = options.job;
    job.thumbnail = isArchive(options, list) || !options.reports.isEmpty();
    settings.workerOptions = otherOptions(job);
    settings.version = QCoreApplication::applicationVersion();
    settings.isResuming = options.resume;
    settings.keepsJournal = isArchive(options, list);
    settings.needsReports = true;
    settings.workers = options.workers;
    settings.limits = options.limits;
    settings.command = workerCommand(options.limits.memoryMiB);
    settings.readable = list.readable;
    settings.requiresSandbox = options.requiresSandbox;
    settings.mayReplace = [force = options.job.force](const QString& path) {
        return force || isOurOutput(path);
    };
    return settings;
}

Listing listingFor(const ImportOptions& options)
{
    if (writesToStandardOutput(options)) {
        return Listing::Nothing;
    }
    if (options.json) {
        return Listing::Events;
    }
    return options.endsNamesWithNull ? Listing::NamesWithNull : Listing::Names;
}

/// One run of the command.
class Import
{
public:
    Import(const ImportOptions& options, const ImportInputs& inputs)
        : m_options(options)
        , m_list(inputs.list)
        , m_reporter(options.quiet, listingFor(options))
        , m_reports(options.reports, options.failOnLoss, options.job.force)
        , m_run(m_list.inputs, settingsFor(options, inputs),
                [this](const archive::Delivery& delivery) {
                    m_reporter.reportFile(delivery);
                    m_written += m_options.output.isEmpty() ? QStringList() : delivery.written;
                    m_reports.add(delivery);
                })
    {}

    int run()
    {
        const QString folder = outputThatIsFolder();
        const QString problem = folder.isEmpty() ? m_reports.firstProblem() : folder;
        const QString error = problem.isEmpty() ? m_run.open() : problem;
        if (!error.isEmpty()) {
            m_reporter.print(error);
            return console::ExitFailure;
        }
        waitUntilFinished();
        return conclude();
    }

    [[nodiscard]] archive::Progress progress() const { return m_run.progress(); }
    /// Collected only for --output, which writes few.
    [[nodiscard]] const QStringList& written() const { return m_written; }

private:
    // Found before the import: the names of further pages would be in the folder.
    [[nodiscard]] QString outputThatIsFolder() const
    {
        return QFileInfo(m_options.output).isDir()
                   ? archive::cannotWrite(m_options.output,
                                          QCoreApplication::translate(
                                              "archive::Publish", "a folder of that name exists"))
                   : QString();
    }
    void waitUntilFinished()
    {
        QEventLoop loop;
        archive::StopSignals signalsToStop;
        QObject::connect(&signalsToStop, &archive::StopSignals::stopRequested, &m_run,
                         [this](int times) { times == 1 ? m_run.stop() : m_run.stopAtOnce(); });
        QObject::connect(&m_run, &archive::Run::advanced, &m_run,
                         [this] { m_reporter.showProgress(m_run.progress()); });
        QObject::connect(&m_run, &archive::Run::finished, &loop, &QEventLoop::quit,
                         Qt::QueuedConnection);
        // The rate, and the time of a file that takes long, change without an event.
        QTimer clock;
        QObject::connect(&clock, &QTimer::timeout, &m_run,
                         [this] { m_reporter.showProgress(m_run.progress()); });
        constexpr int refreshMilliseconds = 500;
        clock.start(refreshMilliseconds);
        m_run.start();
        loop.exec();
    }

    int conclude()
    {
        const archive::Progress progress = m_run.progress();
        m_reporter.printSummary(progress, isArchive(m_options, m_list), m_list.skipped);
        for (const QString& warning : m_run.warnings()) {
            m_reporter.print(warning);
        }
        if (m_run.isStopped()) {
            m_reporter.print(QCoreApplication::translate(
                "cli::ImportCommand", "Stopped. Repeat the command with --resume to continue."));
            return console::ExitStopped;
        }
        const QStringList errors = m_reports.finish();
        for (const QString& error : errors) {
            m_reporter.print(error);
        }
        const bool isComplete = progress.failed == 0 && !m_run.isBroken() &&
                                m_list.unreadable.isEmpty() && errors.isEmpty();
        printLosses(errors.isEmpty());
        if (!isComplete) {
            return console::ExitFailure;
        }
        const bool hasLosses = m_reports.summary().count(migration::Verdict::Lossy) > 0;
        return m_options.failOnLoss && hasLosses ? console::ExitLoss : console::ExitSuccess;
    }

    // A single label that was imported completely needs no words; one that failed had them.
    void printLosses(bool areReportsWritten)
    {
        const LossSummary& summary = m_reports.summary();
        const bool failsOnLoss =
            m_options.failOnLoss && summary.count(migration::Verdict::Lossy) > 0;
        const bool isNews = m_list.inputs.size() > 1 ||
                            summary.count(migration::Verdict::Changed) > 0 ||
                            summary.count(migration::Verdict::Lossy) > 0;
        if (!failsOnLoss && (m_options.quiet || !isNews)) {
            return;
        }
        QStringList lines{summary.counts()};
        lines += summary.worst();
        lines.append(summary.hint(areReportsWritten ? m_options.reports : QStringList()));
        lines.removeAll(QString());
        m_reporter.print(lines.join(u'\n'));
    }

    const ImportOptions& m_options;
    const archive::InputList& m_list;
    QStringList m_written;
    ImportReporter m_reporter;
    ArchiveReports m_reports;
    archive::Run m_run;
};

/// The only file that an import wrote to a temporary folder.
int printWritten(const QStringList& written)
{
    if (written.size() != 1) {
        console::printMessage(QCoreApplication::translate(
            "cli::ImportCommand",
            "%n file(s) cannot be written to standard output; select one "
            "record with --records.",
            nullptr, static_cast<int>(written.size())));
        return console::ExitFailure;
    }
    const QString error = console::printFile(written.constFirst());
    if (!error.isEmpty()) {
        console::printMessage(error);
        return console::ExitFailure;
    }
    return console::ExitSuccess;
}

int importTo(const ImportOptions& options, const ImportInputs& inputs)
{
    Import import(options, inputs);
    int status = import.run();
    if (writesToStandardOutput(options) && !import.written().isEmpty() &&
        status != console::ExitFailure && status != console::ExitStopped) {
        const int printed = printWritten(import.written());
        status = printed == console::ExitSuccess ? status : printed;
    }
    if (options.json) {
        console::printBytes(endEvent(import.progress(), inputs.list.skipped, status));
    }
    return status;
}

/// The options for a command that writes to standard output: to a temporary folder first, so that
/// an import that fails prints nothing.
int importToStandardOutput(ImportOptions options, const ImportInputs& inputs)
{
    const QTemporaryDir folder;
    if (!folder.isValid()) {
        console::printMessage(QCoreApplication::translate("cli::ImportCommand",
                                                          "Cannot create a temporary folder: %1.")
                                  .arg(folder.errorString()));
        return console::ExitFailure;
    }
    options.outputDir = folder.path();
    return importTo(options, inputs);
}

int refuseInputs(const ImportOptions& options, const QString& message)
{
    console::printMessage(message);
    if (options.json) {
        console::printBytes(endEvent({}, 0, console::ExitFailure));
    }
    return console::ExitFailure;
}

} // namespace

int importAll(const ImportOptions& options)
{
    const QString problem = options.requiresSandbox ? sandboxProblem() : QString();
    if (!problem.isEmpty()) {
        console::printMessage(problem);
        return console::ExitFailure;
    }
    const ImportInputs inputs = findInputs(options);
    if (!inputs.error.isEmpty()) {
        return refuseInputs(options, inputs.error);
    }
    printUnreadableFolders(inputs.list);
    // A part of an archive may be empty.
    if (inputs.list.inputs.isEmpty() && !inputs.part) {
        return refuseInputs(
            options, QCoreApplication::translate("cli::ImportCommand", "No labels to import."));
    }
    return writesToStandardOutput(options) ? importToStandardOutput(options, inputs)
                                           : importTo(options, inputs);
}

int runImport(const QStringList& arguments)
{
    const auto parsed = parseImportArguments(arguments);
    if (const int* status = std::get_if<int>(&parsed)) {
        return *status;
    }
    return importAll(std::get<ImportOptions>(parsed));
}

} // namespace cli
