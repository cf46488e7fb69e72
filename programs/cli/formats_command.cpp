#include "cli/commands.h"
#include "cli/option_table.h"
#include "cli/targets.h"
#include "console/command_line.h"
#include "console/output.h"
#include "importer/reader_choice.h"
#include "printing/sheet_json.h"
#include "printing/sheet_presets.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>

namespace cli {
using namespace Qt::StringLiterals;
namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("cli::FormatsCommand", text);
}

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
           QT_TRANSLATE_NOOP("cli::FormatsCommand", "1")},
};
static_assert(Formats.size() == Readers.size() + 1);

struct TargetRow
{
    Target target;
    const char* description;
};

constexpr std::array Targets{
    TargetRow{Target::Png, QT_TRANSLATE_NOOP("cli::FormatsCommand", "picture")},
    TargetRow{Target::Svg, QT_TRANSLATE_NOOP("cli::FormatsCommand", "vector drawing")},
    TargetRow{Target::Pdf,
              QT_TRANSLATE_NOOP("cli::FormatsCommand", "document, a page for each record")},
    TargetRow{Target::Label,
              QT_TRANSLATE_NOOP("cli::FormatsCommand", "saved label, to open and edit again")},
};

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
        .arg(tr("%1 × %2 labels of %3 × %4 mm")
                 .arg(sheet.columns)
                 .arg(sheet.rows)
                 .arg(sheet.label.width())
                 .arg(sheet.label.height()));
}

QString sheetsAsText()
{
    QString text = tr("Sheets (--sheet):") + u'\n';
    text += u"  %1 %2\n"_s.arg(printing::paperNames().join(u", "_s), -24)
                .arg(tr("plain paper, with as many labels as fit"));
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
    for (const TargetRow& row : Targets) {
        targets.append(QJsonObject{{u"name"_s, nameOf(row.target)},
                                   {u"description"_s, QLatin1String(row.description)}});
    }
    return {{u"readers"_s, readers}, {u"targets"_s, targets}, {u"sheets"_s, sheetsAsJson()}};
}

QString asText()
{
    QString text = tr("Read (import, inspect):") + u'\n';
    for (const Format& row : Formats) {
        const QString suffixes = u"*."_s + suffixesOf(row).join(u", *."_s);
        text += u"  %1 %2 %3; %4\n"_s.arg(QLatin1String(row.name), -13)
                    .arg(suffixes, -26)
                    .arg(tr(row.description), tr("versions: %1").arg(tr(row.versions)));
    }
    text += u'\n' + tr("Written (import --to):") + u'\n';
    for (const TargetRow& row : Targets) {
        text += u"  %1 %2\n"_s.arg(nameOf(row.target), -13).arg(tr(row.description));
    }
    return text + u'\n' + sheetsAsText();
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
        return console::refuseArguments(command, tr("formats takes no files."));
    }
    if (parser.isSet(u"json"_s)) {
        console::printBytes(QJsonDocument(asJson()).toJson(QJsonDocument::Indented));
    } else {
        console::printText(asText());
    }
    return console::ExitSuccess;
}

} // namespace cli
