#pragma once

#include "workbench/document/saved_label.h"

#include <QByteArray>

namespace workbench::document {

/// The newest version of the format, which is the one that is written.
inline constexpr int FormatVersion = 1;

/// The label as the bytes of a file.
[[nodiscard]] QByteArray toJson(const SavedLabel& label);

struct ReadLabel
{
    SavedLabel label;
    /// Why the bytes are no label, in a sentence for a person; empty when they are one.
    QString error;
};

/// Reads the bytes of a file.
[[nodiscard]] ReadLabel fromJson(const QByteArray& bytes);

} // namespace workbench::document
