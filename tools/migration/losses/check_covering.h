#pragma once

#include "migration/losses/matching.h"

namespace migration {

/// Finds items that are at least half covered by a later opaque item, if they are not in the
/// document.
///
/// @return false if the label is too large to compare all items
[[nodiscard]] bool checkCovering(const Matching& matching, LabelFacts& label);

} // namespace migration
