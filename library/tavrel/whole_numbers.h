#pragma once

#include <QtGlobal>

/// Lengths in dots as whole points.
///
/// A file may bring any number and any resolution, and C++ gives no meaning to a
/// conversion that does not fit. What does not fit becomes the nearest integer that
/// there is; not a number becomes 0.
namespace tavrel {

/// Cuts the fraction off, toward zero.
[[nodiscard]] qint32 saturatedToInt32(double value);
/// Rounds, halves away from zero: font sizes and module widths.
[[nodiscard]] qint32 roundedPoints(qint32 dots, double dotsPerInch);
/// Truncates, then keeps the low 16 bits: pen widths. Old labels depend on both.
[[nodiscard]] quint16 penWidth(qint32 dots, double dotsPerInch);

} // namespace tavrel
