#pragma once

#include <QtGlobal>

/// What this reader is willing to take from a file that nobody vouches for. All are far
/// above any real label; what is refused is logged.
namespace tavrel {

/// A file is read whole, so this bounds every text, picture and list in it.
inline constexpr qint64 MaximumFileSize = 64LL * 1024 * 1024;

/// Pixels of all pictures of one file together, at four bytes a pixel when decoded. A
/// picture that is all one colour takes a thousandth of that in the file.
inline constexpr qint64 MaximumPixelsPerFile = 32LL * 1024 * 1024;

/// Item records of one file; the smallest takes 61 bytes in the file and some kilobytes
/// on a canvas.
inline constexpr int MaximumItemRecords = 250'000;

/// Characters of a width or height; what is longer is as unreadable as any other text that
/// is no number.
inline constexpr qsizetype MaximumLengthCharacters = 1000;

/// Characters of all notes that the message box lists for one file.
inline constexpr qsizetype MaximumNoteCharacters = 100'000;

/// Deflate cannot pack tighter than this, so a picture that claims more is not in the file.
inline constexpr qint64 MaximumDeflateRatio = 1032;

} // namespace tavrel
