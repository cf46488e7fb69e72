#pragma once

class QImage;
class QIODevice;

namespace workbench {

/// Writes a picture as PNG, with its resolution and texts, in the fewest bytes for a pixel.
///
/// Qt's own writer tries five filters on every row and then compresses thoroughly. Both pay for
/// photographs. Labels are flat: without filters they become no larger and are written four
/// times as fast, and writing is most of what importing a label to a picture costs.
///
/// @return false when there is no picture, or when the device does not take it
[[nodiscard]] bool encodePng(const QImage& image, QIODevice& device);

} // namespace workbench
