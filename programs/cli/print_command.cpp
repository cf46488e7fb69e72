#include "archive/checked_result.h"
#include "cli/import_options.h"
#include "cli/option_reader.h"
#include "cli/option_table.h"
#include "cli/print_worker.h"
#include "cli/subcommands.h"
#include "cli/worker_jobs.h"
#include "console/command_line.h"
#include "console/output.h"
#include "console/standard_input.h"
#include "exporting/targets.h"
#include "printing/print_queue.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QThread>

#include <algorithm>

namespace cli {
using namespace Qt::StringLiterals;
namespace {

struct PrintCommandTr
{
    Q_DECLARE_TR_FUNCTIONS(cli::PrintCommand)
};

struct PrintOptions
{
    QStringList files;
    QString printer; ///< empty for the default printer
    JobOptions job;
    archive::WorkerLimits limits;
};

/// Prints labels in two steps: workers import and save each, then one worker puts all on pages.
/// A label that crashes its worker is therefore named, and prevents the print.
class Print
{
public:
    explicit Print(const PrintOptions& options)
        : m_options(options)
    {}

    [[nodiscard]] int run()
    {
        if (!m_folder.isValid()) {
            return fail(PrintCommandTr::tr("Cannot create a temporary folder: %1.")
                            .arg(m_folder.errorString()));
        }
        if (!importAll() || !writeDocuments()) {
            return console::ExitFailure;
        }
        for (const printing::PrintDocument& document : m_documents) {
            const printing::Submission submission =
                printing::submit({document.file, m_options.printer, m_title, document.media});
            if (!submission.error.isEmpty()) {
                return fail(PrintCommandTr::tr("Cannot print: %1").arg(submission.error));
            }
            console::printText(submission.job + u'\n');
        }
        return console::ExitSuccess;
    }

private:
    [[nodiscard]] static int fail(const QString& message)
    {
        console::printMessage(message);
        return console::ExitFailure;
    }

    [[nodiscard]] QString newFolder()
    {
        const QString path = m_folder.filePath(QString::number(++m_folders));
        QDir().mkpath(path);
        return path;
    }

    [[nodiscard]] archive::Job importJobOf(const QString& file)
    {
        archive::Job job;
        job.file = file;
        job.shownName = file;
        if (file == "-"_L1) {
            const QString error = console::copyStandardInput(m_standardInput);
            if (!error.isEmpty()) {
                console::printMessage(error);
            }
            job.file = m_standardInput.fileName();
            job.shownName = u"stdin"_s;
        }
        job.staging = newFolder();
        job.outputs = {{exporting::nameOf(exporting::Target::Label),
                        QDir(job.staging).filePath(u"saved.label"_s)}};
        JobOptions options;
        options.reader = m_options.job.reader;
        job.options = outputOptions(options);
        return job;
    }

    [[nodiscard]] bool importAll()
    {
        QList<archive::Job> jobs;
        QStringList inputs;
        for (const QString& file : m_options.files) {
            jobs.append(importJobOf(file));
            inputs.append(jobs.last().file);
        }
        m_title = QFileInfo(jobs.first().shownName).completeBaseName();
        const int workers = std::clamp(QThread::idealThreadCount(), 1, MaximumWorkers);
        const QList<archive::FileResult> results = runJobs(
            jobs, m_options.limits, workers, {permissionsFor(inputs, m_folder.path()), false});
        bool isComplete = true;
        for (qsizetype index = 0; index < jobs.size(); ++index) {
            const QString& name = jobs.at(index).shownName;
            const archive::FileResult& result = results.at(index);
            isComplete = reportErrors(name, result) && isComplete;
            if (!result.files.isEmpty()) {
                m_labels.append({result.files.first().staged, name});
            }
        }
        return isComplete;
    }

    [[nodiscard]] bool writeDocuments()
    {
        const archive::Job job = printJob(m_labels, m_options.job, newFolder());
        const archive::FileResult result =
            runJobs({job}, m_options.limits, 1, {permissionsFor({}, m_folder.path()), false})
                .first();
        m_documents = documentsOf(result);
        // A worker that a hostile label controls must not choose what is printed.
        const bool areOwnOutputs = std::all_of(
            m_documents.cbegin(), m_documents.cend(), [&](const printing::PrintDocument& document) {
                return archive::isFileIn(job.staging, document.file);
            });
        return reportErrors({}, result) && areOwnOutputs;
    }

    /// Prints the errors of a result. True if there are none.
    [[nodiscard]] static bool reportErrors(const QString& name, const archive::FileResult& result)
    {
        for (const QString& error : result.errors) {
            console::printMessage(name.isEmpty() ? error : u"%1: %2"_s.arg(name, error));
        }
        return result.outcome == archive::FileOutcome::Done;
    }

    const PrintOptions& m_options;
    QTemporaryDir m_folder;
    QTemporaryFile m_standardInput;
    int m_folders = 0;
    QString m_title;
    QList<PrintLabel> m_labels;
    QList<printing::PrintDocument> m_documents;
};

} // namespace

int runPrint(const QStringList& arguments)
{
    const QString command = u"labelport print"_s;
    QCommandLineParser parser;
    describeCommand(parser, commandOf("print"));
    if (const std::optional<int> status = console::parseCommand(parser, command, arguments)) {
        return *status;
    }
    OptionReader given(parser);
    PrintOptions options;
    options.files = parser.positionalArguments();
    options.printer = given.text("printer"_L1);
    takeRecords(given, u"1"_s, options.job);
    takeReader(given, options.job);
    takeSheet(given, options.job);
    options.limits = takeLimits(given);
    if (options.files.isEmpty()) {
        given.fail(PrintCommandTr::tr("No file to print."));
    }
    if (options.files.count(u"-"_s) > 1) {
        given.fail(PrintCommandTr::tr("Standard input can be given only once."));
    }
    return given.error().isEmpty() ? Print(options).run()
                                   : console::refuseArguments(command, given.error());
}

} // namespace cli
