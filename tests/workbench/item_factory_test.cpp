// Every code of the contract gives an item of its class with all facets.

#include "painted.h"

#include "host/items/barcode_item.h"
#include "host/items/line_item.h"
#include "host/items/pie_item.h"
#include "host/items/pix_map_item.h"
#include "host/items/polygon_item.h"
#include "host/items/rich_text_item.h"
#include "host/items/rounded_rectangle_item.h"
#include "host/items/simple_text_item.h"
#include "host/items/symbol_item.h"
#include "workbench/items/canvas_item.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

using Test = bool (*)(Item*);

template <class... Faces>
bool hasAll(Item* item)
{
    return (... && (dynamic_cast<Faces*>(item) != nullptr));
}

constexpr Test FillableFacets =
    hasAll<QGraphicsItem, QObject, ISizeItem, IBasicItem, ITemplateLockItem, IColorItem, PenItem,
           FillColorItem, IBrushItem, FillableItem>;
constexpr Test TextFacets =
    hasAll<QGraphicsTextItem, TextItem, PenItem, FillColorItem, IBrushItem, TextColorItem,
           ITextGenericItem, IFontItem, ITextAlignItem, IDatasourceItem>;

struct Row
{
    KestTypes::ShapeType type;
    Test itsClass;
    Test faces;
};

const Row FacetRows[] = {
    {KestTypes::Picture, hasAll<PixMapItem>,
     hasAll<QGraphicsPixmapItem, QObject, ISizeItem, ImageableItem, ResizeRotatedHelper,
            IGraphicItem, IDatasourceItem>},
    {KestTypes::Symbol, hasAll<SymbolItem>,
     hasAll<QGraphicsSvgItem, ISizeItem, IColorItem, ResizeRotatedHelper, FillColorItem,
            IDatasourceItem>},
    {KestTypes::SimpleText, hasAll<SimpleTextItem, ITextLabelItem, ResizeRotatedHelper>,
     TextFacets},
    {KestTypes::RichText, hasAll<RichTextItem, IRichTextItem>, TextFacets},
    {KestTypes::Barcode, hasAll<BarcodeItem>,
     hasAll<QGraphicsItem, QObject, ISizeItem, FillColorItem, TextColorItem, IFontItem,
            ITextAlignItem, IBarcodeItem, IDatasourceItem>},
    {KestTypes::Line, hasAll<LineItem, ILineItem>,
     hasAll<QGraphicsLineItem, ISizeItem, IColorItem, PenItem, ContouredItem>},
    {KestTypes::Rectangle, hasAll<RectangleItem, QGraphicsRectItem>, FillableFacets},
    {KestTypes::RoundedRectangle, hasAll<RoundedRectangleItem, IRoundRectItem>, FillableFacets},
    {KestTypes::Ellipse, hasAll<EllipseItem, QGraphicsEllipseItem>, FillableFacets},
    {KestTypes::Pie, hasAll<PieItem, IPieItem>, FillableFacets},
    {KestTypes::RightTriangle, hasAll<PolygonItem, QGraphicsPolygonItem>, FillableFacets},
    {KestTypes::Triangle, hasAll<PolygonItem>, FillableFacets},
    {KestTypes::Diamond, hasAll<PolygonItem>, FillableFacets},
    {KestTypes::Pentagon, hasAll<PolygonItem>, FillableFacets},
    {KestTypes::Hexagon, hasAll<PolygonItem>, FillableFacets},
    {KestTypes::Octagon, hasAll<PolygonItem>, FillableFacets},
};

} // namespace

TEST(ItemFactory, EveryCodeGivesAnItemOfItsClassWithAllItsFacets)
{
    workbench::Canvas canvas;
    for (const Row& row : FacetRows) {
        SCOPED_TRACE(row.type);
        const std::unique_ptr<Item> item(canvas.getClassFactory()->create(row.type));
        ASSERT_NE(item, nullptr);
        EXPECT_TRUE(row.itsClass(item.get()));
        EXPECT_TRUE(row.faces(item.get()));
        auto* canvasItem = dynamic_cast<workbench::CanvasItem*>(item.get());
        ASSERT_NE(canvasItem, nullptr);
        EXPECT_EQ(canvasItem->shapeType(), row.type);
        EXPECT_EQ(canvasItem->contractItem(), item.get());
        EXPECT_EQ(canvasItem->graphicsItem(), dynamic_cast<QGraphicsItem*>(item.get()));
    }
}

TEST(ItemFactory, ACodeThatNamesNoItemGivesNone)
{
    workbench::Canvas canvas;
    for (const int code : {0, -1, 0x10000, 0x1002D, 0x10039}) {
        EXPECT_EQ(canvas.getClassFactory()->create(static_cast<KestTypes::ShapeType>(code)),
                  nullptr);
    }
}

TEST(ItemFactory, NewItemsHaveTheColorOfThePrint)
{
    workbench::Canvas canvas;
    canvas.setCanvasDefaultPenColor(Qt::darkRed);
    const auto colorsOf = [&canvas](KestTypes::ShapeType type) {
        const std::unique_ptr<Item> item(canvas.getClassFactory()->create(type));
        return dynamic_cast<workbench::CanvasItem&>(*item).values();
    };

    EXPECT_EQ(colorsOf(KestTypes::Rectangle).pen->color, QColor(Qt::darkRed));
    EXPECT_EQ(colorsOf(KestTypes::Line).pen->color, QColor(Qt::darkRed));
    EXPECT_EQ(colorsOf(KestTypes::RichText).textStyle->color, QColor(Qt::darkRed));
    EXPECT_EQ(colorsOf(KestTypes::Barcode).barcode->foreground, QColor(Qt::darkRed));
    EXPECT_EQ(colorsOf(KestTypes::Symbol).symbol->foreground, QColor(Qt::darkRed));
}

TEST(ItemFactory, NewItemsHaveNoSizeAndCanBeMoved)
{
    workbench::Canvas canvas;
    for (const Row& row : FacetRows) {
        SCOPED_TRACE(row.type);
        const std::unique_ptr<Item> item(canvas.getClassFactory()->create(row.type));
        EXPECT_EQ(item->getItemSize(), QSizeF(0.0, 0.0));
        EXPECT_TRUE(
            dynamic_cast<QGraphicsItem&>(*item).flags().testFlag(QGraphicsItem::ItemIsMovable));
    }
}
