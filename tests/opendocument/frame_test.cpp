// Frames: text boxes and pictures.

#include "reader_fixture.h"
#include "tests/support/captured_log.h"
#include "tests/support/encoded_picture.h"

#include <QImage>

using namespace Qt::StringLiterals;

namespace {

QByteArray picture(int width, int height, const char* format = "PNG")
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::red);
    return encoded(image, format);
}

const QByteArray Drawing = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"1\" height=\"1\"/>";

class Frame : public ReaderTest
{
protected:
    Frame()
    {
        package.add(u"Pictures/a.png"_s, picture(5, 6));
        package.add(u"Pictures/b.jpg"_s, picture(3, 4, "JPG"));
        package.add(u"Pictures/c.svg"_s, Drawing);
        package.add(u"Pictures/bad.svg"_s, "no drawing");
        package.add(u"Pictures/bad.png"_s, "no picture");
        package.add(u"Pictures/two.parts.png"_s, picture(1, 1));
        package.add(u"Pictures/UPPER.PNG"_s, picture(2, 2));
    }

    void import(const QByteArray& shapes, const QByteArray& properties = {})
    {
        run(drawingXml(shapes, style(properties)));
    }

    void importText(const QByteArray& text, const QByteArray& properties = {})
    {
        run(textXml(text, style(properties)));
    }

    static QByteArray style(const QByteArray& properties)
    {
        return "<style:style style:family=\"graphic\" style:name=\"g\">"
               "<style:graphic-properties " +
               properties + "/></style:style>";
    }

    void run(const QByteArray& content)
    {
        package.add(u"styles.xml"_s, stylesXml()).add(u"content.xml"_s, content);
        ASSERT_TRUE(reader.importLabelFromFile(package.write()));
    }

    Package package;
};

QByteArray images(const QByteArrayList& names, const QByteArray& attributes = {})
{
    QByteArray xml = "<draw:frame " + attributes + ">";
    for (const QByteArray& name : names) {
        xml += "<draw:image xlink:href=\"Pictures/" + name + "\"/>";
    }
    return xml + "</draw:frame>";
}

const QByteArray FrameBox = "svg:x=\"1in\" svg:y=\"2in\" svg:width=\"3in\" svg:height=\"4in\" ";

} // namespace

TEST_F(Frame, TextBoxMakesItsCallsInOrder)
{
    import("<draw:frame draw:style-name=\"g\" draw:z-index=\"2\" " + FrameBox +
               "draw:transform=\"rotate (-1.5707963267949)\"><draw:text-box>"
               "<text:p>x</text:p></draw:text-box></draw:frame>",
           "draw:fill=\"solid\"");
    EXPECT_EQ(
        itemCalls(),
        lines({"factory create 1002a", "canvas importItem 'item:1'", "item:1 setItemSize 216 288",
               "item:1 setFlipHorizontal false", "item:1 setFlipVertical false",
               "item:1 setPenStyle 0", "item:1 setPenWidth 0", "item:1 setItemRotation 90",
               "item:1 setBrushStyle 1", "factory create 10016",
               "item:2 adjustBoxSizeToContent 216", "item:2 getItemWidth", "item:2 getItemHeight",
               "canvas importItem 'item:2'", "item:2 setItemRotation 90"}));
    EXPECT_EQ(host.item(1)->pos(), QPointF(72, 144));
    EXPECT_EQ(host.item(1)->zValue(), 2000);
    EXPECT_NEAR(host.item(2)->pos().x(), 72 + 108 + (144 - 6) - 108, 1e-9);
    EXPECT_NEAR(host.item(2)->pos().y(), 144 + 144 - 6, 1e-9);
    EXPECT_DOUBLE_EQ(host.item(2)->zValue(), 2000.001);
}

TEST_F(Frame, MinimalHeightReplacesTheHeight)
{
    import("<draw:frame " + FrameBox +
           "><draw:text-box fo:min-height=\"1in\"/></draw:frame>"
           "<draw:frame " +
           FrameBox +
           "><draw:text-box fo:min-height=\"x\"/></draw:frame>"
           "<draw:frame svg:width=\"3in\"><draw:text-box fo:min-height=\"2in\"/></draw:frame>");
    EXPECT_EQ(host.lastCall(1, u"setItemSize"_s), u"216 72"_s);
    EXPECT_EQ(host.lastCall(2, u"setItemSize"_s), u"216 288"_s);
    EXPECT_EQ(host.lastCall(3, u"setItemSize"_s), u"216 144"_s);
}

TEST_F(Frame, TextBoxMayHaveRoundCorners)
{
    import("<draw:frame><draw:text-box draw:corner-radius=\"0.5in\"/></draw:frame>"
           "<draw:frame draw:corner-radius=\"1in\"><draw:text-box/></draw:frame>");
    EXPECT_EQ(host.requestedTypes(), (Types{KestTypes::RoundedRectangle, KestTypes::Rectangle}));
    EXPECT_EQ(host.lastCall(1, u"setCornerRadius"_s), u"36"_s);
}

TEST_F(Frame, AFrameWithoutAPictureIsATextBox)
{
    import("<draw:frame/><draw:frame><draw:object/><draw:image xlink:href=\"Pictures/a.png\"/>"
           "</draw:frame>");
    EXPECT_EQ(host.requestedTypes(), (Types{KestTypes::Rectangle, KestTypes::Rectangle}));
}

TEST_F(Frame, TextBoxWithoutAParagraphHasNoText)
{
    import("<draw:frame><draw:text-box><text:h>x</text:h><text:list><text:list-item><text:p>x"
           "</text:p></text:list-item></text:list></draw:text-box></draw:frame>");
    EXPECT_EQ(host.createdCount(), 1);
}

TEST_F(Frame, TextBoxOfTheDrawingKeepsItsOrder)
{
    import("<draw:frame><draw:text-box><text:p>x</text:p></draw:text-box></draw:frame>");
    EXPECT_DOUBLE_EQ(host.item(2)->zValue(), 0.001);
}

TEST_F(Frame, PositionThatIsNotGivenComesFromTheStyle)
{
    const QByteArray margins =
        "draw:start-line-spacing-horizontal=\"1in\" draw:start-line-spacing-vertical=\"0.5in\" "
        "draw:end-line-spacing-horizontal=\"2in\" ";
    const struct
    {
        QByteArray properties;
        QPointF position;
    } rows[] = {
        // The page is 612 wide, the box 100; margins are 72 at the left, 144 at the right.
        {margins, {72, 36}},
        {margins + "style:horizontal-pos=\"from-left\"", {72, 36}},
        {margins + "style:horizontal-pos=\"right\"", {612 - 72 - 144, 36}},
        {margins + "style:horizontal-pos=\"center\"", {(612 + 72 - 144 - 72) * 0.5, 36}},
        {"", {0, 0}},
    };
    int item = 0;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.properties.toStdString());
        import("<draw:frame draw:style-name=\"g\" svg:width=\"1in\"><draw:text-box/></draw:frame>",
               row.properties);
        EXPECT_EQ(host.item(++item)->pos(), row.position);
    }
}

TEST_F(Frame, EachCoordinateIsGivenByItself)
{
    import("<draw:frame svg:x=\"1in\"><draw:text-box/></draw:frame>"
           "<draw:frame svg:y=\"1in\"><draw:text-box/></draw:frame>");
    EXPECT_EQ(host.item(1)->pos(), QPointF(72, 0));
    EXPECT_EQ(host.item(2)->pos(), QPointF(0, 72));
}

TEST_F(Frame, BoxWithoutWidthIsPositionedAlone)
{
    import("<draw:frame draw:style-name=\"g\"><draw:text-box/></draw:frame>",
           "style:horizontal-pos=\"right\"");
    EXPECT_EQ(host.item(1)->pos(), QPointF(612 - 20, 0));
}

TEST_F(Frame, AnchoredBoxesFollowTheTextFlow)
{
    const QByteArray box = "<draw:text-box fo:min-height=\"1in\"/></draw:frame>";
    const QByteArray styled = "<draw:frame draw:style-name=\"g\" ";
    importText("<text:p/>" + styled + "text:anchor-type=\"paragraph\">" + box + styled + ">" + box,
               "text:anchor-type=\"page\"");
    EXPECT_EQ(host.item(1)->pos(), QPointF(0, 12)) << "by its own attribute";
    EXPECT_EQ(host.item(2)->pos(), QPointF(0, 0)) << "by its style";
    importText("<text:p/><draw:frame>" + box);
    EXPECT_EQ(host.item(3)->pos(), QPointF(0, 12)) << "by default";
}

TEST_F(Frame, FramesInTheFlowAreStacked)
{
    const QByteArray one = "<draw:frame svg:height=\"1in\"><draw:text-box/></draw:frame>";
    const QByteArray two = "<draw:frame svg:height=\"2in\"><draw:text-box/></draw:frame>";
    importText(one + two + "<text:p>x</text:p>");
    EXPECT_EQ(host.item(1)->pos(), QPointF(0, 0));
    EXPECT_EQ(host.item(2)->pos(), QPointF(0, 72));
    EXPECT_EQ(host.item(3)->pos(), QPointF(0, 216));
}

TEST_F(Frame, PictureMakesItsCallsInOrder)
{
    import(images({"a.png"}, FrameBox + "draw:z-index=\"4\" draw:style-name=\"g\" "
                                        "draw:transform=\"rotate (-1.5707963267949)\""),
           "style:mirror=\"horizontal\"");
    EXPECT_EQ(itemCalls(), lines({"factory create 1000c", "item:1 pixmapImportActions 5x6",
                                  "item:1 setItemSize 216 288", "item:1 setItemRotation 90",
                                  "canvas importItem 'item:1'"}));
    EXPECT_EQ(host.item(1)->pos(), QPointF(72, 144));
    EXPECT_EQ(host.item(1)->zValue(), 4000);
}

TEST_F(Frame, PictureWithoutSizeKeepsItsOwn)
{
    import(images({"a.png"}) + images({"a.png"}, "svg:width=\"1in\""));
    EXPECT_EQ(host.lastCall(1, u"setItemSize"_s), u"5 6"_s);
    EXPECT_EQ(host.lastCall(2, u"setItemSize"_s), u"72 6"_s);
    EXPECT_EQ(host.lastCall(1, u"setItemRotation"_s), QString());
    EXPECT_EQ(host.item(1)->pos(), QPointF(-1000000001, -1000000001));
}

TEST_F(Frame, DrawingBecomesASymbol)
{
    import(images({"a.png", "c.svg"}, FrameBox));
    const QString shown = TestHost::shown(Drawing);
    EXPECT_EQ(itemCalls(), (QStringList{
                               u"symbolcreator loadImportedSvg "_s + shown,
                               u"symbolcreator convertSvgToSymbol [0 0 216 288]"_s,
                               u"symbolcreator getSymbolData"_s,
                               u"factory create 1000d"_s,
                               u"item:1 loadItemFromData "_s + shown,
                               u"item:1 setItemSize 216 288"_s,
                               u"canvas importItem 'item:1'"_s,
                           }));
}

TEST_F(Frame, SymbolWithoutBothSidesKeepsItsOwn)
{
    import(images({"c.svg"}, "svg:width=\"3in\"") + images({"c.svg"}));
    EXPECT_EQ(host.lastCall(1, u"setItemSize"_s), u"216 8"_s);
    EXPECT_EQ(host.lastCall(2, u"setItemSize"_s), u"7 8"_s);
    EXPECT_EQ(host.callsWith("convert"), lines({"symbolcreator convertSvgToSymbol [0 0 0 0]",
                                                "symbolcreator convertSvgToSymbol [0 0 0 0]"}));
    EXPECT_EQ(host.recorder().symbolCreatorsMade(), 1) << "one serves all";
}

TEST_F(Frame, PictureOfTheFirstSuffixIsTaken)
{
    import(images({"a.png", "b.jpg"}) + images({"two.parts.png", "a.png"}) +
           images({"a.png", "UPPER.PNG"}) + images({"UPPER.PNG", "b.jpg"}));
    EXPECT_EQ(host.lastCall(1, u"pixmapImportActions"_s), u"3x4"_s) << "jpg before png";
    EXPECT_EQ(host.lastCall(2, u"pixmapImportActions"_s), u"1x1"_s)
        << "the complete suffix is parts.png, which precedes png";
    EXPECT_EQ(host.lastCall(3, u"pixmapImportActions"_s), u"2x2"_s)
        << "letters do not matter, and the last of a suffix counts";
    EXPECT_EQ(host.lastCall(4, u"pixmapImportActions"_s), u"3x4"_s)
        << "capital letters come no earlier";
}

TEST_F(Frame, UnusablePicturesGiveNoItem)
{
    const CapturedLog log;
    import(images({"missing.png"}) + images({"bad.png"}) + images({"bad.svg"}) +
           images({"missing.svg"}) + images({"bad.svg", "a.png"}) +
           "<draw:frame><draw:image/></draw:frame>");
    EXPECT_EQ(host.createdCount(), 0);
    EXPECT_EQ(host.importedCount(), 0);
    EXPECT_TRUE(log.messages().contains(u"The package has no member Pictures/missing.png"_s));
    EXPECT_TRUE(log.messages().contains(u"The drawing Pictures/bad.svg cannot be converted"_s));
}

TEST_F(Frame, NothingOutsideThePackageIsOpened)
{
    import("<draw:frame><draw:image xlink:href=\"file:///etc/hostname.png\"/></draw:frame>"
           "<draw:frame><draw:image xlink:href=\"../../etc/hostname.png\"/></draw:frame>");
    EXPECT_EQ(host.createdCount(), 0);
}

TEST_F(Frame, PicturesThatTheHostDoesNotMakeAreLeftOut)
{
    host.behavior().refusedTypes = {KestTypes::Picture, KestTypes::Symbol};
    import(images({"a.png"}) + images({"c.svg"}) + "<draw:rect/>");
    EXPECT_EQ(host.importedCount(), 1);
}

TEST_F(Frame, WhatGivesNoPictureTakesNoPlaceInTheFlow)
{
    const QByteArray high = "svg:height=\"5in\"";
    importText(images({"missing.png"}, high) + images({"bad.png"}, high) +
               images({"missing.svg"}, high) + images({"bad.svg"}, high) +
               images({"a.png"}, "svg:height=\"1in\"") + images({"c.svg"}, "svg:height=\"2in\"") +
               "<text:p>x</text:p>");
    EXPECT_EQ(host.item(3)->pos(), QPointF(0, 216)) << "below the two that are pictures";
    host.behavior().refusedTypes = {KestTypes::Picture, KestTypes::Symbol};
    importText(images({"a.png"}, high) + images({"c.svg"}, high) + "<text:p>x</text:p>");
    EXPECT_EQ(host.item(4)->pos(), QPointF(0, 0)) << "the host makes neither";
}

TEST_F(Frame, AMissingPositionIsZeroForTheTextBesideAPicture)
{
    for (const char* name : {"a.png", "c.svg"}) {
        importText("<text:p>" +
                       images({name}, "draw:style-name=\"g\" svg:width=\"1in\" svg:y=\"1in\"") +
                       "x</text:p>",
                   "style:wrap=\"right\"");
        EXPECT_EQ(host.item(host.createdCount())->pos(), QPointF(72, 0));
        EXPECT_EQ(host.lastCall(host.createdCount(), u"adjustBoxSizeToContent"_s), u"540"_s);
    }
}

TEST_F(Frame, ABoxThatTheHostDoesNotMakeTakesNoPlaceInTheFlow)
{
    host.behavior().refusedTypes = {KestTypes::Rectangle};
    importText("<draw:frame svg:height=\"5in\"><draw:text-box/></draw:frame><text:p>x</text:p>");
    EXPECT_EQ(host.item(1)->pos(), QPointF(0, 0));
}

TEST_F(Frame, APictureIsDecodedOnceForManyFrames)
{
    const CapturedLog log;
    import(images({"bad.png"}) + images({"bad.png"}));
    EXPECT_EQ(
        log.messages().count(u"The picture Pictures/bad.png cannot be decoded or is too large"_s),
        1);
}
