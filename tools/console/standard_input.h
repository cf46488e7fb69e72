#pragma once

#include <QString>

class QTemporaryFile;

namespace console {

/// Most bytes of a label that are read from standard input.
inline constexpr qint64 MaximumInputBytes = 1LL << 30;

/// Copies standard input to a temporary file, because readers need a file. Returns why that
/// failed, for a person; else empty.
[[nodiscard]] QString copyStandardInput(QTemporaryFile& file);

} // namespace console
