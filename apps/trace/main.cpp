// labelport-trace: shows what an import asks of its host.

#include "apps/trace/repeatable_environment.h"
#include "apps/trace/trace_import.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace {

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

int wrongUsage(const QString& message)
{
    complain(message);
    std::fputs("Usage: labelport-trace FILE (see labelport-trace --help)\n", stderr);
    return WrongUsage;
}

/// Why the file cannot be read at all; empty when it can. Readers only say that it failed.
QString obstacle(const QString& fileName)
{
    if (QFileInfo(fileName).isDir()) {
        return QStringLiteral("it is a folder");
    }
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? QString() : file.errorString();
}

void explainFailure(const QString& fileName)
{
    const QString reason = obstacle(fileName);
    if (reason.isEmpty()) {
        complain(
            QStringLiteral("%1 was not imported; the trace tells how far it came").arg(fileName));
    } else {
        complain(QStringLiteral("cannot read %1: %2").arg(fileName, reason));
    }
}

int trace(const QString& fileName)
{
    QFile out;
    if (!out.open(stdout, QIODevice::WriteOnly)) {
        complain(QStringLiteral("cannot write to standard output"));
        return NotImported;
    }
    const bool imported = traceImport(fileName, out);
    if (!out.flush() || std::fflush(stdout) != 0) {
        complain(QStringLiteral("cannot write the trace: %1").arg(out.errorString()));
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

int run(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Imports a legacy label into a host that records, and prints every call on it\n"
        "as JSON Lines, then what has become of the items.\n\n"
        "Exit status: 0 imported, 1 not imported, 2 wrong usage."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("The label to import."));

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
        return wrongUsage(files.isEmpty() ? QStringLiteral("no file given")
                                          : QStringLiteral("one file at a time, please"));
    }
    return trace(files.first());
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
    return run(argumentsOf(argc, argv));
}
