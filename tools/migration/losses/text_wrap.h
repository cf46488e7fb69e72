#pragma once

#include "migration/losses/drawn_texts.h"
#include "migration/losses/item_losses.h"
#include "migration/model/census.h"

namespace migration {

/// Items of all labels that are compared with anchored objects.
inline constexpr qsizetype MaximumAnchoredItems = 1'000;

/// Finds the items on one label that show anchored objects of its document, and the sides on which
/// text runs beside them.
[[nodiscard]] QList<AnchoredItem>
anchoredItems(const Census& document, const QList<DrawnText>& texts, const LabelFacts& label);

/// How many objects have text on both sides in the document, but only on one side on the labels.
/// @param items of all labels, in their order
[[nodiscard]] qint64 textsOnOneSide(const Census& document, const QList<AnchoredItem>& items);

} // namespace migration
