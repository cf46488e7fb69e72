#pragma once

#include "window/label/import_process.h"
#include "window/label/open_label.h"

#include <optional>

namespace window {

/// A label from a file, or the user-visible reason why there is none.
struct ReadLabel
{
    std::optional<OpenLabel> label;
    QString error;
    bool isCanceled = false; ///< by the user, who needs no message box
};

/// Opens a saved label. It shows its first record.
[[nodiscard]] ReadLabel readSavedLabel(const QString& fileName);

/// Imports a legacy label. It shows its first record and is not yet saved in a file.
[[nodiscard]] ReadLabel readLegacyLabel(const QString& fileName,
                                        Reading reading = Reading::Repaired);

/// Saves a label. Atomic: on failure an existing file is unchanged.
/// Returns the user-visible error; empty on success.
[[nodiscard]] QString writeLabel(const OpenLabel& label, const QString& fileName);

} // namespace window
