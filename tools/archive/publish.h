#pragma once

#include "archive/messages.h"

namespace archive {

/// Puts a staged file in its place, in one step: whoever looks sees all of it or what was
/// there before. Makes the folders that are missing.
///
/// What nobody may replace is not replaced even if it appeared a moment ago.
///
/// @return why it could not be done, for a person, and nothing is changed; else empty
[[nodiscard]] QString publish(const StagedFile& file);

/// The words for an output that stands where somebody else's file is.
[[nodiscard]] QString notOursWords(const QString& path);

} // namespace archive
