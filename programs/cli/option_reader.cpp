#include "cli/option_reader.h"

#include "cli/import_options.h"
#include "cli/option_table.h"
#include "console/command_line.h"
#include "printing/print_document.h"
#include "printing/sheet_presets.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace cli {
using namespace Qt::StringLiterals;
namespace {

void checkSheetName(OptionReader& given, const QString& name)
{
    if (!printing::sheetOfName(name, QSizeF(1.0, 1.0))) {
        given.fail(QCoreApplication::translate("cli::ImportOptions",
                                               "Unknown sheet \"%1\". \"labelport formats\" "
                                               "lists the sheets.")
                       .arg(name) +
                   console::suggestion(name, printing::sheetNames()));
    }
}

} // namespace

void describeCommand(QCommandLineParser& parser, const Command& command)
{
    parser.setApplicationDescription(translated(command.description));
    if (command.argument != nullptr) {
        const QString argument = QLatin1String(command.argument);
        parser.addPositionalArgument(argument.section(QLatin1Char(' '), -1),
                                     translated(command.argumentHelp), argument);
    }
    for (const Option& option : command.options) {
        QStringList names{QLatin1String(option.name)};
        if (option.letter != nullptr) {
            names.prepend(QLatin1String(option.letter));
        }
        parser.addOption(
            QCommandLineOption(names, translated(option.help),
                               option.value != nullptr ? translated(option.value) : QString()));
    }
}

bool OptionReader::isSet(QLatin1String name) const
{
    return m_parser.isSet(name);
}

QString OptionReader::text(QLatin1String name) const
{
    return m_parser.value(name);
}

QStringList OptionReader::texts(QLatin1String name) const
{
    return m_parser.values(name);
}

int OptionReader::number(QLatin1String name, int least, int most, int whenMissing)
{
    if (!isSet(name)) {
        return whenMissing;
    }
    bool isNumber = false;
    const int value = text(name).toInt(&isNumber);
    if (!isNumber || value < least || value > most) {
        fail(QCoreApplication::translate("cli::ImportOptions",
                                         "--%1 expects a whole number from %2 to %3, not "
                                         "\"%4\".")
                 .arg(name)
                 .arg(least)
                 .arg(most)
                 .arg(text(name)));
    }
    return value;
}

void OptionReader::fail(const QString& error)
{
    if (m_error.isEmpty()) {
        m_error = error;
    }
}

void takeRecords(OptionReader& given, const QString& whenMissing, JobOptions& options)
{
    const QLatin1String name("records");
    const auto records = recordRangeOf(given.isSet(name) ? given.text(name) : whenMissing);
    if (!records) {
        given.fail(QCoreApplication::translate("cli::ImportOptions",
                                               "--records expects a number, a range such as 3-12 "
                                               "or 3-, or all, not \"%1\".")
                       .arg(given.text(name)));
    }
    options.records = records.value_or(RecordRange{});
}

void takeReader(OptionReader& given, JobOptions& options)
{
    const QLatin1String name("reader");
    options.reader = readerOfName(given.text(name));
    if (given.isSet(name) && !options.reader) {
        given.fail(unknownReaderMessage(given.text(name)));
    }
}

void takeSheet(OptionReader& given, JobOptions& options)
{
    options.sheet = given.text("sheet"_L1);
    const int most = printing::MaximumGrid * printing::MaximumGrid;
    options.firstPosition = given.number("first-position"_L1, 1, most, 1) - 1;
    options.copies = given.number("copies"_L1, 1, printing::MaximumCopies, 1);
    options.cropMarks = given.isSet("crop-marks"_L1);
    if (given.isSet("sheet"_L1)) {
        checkSheetName(given, options.sheet);
        return;
    }
    for (const QLatin1String name : {"first-position"_L1, "crop-marks"_L1}) {
        if (given.isSet(name)) {
            given.fail(QCoreApplication::translate("cli::ImportOptions",
                                                   "--%1 has no effect without --sheet.")
                           .arg(name));
        }
    }
}

archive::WorkerLimits takeLimits(OptionReader& given)
{
    archive::WorkerLimits limits;
    limits.timeoutSeconds = given.number("timeout"_L1, 0, MaximumTimeout, limits.timeoutSeconds);
    limits.memoryMiB = given.number("memory-limit"_L1, 0, MaximumMemory, limits.memoryMiB);
    if (limits.memoryMiB > 0 && limits.memoryMiB < MinimumMemory) {
        given.fail(QCoreApplication::translate("cli::ImportOptions",
                                               "--memory-limit expects 0 or at least %1 MiB.")
                       .arg(MinimumMemory));
    }
    return limits;
}

} // namespace cli
