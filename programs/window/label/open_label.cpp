#include "window/label/open_label.h"

#include "window/properties/item_description.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

Issue worded(const workbench::ImportIssue& issue, const workbench::Canvas& canvas)
{
    const QList<workbench::CanvasItem*>& items = canvas.items();
    const bool hasItem = issue.item >= 0 && issue.item < items.size();
    return {issue.text, hasItem ? issue.item : -1,
            hasItem ? itemTitle(items.at(issue.item)->values()) : QString(), issue.repeats};
}

// Issues of items depend on the record and are collected again each time.
bool isTheItemsOwn(const workbench::ImportIssue& issue, const QList<workbench::ImportIssue>& now)
{
    return std::any_of(now.begin(), now.end(), [&issue](const workbench::ImportIssue& other) {
        return other.item >= 0 && other.item == issue.item && other.text == issue.text;
    });
}

} // namespace

QString labelSuffix()
{
    return u".label"_s;
}

bool isSavedLabel(const QString& fileName)
{
    return fileName.endsWith(labelSuffix(), Qt::CaseInsensitive);
}

QString savedNameFor(const QString& importedFile)
{
    const QFileInfo info(importedFile);
    return info.absoluteDir().filePath(info.completeBaseName() + labelSuffix());
}

QString displayName(const OpenLabel& label)
{
    return QFileInfo(label.fileName.isEmpty() ? label.suggestedName : label.fileName).fileName();
}

void showRecord(OpenLabel& label, qint64 record)
{
    const workbench::datasources::DatasourceController& sources = *label.sources;
    label.canvas->showRecord(record, [&sources](int id, qint64 number, const QStringList& fields) {
        return sources.recordText(id, number, fields);
    });
}

QList<Issue> currentIssues(const OpenLabel& label)
{
    const QList<workbench::ImportIssue> now = workbench::collectIssues(*label.canvas, {}, {});
    QList<Issue> issues;
    for (const workbench::ImportIssue& issue : label.importIssues) {
        if (!isTheItemsOwn(issue, now)) {
            issues.append(worded(issue, *label.canvas));
        }
    }
    for (const workbench::ImportIssue& issue : now) {
        issues.append(worded(issue, *label.canvas));
    }
    return issues;
}

} // namespace window
