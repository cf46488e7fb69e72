#include "archive/messages.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <array>

namespace archive {
using namespace Qt::StringLiterals;
namespace {

struct OutcomeRow
{
    FileOutcome outcome;
    const char* name;
};

constexpr std::array OutcomeRows{
    OutcomeRow{FileOutcome::Done, "done"},
    OutcomeRow{FileOutcome::Failed, "failed"},
    OutcomeRow{FileOutcome::Crashed, "crashed"},
    OutcomeRow{FileOutcome::TimedOut, "timed-out"},
    OutcomeRow{FileOutcome::OutOfMemory, "out-of-memory"},
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
    return {{u"target"_s, planned.target}, {u"path"_s, planned.path}};
}

PlannedFile plannedOf(const QJsonObject& object)
{
    return {object.value("target"_L1).toString(), object.value("path"_L1).toString()};
}

QJsonObject jsonOfStaged(const StagedFile& file)
{
    return {{u"staged"_s, file.staged}, {u"output"_s, toJson(file.output)}};
}

StagedFile stagedOf(const QJsonObject& object)
{
    return {object.value("staged"_L1).toString(),
            fileStampFromJson(object.value("output"_L1).toObject())};
}

} // namespace

QString nameOf(FileOutcome outcome)
{
    for (const OutcomeRow& row : OutcomeRows) {
        if (row.outcome == outcome) {
            return QLatin1String(row.name);
        }
    }
    return {};
}

std::optional<FileOutcome> outcomeOfName(const QString& name)
{
    for (const OutcomeRow& row : OutcomeRows) {
        if (name == QLatin1String(row.name)) {
            return row.outcome;
        }
    }
    return std::nullopt;
}

QByteArray lineOf(const WorkerStart& start)
{
    const sandbox::Permissions& permissions = start.permissions;
    return lineOf(QJsonObject{{u"readable"_s, QJsonArray::fromStringList(permissions.readable)},
                              {u"writable"_s, QJsonArray::fromStringList(permissions.writable)},
                              {u"requiresSandbox"_s, start.requiresSandbox}});
}

QByteArray lineOf(const Job& job)
{
    return lineOf(QJsonObject{{u"file"_s, job.file},
                              {u"shownName"_s, job.shownName},
                              {u"outputs"_s, arrayOf(job.outputs, jsonOfPlanned)},
                              {u"pageMark"_s, job.pageMark},
                              {u"staging"_s, job.staging},
                              {u"options"_s, job.options}});
}

QByteArray lineOf(const FileResult& result)
{
    return lineOf(QJsonObject{{u"outcome"_s, nameOf(result.outcome)},
                              {u"warnings"_s, QJsonArray::fromStringList(result.warnings)},
                              {u"errors"_s, QJsonArray::fromStringList(result.errors)},
                              {u"files"_s, arrayOf(result.files, jsonOfStaged)},
                              {u"report"_s, result.report},
                              {u"memory"_s, result.memory}});
}

std::optional<WorkerStart> workerStartFromLine(const QByteArray& line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    if (!object.value("readable"_L1).isArray()) {
        return std::nullopt;
    }
    return WorkerStart{{textsOf(object.value("readable"_L1)), textsOf(object.value("writable"_L1))},
                       object.value("requiresSandbox"_L1).toBool()};
}

std::optional<Job> jobFromLine(const QByteArray& line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    if (!object.value("file"_L1).isString()) {
        return std::nullopt;
    }
    return Job{object.value("file"_L1).toString(),
               object.value("shownName"_L1).toString(),
               listOf(object.value("outputs"_L1), plannedOf),
               object.value("staging"_L1).toString(),
               object.value("options"_L1).toObject(),
               object.value("pageMark"_L1).toString()};
}

std::optional<FileResult> resultFromLine(const QByteArray& line)
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    const std::optional<FileOutcome> outcome = outcomeOfName(object.value("outcome"_L1).toString());
    if (!outcome) {
        return std::nullopt;
    }
    return FileResult{*outcome,
                      textsOf(object.value("warnings"_L1)),
                      textsOf(object.value("errors"_L1)),
                      listOf(object.value("files"_L1), stagedOf),
                      object.value("report"_L1).toObject(),
                      object.value("memory"_L1).toInteger()};
}

} // namespace archive
