#pragma once

#include <QImage>

namespace workbench {

/// The same picture with as few bytes for a pixel as it needs: a table of colours where there
/// are no more than 256, no alpha where all of it is opaque. Size, resolution and texts stay.
///
/// Labels have few colours, and the time of writing a picture grows with its bytes.
[[nodiscard]] QImage frugalImage(const QImage& image);

} // namespace workbench
