#include "cli/job_options.h"

#include "console/command_line.h"

#include <QCoreApplication>

namespace cli {
using namespace Qt::StringLiterals;
namespace {

constexpr QLatin1String DpiKey("dpi");
constexpr QLatin1String FirstKey("first");
constexpr QLatin1String LastKey("last");
constexpr QLatin1String ReaderKey("reader");
constexpr QLatin1String SheetKey("sheet");
constexpr QLatin1String FirstPositionKey("firstPosition");
constexpr QLatin1String CopiesKey("copies");
constexpr QLatin1String CropMarksKey("cropMarks");
constexpr QLatin1String ZplNativeKey("zplNative");
constexpr QLatin1String AsWrittenKey("asWritten");
constexpr QLatin1String ForceKey("force");
constexpr QLatin1String ItemsKey("items");
constexpr QLatin1String ThumbnailKey("thumbnail");

} // namespace

QJsonObject outputOptions(const JobOptions& options)
{
    QJsonObject object{{DpiKey, options.dpi}, {FirstKey, options.records.first}};
    if (options.records.last) {
        object.insert(LastKey, *options.records.last);
    }
    if (options.reader) {
        object.insert(ReaderKey, readerOf(*options.reader).name);
    }
    // Journals of earlier versions do not have these keys.
    if (!options.sheet.isEmpty()) {
        object.insert(SheetKey, options.sheet);
        object.insert(FirstPositionKey, options.firstPosition);
        object.insert(CropMarksKey, options.cropMarks);
    }
    if (options.zplNative) {
        object.insert(ZplNativeKey, true);
    }
    if (options.copies > 1) {
        object.insert(CopiesKey, options.copies);
    }
    if (options.asWritten) {
        object.insert(AsWrittenKey, true);
    }
    return object;
}

QJsonObject otherOptions(const JobOptions& options)
{
    return {
        {ForceKey, options.force}, {ItemsKey, options.items}, {ThumbnailKey, options.thumbnail}};
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
    options.sheet = object.value(SheetKey).toString();
    options.firstPosition = object.value(FirstPositionKey).toInt();
    options.copies = object.value(CopiesKey).toInt(options.copies);
    options.cropMarks = object.value(CropMarksKey).toBool();
    options.zplNative = object.value(ZplNativeKey).toBool();
    options.asWritten = object.value(AsWrittenKey).toBool();
    options.force = object.value(ForceKey).toBool();
    options.items = object.value(ItemsKey).toBool();
    options.thumbnail = object.value(ThumbnailKey).toBool();
    return options;
}

QString unknownReaderMessage(const QString& name)
{
    const QStringList names = readerNames();
    return QCoreApplication::translate("cli::JobOptions",
                                       "Unknown reader \"%1\". Supported readers: %2.")
               .arg(name, names.join(u", "_s)) +
           console::suggestion(name, names);
}

QStringList readerNames()
{
    QStringList names;
    for (const Reader& reader : Readers) {
        names.append(reader.name);
    }
    return names;
}

} // namespace cli
