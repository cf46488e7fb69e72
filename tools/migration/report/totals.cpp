#include "migration/report/totals.h"

#include "fields/field_archives.h"

#include <QSet>

#include <algorithm>

/// Counts by name.
template <>
struct fields::Json<QMap<QString, qint64>>
{
    static constexpr const char* Kind = "counts";
    [[nodiscard]] static QJsonValue write(const QMap<QString, qint64>& counts)
    {
        QJsonObject object;
        for (auto count = counts.begin(); count != counts.end(); ++count) {
            object.insert(count.key(), count.value());
        }
        return object;
    }
};

namespace migration {

namespace {

using namespace Qt::StringLiterals;

QSet<QString> distinctCodes(const FileReport& report)
{
    QSet<QString> codes;
    for (const QList<Finding>* list : {&report.lost, &report.changed}) {
        for (const Finding& finding : *list) {
            codes.insert(finding.code);
        }
    }
    return codes;
}

} // namespace

// Not in the unnamed namespace, where argument-dependent lookup finds nothing.
void describe(auto& field, fields::ValuesOf<Totals> auto& totals)
{
    field("files", totals.files);
    field("complete", totals.complete);
    field("changed", totals.changed);
    field("lossy", totals.lossy);
    field("failed", totals.failed);
    field("objectsInFiles", totals.objectsInFiles);
    field("objectsImported", totals.objectsImported);
    field("uncounted", totals.uncounted);
    field("filesByStatus", totals.filesByStatus);
    field("filesByReader", totals.filesByReader);
    field("filesBySandbox", totals.filesBySandbox);
    field("filesByCode", totals.filesByCode);
}

qint64& Totals::filesOf(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Complete:
        return complete;
    case Verdict::Changed:
        return changed;
    case Verdict::Lossy:
        return lossy;
    case Verdict::Failed:
        break;
    }
    return failed;
}

void Totals::add(const FileReport& report)
{
    ++files;
    ++filesByStatus[statusName(report.status)];
    ++filesByReader[report.reader];
    const QSet<QString> codes = distinctCodes(report);
    for (const QString& code : codes) {
        ++filesByCode[code];
    }
    ++filesOf(verdictOf(report));
    if (report.status != Status::Imported) {
        return;
    }
    for (const QString& part : report.sandbox) {
        ++filesBySandbox[part];
    }
    if (report.objects.inFile) {
        objectsInFiles += *report.objects.inFile;
        objectsImported += report.objects.imported;
    } else {
        ++uncounted;
    }
}

qint64 Totals::exposed() const
{
    const qint64 imported = filesByStatus.value(statusName(Status::Imported));
    qint64 confined = imported;
    for (const QString& part : {u"files"_s, u"network"_s, u"calls"_s}) {
        confined = std::min(confined, filesBySandbox.value(part));
    }
    return imported - confined;
}

QJsonObject toJson(const Totals& totals)
{
    fields::FieldWriter writer;
    describe(writer, totals);
    return writer.object();
}

} // namespace migration
