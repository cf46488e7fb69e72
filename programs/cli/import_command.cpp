#include "archive/run.h"
#include "archive/stop_signals.h"
#include "cli/archive_reports.h"
#include "cli/commands.h"
#include "cli/existing_output.h"
#include "cli/import_inputs.h"
#include "cli/import_options.h"
#include "cli/import_reporter.h"
#include "cli/import_worker.h"
#include "console/output.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

namespace cli {
namespace {

/// From this many named files on, keep a journal as for a folder.
constexpr qsizetype ManyFiles = 32;

bool isArchive(const ImportOptions& options, const archive::InputList& list)
{
    return list.searched || !options.filesFrom.isEmpty() || options.resume ||
           !options.shard.isWhole() || list.inputs.size() > ManyFiles;
}

archive::RunSettings settingsFor(const ImportOptions& options, const archive::InputList& list)
{
    archive::RunSettings settings;
    for (const exporting::Target target : options.targets) {
        settings.targets.append(exporting::nameOf(target));
    }
    settings.outputFolder = options.outputDir;
    settings.shard = options.shard;
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
    settings.mayReplace = [](const QString& path) { return isOurOutput(path); };
    return settings;
}

/// One run of the command.
class Import
{
public:
    Import(const ImportOptions& options, const archive::InputList& list)
        : m_options(options)
        , m_list(list)
        , m_reporter(options.quiet, options.endsNamesWithNull)
        , m_reports(options.reports, options.failOnLoss, options.job.force)
        , m_run(list.inputs, settingsFor(options, list), [this](const archive::Delivery& delivery) {
            m_reporter.reportFile(delivery);
            m_reports.add(delivery);
        })
    {}

    int run()
    {
        const QString problem = m_reports.firstProblem();
        const QString error = problem.isEmpty() ? m_run.open() : problem;
        if (!error.isEmpty()) {
            m_reporter.print(error);
            return console::ExitFailure;
        }
        waitUntilFinished();
        return conclude();
    }

private:
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
        const bool isAsked = m_options.failOnLoss && summary.count(migration::Verdict::Lossy) > 0;
        const bool isNews = m_list.inputs.size() > 1 ||
                            summary.count(migration::Verdict::Changed) > 0 ||
                            summary.count(migration::Verdict::Lossy) > 0;
        if (!isAsked && (m_options.quiet || !isNews)) {
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
    ImportReporter m_reporter;
    ArchiveReports m_reports;
    archive::Run m_run;
};

int importAll(const ImportOptions& options)
{
    const ImportInputs inputs = findInputs(options);
    if (!inputs.error.isEmpty()) {
        console::printMessage(inputs.error);
        return console::ExitFailure;
    }
    for (const archive::UnreadableFolder& folder : inputs.list.unreadable) {
        console::printMessage(
            QCoreApplication::translate("cli::ImportCommand", "Cannot search folder \"%1\": %2.")
                .arg(folder.path, folder.reason));
    }
    if (inputs.list.inputs.isEmpty()) {
        console::printMessage(
            QCoreApplication::translate("cli::ImportCommand", "No labels to import."));
        return console::ExitFailure;
    }
    return Import(options, inputs.list).run();
}

} // namespace

int runImport(const QStringList& arguments)
{
    const auto parsed = parseImportArguments(arguments);
    if (const int* status = std::get_if<int>(&parsed)) {
        return *status;
    }
    return importAll(std::get<ImportOptions>(parsed));
}

} // namespace cli
