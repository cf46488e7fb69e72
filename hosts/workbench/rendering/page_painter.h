#pragma once

class QPainter;

namespace workbench {

class Canvas;

/// Paints the page and its items as they lie on one another; nothing goes beyond the page.
///
/// The painter's unit must be the point, its origin the upper left corner of the page.
/// Every output goes through here, so a picture, a print and a vector file show the same.
void paintPage(QPainter& painter, const Canvas& canvas);

} // namespace workbench
