#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include <algorithm>
#include <array>
#include <functional>
#include <optional>

/// The texts of SVG attributes and style sheets: styles, lengths, coordinate lists.
namespace svglimits {

/// Whether a table of names has this one.
template <std::size_t Size>
[[nodiscard]] bool contains(const std::array<QStringView, Size>& names, QStringView name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// Whether the text names something outside the document: a url() other than "#fragment",
/// an import, or an escape that could hide either.
[[nodiscard]] bool pointsOutside(QStringView css);

/// Replaces the value of one declaration; an empty answer leaves the declaration out.
using DeclarationFilter = std::function<QString(const QString& name, const QString& value)>;

/// A `style` attribute with every declaration passed through the filter; those that point
/// outside are left out.
[[nodiscard]] QString filterDeclarations(const QString& style, const DeclarationFilter& filter);

/// The text of a `style` element, or nothing if any of it points outside.
[[nodiscard]] QString filterStyleSheet(const QString& css, bool keepDashes);

/// The values of all stroke-dasharray declarations of a style sheet.
[[nodiscard]] QStringList dashArrays(const QString& css);

/// The text inside each url(#...) of an attribute's value.
[[nodiscard]] QStringList urlFragments(QStringView value);

/// Points per user unit, the pixel of 1/96 inch.
inline constexpr double PointsPerUserUnit = 72.0 / 96.0;

/// A length as it is written: a number and its unit.
struct SvgLength
{
    double value = 0.0;
    bool percent = false;
    /// User units per unit of the number; 1 for a percentage.
    double userUnits = 1.0;

    /// The length in user units; a percentage has none.
    [[nodiscard]] double inUserUnits() const { return value * userUnits; }
};

/// Reads "12.5mm", "3e2", "50%"; nothing if the text is not a finite length or its unit is
/// unknown.
[[nodiscard]] std::optional<SvgLength> parseSvgLength(QStringView text);

/// Statistics of the numbers in an attribute.
struct NumberSummary
{
    qint64 count = 0;
    /// Largest absolute value; infinite if a number is too large for a double.
    double greatest = 0.0;
    double sum = 0.0;
};

/// Counts and measures every number in the text, whatever separates them.
[[nodiscard]] NumberSummary summarizeNumbers(QStringView text);

} // namespace svglimits
