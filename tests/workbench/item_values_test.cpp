// Items return the values that were set, one by one and all together.

#include "painted.h"

#include "host/items/barcode_item.h"
#include "host/items/line_item.h"
#include "host/items/pix_map_item.h"
#include "host/items/rich_text_item.h"
#include "host/items/rounded_rectangle_item.h"
#include "host/items/simple_text_item.h"
#include "host/items/symbol_item.h"
#include "workbench/items/item_limits.h"

#include <QPixmap>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace Qt::Literals::StringLiterals;

using workbench::CanvasItem;
using workbench::ItemValues;

namespace {

constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double InfiniteLength = std::numeric_limits<double>::infinity();

const KestTypes::ShapeType EveryType[] = {
    KestTypes::Picture, KestTypes::Symbol,   KestTypes::SimpleText,    KestTypes::RichText,
    KestTypes::Barcode, KestTypes::Line,     KestTypes::Rectangle,     KestTypes::RoundedRectangle,
    KestTypes::Ellipse, KestTypes::Pie,      KestTypes::RightTriangle, KestTypes::Triangle,
    KestTypes::Diamond, KestTypes::Pentagon, KestTypes::Hexagon,       KestTypes::Octagon};

const char SmallSvg[] = "<svg xmlns='http://www.w3.org/2000/svg' width='40pt' height='20pt' "
                        "viewBox='0 0 40 20'><rect width='40' height='20'/></svg>";

ItemValues valuesOf(Item& item)
{
    return dynamic_cast<CanvasItem&>(item).values();
}

// Calls every setter of the item, each with a value that is not the default.
void setEverything(Item& item)
{
    item.setItemSize(QSizeF(30.0, 20.0));
    item.setItemRotation(400.0);
    item.setFlipHorizontal(true);
    item.setFlipVertical(true);
    if (auto* pen = dynamic_cast<PenItem*>(&item)) {
        pen->setPenColor(Qt::red);
        pen->setPenWidth(3);
        pen->setPenStyle(Qt::DashLine);
        pen->setCapStyle(Qt::RoundCap);
        pen->setJoinStyle(Qt::RoundJoin);
    }
    if (auto* fill = dynamic_cast<FillableItem*>(&item)) {
        fill->setFillColor(Qt::green);
        fill->setFilled(false);
        fill->setBrushStyle(Qt::CrossPattern);
    }
    if (auto* font = dynamic_cast<IFontItem*>(&item)) {
        font->setFontFamily(u"DejaVu Sans"_s);
        font->setFontPointSize(17);
        font->setFontBold(true);
        font->setFontItalic(true);
        font->setFontUnderline(true);
    }
    if (auto* color = dynamic_cast<TextColorItem*>(&item)) {
        color->setTextColor(Qt::blue);
    }
    if (auto* align = dynamic_cast<ITextAlignItem*>(&item)) {
        align->setTextAlignment(Qt::AlignRight | Qt::AlignBottom);
    }
    if (auto* text = dynamic_cast<ITextGenericItem*>(&item)) {
        text->setText(u"one\ntwo"_s);
    }
    if (auto* source = dynamic_cast<IDatasourceItem*>(&item)) {
        source->setDatasourceId(4);
        source->setDatasourceFields({u"Value"_s});
    }
    if (auto* corner = dynamic_cast<RoundedRectangleItem*>(&item)) {
        corner->setCornerRadius(4.0);
    }
    if (auto* label = dynamic_cast<SimpleTextItem*>(&item)) {
        label->setItemSizeLimiting(1);
        label->setOptionA(true);
        label->setOptionB(true);
    }
    if (auto* line = dynamic_cast<LineItem*>(&item)) {
        line->setLineEndPoint(QPointF(-12.0, 7.0));
        line->setLineStartMarker(0x30);
        line->setLineEndMarker(8);
    }
    if (auto* barcode = dynamic_cast<BarcodeItem*>(&item)) {
        barcode->importBarcodeProperties(58, u"abc"_s, false, Qt::AlignRight, 2, true, true, 3, 4,
                                         5);
        barcode->setForegroundColor(Qt::darkBlue);
        barcode->setBackgroundColor(Qt::yellow);
    }
    if (auto* picture = dynamic_cast<PixMapItem*>(&item)) {
        QPixmap pixmap(3, 2);
        pixmap.fill(Qt::magenta);
        picture->pixmapImportActions(pixmap);
    }
    if (auto* symbol = dynamic_cast<SymbolItem*>(&item)) {
        symbol->loadItemFromData(SmallSvg);
        symbol->setForegroundColor(Qt::darkBlue);
        symbol->setBackgroundColor(Qt::yellow);
    }
    auto& graphics = dynamic_cast<QGraphicsItem&>(item);
    graphics.setPos(5.0, 6.0);
    graphics.setZValue(7.5);
    graphics.setFlag(QGraphicsItem::ItemIsMovable, false);
    dynamic_cast<CanvasItem&>(item).setReadOnly(true);
    dynamic_cast<CanvasItem&>(item).setUserBackground(true);
}

} // namespace

TEST(ItemValues, PropertiesAreReadBack)
{
    Painted page;
    auto& item = page.make<FillableItem>(KestTypes::RoundedRectangle);
    setEverything(item);
    const ItemValues values = valuesOf(item);

    EXPECT_EQ(values.type, KestTypes::RoundedRectangle);
    EXPECT_EQ(values.box, (workbench::BoxValues{QSizeF(30.0, 20.0), 400.0, true, true}));
    EXPECT_EQ(values.placement,
              (workbench::PlacementValues{QPointF(5.0, 6.0), 7.5, false, true, true}));
    EXPECT_EQ(*values.pen,
              (workbench::PenValues{Qt::red, 3, Qt::DashLine, Qt::RoundCap, Qt::RoundJoin}));
    EXPECT_EQ(*values.fill, (workbench::FillValues{Qt::green, false, Qt::CrossPattern}));
    EXPECT_EQ(values.corner->radius, 4.0);
    EXPECT_FALSE(values.text);
    EXPECT_FALSE(values.barcode);
    EXPECT_FALSE(values.datasource);
}

TEST(ItemValues, TextsHaveFontStyleContentAndSource)
{
    Painted page;
    auto& item = page.make<SimpleTextItem>(KestTypes::SimpleText);
    setEverything(item);
    const ItemValues values = valuesOf(item);

    EXPECT_EQ(*values.font, (workbench::FontValues{u"DejaVu Sans"_s, 17, true, true, true, true}));
    EXPECT_EQ(*values.textStyle,
              (workbench::TextStyleValues{Qt::blue, Qt::AlignRight | Qt::AlignBottom}));
    EXPECT_EQ(values.text->text, u"one\ntwo"_s);
    EXPECT_EQ(*values.textLabel, (workbench::TextLabelValues{QSizeF(30.0, 20.0), 1, true, true}));
    EXPECT_EQ(*values.datasource, (workbench::DatasourceValues{4, {u"Value"_s}}));
}

TEST(ItemValues, ABarcodeHasAllTenPropertiesAndItsColors)
{
    Painted page;
    auto& item = page.make<BarcodeItem>(KestTypes::Barcode);
    setEverything(item);

    EXPECT_EQ(*valuesOf(item).barcode,
              (workbench::BarcodeValues{58, u"abc"_s, false, Qt::AlignRight, 2, true, true, 3, 4, 5,
                                        Qt::darkBlue, Qt::yellow}));
    item.setFillColor(Qt::gray);
    EXPECT_EQ(valuesOf(item).barcode->background, QColor(Qt::gray));
    item.setBarcodeType(71);
    EXPECT_EQ(valuesOf(item).barcode->symbology, 71);
}

TEST(ItemValues, AnItemRestoredFromValuesHasTheSameValues)
{
    for (const KestTypes::ShapeType type : EveryType) {
        SCOPED_TRACE(type);
        Painted page;
        auto& item = page.make<Item>(type);
        setEverything(item);
        const ItemValues values = valuesOf(item);

        workbench::Canvas other;
        CanvasItem* restored = other.addItem(values);

        ASSERT_NE(restored, nullptr);
        EXPECT_TRUE(restored->values() == values);
        EXPECT_EQ(other.items().size(), 1);
    }
}

TEST(ItemValues, ARestoredItemLooksTheSame)
{
    for (const KestTypes::ShapeType type : EveryType) {
        SCOPED_TRACE(type);
        Painted page;
        auto& item = page.make<Item>(type);
        setEverything(item);
        item.setItemRotation(20.0);
        dynamic_cast<QGraphicsItem&>(item).setPos(40.0, 30.0);

        Painted other;
        other.canvas.addItem(valuesOf(item));

        EXPECT_FALSE(page.ink().isEmpty());
        EXPECT_EQ(other.image(), page.image());
    }
}

TEST(ItemValues, ARichTextKeepsItsDocument)
{
    Painted page;
    auto& item = page.make<RichTextItem>(KestTypes::RichText);
    item.setHtml(u"<p align=\"right\">A <b>bold</b> word</p>"_s);
    item.adjustBoxSizeToContent(120.0);
    const ItemValues values = valuesOf(item);
    EXPECT_TRUE(values.text->html.contains(QLatin1String("font-weight")));

    Painted other;
    CanvasItem* restored = other.canvas.addItem(values);

    EXPECT_EQ(restored->values().text->html.toStdString(), values.text->html.toStdString());
    EXPECT_TRUE(restored->values() == values);
    EXPECT_EQ(other.image(), page.image());
}

TEST(ItemValues, TheShownRecordIsNotPartOfTheValues)
{
    Painted page;
    auto& item = page.make<TextItem>(KestTypes::RichText);
    setEverything(item);
    const ItemValues before = valuesOf(item);

    dynamic_cast<CanvasItem&>(item).showContent(u"record"_s);

    EXPECT_TRUE(valuesOf(item) == before);
}

struct BadNumber
{
    double given;
    double kept;
};

TEST(ItemValues, LengthsAndAnglesThatNoLabelHasAreBounded)
{
    for (const BadNumber& row :
         {BadNumber{NotANumber, 0.0}, BadNumber{InfiniteLength, workbench::MaximumLength},
          BadNumber{-InfiniteLength, -workbench::MaximumLength},
          BadNumber{1e308, workbench::MaximumLength},
          BadNumber{workbench::MaximumLength - 1, workbench::MaximumLength - 1},
          BadNumber{workbench::MaximumLength + 1, workbench::MaximumLength},
          BadNumber{-3.0, -3.0}}) {
        SCOPED_TRACE(row.given);
        Painted page;
        auto& item = page.make<Item>(KestTypes::Rectangle);
        item.setItemSize(QSizeF(row.given, 10.0));
        EXPECT_EQ(item.getItemWidth(), row.kept);
        EXPECT_EQ(item.getItemHeight(), 10.0);
    }
    for (const double angle : {NotANumber, InfiniteLength, -InfiniteLength}) {
        Painted page;
        auto& item = page.make<Item>(KestTypes::Rectangle);
        item.setItemRotation(angle);
        EXPECT_EQ(valuesOf(item).box.rotation, 0.0);
    }
}

TEST(ItemValues, PositionsThatNoLabelHasAreBounded)
{
    // -1000000001 is what importers pass for a coordinate that is not in the file.
    for (const BadNumber& row :
         {BadNumber{NotANumber, 0.0}, BadNumber{InfiniteLength, 0.0},
          BadNumber{-1'000'000'001.0, 0.0}, BadNumber{1e300, workbench::MaximumCoordinate},
          BadNumber{workbench::MaximumCoordinate - 1, workbench::MaximumCoordinate - 1},
          BadNumber{workbench::MaximumCoordinate + 1, workbench::MaximumCoordinate},
          BadNumber{-50.0, -50.0}}) {
        SCOPED_TRACE(row.given);
        Painted page;
        auto& item = page.make<QGraphicsItem>(KestTypes::Rectangle);
        item.setPos(row.given, 5.0);
        EXPECT_EQ(item.pos(), QPointF(row.kept, 5.0));
    }
}

TEST(ItemValues, AnInvalidStackingOrderIsZero)
{
    Painted page;
    auto& item = page.make<QGraphicsItem>(KestTypes::Rectangle);
    item.setZValue(NotANumber);
    EXPECT_EQ(item.zValue(), 0.0);
    item.setZValue(-12.5);
    EXPECT_EQ(item.zValue(), -12.5);
}

TEST(ItemValues, APenIsNotWiderThanTheLimit)
{
    Painted page;
    auto& item = page.make<LineItem>(KestTypes::Line);
    workbench::ItemValues values = valuesOf(item);
    for (const double width : {workbench::MaximumPenWidth, workbench::MaximumPenWidth + 1, -1.0}) {
        values.pen->width = width;
        dynamic_cast<CanvasItem&>(item).setValues(values);
        EXPECT_EQ(valuesOf(item).pen->width, std::clamp(width, 0.0, workbench::MaximumPenWidth));
    }
}

TEST(ItemValues, AFontSizeOfZeroOrLessKeepsTheLastOne)
{
    Painted page;
    auto& item = page.make<TextItem>(KestTypes::RichText);
    item.setFontPointSize(9);
    for (const int size : {0, -1, std::numeric_limits<int>::min()}) {
        item.setFontPointSize(size);
        EXPECT_EQ(valuesOf(item).font->pointSize, 9);
    }
    item.setFontPointSize(workbench::MaximumFontSize - 1);
    EXPECT_EQ(valuesOf(item).font->pointSize, workbench::MaximumFontSize - 1);
    for (const int size : {workbench::MaximumFontSize + 1, std::numeric_limits<int>::max()}) {
        item.setFontPointSize(size);
        EXPECT_EQ(valuesOf(item).font->pointSize, workbench::MaximumFontSize);
    }
}
