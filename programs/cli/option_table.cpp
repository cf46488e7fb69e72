#include "cli/option_table.h"

#include "cli/command_descriptions.h"

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
constexpr Option FilesFromOption{
    "files-from", QT_TRANSLATE_NOOP("cli::Options", "list"),
    QT_TRANSLATE_NOOP("cli::Options",
                      "Also take the files named in this list, one name on each line or "
                      "separated by NUL; - is standard input."),
    Completion::File};
constexpr Option NullOption{
    "null", nullptr,
    QT_TRANSLATE_NOOP("cli::Options",
                      "Names in the list are separated by NUL, as find -print0 writes "
                      "them.")};
constexpr Option BaseOption{
    "base", QT_TRANSLATE_NOOP("cli::Options", "folder"),
    QT_TRANSLATE_NOOP("cli::Options",
                      "Named and listed files below this folder keep their subfolders in "
                      "the output folder."),
    Completion::Folder};

constexpr std::array ImportRows{
    Option{"to", QT_TRANSLATE_NOOP("cli::Options", "targets"),
           QT_TRANSLATE_NOOP("cli::Options",
                             "What to write: png, svg, pdf, zpl, csv, label, glabels; several with "
                             "commas (default: png)."),
           Completion::WordList, "png svg pdf zpl csv label glabels", true},
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
    FilesFromOption,
    NullOption,
    BaseOption,
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

constexpr std::array PrintRows{
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

constexpr std::array InspectRows{
    Option{"json", nullptr, QT_TRANSLATE_NOOP("cli::Options", "Print JSON, as in reports.")},
    ReaderOption,
    AsWrittenOption,
    TimeoutOption,
    MemoryOption,
    SandboxOption};

constexpr std::array RecordsRows{
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

constexpr std::array ListRows{
    Option{
        "to", QT_TRANSLATE_NOOP("cli::Options", "folder"),
        QT_TRANSLATE_NOOP("cli::Options",
                          "Folder to write the lists to; created if missing. Lists of an earlier "
                          "command are replaced."),
        Completion::Folder},
    Option{"shards", QT_TRANSLATE_NOOP("cli::Options", "number"),
           QT_TRANSLATE_NOOP("cli::Options", "Number of lists, up to 100000 (default: 1).")},
    FilesFromOption,
    NullOption,
    BaseOption,
    Option{"output-dir", QT_TRANSLATE_NOOP("cli::Options", "folder"),
           QT_TRANSLATE_NOOP("cli::Options",
                             "Folder that the labels will be imported to, if it is in the "
                             "archive: it is not searched."),
           Completion::Folder},
};

constexpr std::array ReportRows{
    Option{"to", QT_TRANSLATE_NOOP("cli::Options", "file"),
           QT_TRANSLATE_NOOP("cli::Options",
                             "Report to write, as .json or .html; may be given several times."),
           Completion::Report, "", true},
    Option{"force", nullptr,
           QT_TRANSLATE_NOOP("cli::Options", "Overwrite files that are not reports of labelport.")},
};

constexpr std::array FormatsRows{
    Option{"json", nullptr, QT_TRANSLATE_NOOP("cli::Options", "Print JSON.")}};

constexpr std::array TraceRows{
    ReaderOption,
    Option{"version", nullptr, QT_TRANSLATE_NOOP("cli::Options", "Show the version.")}};

constexpr std::array Commands{
    Command{"import", QT_TRANSLATE_NOOP("cli::Options", "import labels, or folders of labels"),
            "FILE...",
            QT_TRANSLATE_NOOP("cli::Options",
                              "Label or folder of labels to import; - is standard input."),
            Completion::Label, ImportDescription, ImportRows},
    Command{"print", QT_TRANSLATE_NOOP("cli::Options", "print labels"), "FILE...",
            QT_TRANSLATE_NOOP("cli::Options", "Label to print; - is standard input."),
            Completion::Label, PrintDescription, PrintRows},
    Command{"inspect", QT_TRANSLATE_NOOP("cli::Options", "show what a label contains"), "FILE",
            QT_TRANSLATE_NOOP("cli::Options", "Label to inspect; - is standard input."),
            Completion::Label, InspectDescription, InspectRows},
    Command{"records", QT_TRANSLATE_NOOP("cli::Options", "list what bound items show"), "FILE",
            QT_TRANSLATE_NOOP("cli::Options", "Label to read; - is standard input."),
            Completion::Label, RecordsDescription, RecordsRows},
    Command{"list",
            QT_TRANSLATE_NOOP("cli::Options", "list the labels of an archive for several machines"),
            "FILE...", QT_TRANSLATE_NOOP("cli::Options", "Label or folder of labels to list."),
            Completion::Label, ListDescription, ListRows},
    Command{"report", QT_TRANSLATE_NOOP("cli::Options", "merge the reports of several imports"),
            "merge REPORT.json...", QT_TRANSLATE_NOOP("cli::Options", "JSON reports to merge."),
            Completion::Report, ReportDescription, ReportRows},
    Command{"formats", QT_TRANSLATE_NOOP("cli::Options", "list supported formats"), nullptr,
            nullptr, Completion::Nothing, FormatsDescription, FormatsRows},
    Command{"trace",
            QT_TRANSLATE_NOOP("cli::Options", "print every call that an import makes on its host"),
            "FILE", QT_TRANSLATE_NOOP("cli::Options", "Label to import; - is standard input."),
            Completion::Label, TraceDescription, TraceRows},
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

} // namespace cli
