#include "workbench/canvas/item_factory.h"

#include "host/tal_canvas_model.h"
#include "workbench/items/barcode_item.h"
#include "workbench/items/line_item.h"
#include "workbench/items/pix_map_item.h"
#include "workbench/items/rich_text_item.h"
#include "workbench/items/shape_items.h"
#include "workbench/items/simple_text_item.h"
#include "workbench/items/symbol_item.h"

#include <QGraphicsItem>

#include <array>
#include <memory>

namespace workbench {

namespace {

using Maker = std::unique_ptr<Item> (*)(KestTypes::ShapeType);

template <class Class>
std::unique_ptr<Item> make(KestTypes::ShapeType type)
{
    return std::make_unique<Class>(type);
}

struct Row
{
    KestTypes::ShapeType type;
    Maker maker;
};

constexpr std::array Rows{
    Row{KestTypes::Picture, make<PixMapItem>},
    Row{KestTypes::Symbol, make<SymbolItem>},
    Row{KestTypes::SimpleText, make<SimpleTextItem>},
    Row{KestTypes::RichText, make<RichTextItem>},
    Row{KestTypes::Barcode, make<BarcodeItem>},
    Row{KestTypes::Line, make<LineItem>},
    Row{KestTypes::Rectangle, make<RectangleItem>},
    Row{KestTypes::RoundedRectangle, make<RoundedRectangleItem>},
    Row{KestTypes::Ellipse, make<EllipseItem>},
    Row{KestTypes::Pie, make<PieItem>},
    Row{KestTypes::RightTriangle, make<PolygonItem>},
    Row{KestTypes::Triangle, make<PolygonItem>},
    Row{KestTypes::Diamond, make<PolygonItem>},
    Row{KestTypes::Pentagon, make<PolygonItem>},
    Row{KestTypes::Hexagon, make<PolygonItem>},
    Row{KestTypes::Octagon, make<PolygonItem>},
};

std::unique_ptr<Item> makeItem(KestTypes::ShapeType type)
{
    for (const Row& row : Rows) {
        if (row.type == type) {
            return row.maker(type);
        }
    }
    return nullptr;
}

void applyDefaultColor(Item* item, const QColor& color)
{
    if (auto* pen = dynamic_cast<PenItem*>(item)) {
        pen->setPenColor(color);
    }
    if (auto* text = dynamic_cast<TextColorItem*>(item)) {
        text->setTextColor(color);
    }
    if (auto* barcode = dynamic_cast<::BarcodeItem*>(item)) {
        barcode->setForegroundColor(color);
    }
    if (auto* symbol = dynamic_cast<::SymbolItem*>(item)) {
        symbol->setForegroundColor(color);
    }
}

} // namespace

ItemFactory::ItemFactory(const TalCanvasModel& canvas)
    : m_canvas(canvas)
{}

Item* ItemFactory::create(KestTypes::ShapeType type)
{
    std::unique_ptr<Item> item = makeItem(type);
    applyDefaultColor(item.get(), m_canvas.canvasDefaultPenColor());
    // The reader of a document without a stacking order places a text just above its shape: the
    // next shape must be above both. An order that the reader sets replaces this one.
    if (auto* graphics = dynamic_cast<QGraphicsItem*>(item.get())) {
        m_topZ += 1.0;
        graphics->setZValue(m_topZ);
    }
    return item.release();
}

} // namespace workbench
