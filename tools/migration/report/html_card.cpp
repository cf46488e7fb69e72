#include "migration/report/html_card.h"

#include "migration/kind_names.h"
#include "migration/model/loss_kinds.h"
#include "migration/report/html_text.h"
#include "migration/report/totals.h"

#include <QCoreApplication>
#include <QLocale>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

QString tr(const char* text)
{
    return QCoreApplication::translate("migration::HtmlCard", text);
}

QString attribute(const char* name, const QString& value)
{
    return u" %1=\"%2\""_s.arg(QString::fromLatin1(name), escaped(value));
}

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

QString openingTag(const FileReport& report, qint64 number)
{
    return u"<article"_s + attribute("data-n", QString::number(number)) +
           attribute("data-name", report.file) + attribute("data-state", stateOf(report)) +
           attribute("data-status", statusName(report.status)) +
           attribute("data-reader", report.reader) +
           attribute("data-lost", QString::number(objectsLost(report))) +
           attribute("data-problems", QString::number(problemsOf(report))) +
           attribute("data-codes", codesOf(report)) + u">\n"_s;
}

QString picture(const FileReport& report)
{
    if (report.thumbnail.isEmpty()) {
        return u"<div class=\"thumb none\">%1</div>\n"_s.arg(escaped(tr("no picture")));
    }
    return u"<div class=\"thumb\"><img loading=\"lazy\"%1 src=\"data:image/png;base64,%2\"></div>\n"_s
        .arg(attribute("alt", tr("The label %1").arg(report.file)),
             QString::fromLatin1(report.thumbnail.toBase64()));
}

QString stateWords(const QString& state)
{
    if (state == "whole"_L1) {
        return tr("whole");
    }
    if (state == "changed"_L1) {
        return tr("changed");
    }
    if (state == "loss"_L1) {
        return tr("with losses");
    }
    if (state == "crashed"_L1) {
        return tr("crashed");
    }
    if (state == "timed-out"_L1) {
        return tr("took too long");
    }
    return state == "out-of-memory"_L1 ? tr("needed too much memory") : tr("failed");
}

QString factsOf(const FileReport& report)
{
    QStringList facts;
    if (report.pageWidth > 0.0 && report.pageHeight > 0.0) {
        facts.append(tr("%1 × %2 mm")
                         .arg(QLocale::c().toString(report.pageWidth, 'f', 1),
                              QLocale::c().toString(report.pageHeight, 'f', 1)));
    }
    facts.append(tr("%1 bytes").arg(report.bytes));
    if (!report.reader.isEmpty()) {
        facts.append(report.reader);
    }
    return u"<p class=\"facts\">%1</p>\n"_s.arg(escaped(facts.join(u" · "_s)));
}

QString times(qint64 count)
{
    return count > 1 ? u" <b>×%1</b>"_s.arg(count) : QString();
}

QString findingsOf(const QString& title, const char* name, const QList<Finding>& findings)
{
    if (findings.isEmpty()) {
        return {};
    }
    QString html =
        u"<h3>%1</h3><ul class=\"%2\">\n"_s.arg(escaped(title), QString::fromLatin1(name));
    for (const Finding& finding : findings) {
        const QString details = finding.details.isEmpty()
                                    ? QString()
                                    : u" <span class=\"details\">%1</span>"_s.arg(
                                          escaped(finding.details.join(u", "_s)));
        html += u"<li><code>%1</code>%2 %3%4</li>\n"_s.arg(
            escaped(finding.code), times(finding.count), escaped(finding.text), details);
    }
    return html + u"</ul>\n"_s;
}

QString countsOf(const QString& title, const QList<KindCount>& counts)
{
    QStringList words;
    for (const KindCount& count : counts) {
        words.append(u"%1 × %2"_s.arg(count.count).arg(kindWords(count.kind)));
    }
    return words.isEmpty()
               ? QString()
               : u"<h3>%1</h3><p>%2</p>\n"_s.arg(escaped(title), escaped(words.join(u", "_s)));
}

template <class Value, class Words>
QString listOf(const QString& title, const QList<Value>& values, Words words)
{
    if (values.isEmpty()) {
        return {};
    }
    QString html = u"<h3>%1</h3><ul>\n"_s.arg(escaped(title));
    for (const Value& value : values) {
        html += u"<li>%1</li>\n"_s.arg(words(value));
    }
    return html + u"</ul>\n"_s;
}

QString sourceWords(const SourceReport& source)
{
    QString words = source.kind + u": "_s + source.fields.join(u", "_s);
    if (!source.file.isEmpty()) {
        words += u" ("_s + source.file + u')';
    }
    return escaped(words);
}

QString moreOf(const FileReport& report)
{
    const QString more = countsOf(tr("Came over whole"), report.whole) +
                         listOf(tr("Data sources"), report.datasources, sourceWords) +
                         listOf(tr("What the import said"), report.issues,
                                [](const IssueReport& issue) {
                                    return escaped(issue.text) + times(issue.repeats);
                                }) +
                         listOf(tr("Written"), report.outputs, [](const QString& output) {
                             return u"<bdi>%1</bdi>"_s.arg(escaped(output));
                         });
    return more.isEmpty()
               ? QString()
               : u"<details><summary>%1</summary>\n%2</details>\n"_s.arg(escaped(tr("More")), more);
}

} // namespace

// Concatenation alone: a text of the file may hold what looks like a place for an argument.
QString htmlCard(const FileReport& report, qint64 number)
{
    const QString state = stateOf(report);
    return openingTag(report, number) + picture(report) + u"<h2><bdi>"_s + escaped(report.file) +
           u"</bdi></h2>\n<p class=\"state "_s + escaped(state) + u"\">"_s +
           escaped(stateWords(state)) + u"</p>\n<p class=\"sum\">"_s + escaped(summaryOf(report)) +
           u"</p>\n"_s + factsOf(report) +
           findingsOf(tr("Did not come over"), "lost", report.lost) +
           findingsOf(tr("Came over changed"), "changed", report.changed) + moreOf(report) +
           u"</article>\n"_s;
}

} // namespace migration
