#pragma once

#include <QCoreApplication>

/// The help of each command, with examples.
namespace cli {

inline constexpr const char* ImportDescription = QT_TRANSLATE_NOOP(
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

inline constexpr const char* PrintDescription = QT_TRANSLATE_NOOP(
    "cli::Options",
    "Prints labels through CUPS, each on paper of its own size, or on sheets. All labels of the\n"
    "same paper are one job of the printer. If a label cannot be printed, nothing is. The\n"
    "identifiers of the jobs are listed on standard output.\n\n"
    "Examples:\n"
    "  labelport print asset.label --printer zebra --records 1-40 --copies 2\n"
    "  labelport print new/*.label --sheet L7160 --first-position 5\n\n"
    "Exit status: 0 printed, 1 a label or the printer failed, 2 wrong usage.");

inline constexpr const char* InspectDescription = QT_TRANSLATE_NOOP(
    "cli::Options",
    "Shows what one label contains, and what of it is imported. Writes no files.\n\n"
    "Examples:\n"
    "  labelport inspect shelf.odg\n"
    "  labelport inspect - --reader orvanta < shelf.xml\n"
    "  labelport inspect shelf.odg --json | jq .lost");

inline constexpr const char* RecordsDescription = QT_TRANSLATE_NOOP(
    "cli::Options",
    "Lists what each item shows that is bound to a data source (a counter, a list, a date), as\n"
    "a CSV table: a line for each record, a column for each item.\n\n"
    "Examples:\n"
    "  labelport records asset.qmtx --to records.csv\n"
    "  labelport records asset.label --records 1-50 | column -t -s ,");

inline constexpr const char* ListDescription = QT_TRANSLATE_NOOP(
    "cli::Options",
    "Lists the labels of a large archive once, as several lists that machines import on their "
    "own:\n"
    "\"labelport import --files-from LIST\" reads neither the archive's folders nor the other "
    "lists.\n"
    "Output names are chosen over the complete archive. The lists are named 1.jsonl, 2.jsonl and "
    "so\n"
    "on; their names are listed on standard output.\n\n"
    "Examples:\n"
    "  labelport list archive --shards 100 --to lists\n"
    "  labelport import --files-from lists/17.jsonl --to label --output-dir new --resume\n\n"
    "Exit status: 0 success, 1 a folder or list failed, 2 wrong usage.");

inline constexpr const char* ReportDescription = QT_TRANSLATE_NOOP(
    "cli::Options",
    "Merges the JSON reports of several imports into the report that one import of all files\n"
    "would have written.\n\n"
    "Examples:\n"
    "  labelport report merge part-1.json part-2.json --to all.html\n"
    "  labelport report merge part-*.json --to all.json --to all.html");

inline constexpr const char* FormatsDescription =
    QT_TRANSLATE_NOOP("cli::Options", "Lists the formats that labelport reads, with their "
                                      "versions, the formats that it writes, and the\n"
                                      "sheets for --sheet.\n\n"
                                      "Examples:\n"
                                      "  labelport formats\n"
                                      "  labelport formats --json | jq -r '.readers[].suffixes[]'");

inline constexpr const char* TraceDescription = QT_TRANSLATE_NOOP(
    "cli::Options",
    "Imports a legacy label into a recording host, and prints every call on the host as JSON\n"
    "Lines, then the final state of the items.");

} // namespace cli
