#pragma once

#include "archive/messages.h"
#include "archive/run.h"
#include "migration/model/file_report.h"

namespace cli {

struct OpenedLabel;

/// The report that a worker makes of a label that it opened, or could not open.
/// @param withItems whether every single item is listed
[[nodiscard]] migration::FileReport reportOn(const OpenedLabel& label, const archive::Job& job,
                                             bool withItems);

/// The report on one file of an archive as it stands in the end: with the outputs that were
/// written, and with what went wrong after the worker's report or instead of it.
[[nodiscard]] migration::FileReport finalReport(const archive::Delivery& delivery);

} // namespace cli
