#include "cli/file_reports.h"

#include "cli/label_input.h"
#include "console/file_name.h"

namespace cli {
namespace {

migration::FileReport reportWithoutWorker(const archive::Input& input)
{
    migration::FileReport report;
    report.file = console::shownFileName(input.shownName);
    report.bytes = archive::stampOf(input.path).value_or(archive::FileStamp{}).size;
    return report;
}

} // namespace

migration::Status statusOf(archive::FileOutcome outcome)
{
    switch (outcome) {
    case archive::FileOutcome::Done:
        return migration::Status::Imported;
    case archive::FileOutcome::Crashed:
        return migration::Status::Crashed;
    case archive::FileOutcome::TimedOut:
        return migration::Status::TimedOut;
    case archive::FileOutcome::OutOfMemory:
        return migration::Status::OutOfMemory;
    case archive::FileOutcome::Failed:
        break;
    }
    return migration::Status::Failed;
}

migration::FileReport reportOn(const LabelInput& input, const OpenedLabel& label,
                               const QString& shownName, const migration::ReportOptions& options)
{
    const QString name = console::shownFileName(shownName);
    return input.reader()
               ? migration::makeFileReport(input.path(), name, *input.reader(), label, options)
               : migration::makeSavedLabelReport(input.path(), name, label, options);
}

migration::FileReport finalReport(const archive::Delivery& delivery)
{
    migration::FileReport report = migration::fileReportFromJson(delivery.result.report)
                                       .value_or(reportWithoutWorker(delivery.input));
    report.status = statusOf(delivery.result.outcome);
    report.outputs.clear();
    for (const QString& output : delivery.written) {
        report.outputs.append(console::shownFileName(output));
    }
    if (!delivery.result.errors.isEmpty()) {
        report.error = console::shownText(delivery.result.errors.join(QLatin1Char('\n')));
    }
    return report;
}

} // namespace cli
