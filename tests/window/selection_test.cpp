// Selecting and moving items by mouse.
#include "window_fixture.h"

#include "window/canvas/canvas_view.h"

#include <QApplication>
#include <QGraphicsItem>
#include <QSignalSpy>
#include <QTest>

using namespace window;
using namespace Qt::Literals::StringLiterals;

namespace {

workbench::ItemValues box(const QRectF& rect, bool isFilled)
{
    workbench::ItemValues values;
    values.type = KestTypes::Rectangle;
    values.box.size = rect.size();
    values.placement.position = rect.topLeft();
    values.pen = workbench::PenValues();
    values.fill = workbench::FillValues();
    values.fill->color = isFilled ? QColor(Qt::yellow) : QColor(Qt::transparent);
    return values;
}

// A filled box 0 inside a transparent frame 1, and a filled box 2 that covers half of box 0.
class SelectionTest : public ::testing::Test
{
protected:
    SelectionTest()
    {
        canvas.importCanvasParameters(200.0, 100.0, false, false);
        canvas.addItem(box({50.0, 30.0, 60.0, 40.0}, true));
        canvas.addItem(box({20.0, 10.0, 160.0, 80.0}, false));
        canvas.addItem(box({80.0, 30.0, 60.0, 40.0}, true));
        view.resize(800, 500);
        view.setCanvas(&canvas);
        view.show();
        QApplication::processEvents();
    }
    ~SelectionTest() override { view.setCanvas(nullptr); }

    [[nodiscard]] QList<int> selected() const
    {
        QList<int> numbers;
        for (int number = 0; number < canvas.items().size(); ++number) {
            if (canvas.items().at(number)->graphicsItem()->isSelected()) {
                numbers.append(number);
            }
        }
        return numbers;
    }
    [[nodiscard]] QPointF positionOf(int number) const
    {
        return canvas.items().at(number)->graphicsItem()->pos();
    }
    void click(const QPointF& point, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, view.mapFromScene(point));
    }
    void drag(const QPointF& from, const QPointF& to, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mousePress(view.viewport(), Qt::LeftButton, modifiers, view.mapFromScene(from));
        moveTo((from + to) / 2.0, modifiers);
        moveTo(to, modifiers);
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, modifiers, view.mapFromScene(to));
    }
    void moveTo(const QPointF& point, Qt::KeyboardModifiers modifiers)
    {
        const QPoint at = view.mapFromScene(point);
        QMouseEvent event(QEvent::MouseMove, at, view.viewport()->mapToGlobal(at), Qt::NoButton,
                          Qt::LeftButton, modifiers);
        QApplication::sendEvent(view.viewport(), &event);
    }

    workbench::Canvas canvas;
    CanvasView view;
};

} // namespace

TEST_F(SelectionTest, AClickHitsWhatIsPainted)
{
    click({60.0, 50.0});
    EXPECT_EQ(selected(), QList<int>{0});
    click({20.0, 50.0});
    EXPECT_EQ(selected(), QList<int>{1});
    click({30.0, 50.0}); // the frame is transparent
    EXPECT_EQ(selected(), QList<int>());
}

TEST_F(SelectionTest, AClickHitsAThinLineWithinAFewPixels)
{
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                      view.mapFromScene(QPointF(20.0, 50.0)) - QPoint(4, 0));
    EXPECT_EQ(selected(), QList<int>{1});
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                      view.mapFromScene(QPointF(20.0, 50.0)) - QPoint(12, 0));
    EXPECT_EQ(selected(), QList<int>());
}

TEST_F(SelectionTest, AnotherClickSelectsTheItemBelow)
{
    click({95.0, 50.0});
    EXPECT_EQ(selected(), QList<int>{2});
    click({95.0, 50.0});
    EXPECT_EQ(selected(), QList<int>{0});
    click({95.0, 50.0});
    EXPECT_EQ(selected(), QList<int>{2});
}

TEST_F(SelectionTest, ShiftAndCtrlAddAndRemoveAnItem)
{
    click({60.0, 50.0});
    click({130.0, 50.0}, Qt::ShiftModifier);
    EXPECT_EQ(selected(), (QList<int>{0, 2}));
    click({60.0, 50.0}, Qt::ControlModifier);
    EXPECT_EQ(selected(), QList<int>{2});
    // A click on one of several selects it alone.
    click({60.0, 50.0}, Qt::ShiftModifier);
    click({60.0, 50.0});
    EXPECT_EQ(selected(), QList<int>{0});
}

TEST_F(SelectionTest, ADragMovesTheSelectedItemEvenIfAnotherCoversIt)
{
    click({95.0, 50.0});
    click({95.0, 50.0}); // now box 0, below box 2
    const QPointF before = positionOf(2);
    QSignalSpy moved(&view, &CanvasView::itemsMoved);
    drag({95.0, 50.0}, {75.0, 60.0});
    EXPECT_NEAR(positionOf(0).x(), 30.0, 0.5);
    EXPECT_NEAR(positionOf(0).y(), 40.0, 0.5);
    EXPECT_EQ(positionOf(2), before);
    EXPECT_EQ(moved.size(), 1);
}

TEST_F(SelectionTest, CtrlKeepsADragToOneAxis)
{
    drag({130.0, 50.0}, {150.0, 57.0}, Qt::ControlModifier);
    EXPECT_NEAR(positionOf(2).x(), 100.0, 0.5);
    EXPECT_EQ(positionOf(2).y(), 30.0);
}

TEST_F(SelectionTest, CtrlKeepsADragToOneAxisNearASnapLine)
{
    const double pixel = 1.0 / view.pixelsPerPoint();
    workbench::CanvasItem& item = *canvas.items().at(2);
    workbench::ItemValues values = item.values();
    values.placement.position.ry() += 3.0 * pixel; // the edge of box 0 is three pixels above
    item.setValues(values);
    drag({130.0, 50.0}, {150.0, 50.0}, Qt::ControlModifier);
    EXPECT_EQ(positionOf(2).y(), 30.0 + 3.0 * pixel);
    drag({150.0, 50.0}, {130.0, 50.0});
    EXPECT_NEAR(positionOf(2).y(), 30.0, 1e-9) << "without Ctrl it snaps";
}

TEST_F(SelectionTest, EscapeEndsADragAndPutsTheItemBack)
{
    QSignalSpy moved(&view, &CanvasView::itemsMoved);
    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, view.mapFromScene(QPointF(130, 50)));
    moveTo({150.0, 60.0}, {});
    EXPECT_NE(positionOf(2), QPointF(80.0, 30.0));
    QTest::keyClick(&view, Qt::Key_Escape);
    EXPECT_EQ(positionOf(2), QPointF(80.0, 30.0));
    EXPECT_EQ(selected(), QList<int>{2});
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, view.mapFromScene(QPointF(150, 60)));
    EXPECT_TRUE(moved.isEmpty());
}

TEST_F(SelectionTest, ADragOverAnEmptyPlaceSelectsWhatItTouches)
{
    drag({30.0, 20.0}, {55.0, 40.0});
    EXPECT_EQ(selected(), QList<int>{0});
    drag({30.0, 20.0}, {10.0, 30.0});
    EXPECT_EQ(selected(), QList<int>{1});
    drag({30.0, 20.0}, {55.0, 40.0}, Qt::ShiftModifier);
    EXPECT_EQ(selected(), (QList<int>{0, 1}));
}

TEST_F(SelectionTest, AnItemThatCannotBeMovedIsSelectedAndSaysWhy)
{
    struct Row
    {
        const char* word;
        bool isReadOnly, isBackground, isMovable;
    };
    const Row rows[] = {
        {"read-only", true, false, true},
        {"background", false, true, true},
        {"locked", false, false, false},
    };
    workbench::CanvasItem& item = *canvas.items().at(2);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.word);
        workbench::ItemValues values = item.values();
        values.placement.readOnly = row.isReadOnly;
        values.placement.userBackground = row.isBackground;
        values.placement.movable = row.isMovable;
        item.setValues(values);
        view.scene()->clearSelection();
        QSignalSpy hints(&view, &CanvasView::hintShown);
        QSignalSpy moved(&view, &CanvasView::itemsMoved);
        click({130.0, 50.0});
        EXPECT_EQ(selected(), QList<int>{2});
        ASSERT_EQ(hints.size(), 1);
        EXPECT_TRUE(hints.at(0).at(0).toString().contains(QLatin1String(row.word)));
        QTest::keyClick(&view, Qt::Key_Right);
        EXPECT_EQ(hints.size(), 2);
        drag({130.0, 50.0}, {150.0, 60.0});
        EXPECT_EQ(hints.size(), 3);
        EXPECT_TRUE(moved.isEmpty());
        EXPECT_EQ(positionOf(2), QPointF(80.0, 30.0));
    }
}

TEST_F(SelectionTest, ALabelThatGoesDuringADragLeavesNothingBehind)
{
    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, view.mapFromScene(QPointF(130, 50)));
    moveTo({150.0, 60.0}, {});
    view.setCanvas(nullptr);
    canvas.clear();
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, {10, 10});
    view.setCanvas(&canvas);
    QTest::mouseClick(view.viewport(), Qt::LeftButton);
    EXPECT_EQ(selected(), QList<int>());
}

TEST_F(SelectionTest, TheSelectionFrameIsTheItemsBox)
{
    canvas.items().at(1)->graphicsItem()->setSelected(true);
    const QImage selectedImage = view.viewport()->grab().toImage();
    canvas.items().at(1)->graphicsItem()->setSelected(false);
    const QImage plainImage = view.viewport()->grab().toImage();
    const QRect frame = view.mapFromScene(QRectF(20.0, 10.0, 160.0, 80.0)).boundingRect();
    for (int x = 0; x < frame.left() - 16; ++x) {
        EXPECT_EQ(selectedImage.pixel(x, frame.center().y()),
                  plainImage.pixel(x, frame.center().y()));
    }
    EXPECT_NE(selectedImage, plainImage);
}
