#pragma once

#include <QImage>

namespace workbench {

/// The same picture with as few bytes for a pixel as it needs: a table of colours where there
/// are no more than 256, no alpha where all of it is opaque. Size, resolution and texts stay.
///
/// Labels have few colours. Most of the time of writing a PNG goes into trying filters on every
/// row, which is not done for a table of colours, and the rest grows with the bytes.
[[nodiscard]] QImage frugalImage(const QImage& image);

} // namespace workbench
