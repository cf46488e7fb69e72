#pragma once

#include "host/kest_types.h"

#include <QString>

#include <optional>

/// Names of the item types: one table for saved labels, reports and the window.
namespace workbench {

/// The name in saved labels, "roundedRectangle"; empty for an unknown type.
[[nodiscard]] QString savedNameOf(KestTypes::ShapeType type);
[[nodiscard]] std::optional<KestTypes::ShapeType> typeOfSavedName(const QString& name);

/// The code in reports, "rounded-rectangle"; "item" for an unknown type.
[[nodiscard]] QString shapeCode(KestTypes::ShapeType type);

/// The translated title for the user, "Rounded rectangle"; empty for an unknown
/// type.
[[nodiscard]] QString shapeTitle(KestTypes::ShapeType type);
/// The title for a code of a report; the code itself if it is unknown.
[[nodiscard]] QString shapeTitle(const QString& code);

} // namespace workbench
