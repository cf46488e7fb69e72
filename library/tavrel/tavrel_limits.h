#pragma once

#include <QtGlobal>

/// Limits of this reader on untrusted files. All are far above any real label; refusals are
/// logged.
namespace tavrel {

/// Bytes of a file. A file is loaded completely, so this also limits each text, picture and list.
inline constexpr qint64 MaximumFileSize = 64LL * 1024 * 1024;

/// Pixels of all pictures of a file together, four bytes per pixel when decoded. In the file, a
/// picture of one color can be a thousand times smaller.
inline constexpr qint64 MaximumPixelsPerFile = 32LL * 1024 * 1024;

/// Item records of a file. The smallest takes 61 bytes in the file and some kilobytes on a canvas.
inline constexpr int MaximumItemRecords = 250'000;

/// Characters of a width or height; a longer text counts as unreadable.
inline constexpr qsizetype MaximumLengthCharacters = 1000;

/// Characters of all notes that the message box lists for a file.
inline constexpr qsizetype MaximumNoteCharacters = 100'000;

/// Deflate cannot compress further: the data of a picture that claims a higher ratio is incomplete.
inline constexpr qint64 MaximumDeflateRatio = 1032;

} // namespace tavrel
