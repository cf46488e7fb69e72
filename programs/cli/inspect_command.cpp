#include "archive/worker_pool.h"
#include "cli/commands.h"
#include "cli/file_reports.h"
#include "cli/import_options.h"
#include "cli/import_worker.h"
#include "cli/job_options.h"
#include "cli/option_table.h"
#include "console/command_line.h"
#include "console/output.h"
#include "console/standard_input.h"
#include "migration/report/text_report.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QEventLoop>
#include <QJsonDocument>
#include <QTemporaryFile>

namespace cli {
using namespace Qt::StringLiterals;
namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("cli::InspectCommand", text);
}

/// One file in a worker process, so that a bad file cannot crash the program.
class Inspection final : public archive::PoolClient
{
public:
    Inspection(const archive::Input& input, const JobOptions& options,
               const archive::WorkerLimits& limits)
        : m_limits(limits)
    {
        m_job.file = input.path;
        m_job.shownName = input.shownName;
        m_job.options = outputOptions(options);
        const QJsonObject others = otherOptions(options);
        for (auto entry = others.begin(); entry != others.end(); ++entry) {
            m_job.options.insert(entry.key(), entry.value());
        }
    }

    archive::FileResult run()
    {
        QEventLoop loop;
        archive::WorkerPool pool(*this, workerCommand(m_limits.memoryMiB), m_limits, 1);
        for (const auto end : {&archive::WorkerPool::drained, &archive::WorkerPool::broken}) {
            QObject::connect(&pool, end, &loop, &QEventLoop::quit, Qt::QueuedConnection);
        }
        m_result.errors = {tr("Cannot start the worker process.")};
        pool.start();
        loop.exec();
        return m_result;
    }

    std::optional<qsizetype> nextTask() override
    {
        return m_taken++ == 0 ? std::optional<qsizetype>(0) : std::nullopt;
    }

    QByteArray lineFor(qsizetype, int) override { return archive::lineOf(m_job); }

    qint64 taskAnswered(qsizetype task, const QByteArray& line) override
    {
        if (const std::optional<archive::FileResult> result = archive::resultFromLine(line)) {
            m_result = *result;
        } else {
            taskFailed(task, {archive::WorkerEnd::Garbled, 0});
        }
        return 0;
    }

    void taskFailed(qsizetype, const archive::WorkerEnd& end) override
    {
        m_result.outcome = archive::outcomeOf(end);
        m_result.errors = QStringList{archive::messageFor(end, m_limits)};
    }

private:
    archive::Job m_job;
    archive::WorkerLimits m_limits;
    archive::FileResult m_result;
    int m_taken = 0;
};

int print(const archive::Input& input, const archive::FileResult& result, bool asJson)
{
    const migration::FileReport report = finalReport({input, result, {}, false});
    if (asJson) {
        console::printBytes(
            QJsonDocument(migration::toJson(report)).toJson(QJsonDocument::Indented));
    } else {
        console::printText(migration::describeForPeople(report));
    }
    return result.outcome == archive::FileOutcome::Done ? console::ExitSuccess
                                                        : console::ExitFailure;
}

/// The options of the file; empty, with the reason in `error`, if they are wrong.
std::optional<JobOptions> optionsOf(const QCommandLineParser& parser, QString& error)
{
    JobOptions options;
    options.items = true;
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
    QString error = files.size() == 1 ? QString() : tr("inspect needs exactly one file.");
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
    if (!error.isEmpty()) {
        console::printMessage(error);
        return console::ExitFailure;
    }
    Inspection inspection(input, *options, *limits);
    return print(input, inspection.run(), parser.isSet(u"json"_s));
}

} // namespace cli
