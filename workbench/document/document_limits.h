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

} // namespace workbench::document::limits
