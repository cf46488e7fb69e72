#pragma once

#include <QtGlobal>

/// Limits for a package. Generous for any real label: far beyond what is printed,
/// and small enough that a hostile file cannot exhaust the memory of a small machine.
namespace opendocument::limits {

/// Sizes of the XML members, uncompressed, and of their parsed trees.
inline constexpr qint64 StylesBytes = 16LL << 20;
inline constexpr qint64 StylesTreeBytes = 120LL << 20;
inline constexpr qint64 ContentBytes = 48LL << 20;
inline constexpr qint64 ContentTreeBytes = 480LL << 20;

/// Size of one picture's member, uncompressed, and of all that one import reads.
inline constexpr qint64 PictureBytes = 32LL << 20;
inline constexpr qint64 AllPicturesBytes = 128LL << 20;
/// Pixels of one picture, as many as Qt decodes by default, and of all that one import decodes.
inline constexpr qint64 PicturePixels = 32'000'000;
inline constexpr qint64 AllPicturesPixels = 60'000'000;

/// Bytes of the styles that are kept for the next file, about 150,000 of them. Every file may
/// add styles during the importer's lifetime.
inline constexpr qint64 CarriedStylesBytes = 64LL << 20;

/// Characters of one text item.
inline constexpr qsizetype TextCharacters = 4LL << 20;
/// Font size in points: font engines do not support larger ones.
inline constexpr double FontSize = 10'000.0;

} // namespace opendocument::limits
