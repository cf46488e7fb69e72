#include "migration/file_report_builder.h"

#include "migration/census/counting.h"
#include "migration/losses/check_label.h"
#include "migration/losses/compare.h"
#include "migration/losses/item_losses.h"
#include "migration/losses/label_facts.h"
#include "migration/losses/log_losses.h"
#include "workbench/import/label_import.h"

#include <QFileInfo>

#include <algorithm>

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

void addRepairs(QList<RepairReport>& sums, const QList<RepairReport>& repairs)
{
    for (const RepairReport& repair : repairs) {
        const auto same =
            std::find_if(sums.begin(), sums.end(),
                         [&repair](const RepairReport& sum) { return sum.code == repair.code; });
        if (same != sums.end()) {
            same->count += repair.count;
        } else {
            sums.append(repair);
        }
    }
}

// Embedded objects whose picture cannot be read.
qint64 redrawnObjects(const QList<RepairReport>& repairs)
{
    qint64 count = 0;
    for (const RepairReport& repair : repairs) {
        const bool isRedrawn =
            repair.code == "documents-unpacked"_L1 || repair.code == "charts-drawn"_L1;
        count += isRedrawn ? repair.count : 0;
    }
    return count;
}

QByteArray previewIn(const QString& fileName, const QString& reader)
{
    const std::optional<ReaderKind> kind = readerOfName(reader);
    QString problem;
    const QByteArray file = kind ? bytesToCount(fileName, problem) : QByteArray();
    return kind ? previewOf(file, *kind) : QByteArray();
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
        report.itemList = itemListOf(result);
    }
    if (options.thumbnail) {
        report.thumbnail = thumbnailOf(*result.canvas);
        report.preview = previewIn(fileName, reader);
    }
    return report;
}

} // namespace

FileReport makeFileReport(const QString& fileName, const QString& shownName, ReaderKind reader,
                          const workbench::ImportResult& result, const ReportOptions& options)
{
    return reportOn(fileName, shownName, readerOf(reader).name, countFor(reader), result, options);
}

RepairedFileReport::RepairedFileReport(const QString& fileName, const QString& shownName,
                                       const ReportOptions& options)
    : m_options(options)
    , m_census(censusOf(fileName, &countOpenDocument))
    , m_losses(m_census)
{
    m_report.file = shownName;
    m_report.bytes = QFileInfo(fileName).size();
    m_report.reader = readerOf(ReaderKind::OpenDocument).name;
}

void RepairedFileReport::addPage(const workbench::ImportResult& result, const QByteArray& package,
                                 const QList<RepairReport>& repairs)
{
    const int number = m_losses.lastPage() + 1;
    const bool isFirst = number == 1;
    m_report.status = Status::Imported;
    FileReport page;
    describeLabel(result, page);
    if (isFirst) {
        m_report.page = page.page;
        m_report.itemList = m_options.itemList ? itemListOf(result) : QList<ItemReport>();
        m_report.thumbnail = m_options.thumbnail ? thumbnailOf(*result.canvas) : QByteArray();
    }
    addCounts(m_report.items, page.items);
    addIssues(page.issues);
    addRepairs(m_report.repaired, repairs);
    m_losses.addRedrawn(redrawnObjects(repairs));
    LabelFacts label = lookAtItems(*result.canvas, false);
    checkLabel(m_census, *result.canvas, {.page = number, .isRepaired = true}, label);
    m_losses.addPage(countOpenDocument(package), label, lossesOfLog(result));
}

// All pages may have the same picture, and warn of it. Items are those of the first page.
void RepairedFileReport::addIssues(const QList<IssueReport>& issues)
{
    const bool isFirst = m_losses.lastPage() == 0;
    for (const IssueReport& issue : issues) {
        const auto place = m_issuePlaces.constFind(issue.text);
        if (place != m_issuePlaces.constEnd() && !isFirst) {
            m_report.issues[*place].repeats += issue.repeats;
            continue;
        }
        if (place == m_issuePlaces.constEnd()) {
            m_issuePlaces.insert(issue.text, m_report.issues.size());
        }
        m_report.issues.append({issue.text, isFirst ? issue.item : -1, issue.repeats});
    }
}

FileReport RepairedFileReport::finish()
{
    m_losses.fill(m_report);
    return m_report;
}

FileReport makeSavedLabelReport(const QString& fileName, const QString& shownName,
                                const workbench::ImportResult& result, const ReportOptions& options)
{
    return reportOn(fileName, shownName, u"label"_s, &countSavedLabel, result, options);
}

} // namespace migration
