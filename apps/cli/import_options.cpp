#include "apps/cli/import_options.h"

#include <QCommandLineParser>

namespace cli {
namespace {

/// Takes over the targets of a list with commas; the first that is not known is what comes
/// back, quoted, else a null text.
QString takeTargets(const QString& list, QList<Target>& targets)
{
    for (const QString& name : list.split(QLatin1Char(','))) {
        const std::optional<Target> target = targetOfName(name);
        if (!target) {
            return QLatin1Char('"') + name + QLatin1Char('"');
        }
        if (!targets.contains(*target)) {
            targets.append(*target);
        }
    }
    return {};
}

struct Options
{
    QCommandLineOption to{
        QStringLiteral("to"),
        QStringLiteral("What to write: png, svg, pdf, label; several with commas."),
        QStringLiteral("targets"), QStringLiteral("png")};
    QCommandLineOption dpi{QStringLiteral("dpi"),
                           QStringLiteral("Dots per inch of pictures, %1 to %2 (default 300).")
                               .arg(MinimumDpi)
                               .arg(MaximumDpi),
                           QStringLiteral("number"), QStringLiteral("300")};
    QCommandLineOption outputDir{
        QStringLiteral("output-dir"),
        QStringLiteral("Folder to write to; made when it is missing (default: the current one)."),
        QStringLiteral("folder"), QStringLiteral(".")};
    QCommandLineOption records{
        QStringLiteral("records"),
        QStringLiteral("Records of the label's data sources: a number, a range as 3-12 or 3-, or "
                       "all (default: the first). A series of pictures is numbered; a PDF has a "
                       "page for each."),
        QStringLiteral("range"), QStringLiteral("1")};
    QCommandLineOption force{QStringLiteral("force"),
                             QStringLiteral("Overwrite files that LabelPort did not make.")};
    QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")},
                            QStringLiteral("Show this text.")};
};

void addOptions(QCommandLineParser& parser, const Options& options)
{
    parser.setApplicationDescription(QStringLiteral(
        "Imports legacy labels (*.cnv, *.roc, *.qmtx, *.odt, *.odg), opens saved ones "
        "(*.label), and writes what they show.\n\nExamples:\n"
        "  labelport import shelf.odg\n"
        "  labelport import old/*.cnv --to png,label --dpi 600 --output-dir new\n"
        "  labelport import asset.label --to pdf --records all"));
    parser.addPositionalArgument(QStringLiteral("file"), QStringLiteral("Label to import."),
                                 QStringLiteral("FILE..."));
    parser.addOptions(
        {options.to, options.dpi, options.outputDir, options.records, options.force, options.help});
}

} // namespace

std::variant<ImportOptions, HelpWanted, UsageError>
parseImportArguments(const QStringList& arguments)
{
    QCommandLineParser parser;
    const Options options;
    addOptions(parser, options);

    if (!parser.parse(QStringList{QStringLiteral("labelport import")} + arguments)) {
        return UsageError{parser.errorText()};
    }
    if (parser.isSet(options.help)) {
        return HelpWanted{parser.helpText()};
    }

    ImportOptions result;
    result.files = parser.positionalArguments();
    if (result.files.isEmpty()) {
        return UsageError{QStringLiteral("No file to import was given.")};
    }
    if (const QString unknown = takeTargets(parser.value(options.to), result.targets);
        !unknown.isNull()) {
        return UsageError{QStringLiteral("%1 is nothing that can be written; --to takes: %2.")
                              .arg(unknown, targetNames().join(QStringLiteral(", ")))};
    }
    const std::optional<RecordRange> records = recordRangeOf(parser.value(options.records));
    if (!records) {
        return UsageError{QStringLiteral("--records takes a number, a range as 3-12 or 3-, or "
                                         "all, not \"%1\".")
                              .arg(parser.value(options.records))};
    }
    result.records = *records;
    bool isNumber = false;
    result.dpi = parser.value(options.dpi).toInt(&isNumber);
    if (!isNumber || result.dpi < MinimumDpi || result.dpi > MaximumDpi) {
        return UsageError{QStringLiteral("--dpi takes a whole number from %1 to %2, not \"%3\".")
                              .arg(MinimumDpi)
                              .arg(MaximumDpi)
                              .arg(parser.value(options.dpi))};
    }
    result.outputDir = parser.value(options.outputDir);
    result.force = parser.isSet(options.force);
    return result;
}

} // namespace cli
