#pragma once

#include <QByteArray>

/// Makes encoded pictures of unknown origin fit for Qt's decoders, whose own bounds are those
/// of pixels alone.
namespace imagebounds {

/// Most passes over its pixels that a JPEG may take. Progressive pictures have about ten; each
/// pass takes the time of the whole picture and a few bytes of the file.
inline constexpr int MaximumScans = 100;

/// Most packed texts of PNGs that stand inside another file, an icon say, where they cannot be
/// cut out. Each may unpack to eight megabytes.
inline constexpr int MaximumPackedTexts = 16;

/// The bytes that may be given to a decoder.
///
/// Of a PNG everything is left out that its pixels do not need: texts and colour profiles are
/// packed, and some twenty kilobytes of them unpack to gigabytes before the first pixel is
/// looked at. Not even the size of a picture may be asked for before this.
///
/// @return the picture, byte for byte where there is nothing to leave out; empty when it may
///         not be decoded at all
[[nodiscard]] QByteArray boundedPicture(const QByteArray& bytes);

} // namespace imagebounds
