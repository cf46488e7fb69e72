#pragma once

#include <QColor>
#include <QPalette>
#include <QRectF>

class QPainter;

namespace window {

// What of a label's surroundings is painted on the screen. The painter's unit is the point.

/// The color around the page: darker than the window in a light palette,
/// and in a dark one too.
[[nodiscard]] QColor surroundingsColor(const QPalette& palette);

/// The page's shadow, its ground and its outline. The shadow has the same width on the
/// screen whatever the zoom.
void paintPageGround(QPainter& painter, const QRectF& page, const QColor& ground,
                     double pixelsPerPoint);

/// Veils what of the visible part lies outside the page.
void paintPageSurroundings(QPainter& painter, const QRectF& page, const QRectF& visible,
                           const QColor& session);

} // namespace window
