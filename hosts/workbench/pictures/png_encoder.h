#pragma once

class QImage;
class QIODevice;

namespace workbench {

/// Writes a picture as PNG, with its resolution and texts, in the fewest bits per pixel.
///
/// Qt's writer tries five filters on every row and compresses at a high level, which pays for
/// photographs. Labels are flat: without filters their files are as small and are written in a
/// fraction of the time.
///
/// @return false if the picture is null or the device does not accept all bytes
[[nodiscard]] bool encodePng(const QImage& image, QIODevice& device);

} // namespace workbench
