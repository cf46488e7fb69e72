#include "opendocument/item_builder.h"

#include "building/item_creation.h"
#include "opendocument/log.h"

#include "host/class_factory.h"
#include "host/items/ellipse_item.h"
#include "host/items/line_item.h"
#include "host/items/pie_item.h"
#include "host/items/pix_map_item.h"
#include "host/items/polygon_item.h"
#include "host/items/rectangle_item.h"
#include "host/items/rich_text_item.h"
#include "host/items/rounded_rectangle_item.h"
#include "host/items/symbol_item.h"

#include "host/tal_canvas_model.h"
#include "messages/refusals.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace opendocument {

namespace {

using namespace Qt::StringLiterals;

template <class Class>
NewShape shapeOf(ClassFactory* factory, KestTypes::ShapeType type)
{
    NewItem<Class> made = makeItem<Class>(factory, type);
    if (!made) {
        return {};
    }
    auto* corners = dynamic_cast<IRoundRectItem*>(made.item);
    return {std::move(made.owned), made.item, made.item, corners};
}

struct ShapeClass
{
    KestTypes::ShapeType type;
    NewShape (*make)(ClassFactory* factory, KestTypes::ShapeType type);
};

constexpr ShapeClass ShapeClasses[] = {
    {KestTypes::Rectangle, shapeOf<RectangleItem>},
    {KestTypes::RoundedRectangle, shapeOf<RoundedRectangleItem>},
    {KestTypes::Ellipse, shapeOf<EllipseItem>},
    {KestTypes::Pie, shapeOf<PieItem>},
    {KestTypes::RightTriangle, shapeOf<PolygonItem>},
    {KestTypes::Triangle, shapeOf<PolygonItem>},
    {KestTypes::Diamond, shapeOf<PolygonItem>},
    {KestTypes::Pentagon, shapeOf<PolygonItem>},
    {KestTypes::Hexagon, shapeOf<PolygonItem>},
    {KestTypes::Octagon, shapeOf<PolygonItem>},
};

void completePen(OOGraphicStyle& style)
{
    if (style.penStyle == PenStyleNotGiven) {
        style.penStyle = style.penWidth != 0 ? Qt::SolidLine : Qt::NoPen;
    }
    style.penWidth = std::clamp<int>(style.penWidth, 0, std::numeric_limits<quint16>::max());
    if (style.penStyle != Qt::NoPen && style.penWidth == 0) {
        style.penWidth = 1;
    }
}

void applyEnds(PenItem& pen, const OOGraphicStyle& style)
{
    if (style.penStyle == Qt::NoPen) {
        return;
    }
    if (style.capStyle != CapStyleNotGiven) {
        pen.setCapStyle(style.capStyle);
    }
    if (style.joinStyle != JoinStyleNotGiven) {
        pen.setJoinStyle(style.joinStyle);
    }
}

void applyFill(FillableItem& shape, OOGraphicStyle& style)
{
    if (style.brushStyle == BrushStyleNotGiven) {
        style.brushStyle = Qt::NoBrush;
    }
    shape.setBrushStyle(style.brushStyle);
    if (!style.fillColor.isEmpty()) {
        // Text that is not a color gives an invalid one, which hosts ignore.
        shape.setFillColor(QColor::fromString(style.fillColor));
    }
}

} // namespace

template <class Target>
NewItem<Target> makeItem(ClassFactory* factory, KestTypes::ShapeType type)
{
    auto created = building::createItem<Target>(factory, type);
    NewItem<Target> made;
    made.item = created.get();
    made.owned = std::move(created);
    if (made.item == nullptr) {
        logDebug(
            "item_builder", __LINE__, Q_FUNC_INFO,
            u"The host gives no item of the class that belongs to type %1; it is left out"_s.arg(
                int(type)),
            refusals::ItemRefused);
    }
    return made;
}

template NewItem<LineItem> makeItem(ClassFactory*, KestTypes::ShapeType);
template NewItem<RichTextItem> makeItem(ClassFactory*, KestTypes::ShapeType);
template NewItem<PixMapItem> makeItem(ClassFactory*, KestTypes::ShapeType);
template NewItem<SymbolItem> makeItem(ClassFactory*, KestTypes::ShapeType);

bool handOver(TalCanvasModel& canvas, std::unique_ptr<Item> item)
{
    const bool isKept = building::handOver(canvas, std::move(item)) != nullptr;
    if (!isKept) {
        logDebug("item_builder", __LINE__, Q_FUNC_INFO,
                 u"The host deleted an item when it got it; it is left out"_s,
                 refusals::ItemRefused);
    }
    return isKept;
}

NewShape makeShape(ClassFactory* factory, KestTypes::ShapeType type)
{
    const auto* found = std::find_if(std::begin(ShapeClasses), std::end(ShapeClasses),
                                     [type](const ShapeClass& row) { return row.type == type; });
    return found != std::end(ShapeClasses) ? found->make(factory, type) : NewShape();
}

void applyPen(Item& item, PenItem& pen, OOGraphicStyle& style)
{
    item.setFlipHorizontal(style.mirrorHorizontal);
    item.setFlipVertical(style.mirrorVertical);
    completePen(style);
    pen.setPenStyle(style.penStyle);
    pen.setPenWidth(static_cast<quint16>(style.penWidth));
    if (!style.penColor.isEmpty()) {
        // Text that is not a color gives an invalid one, which hosts ignore.
        pen.setPenColor(QColor::fromString(style.penColor));
    }
    applyEnds(pen, style);
}

void applyShapeStyle(FillableItem& shape, OOGraphicStyle& style, Geometry& geometry)
{
    completeSize(shape, geometry.size);
    shape.setItemSize(geometry.size);
    applyPen(shape, shape, style);
    if (!geometry.hasRotation()) {
        geometry.rotation = style.rotation;
    }
    if (geometry.hasRotation()) {
        shape.setItemRotation(geometry.rotation);
    }
    applyFill(shape, style);
}

void completeSize(const Item& item, QSizeF& size)
{
    if (!(size.width() > 0)) {
        size.setWidth(item.getItemWidth());
    }
    if (!(size.height() > 0)) {
        size.setHeight(item.getItemHeight());
    }
}

void setPosition(QGraphicsItem& item, const QPointF& position)
{
    if (std::isfinite(position.x()) && std::isfinite(position.y())) {
        item.setPos(position);
    }
}

} // namespace opendocument
