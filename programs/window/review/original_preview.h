#pragma once

#include "window/label/open_label.h"

#include <QImage>

namespace window {

/// Largest preview that is read, in bytes of its file and in pixels.
inline constexpr qint64 MaximumPreviewBytes = 4LL << 20;
inline constexpr qint64 MaximumPreviewPixels = 4'000'000;

/// The picture that an OpenDocument file has of itself; null if it has none.
[[nodiscard]] QImage previewOf(const QString& fileName);

/// The document that the label was imported from, or a document next to a saved label that has
/// its name; empty for none.
[[nodiscard]] QString originalOf(const OpenLabel& label);

} // namespace window
