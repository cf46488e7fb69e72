// What becomes of shapes: rotations, drawings, lines.

#include "tests/repair/documents.h"

#include "repair/enhanced_path.h"
#include "repair/shape_steps.h"
#include "repair/svg_path.h"
#include "repair/transform.h"

#include <QBuffer>
#include <QImage>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace repair;

namespace {

constexpr char Square[] = "svg:width=\"1in\" svg:height=\"1in\" svg:x=\"1in\" svg:y=\"1in\"";

std::optional<CustomShape> customShape(const QByteArray& attributes,
                                       const QByteArray& equations = {})
{
    const auto geometry = parseTree("<draw:enhanced-geometry svg:viewBox=\"0 0 100 100\" " +
                                        attributes + ">" + equations + "</draw:enhanced-geometry>",
                                    1 << 20);
    return drawCustomShape(*geometry, {10.0, 10.0});
}

} // namespace

TEST(ShapeSteps, WritePositionsBeforeTheRotation)
{
    // Turned by 90 degrees to the left about its upper left corner, which then is at (2in, 3in).
    Document document =
        drawing("<draw:rect svg:width=\"2in\" svg:height=\"1in\" "
                "draw:transform=\"rotate (1.5707963267949) translate (2in 3in)\"/>");
    EXPECT_EQ(rewriteRotations(document), 1);
    EXPECT_EQ(object(document, u"draw:rect"_s).attribute(u"draw:transform"),
              "rotate (1.570796327) translate (1.500000in 1.500000in)"_L1);
}

TEST(ShapeSteps, TurnAMatrixIntoARotation)
{
    Document document = drawing("<draw:rect svg:width=\"1in\" svg:height=\"1in\" "
                                "draw:transform=\"matrix (0 2 -2 0 4in 1in)\"/>");
    EXPECT_EQ(rewriteRotations(document), 1);
    const Node& rectangle = object(document, u"draw:rect"_s);
    EXPECT_EQ(rectangle.attribute(u"svg:width"), "2.000000in"_L1);
    EXPECT_EQ(rectangle.attribute(u"draw:transform"),
              "rotate (-1.570796327) translate (2.000000in 1.000000in)"_L1);
}

TEST(ShapeSteps, DrawSkewedShapes)
{
    Document document = drawing("<draw:rect svg:width=\"1in\" svg:height=\"1in\" "
                                "draw:transform=\"skewX (0.5) translate (1in 1in)\"/>");
    EXPECT_EQ(drawShapes(document), 1);
    EXPECT_EQ(tags(document), "draw:frame"_L1);
    EXPECT_TRUE(drawingOf(document).contains("<path"_L1));
}

TEST(ShapeSteps, KeepPlainShapes)
{
    Document document =
        drawing("<draw:rect "_ba + Square + "/><draw:ellipse " + Square + "/><draw:line/>");
    EXPECT_EQ(drawShapes(document), 0);
    EXPECT_EQ(tags(document), "draw:rect draw:ellipse draw:line"_L1);
}

TEST(ShapeSteps, DrawPolygonsInTheirPlace)
{
    Document document =
        drawing("<draw:polygon svg:width=\"2in\" svg:height=\"1in\" svg:x=\"1in\" svg:y=\"1in\" "
                "svg:viewBox=\"0 0 200 100\" draw:points=\"0,0 200,0 100,100\"/>");
    EXPECT_EQ(drawPaths(document), 1);
    EXPECT_TRUE(drawingOf(document).contains("M72.000 72.000L216.000 72.000L144.000 144.000"_L1));
}

TEST(ShapeSteps, LeavePathsThatTheyDoNotUnderstand)
{
    Document document =
        drawing("<draw:path svg:d=\"M0 0 what\"/><draw:polygon draw:points=\"x\"/>");
    EXPECT_EQ(drawPaths(document), 0);
    EXPECT_EQ(tags(document), "draw:path draw:polygon"_L1);
}

TEST(ShapeSteps, MakeLinesOfStraightConnectors)
{
    Document document = drawing("<draw:connector svg:x1=\"1in\" svg:y1=\"1in\" svg:x2=\"2in\" "
                                "svg:y2=\"1in\" svg:d=\"M2540 2540h2540\"/>");
    EXPECT_EQ(drawConnectors(document), 1);
    EXPECT_EQ(object(document, u"draw:line"_s).attribute(u"svg:x2"), "2.000000in"_L1);
}

TEST(ShapeSteps, DrawBentConnectors)
{
    Document document = drawing("<draw:connector svg:x1=\"1in\" svg:y1=\"1in\" svg:x2=\"2in\" "
                                "svg:y2=\"2in\" svg:d=\"M2540 2540v2540h2540\"/>");
    EXPECT_EQ(drawConnectors(document), 1);
    EXPECT_TRUE(drawingOf(document).contains("M72.000 72.000L72.000 144.000L144.000 144.000"_L1));
}

TEST(ShapeSteps, SplitDimensionLines)
{
    Document document = drawing("<draw:measure svg:x1=\"1in\" svg:y1=\"2in\" svg:x2=\"3in\" "
                                "svg:y2=\"2in\" draw:style-name=\"m\"><text:p>2 in</text:p>"
                                "</draw:measure>",
                                "<style:style style:name=\"m\" style:family=\"graphic\">"
                                "<style:graphic-properties draw:line-distance=\"1in\"/>"
                                "</style:style>");
    EXPECT_EQ(splitMeasures(document), 1);
    EXPECT_EQ(tags(document), "draw:line draw:line draw:line draw:frame"_L1);
    EXPECT_EQ(document.page()->children[2]->attribute(u"svg:y1"), "1.000000in"_L1);
    EXPECT_EQ(document.page()->children[3]->allText(), "2 in"_L1);
}

TEST(ShapeSteps, GiveTextsOfLinesABox)
{
    Document document = drawing("<draw:line svg:x1=\"1in\" svg:y1=\"2in\" svg:x2=\"3in\" "
                                "svg:y2=\"2in\"><text:p>on it</text:p></draw:line><draw:line/>");
    EXPECT_EQ(splitLineTexts(document), 1);
    EXPECT_EQ(tags(document), "draw:line draw:frame draw:line"_L1);
}

TEST(ShapeSteps, SplitCaptions)
{
    Document document = drawing("<draw:caption draw:caption-point-x=\"-1in\" "
                                "draw:caption-point-y=\"0in\" "_ba +
                                Square + "><text:p>here</text:p></draw:caption>");
    EXPECT_EQ(splitCaptions(document), 1);
    EXPECT_EQ(tags(document), "draw:line draw:rect"_L1);
    EXPECT_EQ(object(document, u"draw:line"_s).attribute(u"svg:x2"), "0.000000in"_L1);
}

TEST(ShapeSteps, SplitTablesIntoCells)
{
    Document document = drawing(
        "<draw:frame svg:x=\"1in\" svg:y=\"2in\" svg:width=\"4in\" svg:height=\"1in\">"
        "<table:table><table:table-column table:number-columns-repeated=\"2\"/>"
        "<table:table-row><table:table-cell><text:p>a</text:p></table:table-cell>"
        "<table:table-cell table:style-name=\"c\"><text:p>b</text:p></table:table-cell>"
        "</table:table-row><table:table-row><table:table-cell "
        "table:number-columns-spanned=\"2\"><text:p>wide</text:p></table:table-cell>"
        "<table:covered-table-cell/></table:table-row></table:table>"
        "<draw:image xlink:href=\"preview.svm\"/></draw:frame>",
        "<style:style style:name=\"c\" style:family=\"table-cell\"><style:graphic-properties "
        "draw:fill=\"solid\" draw:fill-color=\"#ff0000\"/></style:style>");
    EXPECT_EQ(splitTables(document), 1);
    EXPECT_EQ(tags(document), "draw:frame draw:frame draw:frame"_L1);
    const auto& cells = document.page()->children;
    EXPECT_EQ(graphicOf(document, *cells[0]).value(u"draw:fill"_s), "solid"_L1);
    EXPECT_EQ(graphicOf(document, *cells[0]).value(u"draw:fill-color"_s), "#729fcf"_L1);
    EXPECT_EQ(cells[1]->attribute(u"svg:x"), "3.000000in"_L1);
    EXPECT_EQ(cells[1]->allText(), "b"_L1);
    EXPECT_EQ(graphicOf(document, *cells[1]).value(u"draw:fill-color"_s), "#ff0000"_L1);
    EXPECT_EQ(cells[2]->attribute(u"svg:y"), "2.500000in"_L1);
    EXPECT_EQ(cells[2]->attribute(u"svg:width"), "4.000000in"_L1);
}

TEST(ShapeSteps, MirrorPictures)
{
    QImage image(2, 1, QImage::Format_RGB32);
    image.setPixelColor(0, 0, Qt::red);
    image.setPixelColor(1, 0, Qt::blue);
    QByteArray png;
    QBuffer buffer(&png);
    ASSERT_TRUE(image.save(&buffer, "PNG"));
    Document document =
        drawing("<draw:frame draw:style-name=\"m\"><draw:image xlink:href=\"a.png\"/></draw:frame>"
                "<draw:frame><draw:image xlink:href=\"a.png\"/></draw:frame>",
                "<style:style style:name=\"m\" style:family=\"graphic\">"
                "<style:graphic-properties style:mirror=\"horizontal\"/></style:style>");
    document.readMember = [&png](const QString&) { return png; };
    EXPECT_EQ(mirrorPictures(document), 1);
    ASSERT_EQ(document.newMembers.size(), 1);
    EXPECT_EQ(QImage::fromData(document.newMembers.cbegin().value()).pixelColor(0, 0),
              QColor(Qt::blue));
}

TEST(CustomShapes, AreDrawnFromTheirPath)
{
    const auto shape = customShape(
        "draw:modifiers=\"25\" draw:enhanced-path=\"M ?f0 0 L 100 100 0 100 Z N\"",
        "<draw:equation draw:name=\"f0\" draw:formula=\"(left+right)/2-$0*2+min(50,60)\"/>");
    ASSERT_TRUE(shape);
    ASSERT_EQ(shape->outlines.size(), 1U);
    EXPECT_EQ(toSvgPath(shape->outlines[0].path),
              "M5.000 0.000L10.000 10.000L0.000 10.000L5.000 0.000Z"_L1);
}

TEST(CustomShapes, KnowPartsWithoutFillOrStroke)
{
    const auto shape = customShape("draw:enhanced-path=\"M 0 0 L 9 9 F N M 0 0 L 5 5 9 0 Z S N\"");
    ASSERT_TRUE(shape);
    ASSERT_EQ(shape->outlines.size(), 2U);
    EXPECT_FALSE(shape->outlines[0].isFilled);
    EXPECT_FALSE(shape->outlines[1].isStroked);
}

TEST(CustomShapes, DrawArcs)
{
    const auto full = customShape("draw:enhanced-path=\"U 50 50 50 50 0 360 Z N\"");
    ASSERT_TRUE(full);
    EXPECT_EQ(full->outlines[0].path.boundingRect().toRect(), QRect(0, 0, 10, 10));
    // Down to the left, then a quarter counter-clockwise to the bottom.
    const auto quarter = customShape("draw:enhanced-path=\"B 0 0 100 100 0 50 50 100 N\"");
    ASSERT_TRUE(quarter);
    const QRectF box = quarter->outlines[0].path.boundingRect();
    EXPECT_NEAR(box.left(), 0.0, 0.01);
    EXPECT_NEAR(box.right(), 5.0, 0.01);
    EXPECT_NEAR(box.top(), 5.0, 0.01);
}

TEST(CustomShapes, WithTextOnTheirPathAreTheirText)
{
    repair::Document document =
        drawing("<draw:custom-shape svg:width=\"2in\" svg:height=\"1in\"><text:p>curved</text:p>"
                "<draw:enhanced-geometry svg:viewBox=\"0 0 100 100\" draw:text-path=\"true\" "
                "draw:enhanced-path=\"M 0 0 L 100 100 N\"/></draw:custom-shape>");
    (void)repair::drawShapes(document);
    EXPECT_EQ(tags(document), u"draw:frame"_s) << "the path is not drawn";
    EXPECT_EQ(object(document, u"draw:frame"_s).child(u"draw:image"), nullptr);
    EXPECT_EQ(document.page()->allText(), u"curved"_s);
}

TEST(CustomShapes, AreMirrored)
{
    const auto shape = customShape("draw:mirror-horizontal=\"true\" "
                                   "draw:enhanced-path=\"M 0 0 L 30 0 N\"");
    ASSERT_TRUE(shape);
    EXPECT_EQ(toSvgPath(shape->outlines[0].path), "M10.000 0.000L7.000 0.000"_L1);
}

TEST(CustomShapes, AreNotGuessed)
{
    EXPECT_FALSE(customShape("draw:enhanced-path=\"M 0\""));
    EXPECT_FALSE(customShape("draw:enhanced-path=\"R 1 2\""));
    EXPECT_FALSE(customShape("draw:enhanced-path=\"M ?f9 0 L 1 1\""));
    EXPECT_FALSE(customShape("draw:enhanced-path=\"M ?f0 0 L 1 1\"",
                             "<draw:equation draw:name=\"f0\" draw:formula=\"?f1\"/>"
                             "<draw:equation draw:name=\"f1\" draw:formula=\"?f0\"/>"));
    const QByteArray deep = QByteArray(5000, '(') + "1" + QByteArray(5000, ')');
    EXPECT_FALSE(customShape("draw:enhanced-path=\"M ?f0 0 L 1 1\"",
                             "<draw:equation draw:name=\"f0\" draw:formula=\"" + deep + "\"/>"));
}

// Office programs fill a shape whose style says nothing about its fill.
TEST(ShapeSteps, FillShapesWhoseStyleLeavesTheFillOpen)
{
    const auto fillOf = [](const QByteArray& tag, const QByteArray& properties) {
        Document document = drawing("<draw:" + tag + " draw:style-name=\"S\" " + Square + "/>",
                                    "<style:style style:name=\"S\" style:family=\"graphic\">"
                                    "<style:graphic-properties " +
                                        properties + "/></style:style>");
        (void)drawPaths(document);
        const Properties graphic = graphicOf(document, *document.page()->children[0]);
        return graphic.value(u"draw:fill"_s) + u' ' + graphic.value(u"draw:fill-color"_s);
    };
    EXPECT_EQ(fillOf("rect", ""), "solid #99ccff"_L1);
    EXPECT_EQ(fillOf("custom-shape", "draw:fill-color=\"#123456\""), "solid #123456"_L1);
    EXPECT_EQ(fillOf("ellipse", "draw:fill=\"none\""), "none "_L1);
    EXPECT_EQ(fillOf("line", ""), " "_L1);
    EXPECT_EQ(fillOf("frame", ""), " "_L1);
}

TEST(SvgPaths, AreReadAsSvgWritesThem)
{
    const auto path = parseSvgPath(u"M10-5.5.5 1h10v-2l-1-1z"_s);
    ASSERT_TRUE(path);
    EXPECT_EQ(toSvgPath(*path), "M10.000 -5.500L0.500 1.000L10.500 1.000L10.500 -1.000"
                                "L9.500 -2.000L10.000 -5.500Z"_L1);
    const auto arc = parseSvgPath(u"M0 0a5 5 0 0110 0"_s);
    ASSERT_TRUE(arc);
    EXPECT_NEAR(arc->boundingRect().top(), -5.0, 0.01);
    EXPECT_FALSE(parseSvgPath(u"M1e99 0"_s));
    EXPECT_FALSE(parseSvgPath(u"10 10"_s));
}

TEST(Dashes, AreDrawnIfNoPenHasThem)
{
    const auto tagsWith = [](const QByteArray& name, const QByteArray& lengths,
                             const QByteArray& shape) {
        Document document = drawing(
            "<draw:" + shape +
                " draw:style-name=\"s\" svg:width=\"2in\" svg:height=\"1in\" "
                "svg:x1=\"0in\" svg:y1=\"0in\" svg:x2=\"2in\" svg:y2=\"0in\"/>",
            "<style:style style:name=\"s\" style:family=\"graphic\"><style:graphic-properties "
            "draw:stroke=\"dash\" draw:stroke-dash=\"" +
                name +
                "\" "
                "svg:stroke-width=\"2pt\"/></style:style>",
            "<draw:stroke-dash draw:name=\"" + name + "\" " + lengths + "/>");
        (void)drawShapes(document);
        return tags(document);
    };
    const QByteArray dashed = "draw:dots1=\"1\" draw:dots1-length=\"8pt\" draw:distance=\"4pt\"";
    const QByteArray fine = "draw:dots1=\"1\" draw:dots1-length=\"1pt\" draw:distance=\"1pt\"";
    EXPECT_EQ(tagsWith("Dashed", dashed, "line"), u"draw:line"_s);
    EXPECT_EQ(tagsWith("Dashed", dashed, "rect"), u"draw:rect"_s);
    EXPECT_EQ(tagsWith("Other", dashed, "line"), u"draw:frame"_s) << "the reader shows dots";
    EXPECT_EQ(tagsWith("Dashed", fine, "line"), u"draw:frame"_s);
    EXPECT_EQ(tagsWith("Dashed", fine, "rect"), u"draw:frame"_s);
}

TEST(Dashes, HaveTheLengthsOfTheDocument)
{
    Document document =
        drawing("<draw:line draw:style-name=\"s\" svg:x1=\"0in\" svg:y1=\"0in\" svg:x2=\"2in\" "
                "svg:y2=\"0in\"/>",
                "<style:style style:name=\"s\" style:family=\"graphic\"><style:graphic-properties "
                "draw:stroke=\"dash\" draw:stroke-dash=\"D\" svg:stroke-width=\"2pt\"/>"
                "</style:style>",
                "<draw:stroke-dash draw:name=\"D\" draw:style=\"round\" draw:dots1=\"2\" "
                "draw:dots1-length=\"0%\" draw:dots2=\"1\" draw:dots2-length=\"10pt\" "
                "draw:distance=\"200%\"/>");
    EXPECT_EQ(drawShapes(document), 1);
    const QString svg = drawingOf(document);
    EXPECT_TRUE(svg.contains("stroke-dasharray=\"2.000,4.000,2.000,4.000,10.000,4.000\""_L1))
        << svg.toStdString();
    EXPECT_TRUE(svg.contains("stroke-linecap=\"round\""_L1));
}

TEST(ArrowHeads, AreDrawnIfTheyAreNotAsLargeAsThoseOfItems)
{
    const auto tagsWith = [](const QByteArray& properties) {
        Document document = drawing(
            "<draw:line draw:style-name=\"s\" svg:x1=\"0in\" svg:y1=\"0in\" svg:x2=\"2in\" "
            "svg:y2=\"0in\"/>",
            "<style:style style:name=\"s\" style:family=\"graphic\"><style:graphic-properties " +
                properties + "/></style:style>",
            "<draw:marker draw:name=\"Arrow\" svg:viewBox=\"0 0 20 30\" svg:d=\"M10 0l-10 "
            "30h20z\"/>");
        (void)drawShapes(document);
        return tags(document);
    };
    const QString line = u"draw:line"_s;
    const QString drawn = u"draw:frame"_s;
    EXPECT_EQ(tagsWith("draw:marker-end=\"Arrow\""), line);
    EXPECT_EQ(tagsWith("draw:marker-end=\"Arrow\" draw:marker-end-width=\"0.2cm\""), line);
    EXPECT_EQ(tagsWith("draw:marker-end=\"Arrow\" draw:marker-end-width=\"0.5cm\""), drawn);
    EXPECT_EQ(tagsWith("draw:marker-start=\"Arrow\" draw:marker-start-width=\"0.1cm\""), drawn);
    EXPECT_EQ(tagsWith("draw:marker-start-width=\"0.5cm\""), line) << "no arrow head";
    EXPECT_EQ(tagsWith("draw:marker-end=\"Arrow\" draw:marker-end-width=\"0.5cm\" "
                       "svg:stroke-width=\"6pt\""),
              line)
        << "a thick line";
    EXPECT_EQ(tagsWith("draw:marker-end=\"Small_20_Arrow\" draw:marker-end-width=\"0.15cm\""),
              line);
}
