#include "migration/report/text_report.h"
#include "workbench/items/shape_kinds.h"

#include <QCoreApplication>

#include <algorithm>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

// Longest content of an item that the table shows.
constexpr qsizetype ContentWidth = 60;

struct TextReportTr
{
    Q_DECLARE_TR_FUNCTIONS(migration::Inspect)
};

// A text of the file on one line, without what would move a terminal's cursor.
QString printable(const QString& text)
{
    QString line;
    line.reserve(text.size());
    for (const QChar c : text.simplified()) {
        line += c.isPrint() || c.isSurrogate() ? c : QChar(QChar::ReplacementCharacter);
    }
    return line;
}

QString shortened(const QString& text)
{
    const QString line = printable(text.left(4 * ContentWidth));
    return line.size() <= ContentWidth ? line : line.left(ContentWidth - 1) + u'…';
}

QString millimeters(double length)
{
    return QString::number(length, 'f', 1);
}

using Row = QStringList;

QList<qsizetype> widthsOf(const QList<Row>& rows)
{
    QList<qsizetype> widths;
    for (const Row& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (qsizetype column = 0; column < row.size(); ++column) {
            widths[column] = std::max(widths[column], row.at(column).size());
        }
    }
    return widths;
}

// Columns of numbers are set to the right.
QString tableOf(const QList<Row>& rows, qsizetype firstNumber, qsizetype lastNumber)
{
    const QList<qsizetype> widths = widthsOf(rows);
    QString table;
    for (const Row& row : rows) {
        QString line = u" "_s;
        for (qsizetype column = 0; column < row.size(); ++column) {
            const bool isNumber = column >= firstNumber && column <= lastNumber;
            line += u' ' + (isNumber ? row.at(column).rightJustified(widths.at(column))
                                     : row.at(column).leftJustified(widths.at(column)));
        }
        while (line.endsWith(u' ')) {
            line.chop(1);
        }
        table += line + u'\n';
    }
    return table;
}

QString itemTable(const FileReport& report)
{
    if (report.itemList.isEmpty()) {
        return {};
    }
    QList<Row> rows{{u"#"_s, TextReportTr::tr("kind"), TextReportTr::tr("x"), TextReportTr::tr("y"),
                     TextReportTr::tr("width"), TextReportTr::tr("height"),
                     TextReportTr::tr("source"), TextReportTr::tr("content")}};
    for (qsizetype index = 0; index < report.itemList.size(); ++index) {
        const ItemReport& item = report.itemList.at(index);
        rows.append({QString::number(index + 1), workbench::shapeTitle(item.kind),
                     millimeters(item.x), millimeters(item.y), millimeters(item.width),
                     millimeters(item.height),
                     item.datasource < 0 ? u"-"_s : QString::number(item.datasource),
                     shortened(item.content)});
    }
    return TextReportTr::tr("Items (millimeters):") + u'\n' + tableOf(rows, 2, 5);
}

template <class Value, class Words>
QString section(const QString& title, const QList<Value>& values, Words words)
{
    if (values.isEmpty()) {
        return {};
    }
    QString text = title + u'\n';
    for (const Value& value : values) {
        text += u"  "_s + words(value) + u'\n';
    }
    return text;
}

QString times(qint64 count)
{
    return count > 1 ? u" (×%1)"_s.arg(count) : QString();
}

QString findingText(const Finding& finding)
{
    QString words = finding.code + times(finding.count) + u": "_s + printable(finding.text);
    if (!finding.details.isEmpty()) {
        words += u" ["_s + printable(finding.details.join(u", "_s)) + u']';
    }
    return words;
}

QString sourceLine(const SourceReport& source)
{
    QString words = u"%1: "_s.arg(source.id) + printable(source.kind);
    if (!source.fields.isEmpty()) {
        words += u" ("_s + printable(source.fields.join(u", "_s)) + u')';
    }
    return source.file.isEmpty() ? words : words + u" <- "_s + printable(source.file);
}

QString countText(const KindCount& count)
{
    return u"%1 × "_s.arg(count.count) + workbench::shapeTitle(count.kind);
}

QString headOf(const FileReport& report)
{
    QString text = printable(report.file) + u"\n  "_s + printable(summaryOf(report)) + u'\n';
    if (!report.objects.unknown.isEmpty()) {
        text += u"  "_s + printable(report.objects.unknown) + u'\n';
    }
    if (report.status == Status::Imported) {
        text += u"  "_s +
                TextReportTr::tr("Page: %1 × %2 mm")
                    .arg(millimeters(report.page.width), millimeters(report.page.height)) +
                u'\n';
        text += u"  "_s +
                TextReportTr::tr("Sandbox: %1")
                    .arg(report.sandbox.isEmpty() ? TextReportTr::tr("none")
                                                  : printable(report.sandbox.join(u", "_s))) +
                u'\n';
    }
    return text;
}

} // namespace

QString describeAsText(const FileReport& report)
{
    return headOf(report) + itemTable(report) +
           section(TextReportTr::tr("Data sources:"), report.datasources, sourceLine) +
           section(TextReportTr::tr("Imported completely:"), report.complete, countText) +
           section(TextReportTr::tr("Imported with changes:"), report.changed, findingText) +
           section(TextReportTr::tr("Not imported:"), report.lost, findingText) +
           section(TextReportTr::tr("Repaired:"), report.repaired,
                   [](const RepairReport& repair) {
                       return repair.code + u": "_s + printable(repair.text);
                   }) +
           section(TextReportTr::tr("Warnings:"), report.issues, [](const IssueReport& issue) {
               return printable(issue.text) + times(issue.repeats);
           });
}

} // namespace migration
