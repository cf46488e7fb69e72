#pragma once

#include "opendocument/element_geometry.h"
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

/// A new item, by its owner and by its class. Owned by the reader until the canvas takes it.
template <class Target>
struct NewItem
{
    std::unique_ptr<Item> owned;
    Target* item = nullptr; ///< the same item; null if there is none

    explicit operator bool() const { return item != nullptr; }
    Target* operator->() const { return item; }
};

/// Creates an item. Empty, and logged, if the factory returns no item of the class.
template <class Target>
[[nodiscard]] NewItem<Target> makeItem(ClassFactory* factory, KestTypes::ShapeType type);

/// Adds an item to the canvas, which then owns it.
/// @return whether the item still exists; false, and logged, if the canvas
///         rejected and deleted it
[[nodiscard]] bool handOver(TalCanvasModel& canvas, std::unique_ptr<Item> item);

/// A new shape with outline and fill: rectangle, ellipse, pie or polygon.
struct NewShape
{
    std::unique_ptr<Item> owned;
    FillableItem* fillable = nullptr;
    QGraphicsItem* graphics = nullptr;
    IRoundRectItem* corners = nullptr; ///< null if the shape has no round corners

    explicit operator bool() const { return fillable != nullptr; }
};

/// Creates the shape of a type. Empty, and logged, for a type that is not such a
/// shape and if the factory returns no item of the type's class.
[[nodiscard]] NewShape makeShape(ClassFactory* factory, KestTypes::ShapeType type);

/// Sets flips and outline. Completes the pen of the style: a missing pen style, a width outside
/// 0 to 65535, and the width of a visible pen without one.
void applyPen(Item& item, PenItem& pen, OOGraphicStyle& style);

/// Sets size, flips, outline, rotation and fill of a shape.
/// @param geometry a missing size is completed by the item's own, a missing rotation
///                 by the style's
void applyShapeStyle(FillableItem& shape, OOGraphicStyle& style, Geometry& geometry);

/// Replaces a width or height that is not above 0 by the item's own.
void completeSize(const Item& item, QSizeF& size);

/// Sets a position, unless overflow in its computation has made it invalid.
void setPosition(QGraphicsItem& item, const QPointF& position);

} // namespace opendocument
