#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace repair {

class Node;

inline constexpr double DegreesPerRadian = 57.29577951308232;
/// Points: what a line of no width looks like in print.
inline constexpr double Hairline = 0.3;

/// A length with a unit, in points. Nothing for other texts.
[[nodiscard]] std::optional<double> toPoints(QStringView length);

/// A length attribute in points; 0 if it is missing or not a length.
[[nodiscard]] double pointsOf(const Node& node, QStringView attribute);

/// A length as the repaired documents state it, in inches.
[[nodiscard]] QString toInches(double points);

/// Writes all lengths of a document in inches: the reader takes every number in the unit of
/// the page's width, and a millimeter as ten.
/// @return how many lengths had another unit
int convertLengths(Node& root);

} // namespace repair
