#include "migration/report/html_card.h"

#include "migration/model/loss_kinds.h"
#include "migration/report/totals.h"
#include "workbench/items/shape_kinds.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QUrl>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

struct HtmlCardTr
{
    Q_DECLARE_TR_FUNCTIONS(migration::HtmlCard)
};

QString codesOf(const FileReport& report)
{
    QStringList codes;
    for (const QList<Finding>* list : {&report.lost, &report.changed}) {
        for (const Finding& finding : *list) {
            codes.append(finding.code);
        }
    }
    codes.removeDuplicates();
    return codes.join(u' ');
}

qint64 problemsOf(const FileReport& report)
{
    qint64 problems = report.status == Status::Imported ? 0 : 1;
    for (const QList<Finding>* list : {&report.lost, &report.changed}) {
        for (const Finding& finding : *list) {
            problems += finding.count;
        }
    }
    return problems;
}

QString factsOf(const FileReport& report)
{
    QStringList facts;
    if (report.page.width > 0.0 && report.page.height > 0.0) {
        facts.append(HtmlCardTr::tr("%1 × %2 mm")
                         .arg(QLocale::c().toString(report.page.width, 'f', 1),
                              QLocale::c().toString(report.page.height, 'f', 1)));
    }
    facts.append(HtmlCardTr::tr("%1 bytes").arg(report.bytes));
    if (!report.reader.isEmpty()) {
        facts.append(report.reader);
    }
    return facts.join(u" · "_s);
}

TemplateData number(qint64 value)
{
    return TemplateData(std::to_string(value));
}

void setRepeats(TemplateData& entry, qint64 count)
{
    entry.set("isRepeated", count > 1);
    entry.set("count", number(count));
}

void addFindings(TemplateList& lists, const QString& title, const char* kind,
                 const QList<Finding>& findings)
{
    if (findings.isEmpty()) {
        return;
    }
    TemplateList entries;
    for (const Finding& finding : findings) {
        TemplateData entry;
        entry.set("code", templateText(finding.code));
        entry.set("text", templateText(finding.text));
        entry.set("hasDetails", !finding.details.isEmpty());
        entry.set("details", templateText(finding.details.join(u", "_s)));
        setRepeats(entry, finding.count);
        entries.push_back(entry);
    }
    TemplateData list;
    list.set("title", templateText(title));
    list.set("kind", TemplateData(kind));
    list.set("entries", TemplateData(entries));
    lists.push_back(list);
}

void addRepairs(TemplateList& lists, const QList<RepairReport>& repairs)
{
    QList<Finding> lines;
    for (const RepairReport& repair : repairs) {
        // The text contains the number.
        lines.append({repair.code, repair.text, 1, false, {}});
    }
    addFindings(lists, HtmlCardTr::tr("Repaired"), "repaired", lines);
}

/// One line of the part of a card that is folded away.
struct Entry
{
    QString text;
    qint64 count = 1;
    QString link = {};
};

void addEntries(TemplateList& lists, const QString& title, const QList<Entry>& texts)
{
    if (texts.isEmpty()) {
        return;
    }
    TemplateList entries;
    for (const Entry& text : texts) {
        TemplateData entry;
        entry.set("text", templateText(text.text));
        entry.set("hasLink", !text.link.isEmpty());
        entry.set("link", templateText(text.link));
        setRepeats(entry, text.count);
        entries.push_back(entry);
    }
    TemplateData list;
    list.set("title", templateText(title));
    list.set("entries", TemplateData(entries));
    lists.push_back(list);
}

QString sourceText(const SourceReport& source)
{
    const QString words = source.kind + u": "_s + source.fields.join(u", "_s);
    return source.file.isEmpty() ? words : words + u" ("_s + source.file + u')';
}

QString exportWords(const ExportReport& exported)
{
    const QString kind = exported.kind == "label"_L1 ? HtmlCardTr::tr("Label")
                                                     : workbench::shapeTitle(exported.kind);
    if (exported.fidelity == "exact"_L1) {
        return HtmlCardTr::tr("%1: exact").arg(kind);
    }
    return (exported.fidelity == "picture"_L1 ? HtmlCardTr::tr("%1: became a picture. %2")
                                              : HtmlCardTr::tr("%1: simplified. %2"))
        .arg(kind, exported.text);
}

// Relative to the page, so that page and files can be moved together. Empty if there is no such
// file.
QString linkTo(const QString& fileName, const QString& folder)
{
    const QFileInfo file(fileName);
    if (fileName.isEmpty() || !file.exists()) {
        return {};
    }
    const QString path = QDir(folder).relativeFilePath(file.absoluteFilePath());
    return QString::fromLatin1(QUrl::toPercentEncoding(path, "/"));
}

// The picture of the label in full size, if one was written.
QString pictureOf(const FileReport& report, const QString& folder)
{
    for (const QString& output : report.outputs) {
        if (output.endsWith(".png"_L1, Qt::CaseInsensitive)) {
            return linkTo(output, folder);
        }
    }
    return {};
}

TemplateList moreOf(const FileReport& report, const QString& folder)
{
    QList<Entry> imported;
    for (const KindCount& count : report.complete) {
        imported.append({u"%1 × %2"_s.arg(count.count).arg(workbench::shapeTitle(count.kind))});
    }
    QList<Entry> sources;
    for (const SourceReport& source : report.datasources) {
        sources.append({sourceText(source)});
    }
    QList<Entry> issues;
    for (const IssueReport& issue : report.issues) {
        issues.append({issue.text, issue.repeats});
    }
    QList<Entry> outputs;
    for (const QString& output : report.outputs) {
        outputs.append({output, 1, linkTo(output, folder)});
    }
    QList<Entry> exported;
    for (const ExportReport& each : report.exports) {
        exported.append({exportWords(each), each.count});
    }
    TemplateList more;
    addEntries(more, HtmlCardTr::tr("Imported completely"), imported);
    addEntries(more, HtmlCardTr::tr("Data sources"), sources);
    addEntries(more, HtmlCardTr::tr("Warnings"), issues);
    addEntries(more, HtmlCardTr::tr("Written files"), outputs);
    addEntries(more, HtmlCardTr::tr("In gLabels"), exported);
    return more;
}

} // namespace

TemplateData cardData(const FileReport& report, qint64 place, const QString& folder)
{
    TemplateData card;
    card.set("number", number(place));
    card.set("file", templateText(report.file));
    card.set("verdict", templateText(verdictName(verdictOf(report))));
    card.set("verdictText", templateText(verdictText(verdictOf(report))));
    card.set("status", templateText(statusName(report.status)));
    card.set("reader", templateText(report.reader));
    card.set("lost", number(objectsLost(report)));
    card.set("problems", number(problemsOf(report)));
    card.set("codes", templateText(codesOf(report)));
    card.set("hasThumbnail", !report.thumbnail.isEmpty());
    card.set("thumbnail", TemplateData(report.thumbnail.toBase64().toStdString()));
    card.set("hasPreview", !report.preview.isEmpty());
    card.set("preview", TemplateData(report.preview.toBase64().toStdString()));
    card.set("picture", templateText(pictureOf(report, folder)));
    const QString original = linkTo(report.file, folder);
    card.set("hasOriginal", !original.isEmpty());
    card.set("original", templateText(original));
    card.set("alt", templateText(HtmlCardTr::tr("The label %1").arg(report.file)));
    card.set("summary", templateText(summaryOf(report)));
    card.set("facts", templateText(factsOf(report)));
    TemplateList findings;
    addFindings(findings, HtmlCardTr::tr("Not imported"), "lost", report.lost);
    addFindings(findings, HtmlCardTr::tr("Imported with changes"), "changed", report.changed);
    addRepairs(findings, report.repaired);
    card.set("findings", TemplateData(findings));
    const TemplateList more = moreOf(report, folder);
    card.set("hasMore", !more.empty());
    card.set("more", TemplateData(more));
    TemplateData labels;
    labels.set("noPicture", templateText(HtmlCardTr::tr("no picture")));
    labels.set("more", templateText(HtmlCardTr::tr("More")));
    labels.set("larger", templateText(HtmlCardTr::tr("Show a larger picture")));
    labels.set("preview",
               templateText(HtmlCardTr::tr("The document's own picture of %1").arg(report.file)));
    card.set("labels", labels);
    return card;
}

} // namespace migration
