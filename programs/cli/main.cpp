// labelport: the command line of LabelPort.

#include "cli/exit_status.h"
#include "cli/formats_command.h"
#include "cli/import_command.h"
#include "cli/import_worker.h"
#include "cli/inspect_command.h"
#include "cli/messages.h"
#include "cli/report_command.h"
#include "cli/trace_command.h"
#include "archive/memory_bound.h"
#include "translations/program_language.h"

#include <QApplication>
#include <QLoggingCategory>

#include <array>
#include <clocale>
#include <cstring>

#include <langinfo.h>

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(cli::Main)
};

/// File names and messages are UTF-8 even where the environment names no locale at all; Qt
/// would switch by itself, but with a warning.
void chooseUtf8Locale()
{
    std::setlocale(LC_CTYPE, "");
    if (std::strcmp(nl_langinfo(CODESET), "UTF-8") != 0) {
        qputenv("LC_ALL", "C.UTF-8");
    }
}

const char* const HelpText =
    QT_TRANSLATE_NOOP("cli::Main", R"(Usage: labelport COMMAND [ARGUMENT...]

Opens legacy label templates: *.cnv and *.roc, *.qmtx, *.odt and *.odg, and labels saved by
LabelPort: *.label. Each command tells more with --help.

Commands:
  import FILE...   import labels, or folders of them, and write what they show
  inspect FILE     tell what a label holds, and what of it comes over
  report merge     put the reports of several imports together
  formats          tell what is read and what can be written
  trace FILE       print every call that an import makes on its host, as JSON lines

  --help           show this text
  --version        show the version

Examples:
  labelport import shelf.odg
  labelport import archive --to png,label --output-dir new --report report.html
  labelport import asset.label --to pdf --records all
  labelport inspect shelf.odg
  labelport trace shelf.odg

Exit status: 0 all went well, 1 something failed, 2 wrong usage, 3 something was lost
(import --fail-on-loss), 130 stopped by a signal.
)");

QStringList argumentsOf(int argc, char** argv)
{
    QStringList arguments;
    for (int index = 1; index < argc; ++index) {
        arguments.append(QString::fromLocal8Bit(argv[index]));
    }
    return arguments;
}

void setUpApplication()
{
    // What goes wrong is told in words of our own; QT_LOGGING_RULES brings the rest back.
    QLoggingCategory::setFilterRules(
        QStringLiteral("*.debug=false\n*.info=false\n*.warning=false\nlabelport*=false"));
    QCoreApplication::setApplicationName(QStringLiteral("labelport"));
    QCoreApplication::setOrganizationName(QStringLiteral("LabelPort"));
    QCoreApplication::setApplicationVersion(QStringLiteral(LABELPORT_VERSION));
}

QStringList wantedLanguages()
{
    return translations::wantedLanguages(QProcessEnvironment::systemEnvironment());
}

/// Whether JSON is asked for. Other programs read it, so it is the same in every language; and
/// because what a command says to people goes into it, the command speaks English then.
bool writesJson(const QStringList& arguments)
{
    const auto isJson = [](const QString& name) {
        return name.endsWith(QLatin1String(".json"), Qt::CaseInsensitive);
    };
    for (qsizetype index = 0; index < arguments.size(); ++index) {
        const QString option = arguments.at(index).section(QLatin1Char('='), 0, 0);
        const bool takesName =
            option == QLatin1String("--report") || option == QLatin1String("--to");
        if (option == QLatin1String("--json") ||
            (takesName && (isJson(arguments.at(index)) || isJson(arguments.value(index + 1))))) {
            return true;
        }
    }
    return false;
}

using Command = int (*)(const QStringList& arguments);

struct CommandRow
{
    QLatin1String name;
    Command run;
};

constexpr std::array Commands{
    CommandRow{QLatin1String("import"), &cli::runImport},
    CommandRow{QLatin1String("inspect"), &cli::runInspect},
    CommandRow{QLatin1String("report"), &cli::runReport},
    CommandRow{QLatin1String("formats"), &cli::runFormats},
    CommandRow{QLatin1String("trace"), &cli::runTrace},
};

/// These commands paint nothing themselves: their workers do.
int runCommand(int argc, char** argv, Command command, const QStringList& arguments)
{
    setUpApplication();
    const QCoreApplication application(argc, argv);
    const translations::ProgramLanguage language(wantedLanguages());
    return command(arguments);
}

int runWorkerCommand(int argc, char** argv, const QStringList& arguments)
{
    archive::boundMemory(arguments.value(0).toInt());
    // Pictures are drawn without a window system, whatever the environment offers or lacks.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    setUpApplication();
    const QApplication application(argc, argv);
    const translations::ProgramLanguage language(wantedLanguages());
    return cli::runImportWorker(arguments);
}

} // namespace

int main(int argc, char** argv)
{
    const QStringList languages = wantedLanguages(); // before the locale changes
    chooseUtf8Locale();
    QStringList arguments = argumentsOf(argc, argv);
    // Workers and the trace speak it too.
    translations::keepLanguage(writesJson(arguments) ? QStringList() : languages);
    const QString command = arguments.isEmpty() ? QString() : arguments.takeFirst();

    for (const CommandRow& row : Commands) {
        if (command == row.name) {
            return runCommand(argc, argv, row.run, arguments);
        }
    }
    if (command == QLatin1String(cli::WorkerCommandName)) {
        return runWorkerCommand(argc, argv, arguments);
    }
    if (command == QLatin1String("--help") || command == QLatin1String("-h") ||
        command == QLatin1String("help")) {
        const QCoreApplication application(argc, argv);
        const translations::ProgramLanguage language(wantedLanguages());
        cli::printText(Words::tr(HelpText));
        return cli::ExitSuccess;
    }
    if (command == QLatin1String("--version")) {
        cli::printResult(QStringLiteral("labelport " LABELPORT_VERSION));
        return cli::ExitSuccess;
    }
    const QCoreApplication application(argc, argv);
    const translations::ProgramLanguage language(wantedLanguages());
    cli::printMessage(
        command.isEmpty()
            ? Words::tr("What is it to do? \"labelport --help\" tells.")
            : Words::tr("\"%1\" is no command; \"labelport --help\" tells what is.").arg(command));
    return cli::ExitUsage;
}
