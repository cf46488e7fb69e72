#pragma once

#include <QString>

class QFile;
class QIODevice;
class QTemporaryFile;

namespace console {

/// Most bytes of a label that are read from standard input.
inline constexpr qint64 MaximumInputBytes = 1LL << 30;

/// Copies standard input to a temporary file, because readers need a file. Returns why that
/// failed (user-visible), else empty.
[[nodiscard]] QString copyStandardInput(QTemporaryFile& file);

/// Copies at most @p largest bytes from @p input to @p file. Returns why that failed, else empty.
[[nodiscard]] QString copyLabel(QIODevice& input, QFile& file, qint64 largest);

} // namespace console
