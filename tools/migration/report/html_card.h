#pragma once

#include "migration/model/file_report.h"

#include <QString>

namespace migration {

/// The report of one file as a card of the page. Everything of it is escaped.
///
/// @param number of the file in the report, from 1: its place when nothing is sorted
[[nodiscard]] QString htmlCard(const FileReport& report, qint64 number);

} // namespace migration
