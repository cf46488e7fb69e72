// labelport-trace: shows what an import asks of its host.

#include "trace/repeatable_environment.h"
#include "trace/trace_import.h"
#include "translations/program_language.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <optional>
#include <variant>

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(trace)
};

enum ExitStatus { Imported = 0, NotImported = 1, WrongUsage = 2 };

/// Keeps what Qt has to say away from the trace, on every system.
void writeToStandardError(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    const QByteArray line = qFormatLogMessage(type, context, message).toLocal8Bit();
    std::fprintf(stderr, "%s\n", line.constData());
}

void complain(const QString& message)
{
    std::fprintf(stderr, "labelport-trace: %s\n", qUtf8Printable(message));
}

void print(const QString& text)
{
    std::fputs(qUtf8Printable(text), stdout);
}

ExitStatus wrongUsage(const QString& message)
{
    complain(message);
    std::fprintf(
        stderr, "%s\n",
        qUtf8Printable(Words::tr("Usage: labelport-trace FILE (see labelport-trace --help)")));
    return WrongUsage;
}

/// Why the file cannot be read at all; empty when it can. Readers only say that it failed.
QString obstacle(const QString& fileName)
{
    if (QFileInfo(fileName).isDir()) {
        return Words::tr("it is a folder");
    }
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? QString() : file.errorString();
}

void explainFailure(const QString& fileName)
{
    const QString reason = obstacle(fileName);
    if (reason.isEmpty()) {
        complain(Words::tr("%1 was not imported; the trace tells how far it came").arg(fileName));
    } else {
        complain(Words::tr("cannot read %1: %2").arg(fileName, reason));
    }
}

/// The trace itself has no language: it is the same whoever makes it.
int trace(const QString& fileName, const QStringList& languages)
{
    QFile out;
    const bool canWrite = out.open(stdout, QIODevice::WriteOnly);
    const bool imported = canWrite && traceImport(fileName, out);
    const translations::ProgramLanguage language(languages);
    if (!canWrite) {
        complain(Words::tr("cannot write to standard output"));
        return NotImported;
    }
    if (!out.flush() || std::fflush(stdout) != 0) {
        complain(Words::tr("cannot write the trace: %1").arg(out.errorString()));
        return NotImported;
    }
    if (!imported) {
        explainFailure(fileName);
    }
    return imported ? Imported : NotImported;
}

QStringList argumentsOf(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(QFile::decodeName(argv[i]));
    }
    return arguments;
}

/// What the command line asks for: a file to trace, or an exit status when all is said already.
std::variant<QString, ExitStatus> fileToTrace(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        Words::tr("Imports a legacy label into a host that records, and prints every call on it\n"
                  "as JSON Lines, then what has become of the items.\n\n"
                  "Exit status: 0 imported, 1 not imported, 2 wrong usage."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("FILE"), Words::tr("The label to import."));

    if (!parser.parse(arguments)) {
        return wrongUsage(parser.errorText());
    }
    if (parser.isSet(help)) {
        print(parser.helpText());
        return Imported;
    }
    if (parser.isSet(version)) {
        print(QStringLiteral("labelport-trace " LABELPORT_VERSION "\n"));
        return Imported;
    }
    const QStringList files = parser.positionalArguments();
    if (files.size() != 1) {
        return wrongUsage(files.isEmpty() ? Words::tr("no file given")
                                          : Words::tr("one file at a time, please"));
    }
    return files.first();
}

int run(const QStringList& arguments, const QStringList& languages)
{
    std::optional<translations::ProgramLanguage> language(std::in_place, languages);
    const std::variant<QString, ExitStatus> wanted = fileToTrace(arguments);
    if (const auto* status = std::get_if<ExitStatus>(&wanted)) {
        return *status;
    }
    language.reset();
    return trace(std::get<QString>(wanted), languages);
}

} // namespace

int main(int argc, char** argv)
{
    qInstallMessageHandler(writeToStandardError);
    prepareRepeatableEnvironment();
    // Qt sees no arguments: it would take some of them for its own.
    int qtArgc = argc > 0 ? 1 : 0;
    const QApplication application(qtArgc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("labelport-trace"));
    QCoreApplication::setApplicationVersion(QStringLiteral(LABELPORT_VERSION));
    fixFont();
    return run(argumentsOf(argc, argv),
               translations::wantedLanguages(QProcessEnvironment::systemEnvironment()));
}
