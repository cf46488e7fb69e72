#pragma once

#include "limits/xml/element_tree.h"

#include <QString>
#include <QStringView>

#include <optional>

namespace opendocument {

/// The unit that all lengths of a document are read in: that of the page width.
struct LengthUnit
{
    QString suffix = QStringLiteral("in");
    double factor = 72.0; ///< points per unit
};

/// The number in a text, with a decimal point whatever the locale. Nothing for a text that
/// is no number, and for infinities and NaN, which would spread through all arithmetic.
[[nodiscard]] std::optional<double> toNumber(QStringView text);

/// A text without its last characters; empty when it has no more than those.
[[nodiscard]] QStringView withoutTail(QStringView text, qsizetype count);

/// The unit of a length as it is written: the last two characters, or the whole text when
/// it is shorter than three.
[[nodiscard]] QString unitOf(const QString& length);

/// Points per unit; nothing for a unit that is not known.
[[nodiscard]] std::optional<double> pointsPerUnit(QStringView unit);

/// A length in points: the text without its last two characters, times the factor. Its own
/// unit is not looked at, because old labels rely on being read in the page's unit throughout.
[[nodiscard]] std::optional<double> toLength(QStringView text, double unitFactor);

/// Reads an attribute as a length in points. Leaves the target alone when the attribute is
/// absent or no length; returns whether it was set.
bool readLength(const xmllimits::Element& element, const QString& name, double unitFactor,
                double& target);

} // namespace opendocument
