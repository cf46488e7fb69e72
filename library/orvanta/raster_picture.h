#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

/// Decodes embedded raster pictures within bounds.
namespace orvanta {

/// Most pixels that one picture may have: what Qt decodes in its 128 MiB at four bytes a
/// pixel. A label of four inches by six at 600 dots to the inch has nine million.
inline constexpr qint64 MaximumPicturePixels = qint64(32) * 1024 * 1024;
/// Most pixels of all pictures of a label together: a few bytes of a file can claim
/// a large picture, and a file has room for thousands of them.
inline constexpr qint64 MaximumLabelPixels = qint64(128) * 1024 * 1024;

/// What became of a picture's bytes.
struct RasterPicture
{
    QImage image;                      ///< null if the bytes are not a picture or were refused
    QString refusal;                   ///< why a picture was not decoded although it may be one
    const char* refusalCode = nullptr; ///< of messages/refusals.h; null without a refusal
};

/// Decodes a picture; its content determines the format.
///
/// The claimed size is checked before any pixel is decoded. SVG is rendered without its
/// references to files; other vector formats of Qt's plug-ins are refused, because rendering
/// them opens the files that they name.
///
/// @param pixelsLeft most pixels that the picture may have
[[nodiscard]] RasterPicture decodeRasterPicture(const QByteArray& bytes, qint64 pixelsLeft);

/// Number of pixels of an image.
[[nodiscard]] qint64 pixelCount(const QSize& size);

} // namespace orvanta
