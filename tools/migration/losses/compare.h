#pragma once

#include "migration/losses/item_losses.h"
#include "migration/losses/log_losses.h"
#include "migration/model/census.h"
#include "migration/model/file_report.h"

namespace migration {

/// Compares what the file holds with what is on the label and with what the import has
/// said: fills the report's numbers of objects and its three lists.
///
/// Objects and items of one class are matched in order, for readers keep it. Where their
/// numbers differ, only the numbers are compared.
void compare(const Census& census, const LabelFacts& label, const LogLosses& log,
             FileReport& report);

} // namespace migration
