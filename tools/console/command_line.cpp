#include "console/command_line.h"

#include "console/file_name.h"
#include "console/output.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>
#include <numeric>
#include <vector>

namespace console {
namespace {

using namespace Qt::StringLiterals;

struct CommandLineTr
{
    Q_DECLARE_TR_FUNCTIONS(console::CommandLine)
};

/// Insertions, deletions and replacements that make one word the other.
int distance(const QString& from, const QString& to)
{
    std::vector<int> row(static_cast<std::size_t>(to.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (const QChar letter : from) {
        int diagonal = row.front()++;
        for (std::size_t column = 1; column < row.size(); ++column) {
            const bool isSame = letter == to.at(static_cast<qsizetype>(column) - 1);
            const int replaced = diagonal + (isSame ? 0 : 1);
            diagonal = row[column];
            row[column] = std::min({replaced, row[column] + 1, row[column - 1] + 1});
        }
    }
    return row.back();
}

/// The long options of a parser that were declared with names of more than one letter.
QStringList optionNames(const QCommandLineParser& parser)
{
    // Qt does not list a parser's options; its help does.
    QStringList names;
    for (const QString& line : parser.helpText().split(u'\n')) {
        const qsizetype begin = line.indexOf("--"_L1);
        const bool isOption =
            begin >= 0 && line.left(begin).trimmed().size() <= 3 && line.startsWith("  "_L1);
        if (isOption) {
            names.append(line.mid(begin).section(u' ', 0, 0).section(u',', 0, 0));
        }
    }
    return names;
}

QString parserError(const QCommandLineParser& parser)
{
    const QStringList unknown = parser.unknownOptionNames();
    if (unknown.isEmpty()) {
        return parser.errorText();
    }
    const QString option = (unknown.first().size() > 1 ? u"--"_s : u"-"_s) + unknown.first();
    return CommandLineTr::tr("Unknown option \"%1\".").arg(option) +
           suggestion(option, optionNames(parser));
}

} // namespace

QStringList argumentsOf(int argc, char** argv)
{
    QStringList arguments;
    for (int index = 1; index < argc; ++index) {
        arguments.append(fileNameFromBytes(argv[index]));
    }
    return arguments;
}

std::optional<int> parseCommand(QCommandLineParser& parser, const QString& command,
                                const QStringList& arguments)
{
    parser.addOption({{u"h"_s, u"help"_s}, CommandLineTr::tr("Show this help.")});
    if (!parser.parse(QStringList{command} + arguments)) {
        return refuseArguments(command, parserError(parser));
    }
    if (parser.isSet(u"help"_s)) {
        // Qt begins with the path of the program and does not know commands.
        printText(parser.helpText().replace(QCoreApplication::arguments().constFirst(), command));
        return ExitSuccess;
    }
    return std::nullopt;
}

int refuseArguments(const QString& command, const QString& reason)
{
    printMessage(reason);
    printMessage(CommandLineTr::tr("Help: %1 --help").arg(command));
    return ExitUsage;
}

QString suggestion(const QString& word, const QStringList& known)
{
    const auto nearest =
        std::min_element(known.begin(), known.end(), [&](const QString& a, const QString& b) {
            return distance(word, a) < distance(word, b);
        });
    const qsizetype tolerated = std::max<qsizetype>(1, word.size() / 3);
    if (nearest == known.end() || distance(word, *nearest) > tolerated) {
        return {};
    }
    return u' ' + CommandLineTr::tr("Did you mean \"%1\"?").arg(*nearest);
}

} // namespace console
