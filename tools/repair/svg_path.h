#pragma once

#include <QPainterPath>
#include <QString>

#include <optional>

namespace repair {

/// The path of an svg:d attribute. Nothing if it has a command or number that is not
/// understood, or too many points.
[[nodiscard]] std::optional<QPainterPath> parseSvgPath(const QString& data);

/// The corners of a draw:points attribute, "x,y x,y".
[[nodiscard]] std::optional<QPainterPath> parsePoints(const QString& points, bool isClosed);

/// A number for an SVG document.
[[nodiscard]] QString svgNumber(double value);

/// The data of a path for an SVG document, in points.
[[nodiscard]] QString toSvgPath(const QPainterPath& path);

/// Appends an elliptical arc as SVG describes it.
void addSvgArc(QPainterPath& path, const QSizeF& radii, double rotation, bool isLarge,
               bool isClockwise, const QPointF& end);

} // namespace repair
