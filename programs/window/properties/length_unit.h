#pragma once

#include <QString>
#include <QtGlobal>

namespace window {

/// The unit for displayed lengths. Labels are stored in points.
enum class LengthUnit : quint8 { Millimeter, Inch };

[[nodiscard]] constexpr double pointsPerUnit(LengthUnit unit)
{
    return unit == LengthUnit::Inch ? 72.0 : 72.0 / 25.4;
}

[[nodiscard]] constexpr double inUnit(double points, LengthUnit unit)
{
    return points / pointsPerUnit(unit);
}

/// "mm" or "in".
[[nodiscard]] QString unitSymbol(LengthUnit unit);

/// A length in points as a number in the unit, in the user's locale: two decimals
/// for millimeters, three for inches.
[[nodiscard]] QString lengthNumber(double points, LengthUnit unit);

/// The number with its unit: "12.50 mm".
[[nodiscard]] QString lengthText(double points, LengthUnit unit);

/// Width by height: "100.00 × 50.00 mm".
[[nodiscard]] QString areaText(double width, double height, LengthUnit unit);

} // namespace window
