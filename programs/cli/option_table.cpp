#include "cli/option_table.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <array>
#include <cstring>

namespace cli {
namespace {

constexpr const char* ReaderNames = "tavrel orvanta opendocument";

constexpr Option TimeoutOption{
    "timeout", QT_TRANSLATE_NOOP("cli::Options", "seconds"),
    QT_TRANSLATE_NOOP("cli::Options",
                      "Abort a file after this many seconds without progress; 0 for no limit "
                      "(default: 60).")};
constexpr Option MemoryOption{
    "memory-limit", QT_TRANSLATE_NOOP("cli::Options", "MiB"),
    QT_TRANSLATE_NOOP("cli::Options",
                      "Abort a file that uses more memory than this; 0 for no limit (default: "
                      "4096).")};
constexpr Option SandboxOption{
    "require-sandbox", nullptr,
    QT_TRANSLATE_NOOP("cli::Options",
                      "Import nothing unless the files are read in a complete sandbox; see "
                      "\"labelport formats\".")};
constexpr Option ReaderOption{
    "reader", QT_TRANSLATE_NOOP("cli::Options", "name"),
    QT_TRANSLATE_NOOP("cli::Options",
                      "Read files as tavrel (*.cnv, *.roc), orvanta (*.qmtx) or opendocument "
                      "(*.odt, *.odg), whatever their names. Default: by the suffix, or else by "
                      "the content."),
    Completion::Words, ReaderNames};

constexpr Option SheetOption{
    "sheet", QT_TRANSLATE_NOOP("cli::Options", "name"),
    QT_TRANSLATE_NOOP("cli::Options",
                      "Put the labels on sheets: L7160, 5160 and others, or A4, Letter and other "
                      "plain paper; see labelport formats. Default: paper of the label's size.")};
constexpr Option FirstPositionOption{
    "first-position", QT_TRANSLATE_NOOP("cli::Options", "number"),
    QT_TRANSLATE_NOOP("cli::Options",
                      "First free label of the first sheet, counted from 1 along the rows "
                      "(default: 1).")};
constexpr Option CopiesOption{
    "copies", QT_TRANSLATE_NOOP("cli::Options", "number"),
    QT_TRANSLATE_NOOP("cli::Options",
                      "Copies of each record, one after the other, in documents, printer files "
                      "and prints (default: 1).")};
constexpr Option CropMarksOption{
    "crop-marks", nullptr,
    QT_TRANSLATE_NOOP("cli::Options", "Print marks on the edges of sheets that show where to "
                                      "cut.")};
constexpr Option AsWrittenOption{
    "as-written", nullptr,
    QT_TRANSLATE_NOOP("cli::Options", "Import OpenDocument files without repairing them first.")};

constexpr std::array ImportOptions{
    Option{"to", QT_TRANSLATE_NOOP("cli::Options", "targets"),
           QT_TRANSLATE_NOOP("cli::Options",
                             "What to write: png, svg, pdf, zpl, csv, label; several with commas "
                             "(default: png)."),
           Completion::WordList, "png svg pdf zpl csv label", true},
    Option{"output", QT_TRANSLATE_NOOP("cli::Options", "file"),
           QT_TRANSLATE_NOOP("cli::Options",
                             "File to write the only input to; - is standard output. Without --to, "
                             "its suffix selects the target."),
           Completion::File, "", false, "o"},
    Option{"output-dir", QT_TRANSLATE_NOOP("cli::Options", "folder"),
           QT_TRANSLATE_NOOP("cli::Options",
                             "Folder to write to; created if missing (default: the current "
                             "folder). Subfolders of an imported folder are kept."),
           Completion::Folder},
    Option{"dpi", QT_TRANSLATE_NOOP("cli::Options", "number"),
           QT_TRANSLATE_NOOP("cli::Options",
                             "Resolution of pictures in dots per inch, 10 to 2400; of a label "
                             "printer 203, 300 or 600 (default: 300).")},
    Option{"records", QT_TRANSLATE_NOOP("cli::Options", "range"),
           QT_TRANSLATE_NOOP(
               "cli::Options",
               "Records of the label's data sources: a number, a range such as 3-12 "
               "or 3-, or all (default: the first). Pictures of a range are "
               "numbered; a PDF has one page and a printer file one label for each record."),
           Completion::Words, "all"},
    SheetOption,
    FirstPositionOption,
    CopiesOption,
    CropMarksOption,
    Option{"zpl-native", nullptr,
           QT_TRANSLATE_NOOP("cli::Options",
                             "Let the label printer draw barcodes and lines where it can, and "
                             "advance counters. Otherwise labels are pictures and exact.")},
    Option{"force", nullptr,
           QT_TRANSLATE_NOOP("cli::Options",
                             "Overwrite files that labelport did not write, and edited labels.")},
    ReaderOption,
    AsWrittenOption,
    Option{"files-from", QT_TRANSLATE_NOOP("cli::Options", "list"),
           QT_TRANSLATE_NOOP("cli::Options",
                             "Also import the files named in this list, one name on each line or "
                             "separated by NUL; - is standard input."),
           Completion::File},
    Option{"null", nullptr,
           QT_TRANSLATE_NOOP("cli::Options",
                             "Names in the list are separated by NUL, as find -print0 writes "
                             "them.")},
    Option{"base", QT_TRANSLATE_NOOP("cli::Options", "folder"),
           QT_TRANSLATE_NOOP("cli::Options",
                             "Named and listed files below this folder keep their subfolders in "
                             "the output folder."),
           Completion::Folder},
    Option{"jobs", QT_TRANSLATE_NOOP("cli::Options", "number"),
           QT_TRANSLATE_NOOP("cli::Options",
                             "Files to import at the same time (default: one for each processor "
                             "core).")},
    TimeoutOption,
    MemoryOption,
    SandboxOption,
    Option{"resume", nullptr,
           QT_TRANSLATE_NOOP("cli::Options",
                             "Skip files that an earlier command with the same options imported, "
                             "if they and their outputs are unchanged.")},
    Option{"shard", QT_TRANSLATE_NOOP("cli::Options", "K/N"),
           QT_TRANSLATE_NOOP("cli::Options",
                             "Import the K-th of N parts of the files, to share an archive among "
                             "N machines.")},
    Option{"report", QT_TRANSLATE_NOOP("cli::Options", "file"),
           QT_TRANSLATE_NOOP("cli::Options",
                             "Write a report on all files, as .json or .html; may be given several "
                             "times."),
           Completion::Report, "", true},
    Option{"fail-on-loss", nullptr,
           QT_TRANSLATE_NOOP("cli::Options",
                             "Exit with status 3 if a label was not imported completely.")},
    Option{"print0", nullptr,
           QT_TRANSLATE_NOOP("cli::Options",
                             "End each file name on standard output with NUL instead of a line "
                             "break.")},
    Option{"json", nullptr,
           QT_TRANSLATE_NOOP("cli::Options",
                             "Print an event in JSON for each file, instead of the names of the "
                             "files written.")},
    Option{"quiet", nullptr,
           QT_TRANSLATE_NOOP("cli::Options", "Report only errors on standard error.")},
};

constexpr std::array PrintOptions{
    Option{"printer", QT_TRANSLATE_NOOP("cli::Options", "name"),
           QT_TRANSLATE_NOOP("cli::Options",
                             "Printer to use; lpstat -e lists all (default: the default "
                             "printer).")},
    Option{"records", QT_TRANSLATE_NOOP("cli::Options", "range"),
           QT_TRANSLATE_NOOP("cli::Options",
                             "Records of the labels' data sources: a number, a range such as 3-12 "
                             "or 3-, or all (default: the first)."),
           Completion::Words, "all"},
    SheetOption,
    FirstPositionOption,
    CopiesOption,
    CropMarksOption,
    ReaderOption,
    TimeoutOption,
    MemoryOption};

constexpr std::array InspectOptions{
    Option{"json", nullptr, QT_TRANSLATE_NOOP("cli::Options", "Print JSON, as in reports.")},
    ReaderOption, AsWrittenOption, TimeoutOption, MemoryOption, SandboxOption};

constexpr std::array RecordsOptions{
    Option{
        "to", QT_TRANSLATE_NOOP("cli::Options", "file"),
        QT_TRANSLATE_NOOP("cli::Options", "CSV file to write; - is standard output (default: -)."),
        Completion::File},
    Option{"records", QT_TRANSLATE_NOOP("cli::Options", "range"),
           QT_TRANSLATE_NOOP("cli::Options",
                             "Records to list: a number, a range such as 3-12 or 3-, or all "
                             "(default: all)."),
           Completion::Words, "all"},
    Option{"force", nullptr, QT_TRANSLATE_NOOP("cli::Options", "Overwrite an existing file.")},
    ReaderOption,
    TimeoutOption,
    MemoryOption};

constexpr std::array ReportOptions{
    Option{"to", QT_TRANSLATE_NOOP("cli::Options", "file"),
           QT_TRANSLATE_NOOP("cli::Options",
                             "Report to write, as .json or .html; may be given several times."),
           Completion::Report, "", true},
    Option{"force", nullptr,
           QT_TRANSLATE_NOOP("cli::Options", "Overwrite files that are not reports of labelport.")},
};

constexpr std::array FormatsOptions{
    Option{"json", nullptr, QT_TRANSLATE_NOOP("cli::Options", "Print JSON.")}};

constexpr std::array TraceOptions{
    ReaderOption,
    Option{"version", nullptr, QT_TRANSLATE_NOOP("cli::Options", "Show the version.")}};

constexpr const char* ImportDescription = QT_TRANSLATE_NOOP(
    "cli::Options",
    "Imports legacy labels (*.cnv, *.roc, *.qmtx, *.odt, *.odg), opens saved labels (*.label),\n"
    "and writes them as pictures, drawings, documents or saved labels. A folder is searched with\n"
    "its subfolders for files with these suffixes. The files written are listed on standard\n"
    "output, in the order of the names of the inputs.\n\n"
    "Examples:\n"
    "  labelport import shelf.odg\n"
    "  labelport import shelf.odg -o label.svg\n"
    "  labelport import old/*.cnv --to png,label --dpi 600 --output-dir new\n"
    "  labelport import asset.label --to pdf --records all\n"
    "  labelport import asset.label --to pdf --records 1-40 --sheet L7160 --first-position 5\n"
    "  labelport import archive --output-dir new --to label --report report.html\n"
    "  labelport import archive --output-dir new --to label --resume\n"
    "  find archive -name '*.odg' -print0 | labelport import --files-from - --base archive\n"
    "  curl -s https://labels.example/shelf.odg | labelport import -\n\n"
    "Exit status: 0 all files imported, 1 a file failed, 2 wrong usage, 3 a label was not\n"
    "imported completely (with --fail-on-loss), 130 stopped by a signal.");

constexpr const char* PrintDescription = QT_TRANSLATE_NOOP(
    "cli::Options",
    "Prints labels through CUPS, each on paper of its own size, or on sheets. All labels of the\n"
    "same paper are one job of the printer. If a label cannot be printed, nothing is. The\n"
    "identifiers of the jobs are listed on standard output.\n\n"
    "Examples:\n"
    "  labelport print asset.label --printer zebra --records 1-40 --copies 2\n"
    "  labelport print new/*.label --sheet L7160 --first-position 5\n\n"
    "Exit status: 0 printed, 1 a label or the printer failed, 2 wrong usage.");

constexpr const char* InspectDescription = QT_TRANSLATE_NOOP(
    "cli::Options",
    "Shows what one label contains, and what of it is imported. Writes no files.\n\n"
    "Examples:\n"
    "  labelport inspect shelf.odg\n"
    "  labelport inspect - --reader orvanta < shelf.xml\n"
    "  labelport inspect shelf.odg --json | jq .lost");

constexpr const char* RecordsDescription = QT_TRANSLATE_NOOP(
    "cli::Options",
    "Lists what each item shows that is bound to a data source (a counter, a list, a date), as\n"
    "a CSV table: a line for each record, a column for each item.\n\n"
    "Examples:\n"
    "  labelport records asset.qmtx --to records.csv\n"
    "  labelport records asset.label --records 1-50 | column -t -s ,");

constexpr const char* ReportDescription = QT_TRANSLATE_NOOP(
    "cli::Options",
    "Merges the JSON reports of several imports into the report that one import of all files\n"
    "would have written.\n\n"
    "Examples:\n"
    "  labelport report merge part-1.json part-2.json --to all.html\n"
    "  labelport report merge part-*.json --to all.json --to all.html");

constexpr const char* FormatsDescription =
    QT_TRANSLATE_NOOP("cli::Options", "Lists the formats that labelport reads, with their "
                                      "versions, the formats that it writes, and the\n"
                                      "sheets for --sheet.\n\n"
                                      "Examples:\n"
                                      "  labelport formats\n"
                                      "  labelport formats --json | jq -r '.readers[].suffixes[]'");

constexpr const char* TraceDescription = QT_TRANSLATE_NOOP(
    "cli::Options",
    "Imports a legacy label into a recording host, and prints every call on the host as JSON\n"
    "Lines, then the final state of the items.");

constexpr std::array Commands{
    Command{"import", QT_TRANSLATE_NOOP("cli::Options", "import labels, or folders of labels"),
            "FILE...",
            QT_TRANSLATE_NOOP("cli::Options",
                              "Label or folder of labels to import; - is standard input."),
            Completion::Label, ImportDescription, ImportOptions},
    Command{"print", QT_TRANSLATE_NOOP("cli::Options", "print labels"), "FILE...",
            QT_TRANSLATE_NOOP("cli::Options", "Label to print; - is standard input."),
            Completion::Label, PrintDescription, PrintOptions},
    Command{"inspect", QT_TRANSLATE_NOOP("cli::Options", "show what a label contains"), "FILE",
            QT_TRANSLATE_NOOP("cli::Options", "Label to inspect; - is standard input."),
            Completion::Label, InspectDescription, InspectOptions},
    Command{"records", QT_TRANSLATE_NOOP("cli::Options", "list what bound items show"), "FILE",
            QT_TRANSLATE_NOOP("cli::Options", "Label to read; - is standard input."),
            Completion::Label, RecordsDescription, RecordsOptions},
    Command{"report", QT_TRANSLATE_NOOP("cli::Options", "merge the reports of several imports"),
            "merge REPORT.json...", QT_TRANSLATE_NOOP("cli::Options", "JSON reports to merge."),
            Completion::Report, ReportDescription, ReportOptions},
    Command{"formats", QT_TRANSLATE_NOOP("cli::Options", "list supported formats"), nullptr,
            nullptr, Completion::Nothing, FormatsDescription, FormatsOptions},
    Command{"trace",
            QT_TRANSLATE_NOOP("cli::Options", "print every call that an import makes on its host"),
            "FILE", QT_TRANSLATE_NOOP("cli::Options", "Label to import; - is standard input."),
            Completion::Label, TraceDescription, TraceOptions},
};

} // namespace

std::span<const Command> commands()
{
    return Commands;
}

const Command& commandOf(const char* name)
{
    for (const Command& command : Commands) {
        if (std::strcmp(command.name, name) == 0) {
            return command;
        }
    }
    Q_UNREACHABLE();
}

QStringList commandNames()
{
    QStringList names;
    for (const Command& command : Commands) {
        names.append(QLatin1String(command.name));
    }
    return names;
}

QString translated(const char* text)
{
    return QCoreApplication::translate("cli::Options", text);
}

void describeCommand(QCommandLineParser& parser, const Command& command)
{
    parser.setApplicationDescription(translated(command.description));
    if (command.argument != nullptr) {
        const QString argument = QLatin1String(command.argument);
        parser.addPositionalArgument(argument.section(QLatin1Char(' '), -1),
                                     translated(command.argumentHelp), argument);
    }
    for (const Option& option : command.options) {
        QStringList names{QLatin1String(option.name)};
        if (option.letter != nullptr) {
            names.prepend(QLatin1String(option.letter));
        }
        parser.addOption(
            QCommandLineOption(names, translated(option.help),
                               option.value != nullptr ? translated(option.value) : QString()));
    }
}

} // namespace cli
