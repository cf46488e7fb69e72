#pragma once

#include <functional>

class QPainter;

namespace workbench {

class Canvas;
class CanvasItem;

/// Called before an item is painted, with its position in the stack, counted from 1.
using BeforeItem = std::function<void(int position)>;

/// Paints the page and its items from bottom to top, clipped to the page.
///
/// The painter's unit must be the point, its origin the upper left corner of the page.
/// Pictures, prints and vector files all use this function, so that they look alike.
void paintPage(QPainter& painter, const Canvas& canvas, const BeforeItem& beforeItem = {});

/// Whether paintPage() paints an item: part of it is on the page.
[[nodiscard]] bool isOnPage(const CanvasItem& item, const Canvas& canvas);

/// Paints one item at its place on the page, as paintPage() does.
void paintItem(QPainter& painter, const CanvasItem& item);

/// Paints one item in its own coordinates: without its position and its rotation.
void paintUnplacedItem(QPainter& painter, const CanvasItem& item);

} // namespace workbench
