// Imports a file of any format into the workbench and writes the report.

#include "fuzz/harness.h"
#include "fuzz/legacy_file.h"
#include "migration/file_report_builder.h"
#include "migration/losses/item_losses.h"
#include "workbench/import/label_import.h"

#include <QJsonDocument>

#include <numeric>

using namespace Qt::Literals::StringLiterals;

using namespace migration;

namespace {

ReaderKind readerOf(Format format)
{
    switch (format) {
    case Format::OpenDocument:
        return ReaderKind::OpenDocument;
    case Format::Orvanta:
        return ReaderKind::Orvanta;
    case Format::SavedLabel:
    case Format::Tavrel:
        break;
    }
    return ReaderKind::Tavrel;
}

qint64 sumOf(const QList<KindCount>& kinds)
{
    return std::accumulate(kinds.begin(), kinds.end(), qint64(0),
                           [](qint64 sum, const KindCount& kind) { return sum + kind.count; });
}

qint64 lostObjects(const FileReport& report)
{
    return std::accumulate(report.lost.begin(), report.lost.end(), qint64(0),
                           [](qint64 sum, const Finding& finding) {
                               return sum + (finding.countsObjects ? finding.count : 0);
                           });
}

// Imported and lost objects must add up to the objects in the file.
void checkNumbers(const FileReport& report)
{
    if (!report.objects.inFile || report.status != Status::Imported) {
        return;
    }
    if (report.objects.imported + lostObjects(report) != *report.objects.inFile) {
        qFatal("%lld objects were imported and %lld were not, of %lld in the file",
               static_cast<long long>(report.objects.imported),
               static_cast<long long>(lostObjects(report)),
               static_cast<long long>(*report.objects.inFile));
    }
    if (sumOf(report.complete) > sumOf(report.items)) {
        qFatal("more items were imported completely than exist");
    }
}

void checkWriting(const FileReport& report)
{
    const QByteArray json = QJsonDocument(toJson(report)).toJson();
    const auto again = fileReportFromJson(QJsonDocument::fromJson(json).object());
    if (!again || QJsonDocument(toJson(*again)).toJson() != json) {
        qFatal("a report that was written is read as another");
    }
}

} // namespace

void fuzzOneInput(const QByteArray& input)
{
    const ReaderKind reader = readerOf(formatOf(input));
    const MemoryFile file(input);
    const workbench::ImportResult result = workbench::importLabel(file.path(), reader);
    const FileReport report = makeFileReport(file.path(), u"input"_s, reader, result,
                                             {.thumbnail = false, .itemList = true});
    checkNumbers(report);
    checkWriting(report);
}
