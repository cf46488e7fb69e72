#include "cli/job_options.h"

#include <QCoreApplication>

#include <array>

namespace cli {
namespace {

constexpr QLatin1String DpiKey("dpi");
constexpr QLatin1String FirstKey("first");
constexpr QLatin1String LastKey("last");
constexpr QLatin1String ReaderKey("reader");
constexpr QLatin1String ForceKey("force");
constexpr QLatin1String ReportKey("report");
constexpr QLatin1String ItemsKey("items");

struct ReaderRow
{
    ReaderKind reader;
    const char* name;
};

constexpr std::array ReaderRows{
    ReaderRow{ReaderKind::Tavrel, "tavrel"},
    ReaderRow{ReaderKind::Orvanta, "orvanta"},
    ReaderRow{ReaderKind::OpenDocument, "opendocument"},
};

} // namespace

QJsonObject decisiveOptions(const JobOptions& options)
{
    QJsonObject object{{DpiKey, options.dpi}, {FirstKey, options.records.first}};
    if (options.records.last) {
        object.insert(LastKey, *options.records.last);
    }
    if (options.reader) {
        object.insert(ReaderKey, nameOf(*options.reader));
    }
    return object;
}

QJsonObject otherOptions(const JobOptions& options)
{
    return {{ForceKey, options.force}, {ReportKey, options.report}, {ItemsKey, options.items}};
}

JobOptions jobOptionsFromJson(const QJsonObject& object)
{
    JobOptions options;
    options.dpi = object.value(DpiKey).toInt(options.dpi);
    options.records.first = object.value(FirstKey).toInteger(1);
    options.records.last = std::nullopt;
    if (object.contains(LastKey)) {
        options.records.last = object.value(LastKey).toInteger();
    }
    options.reader = readerOfName(object.value(ReaderKey).toString());
    options.force = object.value(ForceKey).toBool();
    options.report = object.value(ReportKey).toBool();
    options.items = object.value(ItemsKey).toBool();
    return options;
}

std::optional<ReaderKind> readerOfName(const QString& name)
{
    for (const ReaderRow& row : ReaderRows) {
        if (name == QLatin1String(row.name)) {
            return row.reader;
        }
    }
    return std::nullopt;
}

QString nameOf(ReaderKind reader)
{
    for (const ReaderRow& row : ReaderRows) {
        if (row.reader == reader) {
            return QLatin1String(row.name);
        }
    }
    return {};
}

QString unknownReaderWords(const QString& name)
{
    return QCoreApplication::translate("cli::JobOptions",
                                       "\"%1\" is no reader; --reader takes: %2.")
        .arg(name, readerNames().join(QStringLiteral(", ")));
}

QStringList readerNames()
{
    QStringList names;
    for (const ReaderRow& row : ReaderRows) {
        names.append(QLatin1String(row.name));
    }
    return names;
}

} // namespace cli
