#include "painted.h"

#include "host/items/rectangle_item.h"
#include "workbench/rendering/page_image.h"

#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace Qt::Literals::StringLiterals;

using workbench::Canvas;
using workbench::PageImage;
using workbench::renderPage;
using workbench::writePng;

namespace {

PageImage rendered(double width, double height, double dpi)
{
    Canvas canvas;
    canvas.importCanvasParameters(width, height, false, false);
    return renderPage(canvas, dpi);
}

struct SizeRow
{
    double width;
    double height;
    double dpi;
    QSize pixels;
};

} // namespace

TEST(PageImage, HasThePixelsOfThePageAtTheResolution)
{
    for (const SizeRow& row :
         {SizeRow{72.0, 144.0, 72.0, {72, 144}}, SizeRow{72.0, 144.0, 300.0, {300, 600}},
          SizeRow{100.0, 50.0, 96.0, {134, 67}}, SizeRow{144.0, 72.0, 203.2, {407, 204}},
          SizeRow{1.0, 1.0, 10.0, {1, 1}}}) {
        const PageImage page = rendered(row.width, row.height, row.dpi);
        EXPECT_EQ(page.error, QString());
        EXPECT_EQ(page.image.size(), row.pixels) << row.dpi;
    }
}

TEST(PageImage, CarriesItsResolution)
{
    const PageImage page = rendered(72.0, 72.0, 300.0);
    EXPECT_EQ(page.image.dotsPerMeterX(), 11811);
    EXPECT_EQ(page.image.dotsPerMeterY(), 11811);
}

TEST(PageImage, HasTheColorOfThePage)
{
    Painted page;
    page.canvas.setCanvasBackgroundColor(QColor(0x12, 0x34, 0x56));
    EXPECT_EQ(page.at(0, 0), QColor(0x12, 0x34, 0x56));
    EXPECT_EQ(page.at(199, 99), QColor(0x12, 0x34, 0x56));
}

TEST(PageImage, IsThePagesColorUpToItsLastPixel)
{
    // 200 points at 100 dots per inch are 277.8 pixels: the 278th belongs to the page too.
    Painted page;
    const QImage image = page.image(100.0);
    EXPECT_EQ(image.size(), QSize(278, 139));
    EXPECT_EQ(image.pixelColor(277, 138), QColor(Qt::white));
    page.canvas.setCanvasBackgroundColor(Qt::transparent);
    EXPECT_EQ(page.image(100.0).pixelColor(277, 138).alpha(), 0);
}

TEST(PageImage, LooksTheSameAtEveryResolution)
{
    Painted page;
    auto& item = page.make<RectangleItem>(KestTypes::Rectangle);
    item.setItemSize(QSizeF(100.0, 40.0));
    item.setPos(20.0, 30.0);
    item.setPenStyle(Qt::NoPen);
    item.setFillColor(Qt::black);

    EXPECT_EQ(inkOf(page.image(72.0)), QRect(20, 30, 100, 40));
    EXPECT_EQ(inkOf(page.image(144.0)), QRect(40, 60, 200, 80));
    EXPECT_EQ(inkOf(page.image(288.0)), QRect(80, 120, 400, 160));
}

TEST(PageImage, ThatWouldBeTooLargeIsRefusedWithTheResolutionThatWouldDo)
{
    const PageImage tooWide = rendered(59'527.6, 84'188.1, 96.0);
    EXPECT_TRUE(tooWide.image.isNull());
    EXPECT_TRUE(tooWide.error.contains(QLatin1String("79371 by 112251 pixels")))
        << qPrintable(tooWide.error);
    EXPECT_TRUE(tooWide.error.contains(QLatin1String("Up to 12 dots per inch")))
        << qPrintable(tooWide.error);
    const PageImage fits = rendered(59'527.6, 84'188.1, 3.0);
    EXPECT_EQ(fits.error, QString());
    EXPECT_FALSE(fits.image.isNull());
}

TEST(PageImage, OfTooManyPixelsIsRefusedEvenIfNoSideIsTooLong)
{
    const PageImage page = rendered(7'200.0, 7'200.0, 150.0);
    EXPECT_TRUE(page.image.isNull());
    EXPECT_TRUE(page.error.contains(QLatin1String("150 million"))) << qPrintable(page.error);
}

TEST(PageImage, OfTheLargestPageIsRefusedWithoutAResolution)
{
    const PageImage page = rendered(1e300, 1e300, 72.0);
    EXPECT_TRUE(page.image.isNull());
    EXPECT_FALSE(page.error.contains(QLatin1String("possible"))) << qPrintable(page.error);
}

TEST(PageImage, NeedsARealResolution)
{
    for (const double dpi : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN(),
                             std::numeric_limits<double>::infinity()}) {
        const PageImage page = rendered(72.0, 72.0, dpi);
        EXPECT_TRUE(page.image.isNull());
        EXPECT_TRUE(page.error.contains(QLatin1String("resolution"))) << dpi;
    }
}

TEST(PageImage, IsWrittenAsPngWithItsResolution)
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(u"page.png"_s);
    const PageImage page = rendered(72.0, 36.0, 300.0);

    EXPECT_EQ(writePng(page.image, name), QString());

    QImageReader reader(name);
    EXPECT_EQ(reader.format(), QByteArray("png"));
    const QImage image = reader.read();
    EXPECT_EQ(image.size(), QSize(300, 150));
    EXPECT_EQ(image.dotsPerMeterX(), 11811);
}

TEST(PageImage, ThatCannotBeWrittenLeavesWhatWasThere)
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(u"page.png"_s);
    QFile old(name);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("old");
    old.close();

    const QString error = writePng(QImage(), name);

    EXPECT_TRUE(error.contains(QLatin1String("page.png"))) << qPrintable(error);
    ASSERT_TRUE(old.open(QIODevice::ReadOnly));
    EXPECT_EQ(old.readAll(), QByteArray("old"));
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 1);
}

TEST(PageImage, GoesToNoFolderThatIsNotThere)
{
    const QTemporaryDir folder;
    const QString error =
        writePng(rendered(10.0, 10.0, 72.0).image, folder.filePath(u"none/page.png"_s));
    EXPECT_TRUE(error.startsWith(QLatin1String("Cannot write"))) << qPrintable(error);
}
