// labelport: the command line of LabelPort.

#include "archive/memory_limit.h"
#include "cli/import_worker.h"
#include "cli/option_table.h"
#include "cli/subcommands.h"
#include "console/command_line.h"
#include "console/output.h"
#include "translations/program_language.h"

#include <QApplication>
#include <QLoggingCategory>

#include <array>
#include <clocale>
#include <cstring>

#include <langinfo.h>

namespace {
using namespace Qt::StringLiterals;

struct CliMainTr
{
    Q_DECLARE_TR_FUNCTIONS(cli::Main)
};

/// File names and messages are UTF-8 even if the environment names no locale. Qt would switch by
/// itself, but with a warning.
void chooseUtf8Locale()
{
    std::setlocale(LC_CTYPE, "");
    if (std::strcmp(nl_langinfo(CODESET), "UTF-8") != 0) {
        qputenv("LC_ALL", "C.UTF-8");
    }
}

const char* const HelpStart =
    QT_TRANSLATE_NOOP("cli::Main", R"(Usage: labelport COMMAND [ARGUMENT...]

Imports legacy label templates (*.cnv and *.roc, *.qmtx, *.odt and *.odg) and opens labels saved by
LabelPort (*.label). Help of a command: labelport COMMAND --help

Commands:
)");

const char* const HelpEnd = QT_TRANSLATE_NOOP("cli::Main", R"(
  --help           show this help
  --version        show the version

Examples:
  labelport import shelf.odg
  labelport import archive --to png,label --output-dir new --report report.html
  labelport import asset.label --to pdf --records all
  labelport print asset.label --printer zebra --records 1-40
  labelport inspect shelf.odg
  labelport records asset.qmtx --to records.csv
  labelport trace shelf.odg

Exit status: 0 success, 1 a file failed, 2 wrong usage, 3 a label was not imported completely
(import --fail-on-loss), 130 stopped by a signal.
)");

QString helpText()
{
    QString text = CliMainTr::tr(HelpStart);
    for (const cli::Command& command : cli::commands()) {
        QString usage = QLatin1String(command.name);
        if (command.argument != nullptr) {
            usage += u' ' + QString::fromLatin1(command.argument).section(u' ', 0, 0);
        }
        text += u"  %1 %2\n"_s.arg(usage, -16).arg(cli::translated(command.summary));
    }
    return text + CliMainTr::tr(HelpEnd);
}

void setUpApplication()
{
    // Errors are reported in messages of our own; QT_LOGGING_RULES enables the log again.
    QLoggingCategory::setFilterRules(
        u"*.debug=false\n*.info=false\n*.warning=false\nlabelport*=false"_s);
    QCoreApplication::setApplicationName(u"labelport"_s);
    QCoreApplication::setOrganizationName(u"LabelPort"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(LABELPORT_VERSION));
}

QStringList preferredLanguages()
{
    return translations::preferredLanguages(QProcessEnvironment::systemEnvironment());
}

/// Whether the command writes JSON. Other programs read it, so it is the same in every language;
/// and because it contains messages of the command, these are in English then.
bool writesJson(const QStringList& arguments)
{
    const auto isJson = [](const QString& name) {
        return name.endsWith(".json"_L1, Qt::CaseInsensitive);
    };
    for (qsizetype index = 0; index < arguments.size(); ++index) {
        const QString option = arguments.at(index).section(u'=', 0, 0);
        const bool takesName = option == "--report"_L1 || option == "--to"_L1;
        if (option == "--json"_L1 ||
            (takesName && (isJson(arguments.at(index)) || isJson(arguments.value(index + 1))))) {
            return true;
        }
    }
    return false;
}

using RunCommand = int (*)(const QStringList& arguments);

/// In the order of cli::commands().
constexpr std::array RunCommands{&cli::runImport,  &cli::runPrint, &cli::runInspect,
                                 &cli::runRecords, &cli::runList,  &cli::runReport,
                                 &cli::runFormats, &cli::runTrace};

int printHelp(const QStringList&)
{
    console::printText(helpText());
    return console::ExitSuccess;
}

int printVersion(const QStringList&)
{
    console::printText(u"labelport " LABELPORT_VERSION "\n"_s);
    return console::ExitSuccess;
}

/// The function of a command; null for an unknown one.
RunCommand functionOf(const QString& command)
{
    if (command == "--help"_L1 || command == "-h"_L1 || command == "help"_L1) {
        return &printHelp;
    }
    if (command == "--version"_L1) {
        return &printVersion;
    }
    const qsizetype index = cli::commandNames().indexOf(command);
    return index < 0 ? nullptr : RunCommands[static_cast<std::size_t>(index)];
}

int refuseCommand(const QString& command)
{
    if (command.isEmpty()) {
        console::printMessage(CliMainTr::tr("No command given. See \"labelport --help\"."));
    } else {
        const QStringList known = cli::commandNames() + QStringList{u"--help"_s, u"--version"_s};
        console::printMessage(CliMainTr::tr("Unknown command \"%1\".").arg(command) +
                              console::suggestion(command, known));
        console::printMessage(CliMainTr::tr("Help: %1").arg(u"labelport --help"_s));
    }
    return console::ExitUsage;
}

/// Commands paint nothing themselves: their workers do.
int runCommand(int argc, char** argv, const QString& command, const QStringList& arguments)
{
    setUpApplication();
    const QCoreApplication application(argc, argv);
    const translations::ProgramLanguage language(preferredLanguages());
    const RunCommand run = functionOf(command);
    return console::finishOutput(run != nullptr ? run(arguments) : refuseCommand(command));
}

int runWorkerCommand(int argc, char** argv, const QStringList& arguments)
{
    archive::limitMemory(arguments.value(0).toInt());
    archive::keepFreedMemory();
    // Pictures are drawn without a window system, whatever the environment offers.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    setUpApplication();
    const QApplication application(argc, argv);
    const translations::ProgramLanguage language(preferredLanguages());
    return cli::runImportWorker(arguments);
}

} // namespace

int main(int argc, char** argv)
{
    console::prepareStreams(u"labelport"_s);
    const QStringList languages = preferredLanguages(); // before the locale changes
    chooseUtf8Locale();
    QStringList arguments = console::argumentsOf(argc, argv);
    // Workers and the trace use the same language.
    translations::keepLanguage(writesJson(arguments) ? QStringList() : languages);
    const QString command = arguments.isEmpty() ? QString() : arguments.takeFirst();
    return command == QLatin1String(cli::WorkerCommandName)
               ? runWorkerCommand(argc, argv, arguments)
               : runCommand(argc, argv, command, arguments);
}
