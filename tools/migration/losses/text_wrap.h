#pragma once

#include "migration/losses/drawn_texts.h"
#include "migration/losses/item_losses.h"
#include "migration/model/census.h"

namespace migration {

/// Items of one label that are searched for text beside them.
inline constexpr qsizetype MaximumItemsBetweenText = 1'000;

/// How many items that may have text on both sides in the document have it on one side of the
/// label, so that the lines break elsewhere.
[[nodiscard]] qint64 textsOnOneSide(const Census& document, const QList<DrawnText>& texts,
                                    const LabelFacts& label);

} // namespace migration
