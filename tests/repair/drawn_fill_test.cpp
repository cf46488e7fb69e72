// Gradients and their transparency.

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

TEST(DrawnFill, OfAPictureHasItsMeanColor)
{
    Document document =
        drawing("<draw:rect draw:style-name=\"b\" svg:width=\"1in\" svg:height=\"1in\"/>",
                "<style:style style:name=\"b\" style:family=\"graphic\"><style:graphic-properties "
                "draw:fill=\"bitmap\" draw:fill-image-name=\"P\"/></style:style>",
                "<draw:fill-image draw:name=\"P\" xlink:href=\"Pictures/p.png\"/>");
    QImage picture(2, 1, QImage::Format_RGB32);
    picture.setPixelColor(0, 0, QColor(200, 0, 100));
    picture.setPixelColor(1, 0, QColor(100, 0, 200));
    QByteArray bytes;
    QBuffer buffer(&bytes);
    ASSERT_TRUE(picture.save(&buffer, "PNG"));
    document.readMember = [bytes](const QString& name) {
        return name == "Pictures/p.png"_L1 ? bytes : QByteArray();
    };
    EXPECT_EQ(drawShapes(document), 1);
    EXPECT_TRUE(drawingOf(document).contains("fill=\"#960096\""_L1))
        << drawingOf(document).toStdString();
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
