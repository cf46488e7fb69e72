// The report as JSON and back. docs/report.schema.json describes what is written here.

#include "migration/model/file_report.h"

#include <QJsonArray>

#include <cmath>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

// Whole numbers above this are not exact in JSON.
constexpr double LargestWhole = 9'007'199'254'740'992.0;

QJsonArray toJson(const QStringList& texts)
{
    return QJsonArray::fromStringList(texts);
}

QJsonObject toJson(const KindCount& value)
{
    return {{u"kind"_s, value.kind}, {u"count"_s, value.count}};
}

QJsonObject toJson(const Finding& value)
{
    return {{u"code"_s, value.code},
            {u"text"_s, value.text},
            {u"count"_s, value.count},
            {u"countsObjects"_s, value.countsObjects},
            {u"details"_s, toJson(value.details)}};
}

QJsonObject toJson(const SourceReport& value)
{
    return {{u"id"_s, value.id},
            {u"kind"_s, value.kind},
            {u"fields"_s, toJson(value.fields)},
            {u"file"_s, value.file}};
}

QJsonObject toJson(const IssueReport& value)
{
    return {{u"text"_s, value.text}, {u"item"_s, value.item}, {u"repeats"_s, value.repeats}};
}

QJsonObject toJson(const ItemReport& value)
{
    return {{u"kind"_s, value.kind},
            {u"x"_s, value.x},
            {u"y"_s, value.y},
            {u"width"_s, value.width},
            {u"height"_s, value.height},
            {u"content"_s, value.content},
            {u"datasource"_s, value.datasource}};
}

template <class Value>
QJsonArray toJson(const QList<Value>& values)
{
    QJsonArray array;
    for (const Value& value : values) {
        array.append(toJson(value));
    }
    return array;
}

qint64 wholeOf(const QJsonValue& value, qint64 otherwise = 0)
{
    const double number = value.toDouble(std::nan(""));
    if (std::isnan(number) || std::abs(number) > LargestWhole) {
        return otherwise;
    }
    return value.toInteger(static_cast<qint64>(number));
}

QStringList textsOf(const QJsonValue& value)
{
    QStringList texts;
    for (const QJsonValue& text : value.toArray()) {
        texts.append(text.toString());
    }
    return texts;
}

void read(const QJsonObject& object, KindCount& value)
{
    value = {object[u"kind"_s].toString(), wholeOf(object[u"count"_s])};
}

void read(const QJsonObject& object, Finding& value)
{
    value = {object[u"code"_s].toString(), object[u"text"_s].toString(),
             wholeOf(object[u"count"_s], 1), object[u"countsObjects"_s].toBool(),
             textsOf(object[u"details"_s])};
}

void read(const QJsonObject& object, SourceReport& value)
{
    value = {object[u"id"_s].toInt(), object[u"kind"_s].toString(), textsOf(object[u"fields"_s]),
             object[u"file"_s].toString()};
}

void read(const QJsonObject& object, IssueReport& value)
{
    value = {object[u"text"_s].toString(), object[u"item"_s].toInt(-1),
             object[u"repeats"_s].toInt(1)};
}

void read(const QJsonObject& object, ItemReport& value)
{
    value = {object[u"kind"_s].toString(),     object[u"x"_s].toDouble(),
             object[u"y"_s].toDouble(),        object[u"width"_s].toDouble(),
             object[u"height"_s].toDouble(),   object[u"content"_s].toString(),
             object[u"datasource"_s].toInt(-1)};
}

template <class Value>
QList<Value> listOf(const QJsonValue& json)
{
    QList<Value> values;
    for (const QJsonValue& entry : json.toArray()) {
        read(entry.toObject(), values.emplaceBack());
    }
    return values;
}

QJsonObject pageOf(const FileReport& report)
{
    return {{u"width"_s, report.pageWidth}, {u"height"_s, report.pageHeight}};
}

QJsonObject objectsOf(const FileReport& report)
{
    return {{u"inFile"_s, report.objectsInFile ? QJsonValue(*report.objectsInFile)
                                               : QJsonValue(QJsonValue::Null)},
            {u"imported"_s, report.objectsImported},
            {u"unknown"_s, report.objectsUnknown}};
}

void readObjects(const QJsonObject& objects, FileReport& report)
{
    if (objects[u"inFile"_s].isDouble()) {
        report.objectsInFile = wholeOf(objects[u"inFile"_s]);
    }
    report.objectsImported = wholeOf(objects[u"imported"_s]);
    report.objectsUnknown = objects[u"unknown"_s].toString();
}

void readLists(const QJsonObject& object, FileReport& report)
{
    report.items = listOf<KindCount>(object[u"items"_s]);
    report.whole = listOf<KindCount>(object[u"whole"_s]);
    report.changed = listOf<Finding>(object[u"changed"_s]);
    report.lost = listOf<Finding>(object[u"lost"_s]);
    report.datasources = listOf<SourceReport>(object[u"datasources"_s]);
    report.issues = listOf<IssueReport>(object[u"issues"_s]);
    report.outputs = textsOf(object[u"outputs"_s]);
    report.itemList = listOf<ItemReport>(object[u"itemList"_s]);
}

} // namespace

QJsonObject toJson(const FileReport& report)
{
    QJsonObject object{
        {u"file"_s, report.file},
        {u"bytes"_s, report.bytes},
        {u"status"_s, statusName(report.status)},
        {u"error"_s, report.error},
        {u"reader"_s, report.reader},
        {u"page"_s, pageOf(report)},
        {u"objects"_s, objectsOf(report)},
        {u"items"_s, toJson(report.items)},
        {u"whole"_s, toJson(report.whole)},
        {u"changed"_s, toJson(report.changed)},
        {u"lost"_s, toJson(report.lost)},
        {u"hasLoss"_s, hasLoss(report)},
        {u"datasources"_s, toJson(report.datasources)},
        {u"issues"_s, toJson(report.issues)},
        {u"thumbnail"_s, QString::fromLatin1(report.thumbnail.toBase64())},
        {u"outputs"_s, toJson(report.outputs)},
    };
    if (!report.itemList.isEmpty()) {
        object.insert(u"itemList"_s, toJson(report.itemList));
    }
    return object;
}

std::optional<FileReport> fileReportFromJson(const QJsonObject& object)
{
    const auto status = statusOfName(object[u"status"_s].toString());
    if (!status || !object[u"file"_s].isString()) {
        return std::nullopt;
    }
    FileReport report;
    report.file = object[u"file"_s].toString();
    report.bytes = wholeOf(object[u"bytes"_s]);
    report.status = *status;
    report.error = object[u"error"_s].toString();
    report.reader = object[u"reader"_s].toString();
    report.pageWidth = object[u"page"_s][u"width"_s].toDouble();
    report.pageHeight = object[u"page"_s][u"height"_s].toDouble();
    readObjects(object[u"objects"_s].toObject(), report);
    readLists(object, report);
    report.thumbnail = QByteArray::fromBase64(object[u"thumbnail"_s].toString().toLatin1());
    return report;
}

} // namespace migration
