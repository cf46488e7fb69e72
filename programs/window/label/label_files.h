#pragma once

#include "window/label/open_label.h"

#include <optional>

namespace window {

/// A label from a file, or in words for a person why there is none.
struct ReadLabel
{
    std::optional<OpenLabel> label;
    QString error;
};

/// Opens a saved label. It shows its first record.
[[nodiscard]] ReadLabel readSavedLabel(const QString& fileName);

/// Imports a legacy label. It shows its first record and is kept in no file yet.
[[nodiscard]] ReadLabel readLegacyLabel(const QString& fileName);

/// Saves a label. The file appears whole or, when something fails, stays what it was.
/// Returns in words for a person what failed, else nothing.
[[nodiscard]] QString writeLabel(const OpenLabel& label, const QString& fileName);

} // namespace window
