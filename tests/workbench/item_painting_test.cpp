// Painting of shapes, pictures and symbols: inside, outside, rotated and mirrored.

#include "painted.h"

#include "host/items/ellipse_item.h"
#include "host/items/pix_map_item.h"
#include "host/items/rectangle_item.h"
#include "host/items/rounded_rectangle_item.h"
#include "host/items/symbol_item.h"

#include <QPixmap>

#include <gtest/gtest.h>

namespace {

const QColor GreenFill(0, 160, 0);

// A shape of 60 by 40 points at (20, 20), green, without an outline.
FillableItem& putShape(Painted& page, KestTypes::ShapeType type)
{
    auto& item = page.make<FillableItem>(type);
    item.setItemSize(QSizeF(60.0, 40.0));
    dynamic_cast<QGraphicsItem&>(item).setPos(20.0, 20.0);
    item.setPenStyle(Qt::NoPen);
    item.setFillColor(GreenFill);
    return item;
}

struct ShapeRow
{
    KestTypes::ShapeType type;
    QList<QPoint> inside;
    QList<QPoint> outside;
};

// Points of the page; the box extends from (20, 20) to (80, 60).
const ShapeRow PaintedShapes[] = {
    {KestTypes::Rectangle, {{21, 21}, {78, 58}, {50, 40}}, {{18, 40}, {82, 40}, {50, 62}}},
    {KestTypes::RoundedRectangle, {{50, 21}, {21, 40}, {50, 40}}, {{20, 20}, {79, 59}}},
    {KestTypes::Ellipse, {{50, 21}, {22, 40}, {50, 40}}, {{22, 22}, {77, 57}}},
    {KestTypes::Pie, {{40, 30}, {40, 50}, {60, 50}}, {{60, 30}, {22, 22}}},
    {KestTypes::RightTriangle, {{22, 57}, {22, 30}, {70, 57}}, {{70, 30}, {30, 22}}},
    {KestTypes::Triangle, {{50, 25}, {25, 58}, {75, 58}}, {{25, 30}, {75, 30}}},
    {KestTypes::Diamond, {{50, 22}, {50, 57}, {23, 40}, {76, 40}}, {{25, 25}, {75, 55}}},
    {KestTypes::Pentagon, {{50, 22}, {23, 36}, {35, 58}, {65, 58}}, {{25, 22}, {23, 58}}},
    {KestTypes::Hexagon, {{22, 40}, {37, 22}, {63, 58}}, {{22, 22}, {78, 58}}},
    {KestTypes::Octagon, {{40, 21}, {21, 40}, {78, 40}, {60, 58}}, {{21, 21}, {78, 58}}},
};

QPixmap fourColors()
{
    QImage image(2, 2, QImage::Format_RGB32);
    image.setPixelColor(0, 0, Qt::red);
    image.setPixelColor(1, 0, Qt::green);
    image.setPixelColor(0, 1, Qt::blue);
    image.setPixelColor(1, 1, Qt::black);
    return QPixmap::fromImage(image);
}

QByteArray svg(const char* content)
{
    return QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='40pt' height='20pt' "
                      "viewBox='0 0 40 20'>") +
           content + "</svg>";
}

} // namespace

TEST(ShapePainting, EachShapeCoversWhatItsNameSays)
{
    for (const ShapeRow& row : PaintedShapes) {
        SCOPED_TRACE(row.type);
        Painted page;
        putShape(page, row.type);
        const QImage image = page.image();
        for (const QPoint& point : row.inside) {
            EXPECT_EQ(image.pixelColor(point), GreenFill) << point.x() << ", " << point.y();
        }
        for (const QPoint& point : row.outside) {
            EXPECT_EQ(image.pixelColor(point), QColor(Qt::white)) << point.x() << ", " << point.y();
        }
        EXPECT_EQ(inkOf(image), QRect(20, 20, 60, 40));
    }
}

TEST(ShapePainting, TheOutlineIsCenteredOnTheEdge)
{
    Painted page;
    auto& item = putShape(page, KestTypes::Rectangle);
    item.setPenStyle(Qt::SolidLine);
    item.setPenWidth(4);
    item.setPenColor(Qt::red);

    EXPECT_EQ(page.at(18, 40), QColor(Qt::red));
    EXPECT_EQ(page.at(21, 40), QColor(Qt::red));
    EXPECT_EQ(page.at(22, 40), GreenFill);
    EXPECT_EQ(page.ink(), QRect(18, 18, 64, 44));
}

TEST(ShapePainting, InvalidColorsChangeNothing)
{
    Painted page;
    auto& item = putShape(page, KestTypes::Rectangle);
    item.setPenStyle(Qt::SolidLine);
    item.setPenWidth(4);
    item.setPenColor(Qt::red);
    item.setPenColor(QColor());
    item.setFillColor(QColor());

    EXPECT_EQ(page.at(21, 40), QColor(Qt::red));
    EXPECT_EQ(page.at(50, 40), GreenFill);
}

TEST(ShapePainting, AShapeWithoutASizeIsKeptAndDrawsNothing)
{
    for (const QSizeF& size :
         {QSizeF(0.0, 40.0), QSizeF(40.0, 0.0), QSizeF(-10.0, 40.0), QSizeF(40.0, -10.0)}) {
        for (const ShapeRow& row : PaintedShapes) {
            Painted page;
            auto& item = putShape(page, row.type);
            item.setPenStyle(Qt::SolidLine);
            item.setItemSize(size);
            EXPECT_TRUE(page.ink().isEmpty());
            EXPECT_EQ(page.canvas.items().size(), 1);
        }
    }
}

TEST(ShapePainting, AnItemRotatesClockwiseAboutTheCenterOfItsBox)
{
    Painted page;
    auto& item = putShape(page, KestTypes::RightTriangle); // its right angle lower left
    item.setItemRotation(90.0);
    // The box is now 40 wide and 60 high about (50, 40); the right angle is upper left.
    EXPECT_EQ(page.ink(), QRect(30, 10, 40, 60));
    EXPECT_EQ(page.at(32, 12), GreenFill);
    EXPECT_EQ(page.at(67, 67), QColor(Qt::white));
}

TEST(ShapePainting, TheAngleIsAbsoluteAndMayGoAllTheWayRound)
{
    for (const double angle : {90.0, 450.0, -270.0, 3690.0}) {
        Painted page;
        auto& item = putShape(page, KestTypes::Rectangle);
        item.setItemRotation(33.0);
        item.setItemRotation(angle);
        EXPECT_EQ(page.ink(), QRect(30, 10, 40, 60)) << angle;
    }
}

TEST(ShapePainting, ARotatedItemOfAnotherSizeRotatesAboutItsNewCenter)
{
    Painted page;
    auto& item = putShape(page, KestTypes::Rectangle);
    item.setItemRotation(90.0);
    item.setItemSize(QSizeF(40.0, 20.0)); // now about (40, 30)
    EXPECT_EQ(page.ink(), QRect(30, 10, 20, 40));
}

TEST(ShapePainting, FlipsMirrorWithinTheBox)
{
    Painted page;
    auto& item = putShape(page, KestTypes::RightTriangle);
    item.setFlipHorizontal(true);
    EXPECT_EQ(page.at(77, 57), GreenFill); // the right angle is lower right
    EXPECT_EQ(page.at(22, 22), QColor(Qt::white));
    item.setFlipVertical(true);
    EXPECT_EQ(page.at(77, 22), GreenFill); // and now upper right
    EXPECT_EQ(page.at(22, 57), QColor(Qt::white));
    EXPECT_EQ(page.ink(), QRect(20, 20, 60, 40));
    item.setFlipHorizontal(false);
    EXPECT_EQ(page.at(22, 22), GreenFill);
}

TEST(ShapePainting, TheCornerRadiusRoundsTheCorners)
{
    Painted page;
    auto& item = dynamic_cast<RoundedRectangleItem&>(putShape(page, KestTypes::RoundedRectangle));
    item.setCornerRadius(0.0);
    EXPECT_EQ(page.at(20, 20), GreenFill);
    item.setCornerRadius(10.0);
    EXPECT_EQ(page.at(21, 21), QColor(Qt::white));
    EXPECT_EQ(page.at(24, 24), GreenFill);
    item.setCornerRadius(500.0); // limited to half the shorter side
    EXPECT_EQ(page.at(24, 24), QColor(Qt::white));
    EXPECT_EQ(page.at(41, 21), GreenFill);
    item.setCornerRadius(-5.0);
    EXPECT_EQ(page.at(20, 20), GreenFill);
}

TEST(ShapePainting, BothWaysToTheSizeOfARoundedRectangleAreOne)
{
    Painted page;
    auto& item = dynamic_cast<RoundedRectangleItem&>(putShape(page, KestTypes::RoundedRectangle));
    static_cast<IRoundRectItem&>(item).setItemSize(QSizeF(12.0, 13.0));
    EXPECT_EQ(static_cast<Item&>(item).getItemSize(), QSizeF(12.0, 13.0));
}

TEST(ShapePainting, NothingIsPaintedBeyondThePage)
{
    Painted page;
    auto& item = putShape(page, KestTypes::Rectangle);
    dynamic_cast<QGraphicsItem&>(item).setPos(-30.0, 80.0);
    EXPECT_EQ(page.ink(), QRect(0, 80, 30, 20));
}

TEST(ShapePainting, SizesThatNoLabelHasDoNotHang)
{
    for (const int brush : {1, 2, 9, 11, 14, 15}) {
        for (const int pen : {0, 1, 2, 3}) {
            Painted page;
            for (const ShapeRow& row : PaintedShapes) {
                auto& item = putShape(page, row.type);
                item.setBrushStyle(brush);
                item.setPenStyle(pen);
                item.setPenWidth(pen == 3 ? 0 : 1);
                item.setItemSize(QSizeF(1e300, 1e300));
                item.setItemRotation(10.0);
            }
            EXPECT_FALSE(page.image().isNull());
        }
    }
}

TEST(PicturePainting, APictureHasItsOwnSizeUntilItGetsAnother)
{
    Painted page;
    auto& item = page.make<PixMapItem>(KestTypes::Picture);
    item.pixmapImportActions(fourColors());
    EXPECT_EQ(item.getItemSize(), QSizeF(2.0, 2.0));
    item.setItemSize(QSizeF(80.0, 40.0));
    EXPECT_EQ(item.getItemSize(), QSizeF(80.0, 40.0));
    EXPECT_EQ(page.ink(), QRect(0, 0, 80, 40));
    EXPECT_EQ(page.at(5, 5), QColor(Qt::red));
    EXPECT_EQ(page.at(75, 5), QColor(Qt::green));
    EXPECT_EQ(page.at(5, 35), QColor(Qt::blue));
    EXPECT_EQ(page.at(75, 35), QColor(Qt::black));
}

TEST(PicturePainting, ANullPictureHasNoSizeAndPaintsNothing)
{
    Painted page;
    auto& item = page.make<PixMapItem>(KestTypes::Picture);
    item.pixmapImportActions(fourColors());
    item.pixmapImportActions(QPixmap());
    EXPECT_EQ(item.getItemSize(), QSizeF(0.0, 0.0));
    item.setItemSize(QSizeF(50.0, 50.0));
    EXPECT_TRUE(page.ink().isEmpty());
}

TEST(PicturePainting, APictureIsMirroredAndTurned)
{
    Painted page;
    auto& item = page.make<PixMapItem>(KestTypes::Picture);
    item.pixmapImportActions(fourColors());
    item.setItemSize(QSizeF(40.0, 40.0));
    item.setFlipHorizontal(true);
    EXPECT_EQ(page.at(3, 3), QColor(Qt::green));
    item.setFlipVertical(true);
    EXPECT_EQ(page.at(3, 3), QColor(Qt::black));
    item.setFlipHorizontal(false);
    item.setFlipVertical(false);
    item.setItemRotation(90.0);
    EXPECT_EQ(page.at(3, 3), QColor(Qt::blue));
}

TEST(PicturePainting, AMuchLargerPictureLosesNoThinLines)
{
    QImage stripes(1000, 1000, QImage::Format_RGB32);
    stripes.fill(Qt::white);
    for (int x = 0; x < 1000; x += 50) {
        for (int y = 0; y < 1000; ++y) {
            stripes.setPixelColor(x, y, Qt::black);
        }
    }
    Painted page;
    auto& item = page.make<PixMapItem>(KestTypes::Picture);
    item.pixmapImportActions(QPixmap::fromImage(stripes));
    item.setItemSize(QSizeF(100.0, 100.0));
    const QImage image = page.image();
    for (int stripe = 0; stripe < 20; ++stripe) {
        const QRect column(stripe * 5, 50, 5, 1);
        EXPECT_LT(countOf(image, column, Qt::white), 5) << stripe;
    }
}

TEST(SymbolPainting, ASymbolHasItsOwnSizeInPoints)
{
    Painted page;
    auto& item = page.make<SymbolItem>(KestTypes::Symbol);
    item.loadItemFromData(svg("<rect width='40' height='20'/>"));
    EXPECT_EQ(item.getItemSize(), QSizeF(40.0, 20.0));
    EXPECT_EQ(page.ink(), QRect(0, 0, 40, 20));
}

TEST(SymbolPainting, DataThatDrawsNothingHasNoSize)
{
    for (const QByteArray& data : {QByteArray(), QByteArray("no drawing"), QByteArray("<html/>")}) {
        Painted page;
        auto& item = page.make<SymbolItem>(KestTypes::Symbol);
        item.loadItemFromData(data);
        EXPECT_EQ(item.getItemSize(), QSizeF(0.0, 0.0));
        item.setItemSize(QSizeF(30.0, 30.0));
        EXPECT_TRUE(page.ink().isEmpty());
    }
}

TEST(SymbolPainting, TheForegroundIsWhatTheDrawingLeavesOpen)
{
    Painted page;
    auto& item = page.make<SymbolItem>(KestTypes::Symbol);
    item.loadItemFromData(svg("<rect width='10' height='20'/>"
                              "<rect x='10' width='10' height='20' fill='currentColor'/>"
                              "<rect x='20' width='10' height='20' fill='#00ff00'/>"));
    EXPECT_EQ(page.at(5, 10), QColor(Qt::black));
    item.setForegroundColor(Qt::red);
    EXPECT_EQ(page.at(5, 10), QColor(Qt::red));
    EXPECT_EQ(page.at(15, 10), QColor(Qt::red));
    EXPECT_EQ(page.at(25, 10), QColor(0, 255, 0));
    EXPECT_EQ(page.at(35, 10), QColor(Qt::white));
}

TEST(SymbolPainting, TheBackgroundIsBehindTheDrawing)
{
    Painted page;
    auto& item = page.make<SymbolItem>(KestTypes::Symbol);
    item.loadItemFromData(svg("<rect width='10' height='20'/>"));
    item.setBackgroundColor(Qt::yellow);
    EXPECT_EQ(page.at(35, 10), QColor(Qt::yellow));
    EXPECT_EQ(page.at(5, 10), QColor(Qt::black));
    item.setFillColor(Qt::transparent);
    EXPECT_EQ(page.at(35, 10), QColor(Qt::white));
}

TEST(SymbolPainting, ASymbolIsStretchedAndMirrored)
{
    Painted page;
    auto& item = page.make<SymbolItem>(KestTypes::Symbol);
    item.loadItemFromData(svg("<rect width='20' height='20'/>"));
    item.setItemSize(QSizeF(100.0, 80.0));
    EXPECT_EQ(page.ink(), QRect(0, 0, 50, 80));
    item.setFlipHorizontal(true);
    EXPECT_EQ(page.ink(), QRect(50, 0, 50, 80));
}
