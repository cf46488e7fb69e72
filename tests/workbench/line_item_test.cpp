#include "painted.h"

#include "host/items/line_item.h"
#include "workbench/items/canvas_item.h"
#include "workbench/items/line_markers.h"

#include <gtest/gtest.h>

#include <limits>

using workbench::Marker;

namespace {

LineItem& putLine(Painted& page)
{
    auto& line = page.make<LineItem>(KestTypes::Line);
    line.setPenWidth(2);
    return line;
}

// The rows of ink in one column: the thickness of the line there.
int thickness(const QImage& image, int x)
{
    return inkOf(image.copy(x, 0, 1, image.height())).height();
}

} // namespace

TEST(Line, OfALengthRunsToTheRightFromItsPosition)
{
    Painted page;
    auto& line = putLine(page);
    line.setLineLength(100.0);
    line.setPos(30.0, 40.0);
    EXPECT_EQ(page.ink(), QRect(30, 39, 100, 2));
    EXPECT_EQ(line.getItemSize(), QSizeF(100.0, 0.0));
}

TEST(Line, TurnsAboutItsMiddle)
{
    // A line of 60 at (64, 46), rotated by 90 degrees, is vertical from (94, 16) downwards.
    Painted page;
    auto& line = putLine(page);
    line.setLineLength(60.0);
    line.setItemRotation(90.0);
    line.setPos(64.0, 46.0);
    EXPECT_EQ(page.ink(), QRect(93, 16, 2, 60));
}

TEST(Line, HasItsEndsWhereThePageHasThem)
{
    Painted page;
    auto& line = putLine(page);
    line.setLineStartPoint(QPointF(120.0, 20.0));
    line.setLineEndPoint(QPointF(120.0, 80.0));
    EXPECT_EQ(page.ink(), QRect(119, 20, 2, 60));
    EXPECT_EQ(line.pos(), QPointF(120.0, 20.0));
    EXPECT_EQ(line.getItemSize(), QSizeF(0.0, 60.0));
}

TEST(Line, MayRunInEveryDirection)
{
    for (const QPointF& end :
         {QPointF(150, 80), QPointF(50, 80), QPointF(50, 20), QPointF(150, 20)}) {
        Painted page;
        auto& line = putLine(page);
        line.setLineStartPoint(QPointF(100.0, 50.0));
        line.setLineEndPoint(end);
        const QRect ink = page.ink();
        const QRectF box = QRectF(QPointF(100.0, 50.0), end).normalized();
        EXPECT_NEAR(ink.center().x(), box.center().x(), 1.0);
        EXPECT_NEAR(ink.center().y(), box.center().y(), 1.0);
        EXPECT_NEAR(ink.width(), 50, 2);
        EXPECT_NEAR(ink.height(), 30, 2);
    }
}

TEST(Line, AStartThatIsSetLastLeavesTheEndInPlace)
{
    Painted page;
    auto& line = putLine(page);
    line.setLineEndPoint(QPointF(150.0, 50.0));
    line.setLineStartPoint(QPointF(50.0, 50.0));
    EXPECT_EQ(page.ink(), QRect(50, 49, 100, 2));
}

TEST(Line, ASizeKeepsItsDirection)
{
    Painted page;
    auto& line = putLine(page);
    line.setLineStartPoint(QPointF(100.0, 50.0));
    line.setLineEndPoint(QPointF(80.0, 60.0));
    line.setItemSize(QSizeF(60.0, 40.0));
    EXPECT_EQ(dynamic_cast<workbench::CanvasItem&>(line).values().line->end, QPointF(-60.0, 40.0));
}

TEST(Line, WithoutALengthOrAPenDrawsNothing)
{
    for (const double length : {0.0, -20.0, std::numeric_limits<double>::quiet_NaN()}) {
        Painted page;
        auto& line = putLine(page);
        line.setLineEndMarker(1);
        line.setLineLength(length);
        EXPECT_TRUE(page.ink().isEmpty()) << length;
    }
    Painted page;
    auto& line = putLine(page);
    line.setLineLength(50.0);
    line.setLineEndMarker(1);
    line.setPenStyle(Qt::NoPen);
    EXPECT_TRUE(page.ink().isEmpty());
}

TEST(Line, ADiagonalLineIsMirroredWithinItsBox)
{
    Painted page;
    auto& line = putLine(page);
    line.setLineStartPoint(QPointF(50.0, 20.0));
    line.setLineEndPoint(QPointF(150.0, 80.0));
    EXPECT_NE(page.at(60, 26), QColor(Qt::white));
    line.setFlipVertical(true);
    EXPECT_EQ(page.at(60, 26), QColor(Qt::white));
    EXPECT_NE(page.at(60, 74), QColor(Qt::white));
}

TEST(Line, OfAnyLengthIsPainted)
{
    for (const int style : {1, 3}) {
        Painted page;
        auto& line = putLine(page);
        line.setPenStyle(style);
        line.setLineStartPoint(QPointF(-1e300, 50.0));
        line.setLineEndPoint(QPointF(1e300, 50.0));
        EXPECT_FALSE(page.image().isNull());
        line.setPenWidth(0);
        EXPECT_FALSE(page.image().isNull());
        line.setPenWidth(65535);
        EXPECT_FALSE(page.image().isNull());
    }
}

struct MarkerRow
{
    int code;
    Marker marker;
};

TEST(LineMarker, OfAnEndIsChosenByItsCode)
{
    for (const MarkerRow& row : {MarkerRow{0, Marker::None}, MarkerRow{-1, Marker::None},
                                 MarkerRow{1, Marker::Arrow}, MarkerRow{3, Marker::SmallArrow},
                                 MarkerRow{5, Marker::DoubleArrow}, MarkerRow{8, Marker::Dimension},
                                 MarkerRow{2, Marker::Arrow}, MarkerRow{0x30, Marker::Arrow}}) {
        EXPECT_EQ(workbench::endMarker(row.code), row.marker) << row.code;
    }
}

TEST(LineMarker, OfAStartIsChosenByItsCode)
{
    for (const MarkerRow& row :
         {MarkerRow{0, Marker::None}, MarkerRow{-16, Marker::None}, MarkerRow{0x10, Marker::Arrow},
          MarkerRow{0x30, Marker::SmallArrow}, MarkerRow{0x50, Marker::DoubleArrow},
          MarkerRow{0x80, Marker::Dimension}, MarkerRow{0x20, Marker::Arrow},
          MarkerRow{3, Marker::Arrow}}) {
        EXPECT_EQ(workbench::startMarker(row.code), row.marker) << row.code;
    }
}

TEST(LineMarker, PointsOutOfItsOwnEnd)
{
    Painted page;
    auto& line = putLine(page);
    line.setLineLength(100.0);
    line.setPos(50.0, 50.0);
    line.setLineEndMarker(1);
    const QImage atEnd = page.image();
    EXPECT_LE(thickness(atEnd, 52), 2);
    EXPECT_GE(thickness(atEnd, 142), 5);
    EXPECT_LT(thickness(atEnd, 148), thickness(atEnd, 142));
    EXPECT_EQ(inkOf(atEnd).right(), 149);

    line.setLineEndMarker(0);
    line.setLineStartMarker(0x10);
    const QImage atStart = page.image();
    EXPECT_EQ(inkOf(atStart), inkOf(atEnd.mirrored(true, false)));
    EXPECT_GE(thickness(atStart, 57), 5);
    EXPECT_LE(thickness(atStart, 147), 2);
}

TEST(LineMarker, KindsDiffer)
{
    QList<QImage> images;
    for (const int code : {0, 1, 3, 5, 8}) {
        Painted page;
        auto& line = putLine(page);
        line.setLineLength(100.0);
        line.setPos(50.0, 50.0);
        line.setLineEndMarker(code);
        const QImage image = page.image();
        EXPECT_FALSE(images.contains(image)) << code;
        images.append(image);
    }
}

TEST(LineMarker, GrowsWithTheLine)
{
    const QRectF thin = workbench::markerPath(Marker::Arrow, {}, {1.0, 0.0}, 1.0).boundingRect();
    const QRectF thick = workbench::markerPath(Marker::Arrow, {}, {1.0, 0.0}, 10.0).boundingRect();
    EXPECT_GT(thin.height(), 4.0);
    EXPECT_GT(thick.height(), 2.0 * 10.0);
    EXPECT_EQ(thin.right(), 0.0);
    EXPECT_EQ(thick.right(), 0.0);
}

TEST(LineMarker, OfAThinLineIsAsLargeAsThatOfAnOfficeSuite)
{
    constexpr double Millimeter = 72.0 / 25.4;
    const QRectF arrow = workbench::markerPath(Marker::Arrow, {}, {1.0, 0.0}, 0.5).boundingRect();
    EXPECT_NEAR(arrow.height(), 3.0 * Millimeter, 0.1);
    EXPECT_NEAR(arrow.width(), 4.5 * Millimeter, 0.1);
}

TEST(LineMarker, ALineThatIsShorterThanItsArrowsStillHasThem)
{
    Painted page;
    auto& line = putLine(page);
    line.setLineLength(4.0);
    line.setPos(50.0, 50.0);
    line.setLineStartMarker(0x10);
    line.setLineEndMarker(1);
    EXPECT_GT(page.ink().height(), 4);
}
