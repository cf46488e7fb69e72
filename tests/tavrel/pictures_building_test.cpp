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
    EXPECT_EQ(buildPicture(canvas(), picture(40, 30), Printer), BuildResult::Built);
    EXPECT_EQ(
        host.calls(),
        lines({"factory create 1000c", "item:1 pixmapImportActions 40x30", "item:1 getItemSize",
               "item:1 setItemSize 80 15", "item:1 setItemRotation 30", "item:1 setZValue 1003",
               "item:1 setMovable true", "item:1 setPos 100 50", "canvas importItem 'item:1'"}));
    expectPlaced();
}

TEST_F(PictureBuilder, NoPictureGivesAnItemOfNoSize)
{
    EXPECT_EQ(buildPicture(canvas(), {header, {}}, Printer), BuildResult::Built);
    EXPECT_EQ(host.callsWith("setItemSize"), lines({"item:1 setItemSize 0 0"}));
}

TEST_F(PictureBuilder, OddNumbersPassToTheHost)
{
    header.width = HUGE_VAL;
    header.height = NAN;
    header.rotation = NAN;
    EXPECT_EQ(buildPicture(canvas(), picture(2, 2), Printer), BuildResult::Built);
    EXPECT_EQ(host.callsWith("setItemSize"), lines({"item:1 setItemSize 'inf' 'nan'"}));
    EXPECT_EQ(host.callsWith("setItemRotation"), lines({"item:1 setItemRotation 'nan'"}));
}

TEST_F(PictureBuilder, HostWithoutPicturesLeavesItOut)
{
    host.behavior().mismatchedTypes = {KestTypes::Picture};
    EXPECT_EQ(buildPicture(canvas(), picture(2, 2), Printer), BuildResult::NoItem);
    EXPECT_EQ(host.itemCount(), 0);
}

} // namespace
