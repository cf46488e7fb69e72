// Shapes and lines on the canvas: their calls, and the order of these.

#include "reader_fixture.h"

#include <QApplication>
#include <QFontInfo>

using namespace Qt::StringLiterals;

namespace {

class Shape : public ReaderTest
{
protected:
    void import(const QByteArray& shapes, const QByteArray& properties = {})
    {
        const QByteArray style =
            "<style:style style:family=\"graphic\" style:name=\"g\"><style:graphic-properties " +
            properties + "/></style:style>";
        ASSERT_TRUE(ReaderTest::import(stylesXml(), drawingXml(shapes, style)));
    }
};

const QByteArray ShapeBox = "svg:x=\"1in\" svg:y=\"2in\" svg:width=\"3in\" svg:height=\"4in\" ";

} // namespace

TEST_F(Shape, MakesItsCallsInOrder)
{
    import("<draw:rect draw:style-name=\"g\" " + ShapeBox +
               "draw:z-index=\"3\" draw:transform=\"rotate (-1.5707963267949)\"/>",
           "style:mirror=\"horizontal\" draw:stroke=\"solid\" svg:stroke-width=\"0.05in\" "
           "svg:stroke-color=\"#112233\" svg:stroke-linecap=\"round\" "
           "draw:stroke-linejoin=\"bevel\" draw:fill=\"gradient\" draw:fill-color=\"#445566\"");
    EXPECT_EQ(itemCalls(), lines({"factory create 1002a", "item:1 setItemSize 216 288",
                                  "item:1 setFlipHorizontal true", "item:1 setFlipVertical false",
                                  "item:1 setPenStyle 1", "item:1 setPenWidth 3",
                                  "item:1 setPenColor '#ff112233'", "item:1 setCapStyle 32",
                                  "item:1 setJoinStyle 64", "item:1 setItemRotation 90",
                                  "item:1 setBrushStyle 15", "item:1 setFillColor '#ff445566'",
                                  "canvas importItem 'item:1'"}));
    EXPECT_EQ(host.item(1)->pos(), QPointF(72, 144));
    EXPECT_EQ(host.item(1)->zValue(), 3000);
}

TEST_F(Shape, LeavesToTheHostWhatIsNotGiven)
{
    import("<draw:rect/>");
    EXPECT_EQ(itemCalls(),
              lines({"factory create 1002a", "item:1 getItemWidth", "item:1 getItemHeight",
                     "item:1 setItemSize 20 10", "item:1 setFlipHorizontal false",
                     "item:1 setFlipVertical false", "item:1 setPenStyle 0", "item:1 setPenWidth 0",
                     "item:1 setBrushStyle 0", "canvas importItem 'item:1'"}));
    EXPECT_EQ(host.item(1)->pos(), QPointF(-1000000001, -1000000001));
    EXPECT_EQ(host.item(1)->zValue(), 0);
}

TEST_F(Shape, TakesTheItemsOwnSizeSideBySide)
{
    import("<draw:rect svg:width=\"1in\"/><draw:rect svg:height=\"1in\" svg:width=\"0in\"/>"
           "<draw:rect svg:height=\"-1in\" svg:width=\"1in\"/>");
    EXPECT_EQ(host.lastCall(1, u"setItemSize"_s), u"72 10"_s);
    EXPECT_EQ(host.lastCall(2, u"setItemSize"_s), u"20 72"_s);
    EXPECT_EQ(host.lastCall(3, u"setItemSize"_s), u"72 10"_s);
}

TEST_F(Shape, ASizeOfNothingIsTheItemsOwnAndTheSmallestIsKept)
{
    import("<draw:rect svg:width=\"0in\" svg:height=\"0in\"/>"
           "<draw:rect svg:width=\"-1in\" svg:height=\"-1in\"/>"
           "<draw:rect svg:width=\"0.001in\" svg:height=\"0.0005in\"/>");
    const QString own = host.lastCall(1, u"setItemSize"_s);
    EXPECT_FALSE(own.startsWith(u'0')) << own.toStdString();
    EXPECT_FALSE(own.endsWith(u" 0"_s)) << own.toStdString();
    EXPECT_EQ(host.lastCall(2, u"setItemSize"_s), own);
    EXPECT_EQ(host.lastCall(3, u"setItemSize"_s), u"0.072 0.036"_s);
}

TEST_F(Shape, PenFollowsFromWidthWhereTheStyleIsOpen)
{
    const struct
    {
        QByteArray properties;
        QString style;
        QString width;
    } rows[] = {
        {"", u"0"_s, u"0"_s},
        {"svg:stroke-width=\"1in\"", u"1"_s, u"72"_s},
        {"draw:stroke=\"solid\"", u"1"_s, u"1"_s},
        {"draw:stroke=\"none\" svg:stroke-width=\"1in\"", u"0"_s, u"0"_s},
        {"draw:stroke=\"dash\" draw:stroke-dash=\"Dash\"", u"2"_s, u"1"_s},
        {"svg:stroke-width=\"1000in\"", u"1"_s, u"65535"_s},
        {"svg:stroke-width=\"-1in\"", u"1"_s, u"1"_s},
        {"fo:border=\"-1in solid\"", u"1"_s, u"1"_s},
        {"fo:border=\"-1in none\"", u"0"_s, u"0"_s},
        {"svg:stroke-width=\"1e300in\"", u"1"_s, u"65535"_s},
    };
    int item = 0;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.properties.toStdString());
        import("<draw:rect draw:style-name=\"g\"/>", row.properties);
        ++item;
        EXPECT_EQ(host.lastCall(item, u"setPenStyle"_s), row.style);
        EXPECT_EQ(host.lastCall(item, u"setPenWidth"_s), row.width);
    }
}

TEST_F(Shape, NoPenHasNoEnds)
{
    import("<draw:rect draw:style-name=\"g\"/>",
           "svg:stroke-linecap=\"round\" draw:stroke-linejoin=\"bevel\"");
    EXPECT_EQ(host.lastCall(1, u"setPenStyle"_s), u"0"_s);
    EXPECT_EQ(host.lastCall(1, u"setCapStyle"_s), QString());
    EXPECT_EQ(host.lastCall(1, u"setJoinStyle"_s), QString());
}

TEST_F(Shape, TextThatIsNotAColorSetsAnInvalidColor)
{
    import("<draw:rect draw:style-name=\"g\"/>",
           "svg:stroke-color=\"nocolor\" draw:fill-color=\"#12\"");
    EXPECT_EQ(host.lastCall(1, u"setPenColor"_s), u"null"_s);
    EXPECT_EQ(host.lastCall(1, u"setFillColor"_s), u"null"_s);
    EXPECT_EQ(host.lastCall(1, u"setBrushStyle"_s), u"1"_s);
}

TEST_F(Shape, EmptyColorsAreNotSet)
{
    import("<draw:rect draw:style-name=\"g\"/>", "svg:stroke-color=\"\" draw:fill-color=\"\"");
    EXPECT_EQ(host.lastCall(1, u"setPenColor"_s), QString());
    EXPECT_EQ(host.lastCall(1, u"setFillColor"_s), QString());
}

TEST_F(Shape, UnknownStyleIsTheDefault)
{
    import("<draw:rect draw:style-name=\"other\"/><draw:rect draw:style-name=\"\"/>",
           "draw:fill=\"solid\"");
    EXPECT_EQ(host.lastCall(1, u"setBrushStyle"_s), u"0"_s);
    EXPECT_EQ(host.lastCall(2, u"setBrushStyle"_s), u"0"_s);
}

TEST_F(Shape, AnEmptyStyleNameIsTheDefaultEvenIfAStyleHasNoName)
{
    const QByteArray nameless =
        "<style:style style:family=\"graphic\"><style:graphic-properties draw:fill=\"solid\"/>"
        "</style:style>";
    Package package(stylesXml(),
                    drawingXml("<draw:rect draw:style-name=\"\"/><draw:rect/><draw:line "
                               "draw:style-name=\"\"/><draw:frame draw:style-name=\"\"/>",
                               nameless));
    ASSERT_TRUE(reader.importLabelFromFile(package.write()));
    EXPECT_EQ(host.lastCall(1, u"setBrushStyle"_s), u"0"_s);
    EXPECT_EQ(host.lastCall(2, u"setBrushStyle"_s), u"0"_s);
    EXPECT_EQ(host.lastCall(4, u"setBrushStyle"_s), u"0"_s);
}

TEST_F(Shape, CornerRadiusIsSetFirst)
{
    import("<draw:rect draw:corner-radius=\"0.5in\"/>");
    EXPECT_EQ(itemCalls().value(0), u"factory create 1002b"_s);
    EXPECT_EQ(itemCalls().value(1), u"item:1 setCornerRadius 36"_s);
}

TEST_F(Shape, InvalidCornerRadiusStillRoundsTheRectangle)
{
    import("<draw:rect draw:corner-radius=\"x\"/><draw:rect draw:corner-radius=\"-1in\"/>");
    EXPECT_EQ(host.requestedTypes(),
              (Types{KestTypes::RoundedRectangle, KestTypes::RoundedRectangle}));
    EXPECT_EQ(host.lastCall(1, u"setCornerRadius"_s), QString());
    EXPECT_EQ(host.lastCall(2, u"setCornerRadius"_s), u"-72"_s) << "hosts clamp it";
}

TEST_F(Shape, EachKindTakesStyleAndPlace)
{
    const QByteArray attributes = "draw:style-name=\"g\" " + ShapeBox;
    const QByteArray geometry = "<draw:enhanced-geometry draw:type=\"";
    const QByteArray custom = "<draw:custom-shape " + attributes + ">" + geometry;
    const QByteArray end = "\"/></draw:custom-shape>";
    import("<draw:ellipse " + attributes + "/>" + custom + "octagon" + end + custom + "mso-spt100" +
               end + custom + "round-rectangle" + end,
           "draw:fill=\"solid\"");
    for (int item = 1; item <= 4; ++item) {
        SCOPED_TRACE(item);
        EXPECT_EQ(host.lastCall(item, u"setItemSize"_s), u"216 288"_s);
        EXPECT_EQ(host.lastCall(item, u"setBrushStyle"_s), u"1"_s);
        EXPECT_EQ(host.item(item)->pos(), QPointF(72, 144));
    }
    EXPECT_EQ(host.importedCount(), 4);
}

TEST_F(Shape, TextIsAboveItsShape)
{
    import("<draw:rect " + ShapeBox +
           "draw:z-index=\"3\" draw:transform=\"rotate (-1.5707963267949)\"><text:p>x</text:p>"
           "</draw:rect>");
    EXPECT_EQ(
        itemCalls().sliced(itemCalls().indexOf(u"canvas importItem 'item:1'"_s)),
        lines({"canvas importItem 'item:1'", "factory create 10016",
               "item:2 adjustBoxSizeToContent 216", "item:2 getItemWidth", "item:2 getItemHeight",
               "canvas importItem 'item:2'", "item:2 setItemRotation 90"}));
    // A text of 216 by 12 in a box of 216 by 288, both rotated about their centers: its upper
    // edge is at the right edge of the box.
    EXPECT_NEAR(host.item(2)->pos().x(), 72 + 108 + (144 - 6) - 108, 1e-9);
    EXPECT_NEAR(host.item(2)->pos().y(), 144 + 144 - 6, 1e-9);
    EXPECT_DOUBLE_EQ(host.item(2)->zValue(), 3000.001);
    EXPECT_TRUE(html(2).contains(u">x<"_s));
}

TEST_F(Shape, TextIsAboveAShapeWithoutOrderToo)
{
    import("<draw:ellipse><text:p>x</text:p></draw:ellipse>");
    EXPECT_DOUBLE_EQ(host.item(2)->zValue(), 0.001);
    EXPECT_EQ(host.lastCall(2, u"adjustBoxSizeToContent"_s), u"20"_s) << "the width as applied";
    EXPECT_EQ(host.lastCall(2, u"setItemRotation"_s), QString());
}

TEST_F(Shape, TextAtTheSecondPlaceIsAtTwoThousand)
{
    import("<draw:rect draw:z-index=\"2\"><text:p>x</text:p></draw:rect>");
    EXPECT_DOUBLE_EQ(host.item(2)->zValue(), 2000.001);
}

TEST_F(Shape, TextIsScaledByTheFontOfTheApplication)
{
    const QFontInfo font(QApplication::font());
    const double pointsPerPixel = font.pointSizeF() / font.pixelSize();
    ASSERT_NE(pointsPerPixel, 1.0) << "a platform on which this shows nothing";
    ASSERT_TRUE(ReaderTest::import(
        stylesXml(), drawingXml("<draw:rect><text:p text:style-name=\"P\">x</text:p></draw:rect>",
                                "<style:style style:family=\"paragraph\" style:name=\"P\">"
                                "<style:text-properties fo:font-size=\"40pt\"/></style:style>")));
    const double size = QString::number(40.0 * pointsPerPixel, 'f', 2).toDouble();
    EXPECT_TRUE(html(2).contains(u" font-size:%1pt;"_s.arg(size))) << html(2).toStdString();
}

TEST_F(Shape, WithoutAParagraphOrVisibleTextHasNone)
{
    import("<draw:rect><text:h>x</text:h><text:span>x</text:span></draw:rect>"
           "<draw:rect><text:p>  </text:p></draw:rect><draw:rect><text:p/></draw:rect>"
           "<draw:rect><text:list><text:p>x</text:p></text:list></draw:rect>");
    EXPECT_EQ(host.createdCount(), 4);
}

TEST_F(Shape, WithAParagraphAllItsTextCounts)
{
    import("<draw:rect><text:h>title</text:h><text:p/></draw:rect>");
    EXPECT_TRUE(html(2).contains(u"title"_s));
}

TEST_F(Shape, TextIsLeftOutWhereTheHostMakesNone)
{
    host.behavior().refusedTypes = {KestTypes::RichText};
    import("<draw:rect><text:p>x</text:p></draw:rect><draw:ellipse/>");
    EXPECT_EQ(host.importedCount(), 2);
}

TEST_F(Shape, TextShowsMarkupCharactersAndPercentSigns)
{
    import("<draw:rect><text:p>a &lt; b, 100 %1 &amp; more</text:p></draw:rect>");
    const auto* text = dynamic_cast<QGraphicsTextItem*>(host.item(2));
    EXPECT_EQ(text->toPlainText(), u"a < b, 100 %1 & more"_s);
}

TEST_F(Shape, LinesMakeTheirCallsInOrder)
{
    import("<draw:line draw:style-name=\"g\" draw:z-index=\"2\" svg:x1=\"1in\" svg:y1=\"2in\" "
           "svg:x2=\"3in\" svg:y2=\"4in\"><text:p>no</text:p></draw:line>",
           "svg:stroke-width=\"0.05in\" draw:marker-start=\"Arrow\" "
           "draw:marker-end=\"Dimension_20_Lines\" draw:fill=\"solid\"");
    EXPECT_EQ(itemCalls(),
              lines({"factory create 1001f", "canvas importItem 'item:1'",
                     "item:1 setLineStartPoint 72 144", "item:1 setLineEndPoint 216 288",
                     "item:1 setFlipHorizontal false", "item:1 setFlipVertical false",
                     "item:1 setPenStyle 1", "item:1 setPenWidth 3", "item:1 setLineStartMarker 16",
                     "item:1 setLineEndMarker 8"}));
    EXPECT_EQ(host.item(1)->zValue(), 2000);
}

TEST_F(Shape, LinesWithOneMarkerSetOnlyThat)
{
    import("<draw:line draw:style-name=\"g\"/>",
           "draw:marker-end=\"Small_20_Arrow\" draw:marker-start=\"\"");
    EXPECT_EQ(host.lastCall(1, u"setLineEndMarker"_s), u"3"_s);
    EXPECT_EQ(host.lastCall(1, u"setLineStartMarker"_s), QString());
}

TEST_F(Shape, LinesStartAtTheOriginWhereNothingIsGiven)
{
    import("<draw:line svg:x1=\"x\" svg:y2=\"1in\" draw:z-index=\"x\"/>");
    EXPECT_EQ(host.lastCall(1, u"setLineStartPoint"_s), u"0 0"_s);
    EXPECT_EQ(host.lastCall(1, u"setLineEndPoint"_s), u"0 72"_s);
    EXPECT_EQ(host.item(1)->zValue(), 0);
}
