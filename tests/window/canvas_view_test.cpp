// The canvas on the screen: zoom, fit, pan, moves by mouse and keyboard.

#include "window_fixture.h"

#include "window/canvas/canvas_view.h"
#include "window/canvas/page_backdrop.h"

#include <QApplication>
#include <QGraphicsItem>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

using namespace window;

namespace {

class CanvasViewTest : public ::testing::Test
{
protected:
    CanvasViewTest()
        : label(makeLabel())
    {
        view.resize(800, 500);
        view.setCanvas(label.canvas.get());
        view.show();
        QApplication::processEvents();
    }

    ~CanvasViewTest() override { view.setCanvas(nullptr); }

    [[nodiscard]] QGraphicsItem* item(int index) const
    {
        return label.canvas->items().at(index)->graphicsItem();
    }

    [[nodiscard]] QPoint pixelOf(const QPointF& canvasPoint) const
    {
        return view.mapFromScene(canvasPoint);
    }

    void turnWheel(const QPoint& at, int delta, Qt::KeyboardModifiers modifiers)
    {
        QWheelEvent event(at, view.viewport()->mapToGlobal(at), {}, {0, delta}, Qt::NoButton,
                          modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(view.viewport(), &event);
    }

    OpenLabel label;
    CanvasView view;
};

} // namespace

TEST_F(CanvasViewTest, ALabelFitsTheViewAtFirstAndWhenTheViewGrows)
{
    const auto pageOnScreen = [this] {
        return view.mapFromScene(label.canvas->pageRect()).boundingRect();
    };
    EXPECT_TRUE(view.viewport()->rect().contains(pageOnScreen()));
    const int width = pageOnScreen().width();

    view.resize(1200, 900);
    QApplication::processEvents();

    EXPECT_TRUE(view.viewport()->rect().contains(pageOnScreen()));
    EXPECT_GT(pageOnScreen().width(), width);
}

TEST_F(CanvasViewTest, TrueSizeHasTheScreensPixelsPerPoint)
{
    QSignalSpy zoomed(&view, &CanvasView::zoomChanged);
    view.setZoom(1.0);
    EXPECT_DOUBLE_EQ(view.pixelsPerPoint(), view.logicalDpiX() / 72.0);
    ASSERT_EQ(zoomed.size(), 1);
    EXPECT_EQ(zoomed.at(0).at(0).toDouble(), 1.0);
    EXPECT_FALSE(view.keepsPageFitted());
}

TEST_F(CanvasViewTest, ZoomGoesInStepsAndEndsAtItsBounds)
{
    view.setZoom(1.0);
    view.zoomIn();
    EXPECT_DOUBLE_EQ(view.zoom(), 1.25);
    view.zoomOut();
    EXPECT_DOUBLE_EQ(view.zoom(), 1.0);
    view.setZoom(1e9);
    EXPECT_EQ(view.zoom(), CanvasView::LargestZoom);
    view.setZoom(0.0);
    EXPECT_EQ(view.zoom(), CanvasView::SmallestZoom);
}

TEST_F(CanvasViewTest, TheWheelWithControlZoomsAtThePointer)
{
    const QPoint at(200, 150);
    const QPointF before = view.mapToScene(at);
    const double zoom = view.zoom();

    turnWheel(at, 120, Qt::ControlModifier);

    EXPECT_GT(view.zoom(), zoom);
    const QPointF after = view.mapToScene(at);
    EXPECT_NEAR(before.x(), after.x(), 1.5 / view.pixelsPerPoint());
    EXPECT_NEAR(before.y(), after.y(), 1.5 / view.pixelsPerPoint());
}

TEST_F(CanvasViewTest, TheWheelAloneScrolls)
{
    view.setZoom(8.0);
    const double zoom = view.zoom();
    const int place = view.verticalScrollBar()->value();
    turnWheel({200, 150}, -120, Qt::NoModifier);
    EXPECT_EQ(view.zoom(), zoom);
    EXPECT_GT(view.verticalScrollBar()->value(), place);
}

TEST_F(CanvasViewTest, TheMiddleButtonPans)
{
    view.setZoom(8.0);
    const int place = view.horizontalScrollBar()->value();
    QTest::mousePress(view.viewport(), Qt::MiddleButton, {}, {300, 200});
    QTest::mouseMove(view.viewport(), {250, 200});
    QTest::mouseRelease(view.viewport(), Qt::MiddleButton, {}, {250, 200});
    EXPECT_EQ(view.horizontalScrollBar()->value(), place + 50);
}

TEST_F(CanvasViewTest, SpaceAndTheLeftButtonPanAndMoveNothing)
{
    view.setZoom(4.0);
    view.centerOn(item(0));
    const QPointF position = item(0)->pos();
    const int place = view.verticalScrollBar()->value();
    const QPoint middle = view.viewport()->rect().center();
    QTest::keyPress(&view, Qt::Key_Space);
    EXPECT_EQ(view.viewport()->cursor().shape(), Qt::OpenHandCursor);
    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, middle);
    QTest::mouseMove(view.viewport(), middle + QPoint(0, -30));
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, middle + QPoint(0, -30));
    QTest::keyRelease(&view, Qt::Key_Space);

    EXPECT_EQ(view.verticalScrollBar()->value(), place + 30);
    EXPECT_EQ(item(0)->pos(), position);
    EXPECT_NE(view.viewport()->cursor().shape(), Qt::OpenHandCursor);
}

TEST_F(CanvasViewTest, AnItemThatIsDraggedIsReportedOnceWithItsWay)
{
    QSignalSpy moved(&view, &CanvasView::itemsMoved);
    const QPointF from = item(0)->pos();
    const QPoint start = pixelOf(item(0)->sceneBoundingRect().center());
    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, start);
    QTest::mouseMove(view.viewport(), start + QPoint(20, 10));
    QTest::mouseMove(view.viewport(), start + QPoint(40, 20));
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, start + QPoint(40, 20));

    ASSERT_EQ(moved.size(), 1);
    const auto moves = moved.at(0).at(0).value<QList<ItemMove>>();
    ASSERT_EQ(moves.size(), 1);
    EXPECT_EQ(moves.at(0).item, item(0));
    EXPECT_EQ(moves.at(0).from, from);
    EXPECT_EQ(moves.at(0).to, item(0)->pos());
    EXPECT_NEAR(item(0)->pos().x() - from.x(), 40 / view.pixelsPerPoint(), 0.5);
}

TEST_F(CanvasViewTest, AClickMovesNothing)
{
    QSignalSpy moved(&view, &CanvasView::itemsMoved);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                      pixelOf(item(0)->sceneBoundingRect().center()));
    EXPECT_TRUE(item(0)->isSelected());
    EXPECT_TRUE(moved.isEmpty());
}

TEST_F(CanvasViewTest, ArrowKeysMoveTheSelectedItems)
{
    struct Row
    {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        QPointF millimeters;
    };
    const Row rows[] = {
        {Qt::Key_Right, Qt::NoModifier, {0.5, 0.0}},
        {Qt::Key_Left, Qt::NoModifier, {-0.5, 0.0}},
        {Qt::Key_Down, Qt::ShiftModifier, {0.0, 5.0}},
        {Qt::Key_Up, Qt::ControlModifier, {0.0, -0.1}},
    };
    for (const Row& row : rows) {
        item(0)->setSelected(true);
        QSignalSpy moved(&view, &CanvasView::itemsMoved);
        QTest::keyClick(&view, row.key, row.modifiers);
        ASSERT_EQ(moved.size(), 1);
        const ItemMove move = moved.at(0).at(0).value<QList<ItemMove>>().constFirst();
        EXPECT_NEAR((move.to - move.from).x(), row.millimeters.x() * 72.0 / 25.4, 1e-9);
        EXPECT_NEAR((move.to - move.from).y(), row.millimeters.y() * 72.0 / 25.4, 1e-9);
    }
}

TEST_F(CanvasViewTest, ItemsThatAreLockedReadOnlyOrBackgroundStay)
{
    QSignalSpy moved(&view, &CanvasView::itemsMoved);
    item(2)->setSelected(true);
    QTest::keyClick(&view, Qt::Key_Right);
    item(2)->setSelected(false);
    label.canvas->items().at(0)->setReadOnly(true);
    item(0)->setSelected(true);
    QTest::keyClick(&view, Qt::Key_Right);
    EXPECT_TRUE(moved.isEmpty());
}

TEST_F(CanvasViewTest, EscapeSelectsNothing)
{
    item(0)->setSelected(true);
    QTest::keyClick(&view, Qt::Key_Escape);
    EXPECT_TRUE(view.scene()->selectedItems().isEmpty());
}

TEST_F(CanvasViewTest, ZoomToItemsShowsThemLarge)
{
    view.fitItems({item(0)});
    const QRect shown = view.mapFromScene(item(0)->sceneBoundingRect()).boundingRect();
    EXPECT_TRUE(view.viewport()->rect().contains(shown));
    EXPECT_GT(shown.width(), view.viewport()->width() / 2);
    const double zoom = view.zoom();
    view.fitItems({});
    EXPECT_EQ(view.zoom(), zoom);
}

TEST_F(CanvasViewTest, ThePageHasItsGroundAndOverhangsAreDimmed)
{
    item(0)->setPos(-24.0, 40.0); // a third of it outside the page
    view.fitPage();
    const QImage image = view.viewport()->grab().toImage();
    const QColor inside = image.pixelColor(pixelOf({18.0, 58.0}));
    const QColor outside = image.pixelColor(pixelOf({-8.0, 58.0}));
    const QColor page = image.pixelColor(pixelOf({240.0, 100.0}));
    const QColor session = image.pixelColor(2, 2);

    EXPECT_EQ(page, QColor(Qt::white));
    EXPECT_EQ(inside, QColor(0xff, 0xd5, 0x80));
    EXPECT_NE(outside, inside);
    EXPECT_NE(outside, session);
    EXPECT_EQ(session.rgb(), surroundingsColor(view.palette()).rgb());
}

TEST(CanvasView, WithoutACanvasNothingFails)
{
    CanvasView view;
    view.resize(300, 200);
    view.show();
    view.fitPage();
    view.setZoom(2.0);
    QTest::keyClick(&view, Qt::Key_Right);
    QTest::keyClick(&view, Qt::Key_Escape);
    QTest::mouseClick(view.viewport(), Qt::LeftButton);
    EXPECT_EQ(view.zoom(), 2.0);
}
