// Merges a JSON report of another machine.

#include "fuzz/harness.h"
#include "fuzz/scratch_folder.h"
#include "migration/report/report_merger.h"
#include "migration/report/report_writer.h"

namespace {

QString merged(const char* from, const char* to)
{
    return migration::mergeReports({scratchPath(from)}, scratchPath(to));
}

qsizetype scriptsOf(const QByteArray& page)
{
    return page.toLower().count("<script") + page.toLower().count("</script");
}

qsizetype scriptsOfAnyPage()
{
    static const qsizetype scripts = [] {
        migration::ReportWriter writer(scratchPath("empty.html"));
        if (!writer.finish().isEmpty()) {
            qFatal("a report cannot be written");
        }
        return scriptsOf(readScratch("empty.html"));
    }();
    return scripts;
}

} // namespace

void fuzzOneInput(const QByteArray& input)
{
    writeScratch("input.jsonl", input);
    if (!merged("input.jsonl", "once.jsonl").isEmpty()) {
        return;
    }
    const QString error = merged("once.jsonl", "twice.jsonl");
    if (!error.isEmpty()) {
        qFatal("a report that was written cannot be read: %s", qPrintable(error));
    }
    if (readScratch("once.jsonl") != readScratch("twice.jsonl")) {
        qFatal("a report is written differently the second time");
    }
    if (!merged("input.jsonl", "page.html").isEmpty()) {
        qFatal("there is no page of a report that can be read");
    }
    if (scriptsOf(readScratch("page.html")) != scriptsOfAnyPage()) {
        qFatal("something from a report became a script");
    }
}
