#pragma once

#include "opendocument/geometry.h"
#include "opendocument/graphic_style.h"

#include "host/kest_types.h"

#include <QSizeF>

#include <memory>

class ClassFactory;
class FillableItem;
class IRoundRectItem;
class Item;
class PenItem;
class QGraphicsItem;
class TalCanvasModel;

namespace opendocument {

/// A new item as its owner and as the class that it is. It is ours until the canvas takes it.
template <class Wanted>
struct NewItem
{
    std::unique_ptr<Item> owned;
    Wanted* item = nullptr; ///< the same item; null where there is none

    explicit operator bool() const { return item != nullptr; }
    Wanted* operator->() const { return item; }
};

/// Makes an item. Empty, and a record in the log, where the factory gives none of the class.
template <class Wanted>
[[nodiscard]] NewItem<Wanted> makeItem(ClassFactory* factory, KestTypes::ShapeType type);

/// Gives an item to the canvas, which owns it from then on.
/// @return whether the item is still there; false, and a record in the log, when the canvas
///         did not want it and has deleted it
[[nodiscard]] bool handOver(TalCanvasModel& canvas, std::unique_ptr<Item> item);

/// A new shape with outline and inside: rectangle, ellipse, pie or polygon.
struct NewShape
{
    std::unique_ptr<Item> owned;
    FillableItem* fillable = nullptr;
    QGraphicsItem* graphics = nullptr;
    IRoundRectItem* corners = nullptr; ///< null where the shape has no round corners

    explicit operator bool() const { return fillable != nullptr; }
};

/// Makes the shape of a type. Empty, and a record in the log, for a type that is no such
/// shape and where the factory gives no item of the type's class.
[[nodiscard]] NewShape makeShape(ClassFactory* factory, KestTypes::ShapeType type);

/// Sets flips and outline. Completes the pen of the style: a missing pen style, a width outside
/// 0 to 65535, and the width of a visible pen without one.
void applyPen(Item& item, PenItem& pen, OOGraphicStyle& style);

/// Sets size, flips, outline, rotation and inside of a shape.
/// @param geometry its size is completed by the item's own where it has none; its rotation
///                 by the style's
void applyShapeStyle(FillableItem& shape, OOGraphicStyle& style, Geometry& geometry);

/// Replaces a width or height that is not above 0 by the item's own.
void completeSize(const Item& item, QSizeF& size);

/// Sets a position, unless arithmetic with enormous lengths has left it without a value.
void setPosition(QGraphicsItem& item, const QPointF& position);

} // namespace opendocument
