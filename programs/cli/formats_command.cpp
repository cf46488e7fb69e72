#include "cli/option_reader.h"
#include "cli/option_table.h"
#include "cli/subcommands.h"
#include "console/command_line.h"
#include "console/output.h"
#include "exporting/targets.h"
#include "importer/reader_choice.h"
#include "printing/sheet_json.h"
#include "printing/sheet_presets.h"
#include "sandbox/confinement.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>

namespace cli {
using namespace Qt::StringLiterals;
namespace {

struct FormatsCommandTr
{
    Q_DECLARE_TR_FUNCTIONS(cli::FormatsCommand)
};

struct Format
{
    const char* name;
    const char* description;
    const char* versions;
};

/// In the order of Readers; then the saved label.
constexpr std::array Formats{
    Format{"tavrel", QT_TRANSLATE_NOOP("cli::FormatsCommand", "binary canvas files"),
           QT_TRANSLATE_NOOP("cli::FormatsCommand",
                             "2000016 to 2000024; newer ones are read as 2000024")},
    Format{"orvanta", QT_TRANSLATE_NOOP("cli::FormatsCommand", "XML labels"),
           QT_TRANSLATE_NOOP("cli::FormatsCommand", "all")},
    Format{"opendocument",
           QT_TRANSLATE_NOOP("cli::FormatsCommand", "OpenDocument texts and drawings"),
           QT_TRANSLATE_NOOP("cli::FormatsCommand", "all versions (zipped)")},
    Format{"label", QT_TRANSLATE_NOOP("cli::FormatsCommand", "labels saved by LabelPort"),
           QT_TRANSLATE_NOOP("cli::FormatsCommand", "1 and 2")},
};
static_assert(Formats.size() == Readers.size() + 1);

const char* nameOf(exporting::RecordFiles records)
{
    switch (records) {
    case exporting::RecordFiles::FileForEach:
        return "file-for-each";
    case exporting::RecordFiles::OneFile:
        return "one-file";
    case exporting::RecordFiles::Always:
        break;
    }
    return "always-all";
}

QJsonObject jsonOf(const exporting::TargetOption& option)
{
    QJsonObject object{{u"name"_s, QLatin1String(option.name)},
                       {u"description"_s, QLatin1String(option.description)},
                       {u"default"_s, option.initial}};
    switch (option.kind) {
    case exporting::OptionKind::Number:
        object.insert(u"type"_s, u"number"_s);
        object.insert(u"minimum"_s, option.minimum);
        object.insert(u"maximum"_s, option.maximum);
        break;
    case exporting::OptionKind::Choice: {
        QJsonArray choices;
        for (const int choice : option.choices) {
            choices.append(choice);
        }
        object.insert(u"type"_s, u"choice"_s);
        object.insert(u"choices"_s, choices);
        break;
    }
    case exporting::OptionKind::Switch:
        object.insert(u"type"_s, u"switch"_s);
        object.insert(u"default"_s, option.initial != 0);
        break;
    case exporting::OptionKind::Name:
        object.insert(u"type"_s, u"name"_s);
        object.insert(u"names"_s, QJsonArray::fromStringList(option.names()));
        object.insert(u"default"_s, QString());
        break;
    }
    return object;
}

QJsonObject jsonOf(const exporting::TargetEntry& entry)
{
    QJsonArray options;
    for (const exporting::TargetOption& option : entry.options) {
        options.append(jsonOf(option));
    }
    return {{u"name"_s, QLatin1String(entry.name)},
            {u"suffix"_s, QLatin1String(entry.name)},
            {u"description"_s, QLatin1String(entry.description)},
            {u"records"_s, QLatin1String(nameOf(entry.records))},
            {u"options"_s, options}};
}

QStringList suffixesOf(const Format& format)
{
    const std::optional<ReaderKind> kind = readerOfName(QLatin1String(format.name));
    if (!kind) {
        return {QLatin1String(format.name)};
    }
    QStringList suffixes;
    for (const QLatin1String suffix : readerOf(*kind).suffixes) {
        if (!suffix.isEmpty()) {
            suffixes.append(suffix);
        }
    }
    return suffixes;
}

QJsonArray sheetsAsJson()
{
    QJsonArray sheets;
    for (const printing::Sheet& sheet : printing::sheetPresets()) {
        sheets.append(printing::toJson(sheet));
    }
    return sheets;
}

QString sheetLine(const printing::Sheet& sheet)
{
    return u"  %1 %2 %3\n"_s.arg(sheet.names.join(u", "_s), -24)
        .arg(sheet.paper, -7)
        .arg(FormatsCommandTr::tr("%1 × %2 labels of %3 × %4 mm")
                 .arg(sheet.columns)
                 .arg(sheet.rows)
                 .arg(sheet.label.width())
                 .arg(sheet.label.height()));
}

QString sheetsAsText()
{
    QString text = FormatsCommandTr::tr("Sheets (--sheet):") + u'\n';
    text += u"  %1 %2\n"_s.arg(printing::paperNames().join(u", "_s), -24)
                .arg(FormatsCommandTr::tr("plain paper, with as many labels as fit"));
    for (const printing::Sheet& sheet : printing::sheetPresets()) {
        text += sheetLine(sheet);
    }
    return text;
}

QJsonObject asJson()
{
    QJsonArray readers;
    for (const Format& row : Formats) {
        readers.append(QJsonObject{{u"name"_s, QLatin1String(row.name)},
                                   {u"suffixes"_s, QJsonArray::fromStringList(suffixesOf(row))},
                                   {u"description"_s, QLatin1String(row.description)},
                                   {u"versions"_s, QLatin1String(row.versions)}});
    }
    QJsonArray targets;
    for (const exporting::TargetEntry& entry : exporting::targets()) {
        targets.append(jsonOf(entry));
    }
    const QStringList sandbox = sandbox::codesOf(sandbox::supported());
    return {{u"readers"_s, readers},
            {u"targets"_s, targets},
            {u"sheets"_s, sheetsAsJson()},
            {u"sandbox"_s, QJsonArray::fromStringList(sandbox)}};
}

QString asText()
{
    QString text = FormatsCommandTr::tr("Read (import, inspect):") + u'\n';
    for (const Format& row : Formats) {
        const QString suffixes = u"*."_s + suffixesOf(row).join(u", *."_s);
        text +=
            u"  %1 %2 %3; %4\n"_s.arg(QLatin1String(row.name), -13)
                .arg(suffixes, -26)
                .arg(FormatsCommandTr::tr(row.description),
                     FormatsCommandTr::tr("versions: %1").arg(FormatsCommandTr::tr(row.versions)));
    }
    text += u'\n' + FormatsCommandTr::tr("Written (import --to):") + u'\n';
    for (const exporting::TargetEntry& entry : exporting::targets()) {
        text += u"  %1 %2\n"_s.arg(QLatin1String(entry.name), -13)
                    .arg(exporting::translated(entry.description));
    }
    return text + u'\n' + sheetsAsText() + u'\n' +
           FormatsCommandTr::tr("Sandbox in which files are read, on this system: %1.")
               .arg(sandbox::describe(sandbox::supported())) +
           u'\n';
}

} // namespace

int runFormats(const QStringList& arguments)
{
    const QString command = u"labelport formats"_s;
    QCommandLineParser parser;
    describeCommand(parser, commandOf("formats"));
    if (const std::optional<int> status = console::parseCommand(parser, command, arguments)) {
        return *status;
    }
    if (!parser.positionalArguments().isEmpty()) {
        return console::refuseArguments(command, FormatsCommandTr::tr("formats takes no files."));
    }
    if (parser.isSet(u"json"_s)) {
        console::printBytes(QJsonDocument(asJson()).toJson(QJsonDocument::Indented));
    } else {
        console::printText(asText());
    }
    return console::ExitSuccess;
}

} // namespace cli
