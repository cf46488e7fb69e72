// labelport-trace: prints every call that an import makes on its host.

#include "console/command_line.h"
#include "console/file_name.h"
#include "console/output.h"
#include "console/standard_input.h"
#include "trace/repeatable_environment.h"
#include "trace/trace_import.h"
#include "translations/program_language.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QTemporaryFile>

#include <cstdio>
#include <optional>
#include <variant>

namespace {

using namespace Qt::StringLiterals;

struct TraceMainTr
{
    Q_DECLARE_TR_FUNCTIONS(trace)
};

/// A file to trace.
struct Request
{
    QString file; ///< "-" is standard input
    std::optional<ReaderKind> reader;
};

/// Why a file cannot be read at all; empty if it can. Readers only report that they failed.
QString readProblem(const QString& path)
{
    if (console::kindOf(path) == console::FileKind::Folder) {
        return TraceMainTr::tr("it is a folder");
    }
    if (console::kindOf(path) == console::FileKind::Other) {
        return TraceMainTr::tr("it is not a regular file");
    }
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString() : file.errorString();
}

void explainFailure(const Request& request, const QString& path)
{
    const QString reason = readProblem(path);
    if (!reason.isEmpty()) {
        console::printMessage(TraceMainTr::tr("Cannot read \"%1\": %2.").arg(request.file, reason));
    } else if (request.reader) {
        console::printMessage(
            TraceMainTr::tr("\"%1\" was not imported. The trace shows how far the import came.")
                .arg(request.file));
    } else {
        console::printMessage(
            TraceMainTr::tr("\"%1\" was not imported. The trace shows how far the "
                            "import came; --reader selects another reader.")
                .arg(request.file));
    }
}

/// The trace itself has no language: it does not depend on the user.
int trace(const Request& request, const QStringList& languages)
{
    QTemporaryFile standardInput;
    const bool readsInput = request.file == "-"_L1;
    const QString inputError = readsInput ? console::copyStandardInput(standardInput) : QString();
    if (!inputError.isEmpty()) {
        console::printMessage(inputError);
        return console::ExitFailure;
    }
    const QString name = readsInput ? u"stdin"_s : QFileInfo(request.file).fileName();
    const console::ReachablePath reachable(readsInput ? standardInput.fileName() : request.file);
    const QString& path = reachable.path();
    const ReaderKind reader = request.reader.value_or(readerByNameOrContent(name, path));

    QFile out;
    const bool canWrite = out.open(stdout, QIODevice::WriteOnly);
    const bool imported = canWrite && traceImport(path, console::shownFileName(name), reader, out);
    const translations::ProgramLanguage language(languages);
    if (!canWrite || !out.flush() || std::fflush(stdout) != 0) {
        console::printMessage(
            TraceMainTr::tr("Cannot write to standard output: %1.").arg(out.errorString()));
        return console::ExitFailure;
    }
    if (!imported) {
        explainFailure(request, path);
    }
    return imported ? console::ExitSuccess : console::ExitFailure;
}

/// Reads the arguments; an exit status if there is nothing to trace.
/// @param command the program as people type it
std::variant<Request, int> requestOf(const QString& command, const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(TraceMainTr::tr(
        "Imports a legacy label into a recording host, and prints every call on the host "
        "as JSON\nLines, then the final state of the items.\n\n"
        "Exit status: 0 imported, 1 not imported, 2 wrong usage."));
    parser.addOption(
        {u"reader"_s,
         TraceMainTr::tr("Read the file as tavrel, orvanta or opendocument, whatever its "
                         "name."),
         TraceMainTr::tr("name")});
    parser.addOption({u"version"_s, TraceMainTr::tr("Show the version.")});
    parser.addPositionalArgument(u"FILE"_s,
                                 TraceMainTr::tr("Label to import; - is standard input."));
    if (const std::optional<int> status = console::parseCommand(parser, command, arguments)) {
        return *status;
    }
    if (parser.isSet(u"version"_s)) {
        console::printText(u"labelport-trace " LABELPORT_VERSION "\n"_s);
        return console::ExitSuccess;
    }
    const QStringList files = parser.positionalArguments();
    if (files.size() != 1) {
        return console::refuseArguments(command, TraceMainTr::tr("trace needs exactly one file."));
    }
    const QString reader = parser.value(u"reader"_s);
    const Request request{files.first(), readerOfName(reader)};
    if (parser.isSet(u"reader"_s) && !request.reader) {
        return console::refuseArguments(
            command, TraceMainTr::tr("Unknown reader \"%1\". Supported readers: %2.")
                         .arg(reader, u"tavrel, orvanta, opendocument"_s));
    }
    return request;
}

int run(const QString& command, const QStringList& arguments, const QStringList& languages)
{
    std::optional<translations::ProgramLanguage> language(std::in_place, languages);
    const std::variant<Request, int> wanted = requestOf(command, arguments);
    if (const int* status = std::get_if<int>(&wanted)) {
        return console::finishOutput(*status);
    }
    language.reset();
    return trace(std::get<Request>(wanted), languages);
}

} // namespace

int main(int argc, char** argv)
{
    // `labelport trace` runs this program under its own name.
    const bool isCommand = argc > 0 && QByteArray(argv[0]) == "labelport trace";
    const QString command = isCommand ? u"labelport trace"_s : u"labelport-trace"_s;
    console::prepareStreams(isCommand ? u"labelport"_s : command);
    const QStringList languages =
        translations::preferredLanguages(QProcessEnvironment::systemEnvironment());
    prepareRepeatableEnvironment();
    // Warnings of Qt's about the environment are of no use here; QT_LOGGING_RULES enables them.
    QLoggingCategory::setFilterRules(
        u"*.debug=false\n*.info=false\n*.warning=false\nlabelport*=false"_s);
    // Qt gets no arguments: it would take some of them for its own.
    int qtArgc = argc > 0 ? 1 : 0;
    const QApplication application(qtArgc, argv);
    QCoreApplication::setApplicationName(u"labelport-trace"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(LABELPORT_VERSION));
    fixFont();
    return run(command, console::argumentsOf(argc, argv), languages);
}
