#pragma once

#include "workbench/document/saved_label.h"

#include <QByteArray>

namespace workbench::document {

/// The newest version of the format. A label is written in the oldest version that has all its
/// parts: 2 with records of a CSV file, else 1.
inline constexpr int FormatVersion = 2;

/// Who saved a label. An import marks its labels, so that a later import may replace them; the mark
/// is lost when a person saves the label.
enum class Origin { User, Import };

/// The label as the bytes of a file.
[[nodiscard]] QByteArray toJson(
    const SavedLabel& label, Origin origin = Origin::User, const Heartbeat& heartbeat = [] {});

/// Whether the bytes are a label that an import saved and that is unchanged since: it has the mark
/// and the right checksum.
[[nodiscard]] bool isUneditedImport(const QByteArray& bytes);

/// The result of reading a saved label.
struct ReadLabel
{
    SavedLabel label;
    /// User-visible reason why the bytes are not a label; empty on success.
    QString error;
};

/// Reads the bytes of a file.
[[nodiscard]] ReadLabel fromJson(const QByteArray& bytes);

} // namespace workbench::document
