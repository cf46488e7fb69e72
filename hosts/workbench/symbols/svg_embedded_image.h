#pragma once

#include <QString>

#include <optional>

/// Pictures that an SVG document carries inside itself.
namespace workbench::symbols {

struct EmbeddedImage
{
    /// The picture as a data URI in its plainest form.
    QString uri;
    qint64 pixels = 0;
};

/// Takes a data URI of a raster picture; nothing when it holds none, is damaged, or is too
/// large. Only what was decoded here passes, because the SVG renderer takes a data URI that
/// it cannot read for a file name, and a picture may itself be an SVG document.
[[nodiscard]] std::optional<EmbeddedImage> readEmbeddedImage(const QString& uri);

} // namespace workbench::symbols
