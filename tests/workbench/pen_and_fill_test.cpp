// Pens and brushes with the style numbers of files.

#include "painted.h"

#include "host/items/line_item.h"
#include "host/items/rectangle_item.h"
#include "workbench/items/hatching.h"
#include "workbench/items/pen_and_fill.h"

#include <QSet>

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

using workbench::PenValues;
using workbench::toPen;

namespace {

const QColor DarkBlue(0, 0, 200);

PenValues penWith(int style, int cap, int join)
{
    PenValues values;
    values.style = style;
    values.cap = cap;
    values.join = join;
    return values;
}

// A blue shape of 160 by 80 points at (20, 10) without an outline.
FillableItem& putBox(Painted& page, int brushStyle)
{
    auto& item = page.make<FillableItem>(KestTypes::Rectangle);
    item.setItemSize(QSizeF(160.0, 80.0));
    dynamic_cast<QGraphicsItem&>(item).setPos(20.0, 10.0);
    item.setPenStyle(Qt::NoPen);
    item.setFillColor(DarkBlue);
    item.setBrushStyle(brushStyle);
    return item;
}

LineItem& putWideLine(Painted& page)
{
    auto& line = page.make<LineItem>(KestTypes::Line);
    line.setPos(20.0, 50.0);
    line.setLineLength(160.0);
    line.setPenWidth(4);
    return line;
}

double shareOfInk(const QImage& image, const QRect& rectangle)
{
    const int white = countOf(image, rectangle, Qt::white);
    return 1.0 - static_cast<double>(white) / (rectangle.width() * rectangle.height());
}

} // namespace

TEST(Pen, StylesThatQtKnowsAreTaken)
{
    for (int style = 0; style <= 5; ++style) {
        EXPECT_EQ(toPen(penWith(style, 0, 0)).style(), static_cast<Qt::PenStyle>(style));
    }
    EXPECT_EQ(toPen(penWith(1, 0x10, 0)).capStyle(), Qt::SquareCap);
    EXPECT_EQ(toPen(penWith(1, 0x20, 0)).capStyle(), Qt::RoundCap);
    EXPECT_EQ(toPen(penWith(1, 0, 0)).capStyle(), Qt::FlatCap);
    EXPECT_EQ(toPen(penWith(1, 0, 0)).joinStyle(), Qt::MiterJoin);
    EXPECT_EQ(toPen(penWith(1, 0, 0x40)).joinStyle(), Qt::BevelJoin);
    EXPECT_EQ(toPen(penWith(1, 0, 0x80)).joinStyle(), Qt::RoundJoin);
    EXPECT_EQ(toPen(penWith(1, 0, 0x100)).joinStyle(), Qt::SvgMiterJoin);
}

TEST(Pen, UnknownNumbersAreASolidLineAFlatCapABeveledJoin)
{
    for (const int number :
         {-1, 6, 7, 99, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        const QPen pen = toPen(penWith(number, number, number));
        EXPECT_EQ(pen.style(), Qt::SolidLine) << number;
        EXPECT_EQ(pen.capStyle(), Qt::FlatCap) << number;
        EXPECT_EQ(pen.joinStyle(), Qt::BevelJoin) << number;
    }
}

TEST(Pen, AWidthOfZeroIsTheThinnestLineOfTheOutput)
{
    Painted page;
    putWideLine(page).setPenWidth(0);
    EXPECT_LE(inkOf(page.image(72.0)).height(), 2);
    EXPECT_GE(inkOf(page.image(72.0)).height(), 1);
    EXPECT_LE(inkOf(page.image(600.0)).height(), 2);
}

TEST(Pen, AWidthIsInPoints)
{
    Painted page;
    putWideLine(page);
    EXPECT_EQ(inkOf(page.image(72.0)), QRect(20, 48, 160, 4));
    EXPECT_EQ(inkOf(page.image(288.0)), QRect(80, 192, 640, 16));
}

TEST(Pen, DashesLeaveGapsAndASolidLineNone)
{
    const QRect line(20, 49, 160, 1);
    Painted solid;
    putWideLine(solid);
    EXPECT_EQ(countOf(solid.image(), line, Qt::white), 0);
    for (const int style : {2, 3, 4, 5}) {
        Painted dashed;
        putWideLine(dashed).setPenStyle(style);
        const QImage image = dashed.image();
        EXPECT_GT(countOf(image, line, Qt::white), 20) << style;
        EXPECT_GT(countOf(image, line, Qt::black), 20) << style;
    }
}

TEST(Pen, CapsReachBeyondTheEnds)
{
    Painted page;
    auto& line = putWideLine(page);
    line.setCapStyle(Qt::SquareCap);
    EXPECT_EQ(page.ink(), QRect(18, 48, 164, 4));
    line.setCapStyle(Qt::FlatCap);
    EXPECT_EQ(page.ink(), QRect(20, 48, 160, 4));
}

TEST(Pen, JoinsAreSharpCutOrRound)
{
    const QPoint corner(16, 6); // outermost corner of a frame 10 points wide around (20, 10)
    Painted page;
    auto& item = putBox(page, Qt::NoBrush);
    item.setPenStyle(Qt::SolidLine);
    item.setPenWidth(10);
    item.setJoinStyle(Qt::MiterJoin);
    EXPECT_EQ(page.at(corner.x(), corner.y()), QColor(Qt::black));
    item.setJoinStyle(Qt::BevelJoin);
    EXPECT_EQ(page.at(corner.x(), corner.y()), QColor(Qt::white));
    item.setJoinStyle(Qt::RoundJoin);
    EXPECT_NE(page.at(17, 7), QColor(Qt::white));
    EXPECT_EQ(page.at(15, 5), QColor(Qt::white));
}

TEST(Fill, IsSolidForSolidAndUnknownStyles)
{
    for (const int style : {1, 24, 18, -7, 1000, std::numeric_limits<int>::max()}) {
        Painted page;
        putBox(page, style);
        EXPECT_EQ(countOf(page.image(), QRect(20, 10, 160, 80), DarkBlue), 160 * 80) << style;
    }
}

TEST(Fill, IsNotThereWithoutABrushUnfilledOrTransparent)
{
    Painted noBrush;
    putBox(noBrush, Qt::NoBrush);
    EXPECT_TRUE(noBrush.ink().isEmpty());
    Painted unfilled;
    putBox(unfilled, 1).setFilled(false);
    EXPECT_TRUE(unfilled.ink().isEmpty());
    Painted transparent;
    putBox(transparent, 1).setFillColor(Qt::transparent);
    EXPECT_TRUE(transparent.ink().isEmpty());
}

TEST(Fill, ANewShapeIsOpenUntilItGetsAColor)
{
    Painted page;
    auto& item = page.make<FillableItem>(KestTypes::Rectangle);
    item.setItemSize(QSizeF(50.0, 50.0));
    EXPECT_EQ(page.at(25, 25), QColor(Qt::white));
    item.setFillColor(DarkBlue);
    EXPECT_EQ(page.at(25, 25), DarkBlue);
}

TEST(Fill, TonesGrowLighterFromTheFirstToTheLast)
{
    int last = 0;
    for (int style = Qt::Dense1Pattern; style <= Qt::Dense7Pattern; ++style) {
        Painted page;
        putBox(page, style);
        const int red = page.at(100, 50).red();
        EXPECT_GT(red, last) << style;
        EXPECT_LT(red, 255) << style;
        last = red;
    }
}

TEST(Fill, HatchesLeaveMostOfTheGroundOpenAndStayInTheShape)
{
    for (int style = Qt::HorPattern; style <= Qt::DiagCrossPattern; ++style) {
        SCOPED_TRACE(style);
        Painted page;
        putBox(page, style);
        const QImage image = page.image(144.0);
        const double ink = shareOfInk(image, QRect(40, 20, 320, 160));
        EXPECT_GT(ink, 0.05);
        EXPECT_LT(ink, 0.75);
        EXPECT_TRUE(QRect(40, 20, 320, 160).contains(inkOf(image)));
    }
}

TEST(Fill, HatchesRunTheWayTheirNamesSay)
{
    const QRectF area(0.0, 0.0, 60.0, 60.0);
    const auto slopes = [&area](int style) {
        QSet<int> angles;
        for (const QLineF& line : workbench::hatchLines(area, style)) {
            angles.insert(qRound(line.angle()) % 180);
        }
        return angles;
    };
    EXPECT_EQ(slopes(Qt::HorPattern), QSet<int>({0}));
    EXPECT_EQ(slopes(Qt::VerPattern), QSet<int>({90}));
    EXPECT_EQ(slopes(Qt::CrossPattern), QSet<int>({0, 90}));
    EXPECT_EQ(slopes(Qt::BDiagPattern), QSet<int>({45}));
    EXPECT_EQ(slopes(Qt::FDiagPattern), QSet<int>({135}));
    EXPECT_EQ(slopes(Qt::DiagCrossPattern), QSet<int>({45, 135}));
}

TEST(Fill, HatchLinesCoverTheAreaWhereverItBegins)
{
    for (const QRectF& area : {QRectF(0, 0, 60, 30), QRectF(1000.5, -2000.25, 60, 30)}) {
        const QList<QLineF> lines = workbench::hatchLines(area, Qt::HorPattern);
        EXPECT_EQ(lines.size(), area.height() / 6.0 + (area.top() == 0.0 ? 1 : 0));
        for (const QLineF& line : lines) {
            EXPECT_GE(line.y1(), area.top());
            EXPECT_LE(line.y1(), area.bottom());
        }
    }
}

TEST(Fill, AHatchOverAHugeAreaHasABoundedNumberOfLines)
{
    EXPECT_LE(workbench::hatchLines(QRectF(0, 0, 1e9, 1e9), Qt::DiagCrossPattern).size(), 4'010);
    // One line every six points, up to 2,000 lines; over larger areas the distance grows.
    const auto linesOf = [](int steps) {
        return workbench::hatchLines(QRectF(0, 0, 6.0 * steps, 6.0), Qt::VerPattern).size();
    };
    EXPECT_EQ(linesOf(1'999), 2'000);
    EXPECT_EQ(linesOf(2'000), 2'001);
    EXPECT_NEAR(double(linesOf(2'001)), 2'000.0, 1.0);
    EXPECT_NEAR(double(linesOf(4'000)), 2'000.0, 1.0);
    EXPECT_TRUE(workbench::hatchLines(QRectF(), Qt::CrossPattern).isEmpty());
}

TEST(Fill, AGradientRunsFromTheColorToWhite)
{
    Painted page;
    page.canvas.setCanvasBackgroundColor(Qt::yellow);
    putBox(page, Qt::LinearGradientPattern);
    const QColor top = page.at(100, 11);
    const QColor bottom = page.at(100, 88);
    EXPECT_NEAR(top.blue(), DarkBlue.blue(), 8);
    EXPECT_NEAR(top.red(), 0, 8);
    EXPECT_NEAR(bottom.red(), 255, 8);
    EXPECT_NEAR(bottom.green(), 255, 8);
    EXPECT_NEAR(bottom.blue(), 255, 8);
    EXPECT_EQ(page.at(30, 50), page.at(170, 50));
}

TEST(Fill, ARadialGradientIsDarkestInTheMiddle)
{
    for (const int style : {16, 17}) {
        Painted page;
        putBox(page, style);
        EXPECT_LT(page.at(100, 50).red(), page.at(25, 15).red()) << style;
    }
}

TEST(Fill, LightGradientsAndHatchesAreVisible)
{
    for (const int style : {int(Qt::LinearGradientPattern), int(Qt::RadialGradientPattern),
                            int(Qt::HorPattern), int(Qt::DiagCrossPattern)}) {
        for (const QColor light : {QColor(255, 255, 240), QColor(Qt::white)}) {
            Painted page;
            putBox(page, style).setFillColor(light);
            const QImage image = page.image();
            int darkest = 255;
            for (int y = 12; y < 88; ++y) {
                darkest = std::min(darkest, qGray(image.pixel(100, y)));
            }
            EXPECT_LT(darkest, 230) << style;
        }
    }
}
