#include "cli/import_events.h"

#include "cli/file_reports.h"
#include "console/file_name.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace cli {
namespace {

using namespace Qt::StringLiterals;

QJsonArray shownTexts(const QStringList& texts)
{
    QJsonArray array;
    for (const QString& text : texts) {
        array.append(console::shownText(text));
    }
    return array;
}

QJsonArray shownNames(const QStringList& names)
{
    QJsonArray array;
    for (const QString& name : names) {
        array.append(console::shownFileName(name));
    }
    return array;
}

QByteArray lineOf(const QJsonObject& event)
{
    return QJsonDocument(event).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace

QByteArray fileEvent(const archive::Delivery& delivery)
{
    return lineOf({
        {u"event"_s, u"file"_s},
        {u"version"_s, EventVersion},
        {u"file"_s, console::shownFileName(delivery.input.shownName)},
        {u"status"_s, migration::statusName(statusOf(delivery.result.outcome))},
        {u"verdict"_s, migration::verdictName(migration::verdictOf(finalReport(delivery)))},
        {u"resumed"_s, delivery.isResumed},
        {u"outputs"_s, shownNames(delivery.written)},
        {u"warnings"_s, shownTexts(delivery.result.warnings)},
        {u"errors"_s, shownTexts(delivery.result.errors)},
    });
}

QByteArray endEvent(const archive::Progress& progress, qint64 ignoredFiles, int status)
{
    return lineOf({
        {u"event"_s, u"end"_s},
        {u"version"_s, EventVersion},
        {u"imported"_s, progress.done - progress.failed - progress.skipped},
        {u"failed"_s, progress.failed},
        {u"skipped"_s, progress.skipped},
        {u"ignored"_s, ignoredFiles},
        {u"status"_s, status},
    });
}

} // namespace cli
