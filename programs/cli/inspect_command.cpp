#include "cli/inspect_command.h"

#include "cli/command_line.h"
#include "cli/exit_status.h"
#include "cli/file_reports.h"
#include "cli/import_option_table.h"
#include "cli/import_options.h"
#include "cli/import_worker.h"
#include "cli/job_options.h"
#include "cli/messages.h"
#include "archive/worker_pool.h"
#include "migration/report/text_report.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QEventLoop>
#include <QJsonDocument>

namespace cli {
namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("cli::InspectCommand", text);
}

void addOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(tr(
        "Tells what one label holds, what of it comes over and what does not. Writes nothing.\n\n"
        "Examples:\n"
        "  labelport inspect shelf.odg\n"
        "  labelport inspect shelf.odg --json | jq .lost"));
    parser.addPositionalArgument(QStringLiteral("file"), tr("Label to look into."),
                                 QStringLiteral("FILE"));
    parser.addOption({QStringLiteral("json"), tr("Tell it as JSON, as reports have it.")});
    parser.addOption({QStringLiteral("reader"),
                      tr("Read the file as tavrel, orvanta or opendocument, "
                         "whatever its name."),
                      tr("name")});
    addLimitOptions(parser);
}

/// One file for one worker, so that whatever it holds cannot harm more than that.
class Inspection final : public archive::PoolClient
{
public:
    Inspection(const QString& file, const JobOptions& options, const archive::WorkerLimits& limits)
        : m_limits(limits)
    {
        m_job.file = file;
        m_job.shownName = file;
        m_job.options = decisiveOptions(options);
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
        m_result.errors = {tr("the process that opens it cannot be started")};
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
            taskDied(task, {archive::WorkerDeath::Garbled, 0});
        }
        return 0;
    }

    void taskDied(qsizetype, const archive::WorkerDeath& death) override
    {
        m_result.fate = archive::fateOf(death);
        m_result.errors = QStringList{archive::wordsFor(death, m_limits)};
    }

private:
    archive::Job m_job;
    archive::WorkerLimits m_limits;
    archive::FileResult m_result;
    int m_taken = 0;
};

int tell(const QString& file, const archive::FileResult& result, bool asJson)
{
    const archive::Input input{file, file, {}};
    const migration::FileReport report = finalReport({input, result, {}, false});
    if (asJson) {
        printText(QString::fromUtf8(
            QJsonDocument(migration::toJson(report)).toJson(QJsonDocument::Indented)));
    } else {
        printText(migration::describeForPeople(report));
    }
    return result.fate == archive::Fate::Done ? ExitSuccess : ExitFailure;
}

} // namespace

int runInspect(const QStringList& arguments)
{
    // No translation: it is typed so.
    const QString command = QStringLiteral("labelport inspect");
    QCommandLineParser parser;
    addOptions(parser);
    if (const std::optional<int> status = parseCommand(parser, command, arguments)) {
        return *status;
    }
    const QStringList files = parser.positionalArguments();
    if (files.size() != 1) {
        return refuseArguments(command, tr("It takes one file."));
    }
    JobOptions options;
    options.report = true;
    options.items = true;
    const QString reader = parser.value(QStringLiteral("reader"));
    options.reader = readerOfName(reader);
    if (!reader.isEmpty() && !options.reader) {
        return refuseArguments(command, unknownReaderWords(reader));
    }
    const auto limits = limitsOf(parser);
    if (const auto* error = std::get_if<UsageError>(&limits)) {
        return refuseArguments(command, error->message);
    }
    Inspection inspection(files.first(), options, std::get<archive::WorkerLimits>(limits));
    return tell(files.first(), inspection.run(), parser.isSet(QStringLiteral("json")));
}

} // namespace cli
