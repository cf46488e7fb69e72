#include "cli/import_options.h"

#include "cli/command_line.h"
#include "cli/import_option_table.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QThread>

#include <algorithm>

namespace cli {
namespace {

/// Fills the options from what was parsed; the first thing wrong is what is remembered.
class Filling
{
public:
    explicit Filling(const QCommandLineParser& parser)
        : m_parser(parser)
    {}

    [[nodiscard]] const QString& error() const { return m_error; }

    bool isSet(QLatin1String name) const { return m_parser.isSet(name); }
    QString text(QLatin1String name) const { return m_parser.value(name); }
    QStringList texts(QLatin1String name) const { return m_parser.values(name); }

    int number(QLatin1String name, int least, int most, int whenMissing)
    {
        if (!isSet(name)) {
            return whenMissing;
        }
        bool isNumber = false;
        const int value = text(name).toInt(&isNumber);
        if (!isNumber || value < least || value > most) {
            fail(QCoreApplication::translate("cli::ImportOptions",
                                             "--%1 takes a whole number from %2 to %3, not "
                                             "\"%4\".")
                     .arg(name)
                     .arg(least)
                     .arg(most)
                     .arg(text(name)));
        }
        return value;
    }

    void fail(const QString& error)
    {
        if (m_error.isEmpty()) {
            m_error = error;
        }
    }

private:
    const QCommandLineParser& m_parser;
    QString m_error;
};

void takeTargets(Filling& given, ImportOptions& options)
{
    const QStringList lists = given.isSet(QLatin1String("to")) ? given.texts(QLatin1String("to"))
                                                               : QStringList{QStringLiteral("png")};
    for (const QString& name : lists.join(QLatin1Char(',')).split(QLatin1Char(','))) {
        const std::optional<Target> target = targetOfName(name);
        if (!target) {
            given.fail(
                QCoreApplication::translate(
                    "cli::ImportOptions", "\"%1\" is nothing that can be written; --to takes: %2.")
                    .arg(name, targetNames().join(QStringLiteral(", "))));
        } else if (!options.targets.contains(*target)) {
            options.targets.append(*target);
        }
    }
}

void takeRecords(Filling& given, ImportOptions& options)
{
    const QLatin1String name("records");
    const auto records = recordRangeOf(given.isSet(name) ? given.text(name) : QStringLiteral("1"));
    if (!records) {
        given.fail(QCoreApplication::translate("cli::ImportOptions",
                                               "--records takes a number, a range as 3-12 or 3-, "
                                               "or all, not \"%1\".")
                       .arg(given.text(name)));
    }
    options.job.records = records.value_or(RecordRange{});
}

void takeReader(Filling& given, ImportOptions& options)
{
    const QLatin1String name("reader");
    options.job.reader = readerOfName(given.text(name));
    if (given.isSet(name) && !options.job.reader) {
        given.fail(unknownReaderWords(given.text(name)));
    }
}

void takeShard(Filling& given, ImportOptions& options)
{
    const QLatin1String name("shard");
    const auto shard =
        archive::shardOf(given.isSet(name) ? given.text(name) : QStringLiteral("1/1"));
    if (!shard) {
        given.fail(QCoreApplication::translate("cli::ImportOptions",
                                               "--shard takes a part and their number, as 3/8, "
                                               "not \"%1\".")
                       .arg(given.text(name)));
    }
    options.shard = shard.value_or(archive::Shard{});
}

void takeReports(Filling& given, ImportOptions& options)
{
    options.reports = given.texts(QLatin1String("report"));
    for (const QString& report : options.reports) {
        const bool isKnown = report.endsWith(QLatin1String(".json"), Qt::CaseInsensitive) ||
                             report.endsWith(QLatin1String(".html"), Qt::CaseInsensitive);
        if (!isKnown) {
            given.fail(QCoreApplication::translate(
                           "cli::ImportOptions",
                           "A report is written to a file whose name ends in .json or .html, not "
                           "to \"%1\".")
                           .arg(report));
        }
    }
    options.failOnLoss = given.isSet(QLatin1String("fail-on-loss"));
    options.job.report = options.failOnLoss || !options.reports.isEmpty();
}

archive::WorkerLimits takeLimits(Filling& given)
{
    archive::WorkerLimits limits;
    limits.timeoutSeconds =
        given.number(QLatin1String("timeout"), 0, MaximumTimeout, limits.timeoutSeconds);
    limits.memoryMiB =
        given.number(QLatin1String("memory-limit"), 0, MaximumMemory, limits.memoryMiB);
    if (limits.memoryMiB > 0 && limits.memoryMiB < MinimumMemory) {
        given.fail(QCoreApplication::translate("cli::ImportOptions",
                                               "--memory-limit takes 0 or at least %1 MiB.")
                       .arg(MinimumMemory));
    }
    return limits;
}

void takeNumbers(Filling& given, ImportOptions& options)
{
    options.job.dpi = given.number(QLatin1String("dpi"), MinimumDpi, MaximumDpi, options.job.dpi);
    options.workers = given.number(QLatin1String("jobs"), 1, MaximumWorkers,
                                   std::clamp(QThread::idealThreadCount(), 1, MaximumWorkers));
    options.limits = takeLimits(given);
}

void checkInputs(Filling& given, const ImportOptions& options)
{
    const bool readsLabel = options.files.contains(QLatin1String("-"));
    if (options.files.isEmpty() && options.filesFrom.isEmpty()) {
        given.fail(
            QCoreApplication::translate("cli::ImportOptions", "No file to import was given."));
    }
    if (readsLabel && options.filesFrom == QLatin1String("-")) {
        given.fail(QCoreApplication::translate(
            "cli::ImportOptions",
            "Standard input can be a label or a list of files, but not both."));
    }
    if (readsLabel && !options.job.reader) {
        given.fail(QCoreApplication::translate("cli::ImportOptions",
                                               "Standard input has no name, so --reader must say "
                                               "what it is: %1.")
                       .arg(readerNames().join(QStringLiteral(", "))));
    }
}

ImportOptions optionsFrom(Filling& given, const QStringList& files)
{
    ImportOptions options;
    options.files = files;
    options.filesFrom = given.text(QLatin1String("files-from"));
    options.isNullSeparated = given.isSet(QLatin1String("null"));
    options.base = given.text(QLatin1String("base"));
    takeTargets(given, options);
    takeRecords(given, options);
    takeNumbers(given, options);
    takeReader(given, options);
    checkInputs(given, options);
    options.outputDir = given.isSet(QLatin1String("output-dir"))
                            ? given.text(QLatin1String("output-dir"))
                            : QStringLiteral(".");
    takeShard(given, options);
    takeReports(given, options);
    options.job.force = given.isSet(QLatin1String("force"));
    options.resume = given.isSet(QLatin1String("resume"));
    options.quiet = given.isSet(QLatin1String("quiet"));
    return options;
}

} // namespace

std::variant<ImportOptions, HelpWanted, UsageError>
parseImportArguments(const QStringList& arguments)
{
    // No translation: it is typed so.
    const QString command = QStringLiteral("labelport import");
    QCommandLineParser parser;
    addImportOptions(parser);
    if (!parser.parse(QStringList{command} + arguments)) {
        return UsageError{parser.errorText()};
    }
    if (parser.isSet(QStringLiteral("help"))) {
        return HelpWanted{helpOf(parser, command)};
    }
    Filling given(parser);
    ImportOptions options = optionsFrom(given, parser.positionalArguments());
    if (!given.error().isEmpty()) {
        return UsageError{given.error()};
    }
    return options;
}

std::variant<archive::WorkerLimits, UsageError> limitsOf(const QCommandLineParser& parser)
{
    Filling given(parser);
    const archive::WorkerLimits limits = takeLimits(given);
    if (!given.error().isEmpty()) {
        return UsageError{given.error()};
    }
    return limits;
}

} // namespace cli
