#pragma once

#include "migration/model/census.h"

#include <QString>
#include <QXmlStreamAttributes>

#include <bitset>

/// The properties of styles that labels do not show.
namespace migration {

/// A bit for each row of the table of properties.
using DroppedProperties = std::bitset<96>;

/// What a property changes.
enum class PropertyTarget : quint8 { Text, Shape, ShapeText };

/// Sets and clears the properties that an element of a style gives.
///
/// @param group "text", "paragraph" or "graphic", or the name of another element of a style
void takeDropped(const QString& group, const QXmlStreamAttributes& attributes,
                 DroppedProperties& dropped);
[[nodiscard]] LossSet changesOf(const DroppedProperties& dropped, PropertyTarget target);

/// Whether a length or share is not 0.
[[nodiscard]] bool isNonZero(const QString& value);
/// Whether lines of text run from top to bottom, or from bottom to top.
[[nodiscard]] bool isVerticalMode(QStringView writingMode);

} // namespace migration
