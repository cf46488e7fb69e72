#pragma once

#include <QSizeF>
#include <QStringView>

#include <optional>

/// Lengths of SVG documents.
namespace workbench::symbols {

/// Points of one user unit, which is the pixel of 1/96 inch.
inline constexpr double PointsPerUserUnit = 72.0 / 96.0;

/// A length as it is written: a number and what it counts.
struct SvgLength
{
    double value = 0.0;
    bool percent = false;
    /// User units of one of what the number counts; 1 for a percentage.
    double userUnits = 1.0;

    /// The length in user units; a percentage has none.
    [[nodiscard]] double inUserUnits() const { return value * userUnits; }
};

/// Reads "12.5mm", "3e2", "50%"; nothing when the text is no finite length or its unit is not
/// known.
[[nodiscard]] std::optional<SvgLength> parseSvgLength(QStringView text);

} // namespace workbench::symbols
