// The report as JSON and back. docs/report.schema.json describes the result.

#include "fields/field_archives.h"
#include "migration/model/file_report.h"

#include <QJsonArray>

#include <algorithm>
#include <limits>

template <>
struct fields::Json<QList<int>>
{
    static constexpr const char* Kind =
        QT_TRANSLATE_NOOP("fields::FieldProblem", "a list of whole numbers");
    [[nodiscard]] static QJsonValue write(const QList<int>& value)
    {
        QJsonArray array;
        for (const int number : value) {
            array.append(number);
        }
        return array;
    }
    [[nodiscard]] static bool read(const QJsonValue& json, QList<int>& value)
    {
        value.clear();
        const QJsonArray array = json.toArray();
        return json.isArray() && std::all_of(array.begin(), array.end(), [&](QJsonValue entry) {
                   return Json<int>::read(entry, value.emplaceBack());
               });
    }
};

/// Lists of [x, y, width, height].
template <>
struct fields::Json<QList<QRectF>>
{
    static constexpr const char* Kind =
        QT_TRANSLATE_NOOP("fields::FieldProblem", "a list of rectangles");
    [[nodiscard]] static QJsonValue write(const QList<QRectF>& value)
    {
        QJsonArray array;
        for (const QRectF& box : value) {
            array.append(QJsonArray{box.x(), box.y(), box.width(), box.height()});
        }
        return array;
    }
    [[nodiscard]] static bool read(const QJsonValue& json, QList<QRectF>& value)
    {
        value.clear();
        for (const QJsonValue entry : json.toArray()) {
            const QJsonArray box = entry.toArray();
            if (box.size() != 4) {
                return false;
            }
            value.append(
                {box[0].toDouble(), box[1].toDouble(), box[2].toDouble(), box[3].toDouble()});
        }
        return json.isArray();
    }
};

template <>
struct fields::Json<migration::Status>
{
    static constexpr const char* Kind = QT_TRANSLATE_NOOP("fields::FieldProblem", "a known status");
    [[nodiscard]] static QJsonValue write(migration::Status value) { return statusName(value); }
    [[nodiscard]] static bool read(const QJsonValue& json, migration::Status& value)
    {
        const auto status = migration::statusOfName(json.toString());
        value = status.value_or(value);
        return status.has_value();
    }
};

namespace migration {

using fields::SingleValue;
using fields::ValuesOf;

// Not in the unnamed namespace, where argument-dependent lookup finds nothing.

void describe(auto& field, ValuesOf<PageReport> auto& page)
{
    field("width", page.width);
    field("height", page.height);
}

void describe(auto& field, ValuesOf<ObjectsReport> auto& objects)
{
    field("inFile", objects.inFile);
    field("imported", objects.imported);
    field("unknown", objects.unknown);
}

void describe(auto& field, ValuesOf<KindCount> auto& count)
{
    field("kind", count.kind);
    field("count", count.count);
}

void describe(auto& field, ValuesOf<FindingPlaces> auto& places)
{
    field("items", places.items);
    field("missing", places.missing);
}

void describe(auto& field, ValuesOf<Finding> auto& finding)
{
    field("code", finding.code);
    field("text", finding.text);
    field("count", finding.count);
    field("countsObjects", finding.countsObjects);
    field("details", finding.details);
    field("places", finding.places);
}

void describe(auto& field, ValuesOf<RepairReport> auto& repair)
{
    field("code", repair.code);
    field("text", repair.text);
    field("count", repair.count);
}

void describe(auto& field, ValuesOf<SourceReport> auto& source)
{
    field("id", source.id);
    field("kind", source.kind);
    field("fields", source.fields);
    field("file", source.file);
}

void describe(auto& field, ValuesOf<IssueReport> auto& issue)
{
    field("text", issue.text);
    field("item", issue.item);
    field("repeats", issue.repeats);
}

void describe(auto& field, ValuesOf<ItemReport> auto& item)
{
    field("kind", item.kind);
    field("x", item.x);
    field("y", item.y);
    field("width", item.width);
    field("height", item.height);
    field("content", item.content);
    field("datasource", item.datasource);
}

void describe(auto& field, ValuesOf<ExportReport> auto& exported)
{
    field("target", exported.target);
    field("fidelity", exported.fidelity);
    field("kind", exported.kind);
    field("text", exported.text);
    field("count", exported.count);
}

void describe(auto& field, ValuesOf<FileReport> auto& report)
{
    field("file", report.file);
    field("bytes", report.bytes);
    field("status", report.status);
    field("error", report.error);
    field("reader", report.reader);
    field("page", report.page);
    field("objects", report.objects);
    field("items", report.items);
    field("complete", report.complete);
    field("changed", report.changed);
    field("lost", report.lost);
    field("repaired", report.repaired);
    field("datasources", report.datasources);
    field("issues", report.issues);
    field("thumbnail", report.thumbnail);
    field("preview", report.preview);
    field("outputs", report.outputs);
    field("exports", report.exports);
    field("sandbox", report.sandbox);
    field("itemList", report.itemList);
}

namespace {

/// Replaces what is not valid Unicode, from damaged labels: texts of a report are plain strings.
class TextRepair
{
public:
    void operator()(const char* /*name*/, QString& text) const
    {
        if (!text.isValidUtf16()) {
            text = QString::fromUtf8(text.toUtf8());
        }
    }

    void operator()(const char* name, QStringList& texts) const
    {
        for (QString& text : texts) {
            (*this)(name, text);
        }
    }

    template <SingleValue T>
    void operator()(const char* /*name*/, T& /*value*/) const
    {}

    template <class T>
    requires(!SingleValue<T>) void operator()(const char* /*name*/, T& group) const
    {
        describe(*this, group);
    }

    // Has no texts.
    void operator()(const char* /*name*/, std::optional<FindingPlaces>& /*places*/) const {}

    template <class T>
    requires(!SingleValue<QList<T>>) void operator()(const char* /*name*/, QList<T>& groups) const
    {
        for (T& group : groups) {
            describe(*this, group);
        }
    }
};

} // namespace

QJsonObject toJson(const FileReport& report)
{
    FileReport repaired = report;
    const TextRepair repair;
    describe(repair, repaired);
    fields::FieldWriter writer;
    describe(writer, repaired);
    writer("verdict", verdictName(verdictOf(report)));
    return writer.object();
}

std::optional<FileReport> fileReportFromJson(const QJsonObject& object)
{
    FileReport report;
    // The size of the JSON text bounds its lists.
    constexpr auto anyLength = std::numeric_limits<qsizetype>::max();
    fields::FieldReader reader(object, anyLength);
    describe(reader, report);
    return reader.error().isEmpty() ? std::optional(report) : std::nullopt;
}

} // namespace migration
