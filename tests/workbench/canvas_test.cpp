#include "painted.h"

#include "host/items/rectangle_item.h"
#include "host/items/rich_text_item.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::Literals::StringLiterals;

using workbench::Canvas;
using workbench::CanvasItem;

namespace {

QGraphicsItem* addRectangle(Painted& page, const QRectF& box, const QColor& color)
{
    auto& item = page.make<RectangleItem>(KestTypes::Rectangle);
    item.setItemSize(box.size());
    item.setPos(box.topLeft());
    item.setFillColor(color);
    item.setPenStyle(Qt::NoPen);
    return &item;
}

} // namespace

TEST(Canvas, BeginsWhiteWithBlackPrintAndAPage)
{
    const Canvas canvas;
    EXPECT_EQ(canvas.canvasBackgroundColor(), QColor(Qt::white));
    EXPECT_EQ(canvas.canvasDefaultPenColor(), QColor(Qt::black));
    EXPECT_FALSE(canvas.pageRect().isEmpty());
    EXPECT_FALSE(canvas.isComplete());
}

TEST(Canvas, KeepsThePageAndItsFlags)
{
    Canvas canvas;
    QSignalSpy changes(&canvas, &Canvas::pageChanged);
    canvas.importCanvasParameters(300.0, 150.0, true, true);

    EXPECT_EQ(canvas.page().size, QSizeF(300.0, 150.0));
    EXPECT_TRUE(canvas.page().canvasFlag);
    EXPECT_TRUE(canvas.page().orientation);
    EXPECT_EQ(canvas.scene()->sceneRect(), QRectF(0.0, 0.0, 300.0, 150.0));
    EXPECT_EQ(changes.count(), 1);
}

TEST(Canvas, BoundsAPageThatNoLabelHas)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    Canvas canvas;
    canvas.importCanvasParameters(nan, -5.0, false, false);
    EXPECT_EQ(canvas.page().size, QSizeF(1.0, 1.0));
    canvas.importCanvasParameters(infinity, 1e300, false, false);
    EXPECT_LT(canvas.page().size.width(), 1e9);
    EXPECT_LT(canvas.page().size.height(), 1e9);
}

TEST(Canvas, KeepsItsColors)
{
    Canvas canvas;
    canvas.setCanvasBackgroundColor(Qt::yellow);
    canvas.setCanvasDefaultPenColor(Qt::red);
    EXPECT_EQ(canvas.canvasBackgroundColor(), QColor(Qt::yellow));
    EXPECT_EQ(canvas.canvasDefaultPenColor(), QColor(Qt::red));
}

TEST(Canvas, ListsItemsInTheOrderOfCreation)
{
    Painted page;
    QGraphicsItem* first = addRectangle(page, QRectF(0, 0, 10, 10), Qt::red);
    QGraphicsItem* second = addRectangle(page, QRectF(0, 0, 10, 10), Qt::blue);
    first->setZValue(5.0);

    ASSERT_EQ(page.canvas.items().size(), 2);
    EXPECT_EQ(page.canvas.items().at(0)->graphicsItem(), first);
    EXPECT_EQ(page.canvas.items().at(1)->graphicsItem(), second);
    EXPECT_EQ(page.canvas.itemsFromBottom().at(1)->graphicsItem(), first);
    EXPECT_EQ(first->scene(), page.canvas.scene());
}

TEST(Canvas, TakesAnItemOnceAndNoNothing)
{
    Painted page;
    auto& item = page.make<Item>(KestTypes::Ellipse);
    page.canvas.importItem(&item);
    page.canvas.importItem(nullptr);
    EXPECT_EQ(page.canvas.items().size(), 1);
}

TEST(Canvas, HigherItemsCoverLowerOnesAndLaterOnesEarlier)
{
    Painted page;
    QGraphicsItem* red = addRectangle(page, QRectF(0, 0, 50, 50), Qt::red);
    QGraphicsItem* blue = addRectangle(page, QRectF(0, 0, 50, 50), Qt::blue);
    EXPECT_EQ(page.at(20, 20), QColor(Qt::blue));
    red->setZValue(blue->zValue());
    EXPECT_EQ(page.at(20, 20), QColor(Qt::blue));
    red->setZValue(blue->zValue() + 0.001);
    EXPECT_EQ(page.at(20, 20), QColor(Qt::red));
}

TEST(Canvas, ATextJustAboveItsShapeDoesNotShineThroughALaterShape)
{
    Painted page;
    const QGraphicsItem* shape = addRectangle(page, QRectF(0, 0, 50, 50), Qt::red);
    addRectangle(page, QRectF(0, 0, 50, 50), Qt::green)->setZValue(shape->zValue() + 0.001);
    addRectangle(page, QRectF(0, 0, 50, 50), Qt::blue);
    EXPECT_EQ(page.at(20, 20), QColor(Qt::blue));
}

TEST(Canvas, AnOrderThatAReaderSetsIsKept)
{
    workbench::Canvas canvas;
    for (const double z : {0.0, 7000.0, -3.0}) {
        Item* item = canvas.getClassFactory()->create(KestTypes::Rectangle);
        auto& graphics = dynamic_cast<QGraphicsItem&>(*item);
        graphics.setZValue(z);
        canvas.importItem(item);
        EXPECT_EQ(graphics.zValue(), z);
    }
}

TEST(Canvas, SavedItemsKeepTheirOrder)
{
    workbench::Canvas canvas;
    workbench::ItemValues values;
    values.type = KestTypes::Rectangle;
    EXPECT_EQ(canvas.addItem(values)->graphicsItem()->zValue(), 0.0);
}

TEST(Canvas, AReadOnlyItemTakesNoMouse)
{
    Painted page;
    QGraphicsItem* first = addRectangle(page, QRectF(0, 0, 10, 10), Qt::red);
    QGraphicsItem* second = addRectangle(page, QRectF(0, 0, 10, 10), Qt::red);

    page.canvas.setReadOnlyStateOnItemsInList(true, {first});
    EXPECT_TRUE(page.canvas.items().at(0)->values().placement.readOnly);
    EXPECT_EQ(first->acceptedMouseButtons(), Qt::NoButton);
    EXPECT_FALSE(page.canvas.items().at(1)->values().placement.readOnly);
    EXPECT_NE(second->acceptedMouseButtons(), Qt::NoButton);

    page.canvas.setReadOnlyStateOnItemsInList(false, {first, nullptr});
    EXPECT_FALSE(page.canvas.items().at(0)->values().placement.readOnly);
    EXPECT_NE(first->acceptedMouseButtons(), Qt::NoButton);
}

TEST(Canvas, ABackgroundItemIgnoresTheMouseEvenWhenItIsNoLongerReadOnly)
{
    Painted page;
    QGraphicsItem* item = addRectangle(page, QRectF(0, 0, 10, 10), Qt::red);
    page.canvas.setUserBackgroundStateOnItemsInList(true, {item});
    page.canvas.setReadOnlyStateOnItemsInList(false, {item});

    EXPECT_TRUE(page.canvas.items().at(0)->values().placement.userBackground);
    EXPECT_EQ(item->acceptedMouseButtons(), Qt::NoButton);
}

TEST(Canvas, ReportsWhenALabelIsComplete)
{
    Canvas canvas;
    QSignalSpy spy(&canvas, &Canvas::loadingCompleted);
    canvas.completeCanvasLoading();
    EXPECT_EQ(spy.count(), 1);
    EXPECT_TRUE(canvas.isComplete());
}

TEST(Canvas, ClearedItIsAsNew)
{
    Painted page;
    addRectangle(page, QRectF(0, 0, 10, 10), Qt::red);
    page.canvas.completeCanvasLoading();
    page.canvas.setCanvasBackgroundColor(Qt::green);
    QSignalSpy changes(&page.canvas, &Canvas::itemsChanged);

    page.canvas.clear();

    EXPECT_TRUE(page.canvas.items().isEmpty());
    EXPECT_TRUE(page.canvas.scene()->items().isEmpty());
    EXPECT_EQ(page.canvas.page(), workbench::PageValues());
    EXPECT_FALSE(page.canvas.isComplete());
    EXPECT_EQ(changes.count(), 1);
}

TEST(Canvas, ShowsARecordOnBoundItemsOnly)
{
    Painted page;
    auto& bound = page.make<TextItem>(KestTypes::RichText);
    bound.setItemSize(QSizeF(80.0, 30.0));
    bound.setText(u"own"_s);
    bound.setDatasourceId(3);
    bound.setDatasourceFields({u"Value"_s});
    auto& unbound = page.make<TextItem>(KestTypes::RichText);
    unbound.setItemSize(QSizeF(80.0, 30.0));
    unbound.setPos(100.0, 0.0);
    unbound.setText(u"own"_s);
    const QImage before = page.image();

    QStringList asked;
    page.canvas.showRecord(7, [&asked](int id, qint64 record, const QStringList& fields) {
        asked << u"%1/%2/%3"_s.arg(id).arg(record).arg(fields.join(QLatin1Char(',')));
        return std::optional<QString>(u"seven"_s);
    });
    const QImage shown = page.image();

    EXPECT_EQ(asked, QStringList{u"3/7/Value"_s});
    EXPECT_NE(shown.copy(0, 0, 100, 100), before.copy(0, 0, 100, 100));
    EXPECT_EQ(shown.copy(100, 0, 100, 100), before.copy(100, 0, 100, 100));

    page.canvas.showRecord(
        8, [](int, qint64, const QStringList&) { return std::optional<QString>(); });
    EXPECT_EQ(page.image(), before);
}

TEST(Canvas, DetachesItemsAndAttachesThemInTheirPlaces)
{
    Canvas canvas;
    workbench::ItemValues values;
    values.box.size = QSizeF(10.0, 10.0);
    for (int number = 0; number < 4; ++number) {
        canvas.addItem(values);
    }
    const QList<CanvasItem*> all = canvas.items();
    all.at(1)->graphicsItem()->setSelected(true);
    QSignalSpy selections(canvas.scene(), &QGraphicsScene::selectionChanged);

    const QList<workbench::DetachedItem> detached = canvas.detachItems({all.at(2), all.at(1)});
    EXPECT_EQ(canvas.items(), (QList<CanvasItem*>{all.at(0), all.at(3)}));
    EXPECT_FALSE(all.at(1)->graphicsItem()->isVisible());
    EXPECT_TRUE(canvas.scene()->selectedItems().isEmpty());
    EXPECT_EQ(selections.size(), 1);
    ASSERT_EQ(detached.size(), 2);
    EXPECT_EQ(detached.constFirst().item, all.at(1));

    canvas.attachItems(detached);
    EXPECT_EQ(canvas.items(), all);
    EXPECT_EQ(canvas.itemsFromBottom(), all);
    // The scene stacks items of the same z value as the canvas does.
    const QList<QGraphicsItem*> stacked = canvas.scene()->items(Qt::AscendingOrder);
    for (int number = 0; number < 4; ++number) {
        EXPECT_EQ(stacked.at(number), all.at(number)->graphicsItem()) << number;
    }
}
