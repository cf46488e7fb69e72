#pragma once

#include <QString>

namespace repair {

/// The distance of lines that a font states, as a share of the one that Qt uses: Qt rounds it up
/// to whole pixels, and takes the bounds of all letters for some kinds of fonts.
///
/// @param size           in points
/// @param pointsPerPixel of the size that Qt is given
/// @param withGap        whether the gap between lines that the font states is part of it
[[nodiscard]] double exactLineShare(const QString& family, bool bold, double size,
                                    double pointsPerPixel, bool withGap);

} // namespace repair
