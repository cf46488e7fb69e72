#pragma once

#include <QColor>
#include <QList>
#include <QPalette>
#include <QRectF>

class QPainter;

namespace window {

// The surroundings of a label on the screen. The painter's unit is the point.

/// The color around the page: darker than the window in light and
/// dark palettes.
[[nodiscard]] QColor surroundingsColor(const QPalette& palette);

/// The page's shadow, background and outline. The width of the shadow on the
/// screen does not depend on the zoom.
void paintPageGround(QPainter& painter, const QRectF& page, const QColor& ground,
                     double pixelsPerPoint);

/// Dims the visible area outside the page.
void paintPageSurroundings(QPainter& painter, const QRectF& page, const QRectF& visible,
                           const QColor& session);

/// Dashed outlines, visible on light and dark grounds.
void paintOutlines(QPainter& painter, const QList<QRectF>& boxes);

} // namespace window
