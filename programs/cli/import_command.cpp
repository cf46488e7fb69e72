#include "cli/import_command.h"

#include "cli/archive_reports.h"
#include "cli/existing_output.h"
#include "cli/exit_status.h"
#include "cli/import_inputs.h"
#include "cli/import_options.h"
#include "cli/import_teller.h"
#include "cli/import_worker.h"
#include "cli/messages.h"
#include "archive/run.h"
#include "archive/stop_signals.h"

#include <QCoreApplication>
#include <QEventLoop>

namespace cli {
namespace {

/// So many named files are an archive as a folder is, and worth a journal.
constexpr qsizetype ManyFiles = 32;

bool isArchive(const ImportOptions& options, const archive::InputList& list)
{
    return list.searched || !options.filesFrom.isEmpty() || options.resume ||
           !options.shard.isWhole() || list.inputs.size() > ManyFiles;
}

archive::RunSettings settingsFor(const ImportOptions& options, const archive::InputList& list)
{
    archive::RunSettings settings;
    for (const Target target : options.targets) {
        settings.targets.append(nameOf(target));
    }
    settings.outputFolder = options.outputDir;
    settings.shard = options.shard;
    settings.options = decisiveOptions(options.job);
    settings.manner = otherOptions(options.job);
    settings.version = QCoreApplication::applicationVersion();
    settings.isResuming = options.resume;
    settings.keepsJournal = isArchive(options, list);
    settings.needsReports = options.job.report;
    settings.workers = options.workers;
    settings.limits = options.limits;
    settings.command = workerCommand(options.limits.memoryMiB);
    settings.mayReplace = [](const QString& path) { return isOurOutput(path); };
    return settings;
}

/// One command on its way.
class Import
{
public:
    Import(const ImportOptions& options, const archive::InputList& list)
        : m_options(options)
        , m_list(list)
        , m_teller(options.quiet)
        , m_reports(options.reports, options.failOnLoss)
        , m_run(list.inputs, settingsFor(options, list), [this](const archive::Delivery& delivery) {
            m_teller.tell(delivery);
            m_reports.add(delivery);
        })
    {}

    int run()
    {
        for (const QString& folder : m_list.unreadable) {
            m_teller.say(QCoreApplication::translate("cli::ImportCommand",
                                                     "The folder %1 cannot be searched.")
                             .arg(folder));
        }
        const QString obstacle = m_reports.obstacle();
        const QString error = obstacle.isEmpty() ? m_run.open() : obstacle;
        if (!error.isEmpty()) {
            m_teller.say(error);
            return ExitFailure;
        }
        waitForTheEnd();
        return conclude();
    }

private:
    void waitForTheEnd()
    {
        QEventLoop loop;
        archive::StopSignals signalsToStop;
        QObject::connect(&signalsToStop, &archive::StopSignals::stopRequested, &m_run,
                         [this](int times) { times == 1 ? m_run.stop() : m_run.stopAtOnce(); });
        QObject::connect(&m_run, &archive::Run::advanced, &m_run,
                         [this] { m_teller.showProgress(m_run.progress()); });
        QObject::connect(&m_run, &archive::Run::finished, &loop, &QEventLoop::quit,
                         Qt::QueuedConnection);
        m_run.start();
        loop.exec();
    }

    int conclude()
    {
        const archive::Progress progress = m_run.progress();
        m_teller.sumUp(progress, isArchive(m_options, m_list), m_list.skipped);
        for (const QString& trouble : m_run.troubles()) {
            m_teller.say(trouble);
        }
        if (m_run.isStopped()) {
            m_teller.say(QCoreApplication::translate(
                "cli::ImportCommand", "Stopped. The same command with --resume goes on."));
            return ExitStopped;
        }
        const QStringList errors = m_reports.finish();
        for (const QString& error : errors) {
            m_teller.say(error);
        }
        const bool isComplete = progress.failed == 0 && !m_run.isBroken() &&
                                m_list.unreadable.isEmpty() && errors.isEmpty();
        return isComplete ? tellLosses() : ExitFailure;
    }

    int tellLosses()
    {
        if (!m_options.failOnLoss || m_reports.losses() == 0) {
            return ExitSuccess;
        }
        m_teller.say(QCoreApplication::translate("cli::ImportCommand",
                                                 "%1 of %2 files did not come over whole.")
                         .arg(m_reports.losses())
                         .arg(m_run.progress().total));
        return ExitLoss;
    }

    const ImportOptions& m_options;
    const archive::InputList& m_list;
    ImportTeller m_teller;
    ArchiveReports m_reports;
    archive::Run m_run;
};

int importAll(const ImportOptions& options)
{
    const ImportInputs inputs = findInputs(options);
    if (!inputs.error.isEmpty()) {
        printMessage(inputs.error);
        return ExitFailure;
    }
    if (inputs.list.inputs.isEmpty()) {
        printMessage(
            QCoreApplication::translate("cli::ImportCommand", "There is no label to import."));
        return ExitFailure;
    }
    return Import(options, inputs.list).run();
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
        printMessage(QCoreApplication::translate("cli::ImportCommand",
                                                 "\"labelport import --help\" tells more."));
        return ExitUsage;
    }
    return importAll(std::get<ImportOptions>(parsed));
}

} // namespace cli
