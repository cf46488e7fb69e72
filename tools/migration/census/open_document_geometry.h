#pragma once

#include <QRectF>
#include <QXmlStreamAttributes>

#include <optional>

namespace migration {

/// The box of a drawing element in millimeters, as its own attributes state it. Nothing if they
/// have no position. Of a rotated object: the box around it.
[[nodiscard]] std::optional<QRectF> boxOf(const QXmlStreamAttributes& attributes);

} // namespace migration
