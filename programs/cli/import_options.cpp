#include "cli/import_options.h"

#include "archive/input_list.h"
#include "cli/existing_output.h"
#include "cli/option_reader.h"
#include "cli/option_table.h"
#include "console/command_line.h"
#include "console/file_name.h"
#include "console/output.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <QThread>

#include <algorithm>

namespace cli {
using namespace Qt::StringLiterals;
using exporting::Target;
namespace {

/// The target of an output whose name selects it: "png" for "-".
QString targetNameOf(OptionReader& given, const QString& output)
{
    const QString suffix = QFileInfo(output).suffix().toLower();
    if (output.isEmpty() || output == "-"_L1) {
        return u"png"_s;
    }
    if (!exporting::targetOfName(suffix)) {
        given.fail(QCoreApplication::translate("cli::ImportOptions",
                                               "\"%1\" ends in none of the targets' suffixes; "
                                               "specify one with --to: %2.")
                       .arg(output, exporting::targetNames().join(u", "_s)));
        return u"png"_s;
    }
    return suffix;
}

void takeTargets(OptionReader& given, ImportOptions& options)
{
    const QStringList lists = given.isSet("to"_L1)
                                  ? given.texts("to"_L1)
                                  : QStringList{targetNameOf(given, options.output)};
    for (const QString& name : lists.join(u',').split(u',')) {
        const std::optional<Target> target = exporting::targetOfName(name);
        if (!target) {
            given.fail(QCoreApplication::translate("cli::ImportOptions",
                                                   "Unknown target \"%1\". Supported targets: %2.")
                           .arg(name, exporting::targetNames().join(u", "_s)) +
                       console::suggestion(name, exporting::targetNames()));
        } else if (!options.targets.contains(*target)) {
            options.targets.append(*target);
        }
    }
}

/// The targets that have an option, for a message: "pdf or zpl".
QString targetsWith(QLatin1String option)
{
    QStringList names;
    for (const exporting::TargetEntry& entry : exporting::targets()) {
        if (exporting::findOption(entry.target, option) != nullptr) {
            names.append(QLatin1String(entry.name));
        }
    }
    //: between the last two targets: "pdf or zpl"
    return names.join(QCoreApplication::translate("cli::ImportOptions", " or "));
}

/// An option that one of a few numbers is expected for.
void checkChoice(OptionReader& given, const exporting::TargetEntry& entry,
                 const exporting::TargetOption& option)
{
    const QLatin1String name(option.name);
    if (!given.isSet(name) || option.accepts(given.text(name).toInt())) {
        return;
    }
    QStringList choices;
    for (const int choice : option.choices) {
        choices.append(QString::number(choice));
    }
    given.fail(QCoreApplication::translate("cli::ImportOptions",
                                           "--%1 expects one of %2 for the target %3, not "
                                           "\"%4\".")
                   .arg(name, choices.join(u", "_s), QLatin1String(entry.name), given.text(name)));
}

void checkTargetOptions(OptionReader& given, const ImportOptions& options)
{
    for (const exporting::TargetEntry& entry : exporting::targets()) {
        for (const exporting::TargetOption& option : entry.options) {
            const QLatin1String name(option.name);
            const bool isUsed = std::any_of(
                options.targets.begin(), options.targets.end(), [&](exporting::Target target) {
                    return exporting::findOption(target, name) != nullptr;
                });
            // A resolution may be given for all targets.
            if (given.isSet(name) && !isUsed && name != exporting::DpiOption) {
                given.fail(QCoreApplication::translate("cli::ImportOptions",
                                                       "--%1 has no effect without --to %2.")
                               .arg(name, targetsWith(name)));
            }
            if (option.kind == exporting::OptionKind::Choice &&
                options.targets.contains(entry.target)) {
                checkChoice(given, entry, option);
            }
        }
    }
}

void takeShard(OptionReader& given, ImportOptions& options)
{
    const QLatin1String name("shard");
    const auto shard = archive::shardOf(given.isSet(name) ? given.text(name) : u"1/1"_s);
    if (!shard) {
        given.fail(QCoreApplication::translate("cli::ImportOptions",
                                               "--shard expects the number of a part and of all "
                                               "parts, such as 3/8, not \"%1\".")
                       .arg(given.text(name)));
    }
    options.shard = shard.value_or(archive::Shard{});
}

void takeReports(OptionReader& given, ImportOptions& options)
{
    options.reports = given.texts("report"_L1);
    for (const QString& report : options.reports) {
        const QString problem = reportNameProblem(report);
        if (!problem.isEmpty()) {
            given.fail(problem);
        }
    }
    options.failOnLoss = given.isSet("fail-on-loss"_L1);
}

void takeNumbers(OptionReader& given, ImportOptions& options)
{
    const exporting::TargetOption& dpi =
        *exporting::findOption(exporting::Target::Png, exporting::DpiOption);
    options.job.dpi = given.number("dpi"_L1, dpi.minimum, dpi.maximum, dpi.initial);
    options.workers = given.number("jobs"_L1, 1, MaximumWorkers,
                                   std::clamp(QThread::idealThreadCount(), 1, MaximumWorkers));
    options.limits = takeLimits(given);
}

/// Whether --base changes the folder of a named file. Lists are read later; their names count.
bool hasEffect(const QString& base, const ImportOptions& options)
{
    return !options.filesFrom.isEmpty() ||
           std::any_of(options.files.begin(), options.files.end(), [&](const QString& file) {
               return file != "-"_L1 && console::kindOf(file) != console::FileKind::Folder &&
                      !archive::folderBelow(base, file).isEmpty();
           });
}

void checkInputs(OptionReader& given, const ImportOptions& options)
{
    const auto fail = [&given](const char* text) {
        given.fail(QCoreApplication::translate("cli::ImportOptions", text));
    };
    const bool readsLabel = options.files.contains("-"_L1);
    if (options.files.isEmpty() && options.filesFrom.isEmpty()) {
        fail(QT_TRANSLATE_NOOP("cli::ImportOptions", "No file to import."));
    }
    if (readsLabel && options.filesFrom == "-"_L1) {
        fail(QT_TRANSLATE_NOOP("cli::ImportOptions",
                               "Standard input can be a label or a list of files, but not both."));
    }
    if (given.texts("files-from"_L1).size() > 1) {
        fail(QT_TRANSLATE_NOOP("cli::ImportOptions", "--files-from can be given only once."));
    }
    if (options.isNullSeparated && options.filesFrom.isEmpty()) {
        fail(QT_TRANSLATE_NOOP("cli::ImportOptions", "--null has no effect without --files-from."));
    }
    if (given.isSet("base"_L1) && !hasEffect(options.base, options)) {
        fail(QT_TRANSLATE_NOOP("cli::ImportOptions",
                               "--base has no effect without --files-from or a named file in a "
                               "subfolder of that folder."));
    }
}

/// --output names one file: one input, one target, and no folder of many.
void checkOutput(OptionReader& given, const ImportOptions& options)
{
    if (!given.isSet("output"_L1)) {
        return;
    }
    const auto exclude = [&given](const char* format, std::initializer_list<QLatin1String> names) {
        for (const QLatin1String name : names) {
            if (given.isSet(name)) {
                given.fail(QCoreApplication::translate("cli::ImportOptions", format).arg(name));
            }
        }
    };
    exclude(QT_TRANSLATE_NOOP("cli::ImportOptions", "--output and --%1 exclude each other."),
            {"output-dir"_L1, "files-from"_L1, "base"_L1, "resume"_L1, "shard"_L1});
    if (writesToStandardOutput(options)) {
        exclude(QT_TRANSLATE_NOOP(
                    "cli::ImportOptions",
                    "--%1 and --output - both write to standard output. Use only one of them."),
                {"json"_L1, "print0"_L1});
    }
    if (writesToStandardOutput(options) && options.targets.contains(Target::Glabels)) {
        given.fail(QCoreApplication::translate(
            "cli::ImportOptions",
            "--output - cannot be used with --to glabels, which may write a second file."));
    }
    const bool isOneFile = options.files.size() == 1 &&
                           console::kindOf(options.files.constFirst()) != console::FileKind::Folder;
    if (options.output.isEmpty() || !isOneFile || options.targets.size() > 1) {
        given.fail(QCoreApplication::translate(
            "cli::ImportOptions", "--output needs a file name, one input file and one target."));
    }
}

ImportOptions optionsFrom(OptionReader& given, const QStringList& files)
{
    ImportOptions options;
    options.files = files;
    options.filesFrom = given.text("files-from"_L1);
    options.isNullSeparated = given.isSet("null"_L1);
    options.base = given.text("base"_L1);
    options.output = given.text("output"_L1);
    takeTargets(given, options);
    takeRecords(given, u"1"_s, options.job);
    takeSheet(given, options.job);
    options.job.zplNative = given.isSet(exporting::ZplNativeOption);
    checkTargetOptions(given, options);
    takeNumbers(given, options);
    takeReader(given, options.job);
    checkInputs(given, options);
    checkOutput(given, options);
    options.outputDir = given.isSet("output-dir"_L1) ? given.text("output-dir"_L1)
                        : options.output.isEmpty()   ? u"."_s
                                                     : QFileInfo(options.output).path();
    takeShard(given, options);
    takeReports(given, options);
    options.job.asWritten = given.isSet("as-written"_L1);
    options.job.force = given.isSet("force"_L1);
    options.resume = given.isSet("resume"_L1);
    options.requiresSandbox = given.isSet("require-sandbox"_L1);
    options.quiet = given.isSet("quiet"_L1);
    options.endsNamesWithNull = given.isSet("print0"_L1);
    options.json = given.isSet("json"_L1);
    if (options.json && options.endsNamesWithNull) {
        given.fail(QCoreApplication::translate("cli::ImportOptions",
                                               "--json and --print0 exclude each other."));
    }
    return options;
}

} // namespace

std::variant<ImportOptions, int> parseImportArguments(const QStringList& arguments)
{
    const QString command = u"labelport import"_s;
    QCommandLineParser parser;
    describeCommand(parser, commandOf("import"));
    if (const std::optional<int> status = console::parseCommand(parser, command, arguments)) {
        return *status;
    }
    OptionReader given(parser);
    ImportOptions options = optionsFrom(given, parser.positionalArguments());
    if (!given.error().isEmpty()) {
        return console::refuseArguments(command, given.error());
    }
    return options;
}

bool writesToStandardOutput(const ImportOptions& options)
{
    return options.output == "-"_L1;
}

std::optional<archive::WorkerLimits> limitsOf(const QCommandLineParser& parser, QString& error)
{
    OptionReader given(parser);
    const archive::WorkerLimits limits = takeLimits(given);
    error = given.error();
    return error.isEmpty() ? std::optional(limits) : std::nullopt;
}

} // namespace cli
