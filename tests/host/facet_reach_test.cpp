// An importer gets an Item from the factory and finds all other bases with dynamic_cast. These
// tests cast to every facet of every class, on the items of a real host.

#include "host/class_factory.h"
#include "host/tal_canvas_model.h"
#include "recorder/items/recorded_items.h"
#include "recorder/recording_host.h"

#include <QBuffer>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace {

class FacetReach : public ::testing::Test
{
protected:
    FacetReach() { m_out.open(QIODevice::WriteOnly); }

    std::unique_ptr<Item> make(KestTypes::ShapeType type)
    {
        return std::unique_ptr<Item>(m_host.canvasModel()->getClassFactory()->create(type));
    }

    template <typename... Facets>
    void expectReached(KestTypes::ShapeType type)
    {
        SCOPED_TRACE(type);
        const std::unique_ptr<Item> item = make(type);
        ASSERT_NE(item, nullptr);
        const std::vector<bool> reached{dynamic_cast<Facets*>(item.get()) != nullptr...};
        EXPECT_EQ(reached, std::vector<bool>(sizeof...(Facets), true));
        // And back, from the type in the canvas's lists.
        auto* graphics = dynamic_cast<QGraphicsItem*>(item.get());
        EXPECT_EQ(dynamic_cast<Item*>(graphics), item.get());
    }

    template <typename Class, typename... Further>
    void expectShape(KestTypes::ShapeType type)
    {
        expectReached<QGraphicsItem, QObject, Class, FillableItem, ContouredItem, ColoredItem,
                      PenItem, FillColorItem, IBrushItem, IColorItem, ITemplateLockItem, IBasicItem,
                      Further...>(type);
    }

    template <typename Class, typename... Further>
    void expectText(KestTypes::ShapeType type)
    {
        expectShape<Class, QGraphicsTextItem, TextItem, TextColorItem, ITextGenericItem, IFontItem,
                    ITextAlignItem, IDatasourceItem, ISizeItem, Further...>(type);
    }

    QBuffer m_out;
    recorder::RecordingHost m_host{m_out};
};

TEST_F(FacetReach, Shapes)
{
    expectShape<RectangleItem, QGraphicsRectItem, ISizeItem>(KestTypes::Rectangle);
    expectShape<EllipseItem, QGraphicsEllipseItem, ISizeItem>(KestTypes::Ellipse);
    expectShape<PieItem, EllipseItem, QGraphicsEllipseItem, IPieItem, ISizeItem>(KestTypes::Pie);
}

TEST_F(FacetReach, Polygons)
{
    for (int code = KestTypes::RightTriangle; code <= KestTypes::Octagon; ++code) {
        expectShape<PolygonItem, QGraphicsPolygonItem, ISizeItem>(
            static_cast<KestTypes::ShapeType>(code));
    }
}

TEST_F(FacetReach, RoundedRectangleHasTwoSizesThatAreOne)
{
    expectShape<RoundedRectangleItem, RectangleItem, QGraphicsRectItem, IRoundRectItem>(
        KestTypes::RoundedRectangle);

    const std::unique_ptr<Item> item = make(KestTypes::RoundedRectangle);
    item->setItemSize({30, 20});
    auto* corners = dynamic_cast<IRoundRectItem*>(item.get());
    EXPECT_EQ(corners->getItemSize(), QSizeF(30, 20));
    corners->setItemSize({7, 8});
    EXPECT_EQ(item->getItemWidth(), 7);
    EXPECT_EQ(item->getItemHeight(), 8);
}

TEST_F(FacetReach, Line)
{
    expectReached<QGraphicsItem, QObject, QGraphicsLineItem, LineItem, ContouredItem, ColoredItem,
                  PenItem, IColorItem, ILineItem, ITemplateLockItem, ISizeItem>(KestTypes::Line);
    // A line has no fill.
    EXPECT_EQ(dynamic_cast<FillColorItem*>(make(KestTypes::Line).get()), nullptr);
}

TEST_F(FacetReach, Texts)
{
    expectText<SimpleTextItem, ResizeRotatedHelper, ITextLabelItem>(KestTypes::SimpleText);
    expectText<RichTextItem, IRichTextItem>(KestTypes::RichText);
    EXPECT_EQ(dynamic_cast<IRichTextItem*>(make(KestTypes::SimpleText).get()), nullptr);
    EXPECT_EQ(dynamic_cast<ITextLabelItem*>(make(KestTypes::RichText).get()), nullptr);
}

TEST_F(FacetReach, Barcode)
{
    expectReached<QGraphicsItem, QObject, BarcodeItem, FillColorItem, TextColorItem, IFontItem,
                  ITextAlignItem, IBarcodeItem, IDatasourceItem, ITemplateLockItem, ISizeItem>(
        KestTypes::Barcode);
}

TEST_F(FacetReach, Picture)
{
    expectReached<QGraphicsItem, QObject, QGraphicsPixmapItem, PixMapItem, ImageableItem,
                  ResizeRotatedHelper, IGraphicItem, IDatasourceItem, ITemplateLockItem, ISizeItem>(
        KestTypes::Picture);
}

TEST_F(FacetReach, Symbol)
{
    expectReached<QGraphicsItem, QObject, QGraphicsSvgItem, SymbolItem, ColoredItem, IColorItem,
                  ResizeRotatedHelper, FillColorItem, IDatasourceItem, ITemplateLockItem,
                  ISizeItem>(KestTypes::Symbol);
}

// --- the order of the bases in memory ---

template <typename... Bases, typename Class>
void expectInOrder(const Class& object)
{
    const std::vector<const void*> addresses{static_cast<const Bases*>(&object)...};
    for (std::size_t i = 1; i < addresses.size(); ++i) {
        EXPECT_LT(addresses[i - 1], addresses[i]) << "base " << i;
    }
}

TEST_F(FacetReach, BasesHaveTheOrderOfTheContract)
{
    const auto recording = std::make_shared<recorder::Recording>(&m_out);
    const auto enter = [&recording](auto* item) { recording->addItem(KestTypes::Line, item); };
    const auto check = [&]<typename Recorded, typename Class, typename... Bases>() {
        const Recorded item(recording, recording->nextItemNumber());
        enter(const_cast<Recorded*>(&item));
        expectInOrder<Bases...>(static_cast<const Class&>(item));
    };
    using namespace recorder;
    check.operator()<RecordedRectangle, Item, IBasicItem, ITemplateLockItem>();
    check.operator()<RecordedRectangle, ColoredItem, Item, IColorItem>();
    check.operator()<RecordedRectangle, ContouredItem, ColoredItem, PenItem>();
    check.operator()<RecordedRectangle, FillableItem, ContouredItem, FillColorItem, IBrushItem>();
    check.operator()<RecordedRectangle, RectangleItem, QObject, QGraphicsRectItem, FillableItem>();
    check.
    operator()<RecordedRoundedRectangle, RoundedRectangleItem, RectangleItem, IRoundRectItem>();
    check.operator()<RecordedEllipse, EllipseItem, QObject, QGraphicsEllipseItem, FillableItem>();
    check.operator()<RecordedPie, PieItem, EllipseItem, IPieItem>();
    check.operator()<RecordedPolygon, PolygonItem, QObject, QGraphicsPolygonItem, FillableItem>();
    check.
    operator()<RecordedLine, LineItem, QObject, QGraphicsLineItem, ContouredItem, ILineItem>();
    check.operator()<RecordedRichText, TextItem, QGraphicsTextItem, FillableItem, TextColorItem,
                     ITextGenericItem, IFontItem, ITextAlignItem, IDatasourceItem>();
    check.
    operator()<RecordedSimpleText, SimpleTextItem, TextItem, ResizeRotatedHelper, ITextLabelItem>();
    check.operator()<RecordedRichText, RichTextItem, TextItem, IRichTextItem>();
    check.operator()<RecordedBarcode, BarcodeItem, QObject, QGraphicsItem, Item, FillColorItem,
                     TextColorItem, IFontItem, ITextAlignItem, IBarcodeItem, IDatasourceItem>();
    check.operator()<RecordedPixMap, PixMapItem, QObject, QGraphicsPixmapItem, Item, ImageableItem,
                     ResizeRotatedHelper, IGraphicItem, IDatasourceItem>();
    check.operator()<RecordedSymbol, SymbolItem, QGraphicsSvgItem, ColoredItem, ResizeRotatedHelper,
                     FillColorItem, IDatasourceItem>();
}

} // namespace
