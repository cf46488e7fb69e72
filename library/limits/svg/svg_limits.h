#pragma once

#include <QtGlobal>

/// Limits for SVG documents: generous for any drawing on a label, small enough that no document
/// exhausts time or memory.
namespace svglimits {

/// Bytes of one document.
inline constexpr qsizetype DocumentBytes = 16 * 1024 * 1024;
/// Elements of one document.
inline constexpr int Elements = 200'000;
/// Nesting depth of elements, and of references from element to element.
inline constexpr int Depth = 128;
/// Memory that the document's tree may take, in bytes, by the estimate of xmllimits::findExcess().
inline constexpr qint64 TreeBytes = 600LL << 20;
/// Characters of all style sheets: the renderer tries every rule on every element.
inline constexpr qsizetype StyleText = 32 * 1024;
/// Elements drawn, references included.
inline constexpr qint64 DrawnElements = 1'000'000;
/// Width or height of an embedded picture, in pixels.
inline constexpr int ImageSide = 10'000;
/// Pixels of one embedded picture.
inline constexpr qint64 ImagePixels = 25'000'000;
/// Pixels of all embedded pictures of a document.
inline constexpr qint64 AllImagePixels = 100'000'000;
/// Largest coordinate of a drawing, in its own units.
inline constexpr double Coordinate = 1e9;
/// Largest font size, in the drawing's own units.
inline constexpr double FontSize = 10'000.0;
/// Dashes of all outlines of one drawing.
inline constexpr double Dashes = 5e7;

} // namespace svglimits
