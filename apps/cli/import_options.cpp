#include "apps/cli/import_options.h"

#include <QCommandLineParser>

namespace cli {
namespace {

const QStringList KnownTargets = {QStringLiteral("png")};

/// The first target that is not known, or a null text.
QString unknownTarget(const QStringList& targets)
{
    for (const QString& target : targets) {
        if (!KnownTargets.contains(target)) {
            return target.isNull() ? QStringLiteral("") : target;
        }
    }
    return {};
}

struct Options
{
    QCommandLineOption to{QStringLiteral("to"), QStringLiteral("What to write: png."),
                          QStringLiteral("target"), QStringLiteral("png")};
    QCommandLineOption dpi{QStringLiteral("dpi"),
                           QStringLiteral("Dots per inch of pictures, %1 to %2 (default 300).")
                               .arg(MinimumDpi)
                               .arg(MaximumDpi),
                           QStringLiteral("number"), QStringLiteral("300")};
    QCommandLineOption outputDir{
        QStringLiteral("output-dir"),
        QStringLiteral("Folder to write to; made when it is missing (default: the current one)."),
        QStringLiteral("folder"), QStringLiteral(".")};
    QCommandLineOption force{QStringLiteral("force"),
                             QStringLiteral("Overwrite files that LabelPort did not make.")};
    QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")},
                            QStringLiteral("Show this text.")};
};

void addOptions(QCommandLineParser& parser, const Options& options)
{
    parser.setApplicationDescription(
        QStringLiteral("Imports legacy labels (*.cnv, *.roc, *.qmtx, *.odt, *.odg) and writes what "
                       "they show.\n\nExamples:\n"
                       "  labelport import shelf.odg\n"
                       "  labelport import old/*.cnv --to png --dpi 600 --output-dir pictures"));
    parser.addPositionalArgument(QStringLiteral("file"), QStringLiteral("Label to import."),
                                 QStringLiteral("FILE..."));
    parser.addOptions({options.to, options.dpi, options.outputDir, options.force, options.help});
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
    result.targets = parser.value(options.to).split(QLatin1Char(','));
    if (const QString unknown = unknownTarget(result.targets); !unknown.isNull()) {
        return UsageError{QStringLiteral("\"%1\" is nothing that can be written; --to takes: %2.")
                              .arg(unknown, KnownTargets.join(QStringLiteral(", ")))};
    }
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
