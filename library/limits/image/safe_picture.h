#pragma once

#include <QByteArray>

/// Makes encoded pictures of unknown origin safe for Qt's decoders, which limit only the number of
/// pixels.
namespace imagelimits {

/// Most scans (passes through the pixels) of a JPEG. Progressive pictures have about ten; each scan
/// takes a few bytes of the file and the decoding time of the complete picture.
inline constexpr int MaximumScans = 100;

/// Most compressed texts of PNGs inside another file, an icon for example, where they cannot be
/// removed. Each may expand to 8 MB.
inline constexpr int MaximumPackedTexts = 16;

/// The bytes that may be given to a decoder, also to find out the size of the picture.
///
/// Removes everything from a PNG that its pixels do not need: texts and color profiles are
/// compressed, and 20 KB of them expand to gigabytes before the first pixel is decoded.
///
/// @return the picture, unchanged if there was nothing to remove; empty if it must not be
///         decoded
[[nodiscard]] QByteArray safePicture(const QByteArray& bytes);

} // namespace imagelimits
