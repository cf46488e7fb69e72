#include "cli/file_reports.h"

#include "cli/label_input.h"
#include "console/file_name.h"

namespace cli {
namespace {

using namespace Qt::StringLiterals;

migration::FileReport reportWithoutWorker(const archive::Delivery& delivery)
{
    migration::FileReport report;
    report.file = console::shownFileName(delivery.input.shownName);
    report.bytes = archive::stampOf(delivery.input.path).value_or(archive::FileStamp{}).size;
    report.sandbox = sandbox::codesOf(delivery.confinement);
    return report;
}

// The texts contain the sums over all pages, which come later.
QList<migration::RepairReport> repairsOf(const OpenedLabel& label)
{
    QList<migration::RepairReport> repairs;
    for (const repair::Repair& repair : label.repairs) {
        repairs.append({repair.code, {}, repair.count});
    }
    return repairs;
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

WorkerReport::WorkerReport(const LabelInput& input, const QString& shownName,
                           const migration::ReportOptions& options)
    : m_input(input)
    , m_name(console::shownFileName(shownName))
    , m_options(options)
{}

void WorkerReport::add(const OpenedLabel& label)
{
    if (label.isRepaired()) {
        if (!m_pages) {
            m_pages =
                std::make_unique<migration::RepairedFileReport>(m_input.path(), m_name, m_options);
        }
        ++m_pageCount;
        m_pages->addPage(label, label.package, repairsOf(label));
        return;
    }
    m_report =
        m_input.reader()
            ? migration::makeFileReport(m_input.path(), m_name, *m_input.reader(), label, m_options)
            : migration::makeSavedLabelReport(m_input.path(), m_name, label, m_options);
}

void WorkerReport::leaveOutPages(int count)
{
    if (m_pages) {
        m_pages->leaveOutPages(count);
    }
}

migration::FileReport WorkerReport::finish()
{
    if (!m_pages) {
        m_report.sandbox = sandbox::codesOf(sandbox::active());
        return m_report;
    }
    migration::FileReport report = m_pages->finish();
    if (m_pageCount > 1) {
        report.repaired.append({u"pages-separated"_s, {}, m_pageCount - 1});
    }
    for (migration::RepairReport& repair : report.repaired) {
        repair.text = repair::repairText({repair.code, static_cast<int>(repair.count)});
    }
    report.sandbox = sandbox::codesOf(sandbox::active());
    return report;
}

migration::FileReport finalReport(const archive::Delivery& delivery)
{
    migration::FileReport report = migration::fileReportFromJson(delivery.result.report)
                                       .value_or(reportWithoutWorker(delivery));
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
