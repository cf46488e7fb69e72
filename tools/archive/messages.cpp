#include "archive/messages.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <array>

namespace archive {
namespace {

struct FateRow
{
    Fate fate;
    const char* name;
};

constexpr std::array FateRows{
    FateRow{Fate::Done, "done"},
    FateRow{Fate::Failed, "failed"},
    FateRow{Fate::Crashed, "crashed"},
    FateRow{Fate::TimedOut, "timed-out"},
    FateRow{Fate::OutOfMemory, "out-of-memory"},
};

QByteArray lineOf(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

template <typename Value, typename Write>
QJsonArray arrayOf(const QList<Value>& values, Write write)
{
    QJsonArray array;
    for (const Value& value : values) {
        array.append(write(value));
    }
    return array;
}

template <typename Read>
auto listOf(const QJsonValue& array, Read read)
{
    QList<decltype(read(QJsonObject()))> list;
    for (const QJsonValue& value : array.toArray()) {
        list.append(read(value.toObject()));
    }
    return list;
}

QStringList textsOf(const QJsonValue& array)
{
    return array.toVariant().toStringList();
}

QJsonObject jsonOfPlanned(const PlannedFile& planned)
{
    return {{QStringLiteral("target"), planned.target}, {QStringLiteral("path"), planned.path}};
}

PlannedFile plannedOf(const QJsonObject& object)
{
    return {object.value(QLatin1String("target")).toString(),
            object.value(QLatin1String("path")).toString()};
}

QJsonObject jsonOfStaged(const StagedFile& file)
{
    return {{QStringLiteral("staged"), file.staged},
            {QStringLiteral("output"), toJson(file.output)},
            {QStringLiteral("mayReplace"), file.mayReplace}};
}

StagedFile stagedOf(const QJsonObject& object)
{
    return {object.value(QLatin1String("staged")).toString(),
            fileStampFromJson(object.value(QLatin1String("output")).toObject()),
            object.value(QLatin1String("mayReplace")).toBool()};
}

} // namespace

QString nameOf(Fate fate)
{
    for (const FateRow& row : FateRows) {
        if (row.fate == fate) {
            return QLatin1String(row.name);
        }
    }
    return {};
}

std::optional<Fate> fateOfName(const QString& name)
{
    for (const FateRow& row : FateRows) {
        if (name == QLatin1String(row.name)) {
            return row.fate;
        }
    }
    return std::nullopt;
}

QByteArray lineOf(const Job& job)
{
    const auto stamp = [](const FileStamp& known) { return toJson(known); };
    return lineOf(QJsonObject{{QStringLiteral("file"), job.file},
                              {QStringLiteral("shownName"), job.shownName},
                              {QStringLiteral("outputs"), arrayOf(job.outputs, jsonOfPlanned)},
                              {QStringLiteral("staging"), job.staging},
                              {QStringLiteral("known"), arrayOf(job.known, stamp)},
                              {QStringLiteral("options"), job.options}});
}

QByteArray lineOf(const FileResult& result)
{
    return lineOf(
        QJsonObject{{QStringLiteral("fate"), nameOf(result.fate)},
                    {QStringLiteral("warnings"), QJsonArray::fromStringList(result.warnings)},
                    {QStringLiteral("errors"), QJsonArray::fromStringList(result.errors)},
                    {QStringLiteral("files"), arrayOf(result.files, jsonOfStaged)},
                    {QStringLiteral("report"), result.report},
                    {QStringLiteral("memory"), result.memory}});
}

std::optional<Job> jobFromLine(const QByteArray& line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    if (!object.value(QLatin1String("file")).isString()) {
        return std::nullopt;
    }
    return Job{object.value(QLatin1String("file")).toString(),
               object.value(QLatin1String("shownName")).toString(),
               listOf(object.value(QLatin1String("outputs")), plannedOf),
               object.value(QLatin1String("staging")).toString(),
               listOf(object.value(QLatin1String("known")), fileStampFromJson),
               object.value(QLatin1String("options")).toObject()};
}

std::optional<FileResult> resultFromLine(const QByteArray& line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    const std::optional<Fate> fate = fateOfName(object.value(QLatin1String("fate")).toString());
    if (!fate) {
        return std::nullopt;
    }
    return FileResult{*fate,
                      textsOf(object.value(QLatin1String("warnings"))),
                      textsOf(object.value(QLatin1String("errors"))),
                      listOf(object.value(QLatin1String("files")), stagedOf),
                      object.value(QLatin1String("report")).toObject(),
                      object.value(QLatin1String("memory")).toInteger()};
}

} // namespace archive
