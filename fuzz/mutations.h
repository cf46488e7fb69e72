#pragma once

#include <QByteArray>

#include <functional>
#include <optional>

/// Changes to inputs that keep what a blind change would break at once, so that most of them
/// reach the code behind the outermost checks.

/// Changes bytes blindly.
using BlindMutation = std::function<QByteArray(const QByteArray& bytes)>;

/// Changes one member of a zip package and packs all of them again, with right sizes and
/// checksums. Every number of `seed` chooses another member or packing.
/// @return nothing when the bytes are no package that can be unpacked
[[nodiscard]] std::optional<QByteArray> mutatedPackage(const QByteArray& package, quint32 seed,
                                                       const BlindMutation& mutate);

/// Changes a binary canvas file behind its start, which stays that of a version that is
/// read; some seeds change the version for another.
[[nodiscard]] QByteArray mutatedCanvasFile(const QByteArray& file, quint32 seed,
                                           const BlindMutation& mutate);
