#include "cli/command_line.h"

#include "cli/exit_status.h"
#include "cli/messages.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace cli {

std::optional<int> parseCommand(QCommandLineParser& parser, const QString& command,
                                const QStringList& arguments)
{
    parser.addOption({{QStringLiteral("h"), QStringLiteral("help")},
                      QCoreApplication::translate("cli::CommandLine", "Show this text.")});
    if (!parser.parse(QStringList{command} + arguments)) {
        return refuseArguments(command, parser.errorText());
    }
    if (parser.isSet(QStringLiteral("help"))) {
        printText(helpOf(parser, command));
        return ExitSuccess;
    }
    return std::nullopt;
}

QString helpOf(const QCommandLineParser& parser, const QString& command)
{
    // Qt begins with the program's path, and knows nothing of commands.
    return parser.helpText().replace(QCoreApplication::arguments().constFirst(), command);
}

int refuseArguments(const QString& command, const QString& reason)
{
    printMessage(reason);
    printMessage(
        QCoreApplication::translate("cli::CommandLine", "\"%1 --help\" tells more.").arg(command));
    return ExitUsage;
}

} // namespace cli
