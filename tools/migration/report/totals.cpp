#include "migration/report/totals.h"

#include "fields/field_archives.h"

#include <QCoreApplication>
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

QSet<QString> codesOf(const FileReport& report)
{
    QSet<QString> codes;
    for (const QList<Finding>* list : {&report.lost, &report.changed}) {
        for (const Finding& finding : *list) {
            codes.insert(finding.code);
        }
    }
    return codes;
}

QString tr(const char* text)
{
    return QCoreApplication::translate("migration::Totals", text);
}

} // namespace

// Not in the unnamed namespace, where argument-dependent lookup finds nothing.
void describe(auto& field, fields::ValuesOf<Totals> auto& totals)
{
    field("files", totals.files);
    field("whole", totals.whole);
    field("changed", totals.changed);
    field("withLoss", totals.withLoss);
    field("failed", totals.failed);
    field("objectsInFiles", totals.objectsInFiles);
    field("objectsImported", totals.objectsImported);
    field("uncounted", totals.uncounted);
    field("filesByStatus", totals.filesByStatus);
    field("filesByReader", totals.filesByReader);
    field("filesByCode", totals.filesByCode);
}

QString stateOf(const FileReport& report)
{
    if (report.status != Status::Imported) {
        return statusName(report.status);
    }
    if (hasLoss(report)) {
        return u"loss"_s;
    }
    return isWhole(report) ? u"whole"_s : u"changed"_s;
}

QString stateWords(const QString& state)
{
    struct Row
    {
        QLatin1String state;
        const char* words;
    };
    static constexpr Row Rows[] = {
        {"whole"_L1, QT_TRANSLATE_NOOP("migration::Totals", "imported completely")},
        {"changed"_L1, QT_TRANSLATE_NOOP("migration::Totals", "changed in looks")},
        {"loss"_L1, QT_TRANSLATE_NOOP("migration::Totals", "with losses")},
        {"crashed"_L1, QT_TRANSLATE_NOOP("migration::Totals", "crashed")},
        {"timed-out"_L1, QT_TRANSLATE_NOOP("migration::Totals", "timed out")},
        {"out-of-memory"_L1, QT_TRANSLATE_NOOP("migration::Totals", "out of memory")},
    };
    const auto* row = std::find_if(std::begin(Rows), std::end(Rows),
                                   [&state](const Row& each) { return each.state == state; });
    return row != std::end(Rows) ? tr(row->words) : tr("failed");
}

void Totals::add(const FileReport& report)
{
    ++files;
    ++filesByStatus[statusName(report.status)];
    ++filesByReader[report.reader];
    const QSet<QString> codes = codesOf(report);
    for (const QString& code : codes) {
        ++filesByCode[code];
    }
    const QString state = stateOf(report);
    whole += state == "whole"_L1 ? 1 : 0;
    changed += state == "changed"_L1 ? 1 : 0;
    withLoss += state == "loss"_L1 ? 1 : 0;
    if (report.status != Status::Imported) {
        ++failed;
    } else if (report.objects.inFile) {
        objectsInFiles += *report.objects.inFile;
        objectsImported += report.objects.imported;
    } else {
        ++uncounted;
    }
}

QJsonObject toJson(const Totals& totals)
{
    fields::FieldWriter writer;
    describe(writer, totals);
    return writer.object();
}

} // namespace migration
