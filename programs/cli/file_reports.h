#pragma once

#include "archive/messages.h"
#include "archive/run.h"
#include "migration/file_report_builder.h"

#include <memory>

namespace cli {

class LabelInput;
struct OpenedLabel;

/// The status that reports and events give to an outcome.
[[nodiscard]] migration::Status statusOf(archive::FileOutcome outcome);

/// The report of a worker on a file that it opened or could not open.
class WorkerReport
{
public:
    /// @param input must outlive the report
    WorkerReport(const LabelInput& input, const QString& shownName,
                 const migration::ReportOptions& options);

    /// A label of the file: the first, or a further page of a repaired document. Before anything
    /// is written, because that shows other records on the canvas.
    void add(const OpenedLabel& label);
    /// The next pages of a repaired document that are not imported.
    void leaveOutPages(int count);
    [[nodiscard]] migration::FileReport finish();

private:
    const LabelInput& m_input;
    QString m_name;
    migration::ReportOptions m_options;
    /// Of a repaired document; else null.
    std::unique_ptr<migration::RepairedFileReport> m_pages;
    int m_pageCount = 0;
    /// Of any other file.
    migration::FileReport m_report;
};

/// The final report on one file: that of the worker, if there is one, with the outputs that were
/// written and the errors that came later.
[[nodiscard]] migration::FileReport finalReport(const archive::Delivery& delivery);

} // namespace cli
