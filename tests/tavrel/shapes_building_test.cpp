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
    EXPECT_EQ(buildShape(host(), shape("Oval", 1)), BuildResult::Built);
    EXPECT_EQ(
        fake.calls.lines(),
        lines({"factory create \"1002c\"", "item1 setItemSize 60x20", "item1 setItemRotation 30",
               "item1 setZValue 1003", "item1 setFlag movable yes", "item1 setPos 100x50",
               "item1 setPenWidth 6", "item1 setPenStyle 2", "item1 setPenColor #ffff0000",
               "item1 setFilled yes", "item1 setFillColor #ffffff00", "canvas importItem"}));
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
    for (const FillRow& row : {FillRow{0, "no", "#ffffff00"}, FillRow{1, "yes", "#ffffff00"},
                               FillRow{2, "yes", "#ffff0000"}, FillRow{3, "no", "#ffffff00"},
                               FillRow{-1, "no", "#ffffff00"}}) {
        SCOPED_TRACE(row.mode);
        fake.calls.clear();
        EXPECT_EQ(buildShape(host(), shape("Diamond", row.mode)), BuildResult::Built);
        EXPECT_TRUE(fake.calls.with("setFilled").value(0).endsWith(QLatin1String(row.filled)));
        EXPECT_TRUE(fake.calls.with("setFillColor").value(0).endsWith(QLatin1String(row.color)));
    }
}

TEST_F(ShapeBuilder, EveryFilledShapeCanBeBuilt)
{
    for (const char* name : {"RoundedRectangle", "Triangle", "Octagon", "Diamond", "Hexagon",
                             "Oval", "Rectangle", "unheard of"}) {
        EXPECT_EQ(buildShape(host(), shape(name)), BuildResult::Built) << name;
    }
    EXPECT_EQ(fake.canvas.itemCount(), 8U);
}

TEST_F(ShapeBuilder, HorizontalLineIsAsLongAsItsBoxIsWide)
{
    EXPECT_EQ(buildShape(host(), shape("HorizontalLine", 1)), BuildResult::Built);
    EXPECT_EQ(fake.calls.lines(),
              lines({"factory create \"1001f\"", "item1 setLineLength 60",
                     "item1 setItemRotation 30", "item1 setZValue 1003",
                     "item1 setFlag movable yes", "item1 setPenWidth 6", "item1 setPenStyle 2",
                     "item1 setPenColor #ffff0000", "item1 setPos 100x50", "canvas importItem"}))
        << "a line has no fill, whatever the mode";
    expectPlaced();
}

TEST_F(ShapeBuilder, VerticalLineIsTurnedAboutItsMiddle)
{
    header.x = 100.0;
    header.y = 100.0;
    header.height = 72.0;
    header.rotation = 0.0;
    EXPECT_EQ(buildShape(host(), shape("VerticalLine")), BuildResult::Built);
    EXPECT_EQ(fake.calls.with("setLineLength"), lines({"item1 setLineLength 72"}));
    EXPECT_EQ(fake.calls.with("setItemRotation"), lines({"item1 setItemRotation 90"}));
    expectPlaced({64.0, 136.0});
}

TEST_F(ShapeBuilder, LockedItemIsNotMovable)
{
    header.movable = false;
    EXPECT_EQ(buildShape(host(), shape("Oval")), BuildResult::Built);
    EXPECT_FALSE(fake.canvas.item(0)->flags().testFlag(QGraphicsItem::ItemIsMovable));
}

TEST_F(ShapeBuilder, HostWithoutTheShapeLeavesItOut)
{
    fake.canvas.factory.refusedTypes = {KestTypes::Ellipse};
    fake.canvas.factory.mismatchedTypes = {KestTypes::Diamond, KestTypes::Line};
    EXPECT_EQ(buildShape(host(), shape("Oval")), BuildResult::NoItem);
    EXPECT_EQ(buildShape(host(), shape("Diamond")), BuildResult::NoItem);
    EXPECT_EQ(buildShape(host(), shape("HorizontalLine")), BuildResult::NoItem);
    EXPECT_EQ(fake.canvas.itemCount(), 0U);
}

TEST_F(ShapeBuilder, HostWithoutLinesIsStopped)
{
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    fake.canvas.factory.refusedTypes = {KestTypes::Line};
    EXPECT_DEATH((void)buildShape(host(), shape("HorizontalLine")), "makes no lines");
    EXPECT_DEATH((void)buildShape(host(), shape("VerticalLine")), "makes no lines");
}

} // namespace
