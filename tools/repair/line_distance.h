#pragma once

#include <QString>

namespace repair {

/// The distance of lines that a font states, as a share of the one that Qt uses: Qt rounds it up
/// to whole pixels, and takes the bounds of all letters for some kinds of fonts.
///
/// @param size           in points
/// @param pointsPerPixel of the size that Qt is given
[[nodiscard]] double exactLineShare(const QString& family, bool bold, double size,
                                    double pointsPerPixel);

} // namespace repair
