#include "migration/report/totals.h"

#include <QSet>

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

QJsonObject toJson(const QMap<QString, qint64>& counts)
{
    QJsonObject object;
    for (auto count = counts.begin(); count != counts.end(); ++count) {
        object.insert(count.key(), count.value());
    }
    return object;
}

} // namespace

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
    } else if (report.objectsInFile) {
        objectsInFiles += *report.objectsInFile;
        objectsImported += report.objectsImported;
    } else {
        ++uncounted;
    }
}

QJsonObject toJson(const Totals& totals)
{
    return {
        {u"files"_s, totals.files},
        {u"whole"_s, totals.whole},
        {u"changed"_s, totals.changed},
        {u"withLoss"_s, totals.withLoss},
        {u"failed"_s, totals.failed},
        {u"objectsInFiles"_s, totals.objectsInFiles},
        {u"objectsImported"_s, totals.objectsImported},
        {u"uncounted"_s, totals.uncounted},
        {u"filesByStatus"_s, toJson(totals.filesByStatus)},
        {u"filesByReader"_s, toJson(totals.filesByReader)},
        {u"filesByCode"_s, toJson(totals.filesByCode)},
    };
}

} // namespace migration
