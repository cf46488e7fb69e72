// Gradients and their transparency, and pictures.

#include "tests/repair/documents.h"

#include "repair/shape_steps.h"

#include <QBuffer>
#include <QImage>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace repair;

TEST(DrawnFill, HasTheColorsOfItsGradient)
{
    Document document =
        drawing("<draw:rect draw:style-name=\"g\" svg:width=\"1in\" svg:height=\"1in\">"
                "<text:p>on it</text:p></draw:rect>",
                "<style:style style:name=\"g\" style:family=\"graphic\"><style:graphic-properties "
                "draw:fill=\"gradient\" draw:fill-gradient-name=\"G\"/></style:style>",
                "<draw:gradient draw:name=\"G\" draw:style=\"linear\" draw:start-color=\"#ff0000\" "
                "draw:end-color=\"#00ff00\"/>");
    EXPECT_EQ(drawShapes(document), 1);
    EXPECT_EQ(tags(document), "draw:frame draw:frame"_L1);
    const QString svg = drawingOf(document);
    EXPECT_TRUE(svg.contains("linearGradient"_L1));
    EXPECT_TRUE(svg.contains("stop-color=\"#ff0000\""_L1));
    const Node& text = *document.page()->children[1];
    EXPECT_EQ(text.child(u"draw:text-box")->allText(), "on it"_L1);
}

TEST(DrawnFill, AnAxialGradientBeginsInTheMiddle)
{
    Document document =
        drawing("<draw:rect draw:style-name=\"g\" svg:width=\"1in\" svg:height=\"1in\"/>",
                "<style:style style:name=\"g\" style:family=\"graphic\"><style:graphic-properties "
                "draw:fill=\"gradient\" draw:fill-gradient-name=\"G\"/></style:style>",
                "<draw:gradient draw:name=\"G\" draw:style=\"axial\" draw:start-color=\"#ff0000\" "
                "draw:end-color=\"#0000ff\" draw:angle=\"0deg\" draw:border=\"0%\"/>");
    EXPECT_EQ(drawShapes(document), 1);
    const QString svg = drawingOf(document);
    EXPECT_TRUE(svg.contains("<stop offset=\"0.500\" stop-color=\"#ff0000\"/>"_L1));
    EXPECT_TRUE(svg.contains("<stop offset=\"0.000\" stop-color=\"#0000ff\"/>"_L1));
    EXPECT_TRUE(svg.contains("<stop offset=\"1.000\" stop-color=\"#0000ff\"/>"_L1));
}

TEST(DrawnFill, AnEllipticGradientHasTheProportionsOfItsShape)
{
    Document document = drawing(
        "<draw:rect draw:style-name=\"g\" svg:width=\"2in\" svg:height=\"1in\"/>",
        "<style:style style:name=\"g\" style:family=\"graphic\"><style:graphic-properties "
        "draw:fill=\"gradient\" draw:fill-gradient-name=\"G\"/></style:style>",
        "<draw:gradient draw:name=\"G\" draw:style=\"ellipsoid\" draw:start-color=\"#ff0000\" "
        "draw:end-color=\"#0000ff\" draw:angle=\"90deg\"/>");
    EXPECT_EQ(drawShapes(document), 1);
    EXPECT_TRUE(drawingOf(document).contains("rotate(-90.000) scale(101.823 50.912)"_L1));
}

TEST(DrawnFill, HasATransparencyThatChanges)
{
    Document document = drawing(
        "<draw:rect draw:style-name=\"g\" svg:width=\"1in\" svg:height=\"1in\"/>"
        "<draw:rect draw:style-name=\"unfilled\" svg:width=\"1in\" svg:height=\"1in\"/>",
        "<style:style style:name=\"g\" style:family=\"graphic\"><style:graphic-properties "
        "draw:fill=\"solid\" draw:fill-color=\"#00ff00\" draw:opacity-name=\"O\"/></style:style>"
        "<style:style style:name=\"unfilled\" style:family=\"graphic\"><style:graphic-properties "
        "draw:fill=\"none\" draw:opacity-name=\"O\"/></style:style>",
        "<draw:opacity draw:name=\"O\" draw:style=\"linear\" draw:start=\"100%\" "
        "draw:end=\"25%\" draw:angle=\"0deg\" draw:border=\"0%\"/>");
    EXPECT_EQ(drawShapes(document), 1);
    const QString svg = drawingOf(document);
    EXPECT_TRUE(svg.contains("stop-color=\"#00ff00\" stop-opacity=\"1.000\""_L1));
    EXPECT_TRUE(svg.contains("stop-color=\"#00ff00\" stop-opacity=\"0.250\""_L1));
}

namespace {

/// What fills a square of an inch with a picture of 12 points: red on the left, blue on the right.
///
/// @param properties of the square
/// @return the picture that is drawn; null if there is none
QImage paintedSquare(const QByteArray& properties, const QString& member = u"Pictures/p.png"_s)
{
    Document document =
        drawing("<draw:rect draw:style-name=\"b\" svg:width=\"1in\" svg:height=\"1in\"/>",
                "<style:style style:name=\"b\" style:family=\"graphic\"><style:graphic-properties "
                "draw:fill=\"bitmap\" draw:fill-image-name=\"P\" " +
                    properties + "/></style:style>",
                "<draw:fill-image draw:name=\"P\" xlink:href=\"Pictures/p.png\"/>");
    QImage picture(16, 16, QImage::Format_RGB32);
    picture.setDotsPerMeterX(3780);
    picture.setDotsPerMeterY(3780);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            picture.setPixelColor(x, y, x < picture.width() / 2 ? Qt::red : Qt::blue);
        }
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    EXPECT_TRUE(picture.save(&buffer, "PNG"));
    document.readMember = [bytes, member](const QString& name) {
        return name == member ? bytes : QByteArray();
    };
    EXPECT_EQ(drawShapes(document), 1);
    const QString svg = drawingOf(document);
    const QString start = u"data:image/png;base64,"_s;
    const qsizetype begin = svg.indexOf(start) + start.size();
    return svg.contains(start)
               ? QImage::fromData(QByteArray::fromBase64(
                     svg.sliced(begin, svg.indexOf(u'"', begin) - begin).toLatin1()))
               : QImage();
}

/// The color at shares of the sides.
QColor colorAt(const QImage& picture, double x, double y)
{
    return picture.pixelColor(int(x * (picture.width() - 1)), int(y * (picture.height() - 1)));
}

} // namespace

TEST(DrawnFill, StretchesAPicture)
{
    const QImage picture = paintedSquare("style:repeat=\"stretch\"");
    ASSERT_FALSE(picture.isNull());
    EXPECT_EQ(colorAt(picture, 0.25, 0.9), QColor(Qt::red));
    EXPECT_EQ(colorAt(picture, 0.75, 0.1), QColor(Qt::blue));
}

TEST(DrawnFill, ShowsAPictureOnce)
{
    const QImage picture = paintedSquare("style:repeat=\"no-repeat\"");
    ASSERT_FALSE(picture.isNull());
    EXPECT_EQ(colorAt(picture, 0.46, 0.5), QColor(Qt::red));
    EXPECT_EQ(colorAt(picture, 0.54, 0.5), QColor(Qt::blue));
    EXPECT_EQ(colorAt(picture, 0.2, 0.5).alpha(), 0);
    const QImage corner =
        paintedSquare("style:repeat=\"no-repeat\" draw:fill-image-ref-point=\"bottom-right\" "
                      "draw:fill-image-width=\"0.5in\" draw:fill-image-height=\"50%\"");
    EXPECT_EQ(colorAt(corner, 0.6, 0.6), QColor(Qt::red));
    EXPECT_EQ(colorAt(corner, 0.9, 0.6), QColor(Qt::blue));
    EXPECT_EQ(colorAt(corner, 0.9, 0.4).alpha(), 0);
}

TEST(DrawnFill, RepeatsAPicture)
{
    // Six times along a side.
    const QImage picture = paintedSquare("draw:fill-image-ref-point=\"top-left\"");
    ASSERT_FALSE(picture.isNull());
    for (const double tile : {0.0, 1.0, 5.0}) {
        EXPECT_EQ(colorAt(picture, (tile + 0.25) / 6.0, 0.9), QColor(Qt::red));
        EXPECT_EQ(colorAt(picture, (tile + 0.75) / 6.0, 0.1), QColor(Qt::blue));
    }
    const QImage shifted = paintedSquare("draw:fill-image-ref-point=\"top-left\" "
                                         "draw:fill-image-ref-point-x=\"50%\"");
    EXPECT_EQ(colorAt(shifted, 0.25 / 6.0, 0.5), QColor(Qt::blue));
}

TEST(DrawnFill, OfAPictureCanBeTransparent)
{
    const QImage picture = paintedSquare("style:repeat=\"stretch\" draw:opacity=\"40%\"");
    ASSERT_FALSE(picture.isNull());
    EXPECT_NEAR(colorAt(picture, 0.25, 0.5).alpha(), 102, 2);
}

TEST(DrawnFill, WithoutItsPictureIsAColor)
{
    EXPECT_TRUE(paintedSquare("style:repeat=\"stretch\"", u"Pictures/other.png"_s).isNull());
}

TEST(DrawnTable, HasSpaceAroundTheTextsOfItsCells)
{
    Document document = drawing(
        "<draw:frame svg:width=\"2in\" svg:height=\"1in\"><table:table><table:table-column/>"
        "<table:table-row><table:table-cell><text:p>a</text:p></table:table-cell>"
        "</table:table-row></table:table></draw:frame>");
    EXPECT_EQ(splitTables(document), 1);
    const Properties cell = graphicOf(document, object(document, u"draw:frame"_s));
    EXPECT_EQ(cell.value(u"fo:padding-left"_s), u"0.098425in"_s);
    EXPECT_EQ(cell.value(u"fo:padding-top"_s), u"0.049213in"_s);
}
