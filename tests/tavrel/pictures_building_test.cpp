// The calls of the picture builder to a host.

#include "tavrel/pictures.h"

#include "tests/tavrel/builder_fixture.h"

using namespace tavrel;
using namespace tavrel_test;

namespace {

class PictureBuilder : public Builders
{
protected:
    [[nodiscard]] PictureRecord picture(int width, int height) const
    {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::blue);
        return {header, {image, false}};
    }
};

TEST_F(PictureBuilder, ScalesThePicturesOwnSize)
{
    header.width = 600.0;
    header.height = 75.0;
    EXPECT_EQ(buildPicture(host(), picture(40, 30), Printer), BuildResult::Built);
    EXPECT_EQ(
        fake.calls.lines(),
        lines({"factory create \"1000c\"", "item1 pixmapImportActions 40x30", "item1 getItemSize",
               "item1 setItemSize 80x15", "item1 setItemRotation 30", "item1 setZValue 1003",
               "item1 setFlag movable yes", "item1 setPos 100x50", "canvas importItem"}));
    expectPlaced();
}

TEST_F(PictureBuilder, NoPictureGivesAnItemOfNoSize)
{
    EXPECT_EQ(buildPicture(host(), {header, {}}, Printer), BuildResult::Built);
    EXPECT_EQ(fake.calls.with("setItemSize"), lines({"item1 setItemSize 0x0"}));
}

TEST_F(PictureBuilder, OddNumbersPassToTheHost)
{
    header.width = HUGE_VAL;
    header.height = NAN;
    header.rotation = NAN;
    EXPECT_EQ(buildPicture(host(), picture(2, 2), Printer), BuildResult::Built);
    EXPECT_EQ(fake.calls.with("setItemSize"), lines({"item1 setItemSize infxnan"}));
    EXPECT_EQ(fake.calls.with("setItemRotation"), lines({"item1 setItemRotation nan"}));
}

TEST_F(PictureBuilder, HostWithoutPicturesLeavesItOut)
{
    fake.canvas.factory.mismatchedTypes = {KestTypes::Picture};
    EXPECT_EQ(buildPicture(host(), picture(2, 2), Printer), BuildResult::NoItem);
    EXPECT_EQ(fake.canvas.itemCount(), 0U);
}

} // namespace
