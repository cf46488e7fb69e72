#pragma once

#include "migration/model/file_report.h"

#include <QString>

namespace migration {

/// The report of one file as a text for a terminal: the page, the items as a table, data
/// sources, what was said about the label, and what came over whole, changed or not at all.
///
/// Give it a report that was made with ReportOptions::itemList. Ends with a line end.
[[nodiscard]] QString describeForPeople(const FileReport& report);

} // namespace migration
