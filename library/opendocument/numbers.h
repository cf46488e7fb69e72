#pragma once

#include "limits/xml/element_tree.h"

#include <QString>
#include <QStringView>

#include <optional>

namespace opendocument {

/// The unit of all lengths of a document: that of the page width.
struct LengthUnit
{
    QString suffix = QLatin1String("in");
    double factor = 72.0; ///< points per unit
};

/// The number in a text, with a decimal point in any locale. Nothing for a text that is
/// not a number, and for infinities and NaN, which would spread through all arithmetic.
[[nodiscard]] std::optional<double> toNumber(QStringView text);

/// A text without its last characters; empty if it has no more than those.
[[nodiscard]] QStringView withoutTail(QStringView text, qsizetype count);

/// The unit of a length as written: the last two characters, or the complete text if
/// it is shorter than three.
[[nodiscard]] QString unitOf(const QString& length);

/// Points per unit; nothing for an unknown unit.
[[nodiscard]] std::optional<double> pointsPerUnit(QStringView unit);

/// A length in points: the text without its last two characters, times the factor. Its own
/// unit is ignored, because old labels rely on being read in the page's unit throughout.
[[nodiscard]] std::optional<double> toLength(QStringView text, double unitFactor);

/// Reads an attribute as a length in points. Does not change the target if the attribute is
/// absent or invalid; returns whether it was set.
bool readLength(const xmllimits::Element& element, const QString& name, double unitFactor,
                double& target);

} // namespace opendocument
