#include "cli/file_reports.h"

#include "cli/opened_label.h"
#include "migration/file_report_builder.h"

#include <QFileInfo>

namespace cli {
namespace {

migration::Status statusOf(archive::Fate fate)
{
    switch (fate) {
    case archive::Fate::Done:
        return migration::Status::Imported;
    case archive::Fate::Crashed:
        return migration::Status::Crashed;
    case archive::Fate::TimedOut:
        return migration::Status::TimedOut;
    case archive::Fate::OutOfMemory:
        return migration::Status::OutOfMemory;
    case archive::Fate::Failed:
        break;
    }
    return migration::Status::Failed;
}

migration::FileReport reportOnLost(const archive::Input& input)
{
    migration::FileReport report;
    report.file = input.shownName;
    report.bytes = QFileInfo(input.path).size();
    return report;
}

} // namespace

migration::FileReport reportOn(const OpenedLabel& label, const archive::Job& job, bool withItems)
{
    const migration::ReportOptions options{!withItems, withItems};
    return label.reader
               ? migration::makeFileReport(job.file, job.shownName, *label.reader, label, options)
               : migration::makeSavedLabelReport(job.file, job.shownName, label, options);
}

migration::FileReport finalReport(const archive::Delivery& delivery)
{
    migration::FileReport report = migration::fileReportFromJson(delivery.result.report)
                                       .value_or(reportOnLost(delivery.input));
    report.status = statusOf(delivery.result.fate);
    report.outputs = delivery.written;
    if (!delivery.result.errors.isEmpty()) {
        report.error = delivery.result.errors.join(QLatin1Char('\n'));
    }
    return report;
}

} // namespace cli
