#pragma once

#include <QString>

#include <optional>

/// Pictures embedded in an SVG document.
namespace svglimits {

/// A raster picture inside an SVG document.
struct EmbeddedImage
{
    /// The picture as a data URI without optional parameters.
    QString uri;
    qint64 pixels = 0;
};

/// Reads a data URI of a raster picture; nothing if it holds none, is damaged, or is too large.
/// Only a picture that was decoded here is accepted: the SVG renderer treats a data URI that it
/// cannot read as a file name, and an SVG document is a picture, too.
[[nodiscard]] std::optional<EmbeddedImage> readEmbeddedImage(const QString& uri);

} // namespace svglimits
