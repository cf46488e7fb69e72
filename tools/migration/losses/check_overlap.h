#pragma once

#include "migration/losses/drawn_texts.h"
#include "migration/losses/matching.h"

namespace migration {

/// Finds texts that are drawn over each other, if they are not in the document: running text,
/// headers and footers, text boxes and the texts of shapes. Boxes may overlap as long as their
/// letters do not.
///
/// @param texts of the label, those of one item together
/// @param scale of the label: 100 if millimeters were enlarged
/// @return false if the label is too large to compare all texts
[[nodiscard]] bool checkOverlap(const QList<DrawnText>& texts, const Matching& matching,
                                double scale, LabelFacts& label);

} // namespace migration
