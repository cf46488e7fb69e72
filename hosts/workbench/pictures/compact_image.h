#pragma once

#include <QImage>

namespace workbench {

/// The same picture in the fewest bytes per pixel: a color table if it has at most 256 colors, no
/// alpha if all of it is opaque. Size, resolution and texts are kept.
///
/// Labels have few colors, and the time to write a picture grows with its bytes.
[[nodiscard]] QImage compactImage(const QImage& image);

} // namespace workbench
