#include "archive/output_names.h"
#include "archive/prepared_list.h"
#include "cli/import_inputs.h"
#include "cli/option_reader.h"
#include "cli/option_table.h"
#include "cli/subcommands.h"
#include "console/command_line.h"
#include "console/file_name.h"
#include "console/output.h"
#include "exporting/targets.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSaveFile>

namespace cli {
using namespace Qt::StringLiterals;
namespace {

struct ListCommandTr
{
    Q_DECLARE_TR_FUNCTIONS(cli::ListCommand)
};

QString listName(int number)
{
    return u"%1.jsonl"_s.arg(number);
}

/// Lists of an earlier command: a part of another archive must not be imported with these.
/// @return the name of a file that is not a list, and has the name of one; else empty
QString removeEarlierLists(const QDir& folder, int count)
{
    for (const QString& name : folder.entryList({u"*.jsonl"_s}, QDir::Files)) {
        bool isNumber = false;
        const int number = name.section(u'.', 0, 0).toInt(&isNumber);
        if (!isNumber || name != listName(number)) {
            continue;
        }
        QFile file(folder.filePath(name));
        const bool isList = file.open(QIODevice::ReadOnly) &&
                            archive::isPreparedList(file.peek(archive::PreparedListStart));
        file.close();
        if (isList) {
            file.remove();
        } else if (number <= count) {
            return name;
        }
    }
    return {};
}

/// Writes the lists. Returns a message for the user if that failed, else an empty text.
QString writeLists(const QString& folder, const archive::Inputs& inputs, int count)
{
    const QString folderError = console::makeFolder(folder);
    if (!folderError.isEmpty()) {
        return ListCommandTr::tr("Cannot create folder \"%1\": %2.").arg(folder, folderError);
    }
    const console::ReachablePath reachable(folder);
    const QDir directory(reachable.path());
    const QString foreign = removeEarlierLists(directory, count);
    if (!foreign.isEmpty()) {
        return ListCommandTr::tr("\"%1\" exists, and is not a list of labelport.")
            .arg(QDir(folder).filePath(foreign));
    }
    const QStringList targets = exporting::targetNames();
    const archive::OutputNames names(inputs, targets + exporting::recordsSuffixes(targets));
    for (int number = 1; number <= count; ++number) {
        const QString name = listName(number);
        QSaveFile file(directory.filePath(name));
        const bool isWritten = file.open(QIODevice::WriteOnly) &&
                               archive::writePreparedList(file, {inputs, names, {number, count}}) &&
                               file.commit();
        if (!isWritten) {
            return ListCommandTr::tr("Cannot write \"%1\": %2.")
                .arg(QDir(folder).filePath(name), file.errorString());
        }
        console::printFileName(QDir(folder).filePath(name), false);
    }
    return {};
}

QString problemOf(const ImportOptions& options, const QString& to)
{
    if (options.files.isEmpty() && options.filesFrom.isEmpty()) {
        return ListCommandTr::tr("No file to list.");
    }
    if (to.isEmpty()) {
        return ListCommandTr::tr("Specify the folder of the lists with --to.");
    }
    if (options.files.contains("-"_L1)) {
        return ListCommandTr::tr("A label from standard input cannot be listed.");
    }
    if (options.isNullSeparated && options.filesFrom.isEmpty()) {
        return ListCommandTr::tr("--null has no effect without --files-from.");
    }
    return {};
}

int listTo(const QString& folder, const ImportOptions& options, int count)
{
    const ImportInputs inputs = findInputs(options);
    if (!inputs.error.isEmpty() || inputs.part) {
        console::printMessage(inputs.part
                                  ? ListCommandTr::tr("\"%1\" was written by \"labelport list\".")
                                        .arg(options.filesFrom)
                                  : inputs.error);
        return console::ExitFailure;
    }
    printUnreadableFolders(inputs.list);
    if (inputs.list.inputs.isEmpty()) {
        console::printMessage(ListCommandTr::tr("No labels to list."));
        return console::ExitFailure;
    }
    const QString error = writeLists(folder, inputs.list.inputs, count);
    if (!error.isEmpty()) {
        console::printMessage(error);
        return console::ExitFailure;
    }
    console::printMessage(ListCommandTr::tr("%n file(s) listed.", nullptr,
                                            static_cast<int>(inputs.list.inputs.size())));
    return inputs.list.unreadable.isEmpty() ? console::ExitSuccess : console::ExitFailure;
}

} // namespace

int runList(const QStringList& arguments)
{
    const QString command = u"labelport list"_s;
    QCommandLineParser parser;
    describeCommand(parser, commandOf("list"));
    if (const std::optional<int> status = console::parseCommand(parser, command, arguments)) {
        return *status;
    }
    OptionReader given(parser);
    ImportOptions options;
    options.files = parser.positionalArguments();
    options.filesFrom = given.text("files-from"_L1);
    options.isNullSeparated = given.isSet("null"_L1);
    options.base = given.text("base"_L1);
    const QString folder = given.text("to"_L1);
    // The lists' own folder may be in the archive.
    options.outputDir = given.isSet("output-dir"_L1) ? given.text("output-dir"_L1) : folder;
    const int count = given.number("shards"_L1, 1, archive::MaximumShards, 1);
    const QString problem = problemOf(options, folder);
    if (!problem.isEmpty()) {
        given.fail(problem);
    }
    return given.error().isEmpty() ? listTo(folder, options, count)
                                   : console::refuseArguments(command, given.error());
}

} // namespace cli
