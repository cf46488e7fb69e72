#pragma once

#include "migration/model/file_report.h"
#include "migration/report/html_template.h"

namespace migration {

/// The report of one file, as the data of the template card.html.
///
/// @param number of the file in the report, from 1: its place when nothing is sorted
/// @param folder of the page, for links to files
[[nodiscard]] TemplateData cardData(const FileReport& report, qint64 number, const QString& folder);

} // namespace migration
