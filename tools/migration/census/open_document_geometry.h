#pragma once

#include <QPolygonF>
#include <QRectF>
#include <QStringView>
#include <QXmlStreamAttributes>

#include <optional>

/// Where a document draws an object. Independent of the readers, like all of the census.
namespace migration {

/// A length with its own unit, in points; nothing if it has none that is known.
[[nodiscard]] std::optional<double> lengthInPoints(QStringView length);

/// The corners of an object on its page, in points, as drawn: transformed. The two ends of a line.
/// Empty if its place or its size depends on the text flow, or cannot be read.
[[nodiscard]] QPolygonF outlineOf(const QXmlStreamAttributes& attributes);

/// The box around an object in millimeters. Nothing if it has no position; a missing size is 0.
[[nodiscard]] std::optional<QRectF> boxOf(const QXmlStreamAttributes& attributes);

} // namespace migration
