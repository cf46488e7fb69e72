#pragma once

#include "repair/enhanced_path.h"
#include "repair/styles.h"

#include <QByteArray>
#include <QRectF>

#include <optional>
#include <vector>

namespace repair {

class Document;

/// A picture painted into outlines, transparent outside them.
struct PictureFill
{
    QByteArray png;
    QRectF box; ///< points on the page
};

/// The picture that fills outlines, given in points on the page: stretched, repeated, or once, as
/// their graphic style states. The picture keeps its direction if the shape is rotated.
///
/// @return nothing if the style has another fill, or if the picture is missing, damaged, a vector
/// drawing, or larger than the reader accepts
[[nodiscard]] std::optional<PictureFill>
pictureFill(Document& document, const std::vector<Outline>& outlines, const Properties& graphic);

} // namespace repair
