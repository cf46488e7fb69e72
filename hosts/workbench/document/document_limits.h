#pragma once

#include <QtGlobal>

/// How much of a saved label is taken.
namespace workbench::document::limits {

/// Bytes of a file.
inline constexpr qint64 FileBytes = 256 * 1024 * 1024;
/// Items of a label, and data sources of a label.
inline constexpr qsizetype Items = 500'000;
/// Width or height of a picture, in pixels.
inline constexpr int PictureSide = 30'000;
/// Pixels of one picture: as many as any reader brings, and as Qt decodes.
inline constexpr qint64 PicturePixels = 32 * 1024 * 1024;
/// Pixels of all pictures of a label: as many as any reader brings, and not more because a
/// picture of one color takes a few bytes in a file.
inline constexpr qint64 AllPicturePixels = 150'000'000;
/// Bytes of the parser's tree, as jsonlimits::treeBytes() estimates it. A file of nothing but
/// items, as large as a file may be, takes eleven times its size.
inline constexpr qint64 TreeBytes = 3LL << 30;

} // namespace workbench::document::limits
