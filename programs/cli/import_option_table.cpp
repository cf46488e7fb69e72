#include "cli/import_option_table.h"

#include <QCommandLineParser>
#include <QCoreApplication>

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
                                "limit (default: 4096).")},
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

void addOption(QCommandLineParser& parser, const OptionRow& row)
{
    parser.addOption(QCommandLineOption(QLatin1String(row.name), tr(row.help),
                                        row.value != nullptr ? tr(row.value) : QString()));
}

bool isLimit(const OptionRow& row)
{
    const QLatin1String name(row.name);
    return name == QLatin1String("timeout") || name == QLatin1String("memory-limit");
}

} // namespace

void addImportOptions(QCommandLineParser& parser)
{
    parser.setApplicationDescription(tr(Description));
    parser.addPositionalArgument(QStringLiteral("file"),
                                 tr("Label or folder of labels to import; - is "
                                    "standard input."),
                                 QStringLiteral("FILE..."));
    for (const OptionRow& row : Rows) {
        addOption(parser, row);
    }
    parser.addOption({{QStringLiteral("h"), QStringLiteral("help")}, tr("Show this text.")});
}

void addLimitOptions(QCommandLineParser& parser)
{
    for (const OptionRow& row : Rows) {
        if (isLimit(row)) {
            addOption(parser, row);
        }
    }
}

} // namespace cli
