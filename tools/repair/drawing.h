#pragma once

#include "repair/enhanced_path.h"
#include "repair/picture_fill.h"
#include "repair/styles.h"

#include <QByteArray>
#include <QRectF>

#include <vector>

namespace repair {

/// An SVG document and the place on the page that it fills, in points.
struct Drawing
{
    QByteArray svg;
    QRectF bounds;
};

/// Draws outlines, given in points on the page, in the pen and fill of a graphic style.
/// Open outlines get the style's arrow heads.
///
/// @param picture the fill, if it is one
[[nodiscard]] Drawing makeDrawing(const std::vector<Outline>& outlines, const Properties& graphic,
                                  const StyleTable& table,
                                  const std::optional<PictureFill>& picture = std::nullopt);

/// Whether an item can show the fill: none, or a plain color.
[[nodiscard]] bool isPlainFill(const Properties& graphic);

/// Whether the pen of an item can show the dashes of an outline, or there are none.
[[nodiscard]] bool isPlainPen(const Properties& graphic, const StyleTable& table);

/// The share of a percentage, from 0 to 1; 1 for other texts.
[[nodiscard]] double shareOf(const QString& percent);

} // namespace repair
