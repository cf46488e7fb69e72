#include "apps/cli/import_options.h"

#include "apps/cli/command_line.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QThread>

#include <algorithm>
#include <array>

namespace cli {
namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("cli::ImportOptions", text);
}

struct OptionRow
{
    const char* name;
    const char* value; ///< what the value is called; null for a switch
    const char* help;
};

constexpr std::array Rows{
    OptionRow{"to", QT_TRANSLATE_NOOP("cli::ImportOptions", "targets"),
              QT_TRANSLATE_NOOP("cli::ImportOptions",
                                "What to write: png, svg, pdf, label; several with commas "
                                "(default: png).")},
    OptionRow{"output-dir", QT_TRANSLATE_NOOP("cli::ImportOptions", "folder"),
              QT_TRANSLATE_NOOP("cli::ImportOptions",
                                "Folder to write to; made when it is missing (default: the "
                                "current one). It gets the subfolders of a folder that is "
                                "imported.")},
    OptionRow{"dpi", QT_TRANSLATE_NOOP("cli::ImportOptions", "number"),
              QT_TRANSLATE_NOOP("cli::ImportOptions",
                                "Dots per inch of pictures, 10 to 2400 (default: 300).")},
    OptionRow{"records", QT_TRANSLATE_NOOP("cli::ImportOptions", "range"),
              QT_TRANSLATE_NOOP("cli::ImportOptions",
                                "Records of the label's data sources: a number, a range as 3-12 "
                                "or 3-, or all (default: the first). A series of pictures is "
                                "numbered; a PDF has a page for each.")},
    OptionRow{
        "force", nullptr,
        QT_TRANSLATE_NOOP("cli::ImportOptions", "Overwrite files that LabelPort did not make.")},
    OptionRow{"reader", QT_TRANSLATE_NOOP("cli::ImportOptions", "name"),
              QT_TRANSLATE_NOOP("cli::ImportOptions",
                                "Read every file as tavrel (*.cnv, *.roc), orvanta (*.qmtx) or "
                                "opendocument (*.odt, *.odg), whatever its name. Standard input "
                                "needs it.")},
    OptionRow{"files-from", QT_TRANSLATE_NOOP("cli::ImportOptions", "file"),
              QT_TRANSLATE_NOOP("cli::ImportOptions",
                                "Import what a file lists as well, a name on each line or "
                                "between NULs; - reads the list from standard input.")},
    OptionRow{"null", nullptr,
              QT_TRANSLATE_NOOP("cli::ImportOptions",
                                "The list's names stand between NULs, as find -print0 writes "
                                "them.")},
    OptionRow{"base", QT_TRANSLATE_NOOP("cli::ImportOptions", "folder"),
              QT_TRANSLATE_NOOP("cli::ImportOptions",
                                "Named and listed files below this folder keep their subfolders "
                                "in the output folder.")},
    OptionRow{"jobs", QT_TRANSLATE_NOOP("cli::ImportOptions", "number"),
              QT_TRANSLATE_NOOP("cli::ImportOptions",
                                "Files to import at the same time (default: one for each "
                                "processor core).")},
    OptionRow{"timeout", QT_TRANSLATE_NOOP("cli::ImportOptions", "seconds"),
              QT_TRANSLATE_NOOP("cli::ImportOptions",
                                "Give a file up that does not get on for so long; 0 waits for "
                                "ever (default: 60).")},
    OptionRow{"memory-limit", QT_TRANSLATE_NOOP("cli::ImportOptions", "MiB"),
              QT_TRANSLATE_NOOP("cli::ImportOptions",
                                "Give a file up that needs more memory than so much; 0 sets no "
                                "limit (default: 2048).")},
    OptionRow{"resume", nullptr,
              QT_TRANSLATE_NOOP("cli::ImportOptions",
                                "Leave out what an earlier command with the same options did, if "
                                "neither the file nor its outputs have changed.")},
    OptionRow{"shard", QT_TRANSLATE_NOOP("cli::ImportOptions", "K/N"),
              QT_TRANSLATE_NOOP("cli::ImportOptions",
                                "Import the K-th of N parts of the files, so that N machines can "
                                "share an archive.")},
    OptionRow{"report", QT_TRANSLATE_NOOP("cli::ImportOptions", "file"),
              QT_TRANSLATE_NOOP("cli::ImportOptions",
                                "Write a report on all files, as .json or .html; may be given "
                                "several times.")},
    OptionRow{"fail-on-loss", nullptr,
              QT_TRANSLATE_NOOP("cli::ImportOptions",
                                "End with status 3 when a label did not come over whole.")},
    OptionRow{"quiet", nullptr,
              QT_TRANSLATE_NOOP("cli::ImportOptions",
                                "On standard error, tell what failed and nothing else.")},
};

const char* const Description = QT_TRANSLATE_NOOP(
    "cli::ImportOptions",
    "Imports legacy labels (*.cnv, *.roc, *.qmtx, *.odt, *.odg), opens saved ones (*.label),\n"
    "and writes what they show. A folder is searched with its subfolders for files of these\n"
    "names. What was written is listed on standard output, in the order of the files' names.\n\n"
    "Examples:\n"
    "  labelport import shelf.odg\n"
    "  labelport import old/*.cnv --to png,label --dpi 600 --output-dir new\n"
    "  labelport import asset.label --to pdf --records all\n"
    "  labelport import archive --output-dir new --to label --report report.html\n"
    "  labelport import archive --output-dir new --to label --resume\n"
    "  find archive -name '*.odg' -print0 | labelport import --files-from - --base archive\n"
    "  curl -s https://labels.example/shelf.odg | labelport import - --reader opendocument\n\n"
    "Exit status: 0 everything was imported, 1 something failed, 2 wrong usage, 3 something\n"
    "was lost (with --fail-on-loss), 130 stopped by a signal.");

void addOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(tr(Description));
    parser.addPositionalArgument(QStringLiteral("file"),
                                 tr("Label or folder of labels to import; - is "
                                    "standard input."),
                                 QStringLiteral("FILE..."));
    for (const OptionRow& row : Rows) {
        parser.addOption(QCommandLineOption(QLatin1String(row.name), tr(row.help),
                                            row.value != nullptr ? tr(row.value) : QString()));
    }
    parser.addOption({{QStringLiteral("h"), QStringLiteral("help")}, tr("Show this text.")});
}

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

void takeNumbers(Filling& given, ImportOptions& options)
{
    options.job.dpi = given.number(QLatin1String("dpi"), MinimumDpi, MaximumDpi, options.job.dpi);
    options.workers = given.number(QLatin1String("jobs"), 1, MaximumWorkers,
                                   std::clamp(QThread::idealThreadCount(), 1, MaximumWorkers));
    options.limits.timeoutSeconds =
        given.number(QLatin1String("timeout"), 0, MaximumTimeout, options.limits.timeoutSeconds);
    options.limits.memoryMiB =
        given.number(QLatin1String("memory-limit"), 0, MaximumMemory, options.limits.memoryMiB);
    if (options.limits.memoryMiB > 0 && options.limits.memoryMiB < MinimumMemory) {
        given.fail(QCoreApplication::translate("cli::ImportOptions",
                                               "--memory-limit takes 0 or at least %1 MiB.")
                       .arg(MinimumMemory));
    }
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
    addOptions(parser);
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

} // namespace cli
