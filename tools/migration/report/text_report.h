#pragma once

#include "migration/model/file_report.h"

#include <QString>

namespace migration {

/// The report of one file as text for a terminal: page, table of items, data sources, what was
/// imported completely, with changes or not at all, and warnings. Ends with a line end.
///
/// @param report made with ReportOptions::itemList
[[nodiscard]] QString describeAsText(const FileReport& report);

} // namespace migration
