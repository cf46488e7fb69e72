#include "migration/file_report_builder.h"

#include "migration/census/counting.h"
#include "migration/losses/check_label.h"
#include "migration/losses/compare.h"
#include "migration/losses/item_losses.h"
#include "migration/losses/label_facts.h"
#include "migration/losses/log_losses.h"
#include "workbench/import/label_import.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace migration {

namespace {

// For a file that was not imported, the report only contains the number of its objects. Why they
// cannot be counted would only be a guess next to the reader's own reason.
void describeFailure(const Census& census, FileReport& report)
{
    if (census.unknown.isEmpty()) {
        report.objects.inFile = census.objects.size();
    }
}

using Count = Census (*)(const QByteArray& file);

Census censusOf(const QString& fileName, Count count)
{
    Census census;
    const QByteArray file = bytesToCount(fileName, census.unknown);
    return census.unknown.isEmpty() ? count(file) : census;
}

Count countFor(ReaderKind reader)
{
    switch (reader) {
    case ReaderKind::Orvanta:
        return &countOrvanta;
    case ReaderKind::OpenDocument:
        return &countOpenDocument;
    case ReaderKind::Tavrel:
        break;
    }
    return &countTavrel;
}

FileReport reportOn(const QString& fileName, const QString& shownName, const QString& reader,
                    Count count, const workbench::ImportResult& result,
                    const ReportOptions& options)
{
    // A blank paragraph of OpenDocument is not an object; a blank text of the other formats is.
    const bool blankTextsCount = count != &countOpenDocument;
    FileReport report;
    report.file = shownName;
    report.bytes = QFileInfo(fileName).size();
    report.reader = reader;
    report.error = result.error;
    const Census census = censusOf(fileName, count);
    if (!result.isImported()) {
        describeFailure(census, report);
        return report;
    }
    report.status = Status::Imported;
    describeLabel(result, report);
    LabelFacts label = lookAtItems(*result.canvas, blankTextsCount);
    if (count == &countOpenDocument) {
        checkLabel(census, *result.canvas, {}, label);
    } else {
        findReplacedFonts(label);
    }
    compare(census, label, lossesOfLog(result), report);
    if (options.itemList) {
        report.itemList = itemListOf(*result.canvas);
    }
    if (options.thumbnail) {
        report.thumbnail = thumbnailOf(*result.canvas);
    }
    return report;
}

} // namespace

FileReport makeFileReport(const QString& fileName, const QString& shownName, ReaderKind reader,
                          const workbench::ImportResult& result, const ReportOptions& options)
{
    return reportOn(fileName, shownName, readerOf(reader).name, countFor(reader), result, options);
}

FileReport makeSavedLabelReport(const QString& fileName, const QString& shownName,
                                const workbench::ImportResult& result, const ReportOptions& options)
{
    return reportOn(fileName, shownName, u"label"_s, &countSavedLabel, result, options);
}

} // namespace migration
