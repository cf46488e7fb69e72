// Changes of items: geometry, alignment, order, handles, snapping, the clipboard.
#include "window_fixture.h"

#include "window/canvas/handles.h"
#include "window/edit/arrange.h"
#include "window/edit/clipboard.h"
#include "window/edit/geometry.h"
#include "window/edit/snapping.h"

#include <QGraphicsItem>
#include <QMimeData>
#include <QUndoStack>

using namespace window;
using namespace Qt::Literals::StringLiterals;
using workbench::ItemValues;

namespace {

ItemValues box(const QRectF& rect, double rotation = 0.0)
{
    ItemValues values;
    values.box.size = rect.size();
    values.box.rotation = rotation;
    values.placement.position = rect.topLeft();
    return values;
}

ItemValues line(const QPointF& start, const QPointF& end, double rotation = 0.0)
{
    ItemValues values;
    values.type = KestTypes::Line;
    values.line = workbench::LineValues{end - start, 0, 0};
    values.box.size = QRectF(start, end).normalized().size();
    values.box.rotation = rotation;
    values.placement.position = start;
    return values;
}

void expectNear(const QPointF& a, const QPointF& b)
{
    EXPECT_NEAR(a.x(), b.x(), 1e-6);
    EXPECT_NEAR(a.y(), b.y(), 1e-6);
}

void expectNear(const QRectF& a, const QRectF& b)
{
    expectNear(a.topLeft(), b.topLeft());
    expectNear(a.bottomRight(), b.bottomRight());
}

// The values after a drag of a handle of one item.
ItemValues dragged(const ItemValues& values, Handle handle, const QPointF& way,
                   Qt::KeyboardModifiers modifiers = {})
{
    QList<ItemChange> items{{nullptr, values, values}};
    const HandleFrame frame = *frameOf(items);
    const QPointF from = handlePosition(frame, handle, 1.0);
    applyDrag(items, frame, {handle, from, from + way, modifiers});
    return items.constFirst().after;
}

class ArrangeTest : public ::testing::Test
{
protected:
    ArrangeTest()
    {
        canvas.importCanvasParameters(200.0, 100.0, false, false);
        for (const QRectF& rect : {QRectF(10, 10, 20, 10), QRectF(50, 20, 40, 30),
                                   QRectF(60, 70, 10, 10), QRectF(150, 5, 20, 20)}) {
            ItemValues values = box(rect);
            values.placement.z = static_cast<double>(canvas.items().size());
            canvas.addItem(values);
        }
    }
    void apply(const QList<ItemChange>& changes) { stack.push(new ChangeItems(u"x"_s, changes)); }
    [[nodiscard]] QRectF boundsAt(int index) const
    {
        return boundsOf(canvas.items().at(index)->values());
    }
    [[nodiscard]] QList<int> stacked() const
    {
        QList<int> order;
        const QList<workbench::CanvasItem*> items = canvas.itemsFromBottom();
        for (workbench::CanvasItem* item : items) {
            order.append(static_cast<int>(canvas.items().indexOf(item)));
        }
        return order;
    }

    workbench::Canvas canvas;
    QUndoStack stack;
};

} // namespace

TEST(Geometry, BoundsAreThoseOfTheRotatedBox)
{
    expectNear(boundsOf(box({10, 20, 40, 20})), {10, 20, 40, 20});
    expectNear(boundsOf(box({10, 20, 40, 20}, 90.0)), {20, 10, 20, 40});
    expectNear(boundsOf(line({10, 10}, {50, 10}, 90.0)), {30, -10, 0, 40});
    expectNear(boundsOf(line({50, 40}, {10, 10})), {10, 10, 40, 30});
}

TEST(Geometry, IsThatOfTheItemOnTheCanvas)
{
    workbench::Canvas canvas;
    for (const ItemValues& values : {box({10, 20, 40, 20}, 30.0), line({50, 40}, {10, 10}, 30.0)}) {
        const QGraphicsItem* item = canvas.addItem(values)->graphicsItem();
        expectNear(item->sceneTransform().map(QPointF(7, 3)), toCanvas(values).map(QPointF(7, 3)));
    }
}

TEST(Geometry, ANewBoxKeepsTheOtherEdgeOfARotatedItem)
{
    ItemValues values = box({10, 20, 40, 20}, 30.0);
    const QPointF fixed = toCanvas(values).map(QPointF(0, 20));
    setLocalBox(values, {0, 0, 60, 20});
    expectNear(toCanvas(values).map(QPointF(0, 20)), fixed);
    EXPECT_EQ(values.box.size, QSizeF(60, 20));
}

TEST(Geometry, ASizeFixesTheSidesOfATextThatItChanges)
{
    ItemValues values = box({0, 0, 40, 20});
    values.textLabel = workbench::TextLabelValues{{40, 20}, 0, false, false};
    setSize(values, {50, 20});
    EXPECT_EQ(values.textLabel->limiting, 1);
    EXPECT_EQ(values.textLabel->textBox, QSizeF(50, 20));
    setSize(values, {50, 30});
    EXPECT_EQ(values.textLabel->limiting, 3);
}

TEST(Geometry, LinesKeepTheirEndsWhileTheyAreRotatedAndScaled)
{
    ItemValues values = line({50, 40}, {10, 10}, 30.0);
    const LineEnds ends{{5, 6}, {70, -8}};
    setEnds(values, ends);
    expectNear(endsOf(values).start, ends.start);
    expectNear(endsOf(values).end, ends.end);
    scale(values, {0, 0, 100, 100}, {0, 0, 200, 50});
    expectNear(endsOf(values).start, {10, 3});
    expectNear(endsOf(values).end, {140, -4});
    rotateAbout(values, {0, 0}, 90.0);
    expectNear(endsOf(values).start, {-3, 10});
}

TEST(Handles, ResizeOneEdgeOrCorner)
{
    const ItemValues values = box({10, 20, 40, 20});
    expectNear(boundsOf(dragged(values, Handle::Right, {10, 99})), {10, 20, 50, 20});
    expectNear(boundsOf(dragged(values, Handle::TopLeft, {-10, -5})), {0, 15, 50, 25});
    expectNear(boundsOf(dragged(values, Handle::Bottom, {0, -99})), {10, 20, 40, SmallestSide});
}

TEST(Handles, KeepProportionsWithCtrlAndTheCenterWithShift)
{
    const ItemValues values = box({10, 20, 40, 20});
    expectNear(boundsOf(dragged(values, Handle::BottomRight, {40, 0}, Qt::ControlModifier)),
               {10, 20, 80, 40});
    expectNear(boundsOf(dragged(values, Handle::Right, {5, 0}, Qt::ShiftModifier)),
               {5, 20, 50, 20});
    expectNear(
        boundsOf(dragged(values, Handle::Right, {10, 0}, Qt::ShiftModifier | Qt::ControlModifier)),
        {0, 15, 60, 30});
}

TEST(Handles, ResizeARotatedItemAlongItsSides)
{
    const ItemValues after = dragged(box({10, 20, 40, 20}, 90.0), Handle::Right, {0, 10});
    EXPECT_NEAR(after.box.size.width(), 50.0, 1e-6);
    EXPECT_NEAR(after.box.size.height(), 20.0, 1e-6);
    expectNear(boundsOf(after), {20, 10, 20, 50});
}

TEST(Handles, RotateInStepsWithCtrlAndAboutTheEdgeWithShift)
{
    const ItemValues values = box({0, 0, 40, 40}, 10.0);
    const ItemValues free = dragged(values, Handle::Rotate, {30, 0});
    EXPECT_GT(free.box.rotation, 11.0);
    expectNear(boundsOf(free).center(), {20, 20});
    const ItemValues stepped = dragged(values, Handle::Rotate, {30, 0}, Qt::ControlModifier);
    EXPECT_NEAR(std::fmod(stepped.box.rotation, 15.0), 0.0, 1e-6);
    const ItemValues about =
        dragged(box({0, 0, 40, 40}), Handle::Rotate, {30, 0}, Qt::ShiftModifier);
    expectNear(toCanvas(about).map(QPointF(20, 40)), {20, 40});
    EXPECT_GT(about.box.rotation, 1.0);
}

TEST(Handles, MoveTheEndsOfALine)
{
    const ItemValues values = line({10, 10}, {50, 10});
    expectNear(endsOf(dragged(values, Handle::LineEnd, {0, 20})).end, {50, 30});
    expectNear(endsOf(dragged(values, Handle::LineEnd, {0, 20})).start, {10, 10});
    const LineEnds stepped =
        endsOf(dragged(values, Handle::LineStart, {2, 3}, Qt::ControlModifier));
    EXPECT_NEAR(stepped.start.y(), 10.0, 1e-6);
}

TEST(Handles, ScaleSeveralItemsTogether)
{
    QList<ItemChange> items;
    for (const QRectF& rect : {QRectF(0, 0, 10, 10), QRectF(30, 10, 10, 10)}) {
        items.append({nullptr, box(rect), box(rect)});
    }
    const HandleFrame frame = *frameOf(items);
    applyDrag(items, frame, {Handle::BottomRight, {40, 20}, {80, 20}, {}});
    expectNear(boundsOf(items.at(0).after), {0, 0, 20, 10});
    expectNear(boundsOf(items.at(1).after), {60, 10, 20, 10});
}

TEST_F(ArrangeTest, AlignsSeveralItemsToTheirBoundsAndOneToThePage)
{
    const QList<workbench::CanvasItem*> two{canvas.items().at(0), canvas.items().at(1)};
    apply(align(two, Edge::Left, canvas.pageRect()));
    EXPECT_EQ(boundsAt(1).left(), 10.0);
    EXPECT_EQ(boundsAt(1).top(), 20.0);
    stack.undo();
    EXPECT_EQ(boundsAt(1).left(), 50.0);
    apply(align(two, Edge::Bottom, canvas.pageRect()));
    EXPECT_EQ(boundsAt(0).bottom(), 50.0);
    apply(align({canvas.items().at(3)}, Edge::HorizontalCenter, canvas.pageRect()));
    EXPECT_EQ(boundsAt(3).center().x(), 100.0);
    apply(align({canvas.items().at(3)}, Edge::VerticalCenter, canvas.pageRect()));
    EXPECT_EQ(boundsAt(3).center().y(), 50.0);
    EXPECT_TRUE(align({canvas.items().at(3)}, Edge::VerticalCenter, canvas.pageRect()).isEmpty());
}

TEST_F(ArrangeTest, ItemsThatCannotBeMovedStay)
{
    canvas.items().at(1)->setReadOnly(true);
    EXPECT_TRUE(align({canvas.items().at(1)}, Edge::Left, canvas.pageRect()).isEmpty());
    EXPECT_TRUE(distribute({canvas.items().at(0), canvas.items().at(1), canvas.items().at(3)},
                           Qt::Horizontal)
                    .isEmpty());
}

TEST_F(ArrangeTest, DistributesWithEqualGaps)
{
    apply(distribute({canvas.items().at(3), canvas.items().at(0), canvas.items().at(1)},
                     Qt::Horizontal));
    EXPECT_EQ(boundsAt(0).left(), 10.0);
    EXPECT_EQ(boundsAt(3).right(), 170.0);
    EXPECT_EQ(boundsAt(1).left() - boundsAt(0).right(), boundsAt(3).left() - boundsAt(1).right());
}

TEST_F(ArrangeTest, RestacksTheSelectedItems)
{
    const QList<workbench::CanvasItem*> items{canvas.items().at(0), canvas.items().at(2)};
    apply(restack(canvas, items, Order::Front));
    EXPECT_EQ(stacked(), (QList<int>{1, 3, 0, 2}));
    apply(restack(canvas, items, Order::Backward));
    EXPECT_EQ(stacked(), (QList<int>{1, 0, 2, 3}));
    apply(restack(canvas, items, Order::Back));
    EXPECT_EQ(stacked(), (QList<int>{0, 2, 1, 3}));
    EXPECT_TRUE(restack(canvas, items, Order::Backward).isEmpty());
    apply(restack(canvas, {canvas.items().at(0)}, Order::Forward));
    EXPECT_EQ(stacked(), (QList<int>{2, 0, 1, 3}));
    while (stack.canUndo()) {
        stack.undo();
    }
    EXPECT_EQ(stacked(), (QList<int>{0, 1, 2, 3}));
}

TEST_F(ArrangeTest, SnapsToEdgesAndCentersOfOtherItemsAndOfThePage)
{
    const SnapLines lines(canvas, {canvas.items().at(1)});
    const SnapLines::Snap snap = lines.snapBox({97.0, 68.5, 4.0, 8.0}, 2.0);
    EXPECT_EQ(snap.x, 100.0); // the page's center
    EXPECT_EQ(snap.way.x(), 1.0 - 0.0);
    EXPECT_TRUE(snap.y.has_value());
    EXPECT_FALSE(lines.snapPoint({110.0, 40.0}, 2.0).x.has_value());
    // Not to the item that is dragged.
    EXPECT_FALSE(lines.snapPoint({90.0, 40.0}, 2.0).x.has_value());
    EXPECT_FALSE(lines.snapPoint({100.0, 50.0}, -1.0).x.has_value());
}

TEST_F(ArrangeTest, DeletedItemsComeBackInTheirPlaces)
{
    const QList<workbench::CanvasItem*> all = canvas.items();
    stack.push(new RemoveItems(u"Delete"_s, canvas, {all.at(1), all.at(2)}));
    EXPECT_EQ(canvas.items().size(), 2);
    stack.undo();
    EXPECT_EQ(canvas.items(), all);
    EXPECT_TRUE(all.at(1)->graphicsItem()->isSelected());
    stack.redo();
    stack.push(new AddItems(u"Paste"_s, canvas, {box({1, 2, 3, 4})}));
    EXPECT_EQ(canvas.items().size(), 3);
    EXPECT_TRUE(canvas.items().at(2)->graphicsItem()->isSelected());
    stack.undo();
    EXPECT_EQ(canvas.items().size(), 2);
    stack.redo();
    EXPECT_EQ(canvas.items().at(2)->values().box.size, QSizeF(3, 4));
}

TEST(Clipboard, CarriesItemsToALabelAndDropsBindingsThatItDoesNotHave)
{
    const OpenLabel label = makeLabel();
    const std::unique_ptr<QMimeData> data = copyItems(label.canvas->items(), *label.sources);
    EXPECT_EQ(data->text(), u"Own text"_s);
    ASSERT_TRUE(hasItems(data.get()));
    const QList<ItemValues> same = pastedItems(data.get(), *label.sources);
    ASSERT_EQ(same.size(), 3);
    EXPECT_EQ(same.at(1), label.canvas->items().at(1)->values());
    const workbench::datasources::DatasourceController none;
    EXPECT_EQ(pastedItems(data.get(), none).at(1).datasource->id, -1);
}

TEST(Clipboard, IgnoresDataThatIsNotALabel)
{
    const workbench::datasources::DatasourceController sources;
    QMimeData data;
    EXPECT_TRUE(pastedItems(nullptr, sources).isEmpty());
    EXPECT_TRUE(pastedItems(&data, sources).isEmpty());
    data.setData(u"application/x-labelport-label"_s, "{\"format\": 3");
    EXPECT_TRUE(pastedItems(&data, sources).isEmpty());
}
