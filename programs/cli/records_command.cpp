#include "cli/import_options.h"
#include "cli/option_reader.h"
#include "cli/option_table.h"
#include "cli/subcommands.h"
#include "console/command_line.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

namespace cli {
using namespace Qt::StringLiterals;

// An import of one file to one table.
int runRecords(const QStringList& arguments)
{
    const QString command = u"labelport records"_s;
    QCommandLineParser parser;
    describeCommand(parser, commandOf("records"));
    if (const std::optional<int> status = console::parseCommand(parser, command, arguments)) {
        return *status;
    }
    OptionReader given(parser);
    ImportOptions options;
    options.files = parser.positionalArguments();
    options.targets = {exporting::Target::Csv};
    options.output = given.isSet("to"_L1) ? given.text("to"_L1) : u"-"_s;
    options.outputDir = QFileInfo(options.output).path();
    options.quiet = true; // what was lost in the import is not the subject
    options.job.force = given.isSet("force"_L1);
    takeRecords(given, u"all"_s, options.job);
    takeReader(given, options.job);
    options.limits = takeLimits(given);
    if (options.files.size() != 1) {
        given.fail(
            QCoreApplication::translate("cli::RecordsCommand", "records needs exactly one file."));
    }
    if (options.output.isEmpty()) {
        given.fail(QCoreApplication::translate("cli::RecordsCommand", "--to needs a file name."));
    }
    return given.error().isEmpty() ? importAll(options)
                                   : console::refuseArguments(command, given.error());
}

} // namespace cli
