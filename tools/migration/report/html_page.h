#pragma once

#include "migration/report/html_template.h"

#include <QString>

namespace migration {

struct Totals;

/// The data of the template page_head.html: style, totals, the codes and their meaning, and the
/// tools to sort and filter.
[[nodiscard]] TemplateData pageHeadData(const Totals& totals, const QString& note);
/// The data of the template page_tail.html: the script.
[[nodiscard]] TemplateData pageTailData();

} // namespace migration
