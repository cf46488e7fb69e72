// The calls of the builder of shapes and lines to a host.

#include "tavrel/shapes.h"

#include "tests/tavrel/builder_fixture.h"

using namespace tavrel;
using namespace tavrel_test;

namespace {

class ShapeBuilder : public Builders
{
protected:
    [[nodiscard]] ShapeRecord shape(const char* name, qint32 fillMode = 0) const
    {
        return {header, 6, 2, fillMode, QLatin1String(name)};
    }
};

TEST_F(ShapeBuilder, SetsUpAShapeInItsBox)
{
    EXPECT_EQ(buildShape(canvas(), shape("Oval", 1)), BuildResult::Built);
    EXPECT_EQ(host.calls(),
              lines({"factory create 1002c", "item:1 setItemSize 60 20",
                     "item:1 setItemRotation 30", "item:1 setZValue 1003", "item:1 setMovable true",
                     "item:1 setPos 100 50", "item:1 setPenWidth 6", "item:1 setPenStyle 2",
                     "canvas canvasDefaultPenColor", "item:1 setPenColor '#ffff0000'",
                     "item:1 setFilled true", "canvas canvasBackgroundColor",
                     "item:1 setFillColor '#ffffff00'", "canvas importItem 'item:1'"}));
    expectPlaced();
}

struct FillRow
{
    qint32 mode;
    const char* filled;
    const char* color;
};

TEST_F(ShapeBuilder, FillModeChoosesBetweenBackgroundPenColorAndNothing)
{
    for (const FillRow& row :
         {FillRow{0, "false", "'#ffffff00'"}, FillRow{1, "true", "'#ffffff00'"},
          FillRow{2, "true", "'#ffff0000'"}, FillRow{3, "false", "'#ffffff00'"},
          FillRow{-1, "false", "'#ffffff00'"}}) {
        SCOPED_TRACE(row.mode);
        host.forgetCalls();
        EXPECT_EQ(buildShape(canvas(), shape("Diamond", row.mode)), BuildResult::Built);
        EXPECT_TRUE(host.callsWith("setFilled").value(0).endsWith(QLatin1String(row.filled)));
        EXPECT_TRUE(host.callsWith("setFillColor").value(0).endsWith(QLatin1String(row.color)));
    }
}

TEST_F(ShapeBuilder, EveryFilledShapeCanBeBuilt)
{
    for (const char* name : {"RoundedRectangle", "Triangle", "Octagon", "Diamond", "Hexagon",
                             "Oval", "Rectangle", "unheard of"}) {
        EXPECT_EQ(buildShape(canvas(), shape(name)), BuildResult::Built) << name;
    }
    EXPECT_EQ(host.itemCount(), 8);
}

TEST_F(ShapeBuilder, HorizontalLineIsAsLongAsItsBoxIsWide)
{
    EXPECT_EQ(buildShape(canvas(), shape("HorizontalLine", 1)), BuildResult::Built);
    EXPECT_EQ(host.calls(),
              lines({"factory create 1001f", "item:1 setLineLength 60", "item:1 setItemRotation 30",
                     "item:1 setZValue 1003", "item:1 setMovable true", "item:1 setPenWidth 6",
                     "item:1 setPenStyle 2", "canvas canvasDefaultPenColor",
                     "item:1 setPenColor '#ffff0000'", "item:1 setPos 100 50",
                     "canvas importItem 'item:1'"}))
        << "a line has no fill, whatever the mode";
    expectPlaced();
}

TEST_F(ShapeBuilder, VerticalLineIsTurnedAboutItsMiddle)
{
    header.x = 100.0;
    header.y = 100.0;
    header.height = 72.0;
    header.rotation = 0.0;
    EXPECT_EQ(buildShape(canvas(), shape("VerticalLine")), BuildResult::Built);
    EXPECT_EQ(host.callsWith("setLineLength"), lines({"item:1 setLineLength 72"}));
    EXPECT_EQ(host.callsWith("setItemRotation"), lines({"item:1 setItemRotation 90"}));
    expectPlaced({64.0, 136.0});
}

TEST_F(ShapeBuilder, LockedItemIsNotMovable)
{
    header.movable = false;
    EXPECT_EQ(buildShape(canvas(), shape("Oval")), BuildResult::Built);
    EXPECT_FALSE(host.item(1)->flags().testFlag(QGraphicsItem::ItemIsMovable));
}

TEST_F(ShapeBuilder, HostWithoutTheShapeLeavesItOut)
{
    host.behavior().refusedTypes = {KestTypes::Ellipse};
    host.behavior().mismatchedTypes = {KestTypes::Diamond, KestTypes::Line};
    EXPECT_EQ(buildShape(canvas(), shape("Oval")), BuildResult::NoItem);
    EXPECT_EQ(buildShape(canvas(), shape("Diamond")), BuildResult::NoItem);
    EXPECT_EQ(buildShape(canvas(), shape("HorizontalLine")), BuildResult::NoItem);
    EXPECT_EQ(host.itemCount(), 0);
}

TEST_F(ShapeBuilder, HostWithoutLinesIsStopped)
{
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    host.behavior().refusedTypes = {KestTypes::Line};
    EXPECT_DEATH((void)buildShape(canvas(), shape("HorizontalLine")), "makes no lines");
    EXPECT_DEATH((void)buildShape(canvas(), shape("VerticalLine")), "makes no lines");
}

} // namespace
