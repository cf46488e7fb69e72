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
/// Pixels of one picture.
inline constexpr qint64 PicturePixels = 100'000'000;
/// Pixels of all pictures of a label: as many as any reader brings, and not more because a
/// picture of one colour takes next to nothing in a file.
inline constexpr qint64 AllPicturePixels = 150'000'000;
/// Values of a file, of all kinds and on all levels. An item has about thirty.
inline constexpr qint64 Values = 20'000'000;

} // namespace workbench::document::limits
