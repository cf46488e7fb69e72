#include "window/review/issues.h"

#include "migration/model/loss_kinds.h"
#include "repair/repair.h"
#include "window/properties/item_description.h"
#include "workbench/import/issue_text.h"
#include "workbench/items/units.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

struct IssuesTr
{
    Q_DECLARE_TR_FUNCTIONS(window::Issues)
};

using workbench::PointsPerMillimeter;
// Names of items in one issue; the rest is counted.
constexpr qsizetype NamedItems = 3;

QString namesOf(const QList<int>& items, const workbench::Canvas& canvas)
{
    QStringList names;
    for (const int item : items.mid(0, NamedItems)) {
        names.append(itemTitle(canvas.items().at(item)->values()));
    }
    const qsizetype others = items.size() - names.size();
    if (others > 0) {
        names.append(IssuesTr::tr("%n more", nullptr, static_cast<int>(others)));
    }
    return names.join(u", "_s);
}

QList<int> existingItems(const QList<int>& items, const workbench::Canvas& canvas)
{
    QList<int> existing;
    std::copy_if(items.begin(), items.end(), std::back_inserter(existing),
                 [&canvas](int item) { return item >= 0 && item < canvas.items().size(); });
    return existing;
}

// The present indices of imported items, without those that were deleted.
QList<int> presentItems(const QList<int>& imported, const OpenLabel& label)
{
    const QList<workbench::CanvasItem*>& items = label.canvas->items();
    if (label.importedItems.isEmpty() || label.importedItems == items) {
        return existingItems(imported, *label.canvas);
    }
    QList<int> present;
    for (const int item : imported) {
        const qsizetype index = items.indexOf(label.importedItems.value(item));
        if (index >= 0) {
            present.append(static_cast<int>(index));
        }
    }
    return present;
}

QString adviceFor(const QString& code)
{
    const migration::LossRow* row = migration::lossRowOf(code);
    return row != nullptr ? migration::lossAdvice(row->kind) : QString();
}

// Reports are English; the window speaks the language of the user.
QString textOf(const migration::Finding& finding)
{
    const migration::LossRow* row = migration::lossRowOf(finding.code);
    return row != nullptr ? migration::lossText(row->kind) : finding.text;
}

Issue issueOf(const migration::Finding& finding, IssueGroup group, const OpenLabel& label)
{
    Issue issue{.group = group,
                .code = finding.code,
                .text = textOf(finding),
                .advice = adviceFor(finding.code),
                .count = finding.count,
                .about = finding.details.join(u", "_s)};
    if (finding.places) {
        issue.items = presentItems(finding.places->items, label);
        for (const QRectF& box : finding.places->missing) {
            issue.missing.append(
                QRectF(box.topLeft() * PointsPerMillimeter, box.size() * PointsPerMillimeter));
        }
    }
    if (issue.about.isEmpty()) {
        issue.about = namesOf(issue.items, *label.canvas);
    }
    return issue;
}

// An issue about items that were all deleted since is settled.
bool isSettled(const migration::Finding& finding, const Issue& issue)
{
    return finding.places && !finding.places->items.isEmpty() && issue.items.isEmpty() &&
           issue.missing.isEmpty();
}

Issue warningOf(const QString& text, int item, int repeats, const workbench::Canvas& canvas)
{
    Issue issue{.group = IssueGroup::Warning, .text = text, .count = repeats};
    issue.items = existingItems({item}, canvas);
    issue.about = namesOf(issue.items, canvas);
    return issue;
}

// Problems of items depend on the record and are collected again each time.
bool isOfRecord(const migration::IssueReport& warning,
                const QList<workbench::ImportIssue>& ofRecord)
{
    return std::any_of(
        ofRecord.begin(), ofRecord.end(), [&warning](const workbench::ImportIssue& other) {
            return other.item >= 0 && other.item == warning.item && other.text == warning.text;
        });
}

} // namespace

QList<Issue> currentIssues(const OpenLabel& label)
{
    const workbench::Canvas& canvas = *label.canvas;
    const QList<workbench::ImportIssue> ofRecord = workbench::collectIssues(canvas, {}, {});
    const QString notEncodable = migration::lossCode(migration::LossKind::BarcodeNotEncodable);
    QList<Issue> issues;
    const auto add = [&](const migration::Finding& finding, IssueGroup group) {
        const Issue issue = issueOf(finding, group, label);
        if (!isSettled(finding, issue)) {
            issues.append(issue);
        }
    };
    for (const migration::Finding& finding : label.report.lost) {
        add(finding, IssueGroup::Lost);
    }
    for (const migration::Finding& finding : label.report.changed) {
        if (finding.code != notEncodable) {
            add(finding, IssueGroup::Changed);
        }
    }
    for (const workbench::ImportIssue& issue : ofRecord) {
        Issue problem = warningOf(issue.text, issue.item, issue.repeats, canvas);
        problem.group = IssueGroup::Changed;
        problem.code = notEncodable;
        problem.advice = adviceFor(notEncodable);
        issues.append(problem);
    }
    for (migration::IssueReport warning : label.report.issues) {
        const bool hasItem = warning.item >= 0;
        warning.item = hasItem ? presentItems({warning.item}, label).value(0, -1) : -1;
        const bool isDeleted = hasItem && warning.item < 0;
        if (!isDeleted && !isOfRecord(warning, ofRecord)) {
            issues.append(warningOf(warning.text, warning.item, warning.repeats, canvas));
        }
    }
    for (const migration::RepairReport& made : label.report.repaired) {
        // The text contains the number.
        const QString text = repair::repairText({made.code, static_cast<int>(made.count)});
        issues.append({.group = IssueGroup::Repaired, .code = made.code, .text = text});
    }
    return issues;
}

QString titleOf(IssueGroup group)
{
    switch (group) {
    case IssueGroup::Lost:
        return IssuesTr::tr("Not imported");
    case IssueGroup::Changed:
        return IssuesTr::tr("Imported with changes");
    case IssueGroup::Repaired:
        return IssuesTr::tr("Repaired");
    case IssueGroup::Warning:
        break;
    }
    return IssuesTr::tr("Warnings");
}

} // namespace window
