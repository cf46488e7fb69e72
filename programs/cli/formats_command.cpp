#include "cli/formats_command.h"

#include "cli/command_line.h"
#include "cli/exit_status.h"
#include "cli/messages.h"
#include "cli/targets.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>

namespace cli {
namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("cli::FormatsCommand", text);
}

struct ReaderRow
{
    const char* name;
    const char* suffixes; ///< with commas
    const char* description;
    const char* versions;
};

constexpr std::array Readers{
    ReaderRow{"tavrel", "cnv,roc", QT_TRANSLATE_NOOP("cli::FormatsCommand", "binary canvas files"),
              QT_TRANSLATE_NOOP("cli::FormatsCommand",
                                "2000016 to 2000024; newer ones are read as 2000024")},
    ReaderRow{"orvanta", "qmtx", QT_TRANSLATE_NOOP("cli::FormatsCommand", "XML labels"),
              QT_TRANSLATE_NOOP("cli::FormatsCommand", "all")},
    ReaderRow{"opendocument", "odt,odg",
              QT_TRANSLATE_NOOP("cli::FormatsCommand", "OpenDocument texts and drawings"),
              QT_TRANSLATE_NOOP("cli::FormatsCommand", "all, as packages")},
    ReaderRow{"label", "label",
              QT_TRANSLATE_NOOP("cli::FormatsCommand", "labels saved by LabelPort"),
              QT_TRANSLATE_NOOP("cli::FormatsCommand", "1")},
};

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

QStringList suffixesOf(const ReaderRow& row)
{
    return QString::fromLatin1(row.suffixes).split(QLatin1Char(','));
}

QJsonObject asJson()
{
    QJsonArray readers;
    for (const ReaderRow& row : Readers) {
        readers.append(
            QJsonObject{{QStringLiteral("name"), QLatin1String(row.name)},
                        {QStringLiteral("suffixes"), QJsonArray::fromStringList(suffixesOf(row))},
                        {QStringLiteral("description"), QLatin1String(row.description)},
                        {QStringLiteral("versions"), QLatin1String(row.versions)}});
    }
    QJsonArray targets;
    for (const TargetRow& row : Targets) {
        targets.append(
            QJsonObject{{QStringLiteral("name"), nameOf(row.target)},
                        {QStringLiteral("description"), QLatin1String(row.description)}});
    }
    return {{QStringLiteral("readers"), readers}, {QStringLiteral("targets"), targets}};
}

QString asText()
{
    QString text = tr("Read (import, inspect):") + QLatin1Char('\n');
    for (const ReaderRow& row : Readers) {
        const QString suffixes =
            QStringLiteral("*.") + suffixesOf(row).join(QStringLiteral(", *."));
        text += QStringLiteral("  %1 %2 %3; %4\n")
                    .arg(QLatin1String(row.name), -13)
                    .arg(suffixes, -14)
                    .arg(tr(row.description), tr("versions: %1").arg(tr(row.versions)));
    }
    text += QLatin1Char('\n') + tr("Written (import --to):") + QLatin1Char('\n');
    for (const TargetRow& row : Targets) {
        text += QStringLiteral("  %1 %2\n").arg(nameOf(row.target), -13).arg(tr(row.description));
    }
    return text;
}

} // namespace

int runFormats(const QStringList& arguments)
{
    // No translation: it is typed so.
    const QString command = QStringLiteral("labelport formats");
    QCommandLineParser parser;
    parser.setApplicationDescription(
        tr("Tells which files are read, in which versions, and what can be "
           "written.\n\n"
           "Examples:\n"
           "  labelport formats\n"
           "  labelport formats --json | jq -r '.readers[].suffixes[]'"));
    parser.addOption({QStringLiteral("json"), tr("Tell it as JSON.")});
    if (const std::optional<int> status = parseCommand(parser, command, arguments)) {
        return *status;
    }
    if (!parser.positionalArguments().isEmpty()) {
        return refuseArguments(command, tr("It takes no files."));
    }
    printText(parser.isSet(QStringLiteral("json"))
                  ? QString::fromUtf8(QJsonDocument(asJson()).toJson(QJsonDocument::Indented))
                  : asText());
    return ExitSuccess;
}

} // namespace cli
