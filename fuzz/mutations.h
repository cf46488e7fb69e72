#pragma once

#include <QByteArray>

#include <functional>
#include <optional>

/// Mutations that keep the outer structure of an input valid, so that most inputs pass the first
/// checks.

/// Changes bytes at random.
using BlindMutation = std::function<QByteArray(const QByteArray& bytes)>;

/// Changes one member of a zip package and repacks all of them with correct sizes and
/// checksums. `seed` selects the member and the compression.
/// @return nothing if the bytes are not a package that can be unpacked
[[nodiscard]] std::optional<QByteArray> mutatedPackage(const QByteArray& package, quint32 seed,
                                                       const BlindMutation& mutate);

/// Changes a binary canvas file after its header, which keeps a supported version; some seeds
/// select another supported version.
[[nodiscard]] QByteArray mutatedCanvasFile(const QByteArray& file, quint32 seed,
                                           const BlindMutation& mutate);
