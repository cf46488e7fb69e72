#pragma once

#include "archive/messages.h"
#include "archive/run.h"
#include "migration/file_report_builder.h"

namespace cli {

class LabelInput;
struct OpenedLabel;

/// The status that reports and events give to an outcome.
[[nodiscard]] migration::Status statusOf(archive::FileOutcome outcome);

/// The report of a worker on a label that it opened or could not open.
[[nodiscard]] migration::FileReport reportOn(const LabelInput& input, const OpenedLabel& label,
                                             const QString& shownName,
                                             const migration::ReportOptions& options);

/// The final report on one file: that of the worker, if there is one, with the outputs that were
/// written and the errors that came later.
[[nodiscard]] migration::FileReport finalReport(const archive::Delivery& delivery);

} // namespace cli
