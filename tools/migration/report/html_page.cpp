#include "migration/report/html_page.h"

#include "migration/model/loss_kinds.h"
#include "migration/report/html_text.h"
#include "migration/report/totals.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QLocale>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

QString tr(const char* text)
{
    return QCoreApplication::translate("migration::HtmlPage", text);
}

QString number(qint64 value)
{
    return QLocale(QLocale::English).toString(value);
}

QByteArray resource(const QString& name)
{
    QFile file(u":/migration/"_s + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Only this style and this script may act, whatever slipped into the page.
QByteArray contentPolicy()
{
    const auto hashOf = [](const QByteArray& bytes) {
        return "'sha256-" + QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toBase64() +
               "'";
    };
    return "default-src 'none'; img-src data:; base-uri 'none'; form-action 'none'; style-src " +
           hashOf(resource(u"page.css"_s)) + "; script-src " + hashOf(resource(u"page.js"_s));
}

QString headline(const Totals& totals)
{
    return tr("%1 of %2 files came over whole.").arg(number(totals.whole), number(totals.files));
}

QString figure(const QString& address, qint64 value, const QString& words)
{
    return u"<li><a href=\"#%1\"><b>%2</b> %3</a></li>\n"_s.arg(address, number(value),
                                                                escaped(words));
}

QString figures(const Totals& totals)
{
    return u"<ul class=\"numbers\">\n"_s +
           figure(u"status=whole"_s, totals.whole, tr("whole: nothing lost, nothing changed")) +
           figure(u"status=changed"_s, totals.changed, tr("changed in their looks, nothing lost")) +
           figure(u"status=loss&amp;sort=lost"_s, totals.withLoss, tr("with losses")) +
           figure(u"status=not-imported"_s, totals.failed, tr("not imported")) + u"</ul>\n"_s;
}

QString objectsSentence(const Totals& totals)
{
    QString sentence = tr("Of %1 objects in these files, %2 came over.")
                           .arg(number(totals.objectsInFiles), number(totals.objectsImported));
    if (totals.uncounted > 0) {
        sentence +=
            u' ' +
            tr("In %1 files the objects could not be counted.").arg(number(totals.uncounted));
    }
    return u"<p>%1</p>\n"_s.arg(escaped(sentence));
}

QString wordsOf(const LossRow* row, QString (*words)(LossKind))
{
    return row != nullptr ? escaped(words(row->kind)) : QString();
}

QString codeTable(const Totals& totals)
{
    if (totals.filesByCode.isEmpty()) {
        return u"<p>%1</p>\n"_s.arg(escaped(tr("Nothing was lost and nothing was changed.")));
    }
    QString html =
        u"<details><summary>%1</summary>\n<table><thead><tr><th scope=\"col\">%2</th>"
        "<th scope=\"col\">%3</th><th scope=\"col\">%4</th><th scope=\"col\">%5</th></tr>"
        "</thead><tbody>\n"_s.arg(escaped(tr("What was lost or changed")), escaped(tr("Files")),
                                  escaped(tr("Code")), escaped(tr("What happened")),
                                  escaped(tr("What can be done")));
    for (auto code = totals.filesByCode.begin(); code != totals.filesByCode.end(); ++code) {
        const LossRow* row = lossRowOf(code.key());
        html += u"<tr><td class=\"number\">%1</td><td><a href=\"#code=%2\"><code>%2</code></a></td>"
                "<td>%3</td><td>%4</td></tr>\n"_s.arg(number(code.value()), escaped(code.key()),
                                                      wordsOf(row, &lossWords),
                                                      wordsOf(row, &lossAdvice));
    }
    return html + u"</tbody></table></details>\n"_s;
}

QString option(const QString& value, const QString& words)
{
    return u"<option value=\"%1\">%2</option>"_s.arg(escaped(value), escaped(words));
}

QString optionsOf(const QMap<QString, qint64>& counts)
{
    QString html = option({}, tr("all"));
    for (auto count = counts.begin(); count != counts.end(); ++count) {
        if (!count.key().isEmpty()) {
            html += option(count.key(), u"%1 (%2)"_s.arg(count.key(), number(count.value())));
        }
    }
    return html;
}

QString statusOptions()
{
    return option({}, tr("all")) + option(u"whole"_s, tr("whole")) +
           option(u"changed"_s, tr("changed")) + option(u"loss"_s, tr("with losses")) +
           option(u"imported"_s, tr("imported")) + option(u"not-imported"_s, tr("not imported")) +
           option(u"failed"_s, tr("failed")) + option(u"crashed"_s, tr("crashed")) +
           option(u"timed-out"_s, tr("took too long")) +
           option(u"out-of-memory"_s, tr("needed too much memory"));
}

QString sortOptions()
{
    return option(u"place"_s, tr("as imported")) + option(u"name"_s, tr("name")) +
           option(u"problems"_s, tr("most problems first")) +
           option(u"lost"_s, tr("most objects lost first")) +
           option(u"status"_s, tr("worst status first"));
}

QString choice(const char* name, const QString& words, const QString& options)
{
    return u"<label>%1<select name=\"%2\">%3</select></label>\n"_s.arg(
        escaped(words), QString::fromLatin1(name), options);
}

// Hidden until the script shows it: without one it would promise too much.
QString tools(const Totals& totals)
{
    return u"<form id=\"tools\" hidden role=\"search\" aria-label=\""_s +
           escaped(tr("Sort and filter")) + u"\">\n<label>"_s + escaped(tr("Search")) +
           u"<input name=\"q\" type=\"search\"></label>\n"_s +
           choice("status", tr("Status"), statusOptions()) +
           choice("code", tr("Problem"), optionsOf(totals.filesByCode)) +
           choice("reader", tr("Reader"), optionsOf(totals.filesByReader)) +
           choice("sort", tr("Order"), sortOptions()) + u"<button type=\"reset\">"_s +
           escaped(tr("Show all")) +
           u"</button>\n<output id=\"shown\" aria-live=\"polite\" "
           "data-words=\""_s +
           escaped(tr("%1 of %2 shown")) + u"\"></output>\n</form>\n"_s;
}

} // namespace

QByteArray htmlPageHead(const Totals& totals, const QString& note)
{
    const QString title = tr("Migration report");
    QByteArray html = "<!DOCTYPE html>\n<html lang=\"" + tr("en").toUtf8() +
                      "\">\n<head>\n<meta charset=\"utf-8\">\n<meta http-equiv=\"Content-Security-"
                      "Policy\" content=\"" +
                      contentPolicy() +
                      "\">\n<meta name=\"viewport\" content=\"width=device-width, "
                      "initial-scale=1\">\n<title>" +
                      escaped(title).toUtf8() + "</title>\n<style>" + resource(u"page.css"_s) +
                      "</style>\n</head>\n<body>\n";
    html += (u"<header>\n<h1>"_s + escaped(title) + u"</h1>\n"_s +
             (note.isEmpty() ? QString() : u"<p>"_s + escaped(note) + u"</p>\n"_s) +
             u"<p class=\"headline\">"_s + escaped(headline(totals)) + u"</p>\n"_s +
             figures(totals) + objectsSentence(totals) + codeTable(totals) + u"</header>\n"_s +
             tools(totals) + u"<main>\n<p id=\"nothing\" hidden>"_s +
             escaped(tr("No file fits the search.")) + u"</p>\n<div id=\"files\">\n"_s)
                .toUtf8();
    return html;
}

QByteArray htmlPageTail()
{
    return "</div>\n</main>\n<script>" + resource(u"page.js"_s) + "</script>\n</body>\n</html>\n";
}

} // namespace migration
