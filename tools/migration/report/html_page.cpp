#include "migration/report/html_page.h"

#include "migration/model/loss_kinds.h"
#include "migration/report/totals.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QLocale>

#include <algorithm>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

struct HtmlPageTr
{
    Q_DECLARE_TR_FUNCTIONS(migration::HtmlPage)
};

QString localNumber(qint64 value)
{
    return QLocale(QLocale::English).toString(value);
}

// Only this style and this script may run, whatever else the page contains. Pictures may also come
// from the files next to the page.
QByteArray contentPolicy()
{
    const auto hashOf = [](const QByteArray& bytes) {
        return "'sha256-" + QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toBase64() +
               "'";
    };
    return "default-src 'none'; img-src data: 'self' file:; base-uri 'none'; form-action 'none'; "
           "style-src " +
           hashOf(pageResource(u"page.css"_s)) + "; script-src " +
           hashOf(pageResource(u"page.js"_s));
}

TemplateData figure(const char* address, qint64 count, const QString& words)
{
    TemplateData data;
    data.set("address", TemplateData(address));
    data.set("count", templateText(localNumber(count)));
    data.set("words", templateText(words));
    return data;
}

TemplateList figures(const Totals& totals)
{
    return {
        figure("status=complete", totals.complete, verdictText(Verdict::Complete)),
        figure("status=changed", totals.changed, verdictText(Verdict::Changed)),
        figure("status=lossy&sort=lost", totals.lossy, verdictText(Verdict::Lossy)),
        figure("status=failed", totals.failed, verdictText(Verdict::Failed)),
    };
}

QString objectsSentence(const Totals& totals)
{
    QString sentence =
        HtmlPageTr::tr("Imported %1 of %2 objects in these files.")
            .arg(localNumber(totals.objectsImported), localNumber(totals.objectsInFiles));
    if (totals.uncounted > 0) {
        sentence += u' ' + HtmlPageTr::tr("Files whose objects could not be counted: %1.")
                               .arg(localNumber(totals.uncounted));
    }
    if (totals.exposed() > 0) {
        sentence += u' ' + HtmlPageTr::tr("Files that were read without a complete sandbox: %1.")
                               .arg(localNumber(totals.exposed()));
    }
    return sentence;
}

// The codes of most files first.
TemplateList codeRows(const Totals& totals)
{
    QList<QString> codes = totals.filesByCode.keys();
    std::stable_sort(codes.begin(), codes.end(), [&totals](const QString& a, const QString& b) {
        return totals.filesByCode.value(a) > totals.filesByCode.value(b);
    });
    TemplateList rows;
    for (const QString& code : codes) {
        const LossRow* row = lossRowOf(code);
        TemplateData data;
        data.set("files", templateText(localNumber(totals.filesByCode.value(code))));
        data.set("code", templateText(code));
        data.set("meaning", templateText(row != nullptr ? lossText(row->kind) : code));
        data.set("advice", templateText(row != nullptr ? lossAdvice(row->kind) : QString()));
        rows.push_back(data);
    }
    return rows;
}

void addOption(TemplateList& options, const QString& value, const QString& words)
{
    TemplateData option;
    option.set("value", templateText(value));
    option.set("words", templateText(words));
    options.push_back(option);
}

TemplateList optionsOf(const QMap<QString, qint64>& counts)
{
    TemplateList options;
    addOption(options, {}, HtmlPageTr::tr("all"));
    for (auto count = counts.begin(); count != counts.end(); ++count) {
        if (!count.key().isEmpty()) {
            addOption(options, count.key(),
                      u"%1 (%2)"_s.arg(count.key(), localNumber(count.value())));
        }
    }
    return options;
}

// The ways to fail that have a name of their own.
QString statusText(Status status)
{
    switch (status) {
    case Status::Crashed:
        return HtmlPageTr::tr("crashed");
    case Status::TimedOut:
        return HtmlPageTr::tr("timed out");
    case Status::OutOfMemory:
        return HtmlPageTr::tr("out of memory");
    default:
        return statusName(status);
    }
}

TemplateList statusOptions()
{
    TemplateList options;
    addOption(options, {}, HtmlPageTr::tr("all"));
    for (const Verdict verdict :
         {Verdict::Complete, Verdict::Changed, Verdict::Lossy, Verdict::Failed}) {
        addOption(options, verdictName(verdict), verdictText(verdict));
    }
    for (const Status status : {Status::Crashed, Status::TimedOut, Status::OutOfMemory}) {
        addOption(options, statusName(status), statusText(status));
    }
    return options;
}

TemplateList sortOptions()
{
    TemplateList options;
    addOption(options, u"place"_s, HtmlPageTr::tr("as imported"));
    addOption(options, u"name"_s, HtmlPageTr::tr("name"));
    addOption(options, u"problems"_s, HtmlPageTr::tr("most problems first"));
    addOption(options, u"lost"_s, HtmlPageTr::tr("most lost objects first"));
    addOption(options, u"status"_s, HtmlPageTr::tr("worst status first"));
    return options;
}

TemplateData choice(const char* name, const QString& label, const TemplateList& options)
{
    TemplateData data;
    data.set("name", TemplateData(name));
    data.set("label", templateText(label));
    data.set("options", TemplateData(options));
    return data;
}

TemplateData labels()
{
    TemplateData data;
    data.set("codes", templateText(HtmlPageTr::tr("What was lost or changed")));
    data.set("files", templateText(HtmlPageTr::tr("Files")));
    data.set("code", templateText(HtmlPageTr::tr("Code")));
    data.set("meaning", templateText(HtmlPageTr::tr("What happened")));
    data.set("advice", templateText(HtmlPageTr::tr("What can be done")));
    data.set("nothingLost", templateText(HtmlPageTr::tr("Nothing was lost or changed.")));
    data.set("tools", templateText(HtmlPageTr::tr("Sort and filter")));
    data.set("search", templateText(HtmlPageTr::tr("Search")));
    data.set("reset", templateText(HtmlPageTr::tr("Show all")));
    data.set("shown", templateText(HtmlPageTr::tr("%1 of %2 shown")));
    data.set("open", templateText(HtmlPageTr::tr("Open in the LabelPort workbench")));
    data.set("nothingFound", templateText(HtmlPageTr::tr("No matching files.")));
    return data;
}

} // namespace

TemplateData pageHeadData(const Totals& totals, const QString& note)
{
    TemplateData page;
    page.set("language", templateText(HtmlPageTr::tr("en")));
    page.set("policy", TemplateData(contentPolicy().toStdString()));
    page.set("style", TemplateData(pageResource(u"page.css"_s).toStdString()));
    page.set("title", templateText(HtmlPageTr::tr("Migration report")));
    page.set("hasNote", !note.isEmpty());
    page.set("note", templateText(note));
    page.set("headline",
             templateText(HtmlPageTr::tr("%1 of %2 files imported completely")
                              .arg(localNumber(totals.complete), localNumber(totals.files))));
    page.set("figures", TemplateData(figures(totals)));
    page.set("objects", templateText(objectsSentence(totals)));
    page.set("hasCodes", !totals.filesByCode.isEmpty());
    page.set("codes", TemplateData(codeRows(totals)));
    page.set("choices",
             TemplateData(TemplateList{
                 choice("status", HtmlPageTr::tr("Status"), statusOptions()),
                 choice("code", HtmlPageTr::tr("Problem"), optionsOf(totals.filesByCode)),
                 choice("reader", HtmlPageTr::tr("Reader"), optionsOf(totals.filesByReader)),
                 choice("sort", HtmlPageTr::tr("Order"), sortOptions()),
             }));
    page.set("labels", labels());
    return page;
}

TemplateData pageTailData()
{
    TemplateData page;
    page.set("large", templateText(HtmlPageTr::tr("Larger picture")));
    page.set("close", templateText(HtmlPageTr::tr("Close")));
    page.set("script", TemplateData(pageResource(u"page.js"_s).toStdString()));
    return page;
}

} // namespace migration
