#pragma once

#include "migration/losses/item_losses.h"
#include "migration/model/census.h"

namespace migration {

/// Finds headings that the document numbers, and the label does not.
void checkNumbers(const Census& document, LabelFacts& label);

} // namespace migration
