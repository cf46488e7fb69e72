#pragma once

#include "migration/losses/item_losses.h"
#include "migration/losses/log_losses.h"
#include "migration/model/census.h"
#include "migration/model/file_report.h"

namespace migration {

/// Compares the file with the label and the log, and fills in the numbers of objects and the lists
/// of complete, changed and lost objects.
///
/// Objects and items of one class are matched in order, which readers keep. If their numbers
/// differ, only the numbers are compared.
void compare(const Census& census, const LabelFacts& label, const LogLosses& log,
             FileReport& report);

} // namespace migration
