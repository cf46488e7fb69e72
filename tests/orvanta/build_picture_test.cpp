#include "tests/orvanta/reader_fixture.h"
#include "tests/support/encoded_picture.h"

#include <QImage>

using namespace Qt::Literals::StringLiterals;

namespace {

using PictureBuilding = ReaderFixture;

QByteArray pictureBox(const QByteArray& bytes, const QByteArray& children = {})
{
    return "<picture_box>" + children + "<image><content>" + bytes.toBase64() +
           "</content></image></picture_box>";
}

constexpr char Place[] =
    "<rotation>90</rotation><flip_horizontally>true</flip_horizontally>"
    "<flip_vertically>true</flip_vertically>"
    "<printable_control><fore_color>255</fore_color><back_color>65280</back_color>"
    "<transparency>false</transparency>"
    "<bounds><x>300</x><y>240</y><w>400</w><h>100</h></bounds></printable_control>";

} // namespace

TEST_F(PictureBuilding, ARasterPictureIsLoadedImportedAndPlaced)
{
    readControls(pictureBox(monoPng(12, 8), Place));
    EXPECT_EQ(takeCalls(), QStringList({
                               u"factory create 1000c"_s,
                               u"item:1 pixmapImportActions 12x8"_s,
                               u"canvas importItem 'item:1'"_s,
                               u"item:1 setItemSize 300 75"_s,
                               u"item:1 setFlipHorizontal true"_s,
                               u"item:1 setFlipVertical true"_s,
                               u"item:1 setItemRotation 90"_s,
                           }));
    EXPECT_EQ(host.item(1)->pos(), QPointF(75, 30));
    EXPECT_EQ(logText(), QString());
}

TEST_F(PictureBuilding, AByteOrderMarkInFrontOfARasterPictureGoesToo)
{
    readControls(pictureBox("\xEF\xBB\xBF" + monoPng(12, 8)));
    EXPECT_EQ(callsOf("item:1").first(), u"pixmapImportActions 12x8"_s);
}

TEST_F(PictureBuilding, InvalidPicturesKeepTheirPosition)
{
    readControls(pictureBox("no picture", Place));
    EXPECT_EQ(callsOf("item:1").mid(0, 2),
              QStringList({u"pixmapImportActions 0x0"_s, u"setItemSize 300 75"_s}));
    EXPECT_EQ(host.itemCount(), 1);
    EXPECT_EQ(logText(), QString());
}

TEST_F(PictureBuilding, CreatesNoItemWithoutBytes)
{
    readControls("<picture_box/><picture_box><image/></picture_box>"
                 "<picture_box><image><content/></image></picture_box>"
                 "<picture_box><image><content>@%@%</content></image></picture_box>");
    EXPECT_EQ(takeCalls(), QStringList());
}

TEST_F(PictureBuilding, AnSvgPictureBecomesASymbol)
{
    readControls(pictureBox("\xEF\xBB\xBF<svg d1p1:a='1'/>", Place));
    const QByteArray svg = "<svg a='1'/>";
    EXPECT_EQ(takeCalls(), QStringList({
                               u"symbolcreator loadImportedSvg "_s + TestHost::shown(svg),
                               u"symbolcreator convertSvgToSymbol [0 0 0 0]"_s,
                               u"symbolcreator getSymbolData"_s,
                               u"factory create 1000d"_s,
                               u"item:1 loadItemFromData "_s + TestHost::shown("symbol of " + svg),
                               u"item:1 getItemSize"_s,
                               u"item:1 setForegroundColor '#ff0000ff'"_s,
                               u"item:1 setFillColor '#ff00ff00'"_s,
                               u"canvas importItem 'item:1'"_s,
                               u"item:1 setItemSize 300 75"_s,
                               u"item:1 setFlipHorizontal true"_s,
                               u"item:1 setFlipVertical true"_s,
                               u"item:1 setItemRotation 90"_s,
                           }));
    EXPECT_EQ(host.item(1)->pos(), QPointF(75, 30));
}

TEST_F(PictureBuilding, OnlyTheExactStartMakesASymbol)
{
    readControls(pictureBox("<SVG/>") + pictureBox(" <svg/>") + pictureBox("<?xml?><svg/>"));
    EXPECT_EQ(callsOf("factory"),
              QStringList({u"create 1000c"_s, u"create 1000c"_s, u"create 1000c"_s}));
    EXPECT_TRUE(callsOf("symbolcreator").isEmpty());
}

TEST_F(PictureBuilding, OneSymbolCreatorServesAllPicturesOfAReader)
{
    readControls(pictureBox("<svg/>") + pictureBox("<svg a=''/>"));
    readControls(pictureBox("<svg/>"));
    EXPECT_EQ(host.recorder().symbolCreatorsMade(), 1);
    EXPECT_EQ(host.itemCount(), 3);
    reader.reset();
    EXPECT_EQ(host.recorder().symbolCreators(), 0);
}

TEST_F(PictureBuilding, UsesNoSymbolCreatorWithoutSvg)
{
    readControls(pictureBox(monoPng(1, 1)));
    EXPECT_EQ(host.recorder().symbolCreatorsMade(), 0);
}

TEST_F(PictureBuilding, AnSvgThatDoesNotConvertCreatesNothing)
{
    host.behavior().conversion = recorder::Behavior::Conversion::Fails;
    readControls(pictureBox("<svg/>"));
    EXPECT_TRUE(callsOf("factory").isEmpty());
    EXPECT_EQ(host.itemCount(), 0);
    EXPECT_EQ(logText(), QString());
}

TEST_F(PictureBuilding, ASymbolWithoutSizeIsDeleted)
{
    for (const QSizeF& size :
         {QSizeF(0, 0), QSizeF(0, 5), QSizeF(5, 0), QSizeF(-1, 5), QSizeF(5, qQNaN())}) {
        host.behavior().symbolSize = size;
        readControls(pictureBox("<svg/>"));
        EXPECT_EQ(host.itemCount(), 0);
        EXPECT_EQ(host.livingItems(), 0);
    }
    host.behavior().symbolSize = QSizeF(0.001, 0.001);
    readControls(pictureBox("<svg/>"));
    EXPECT_EQ(host.itemCount(), 1);
}

TEST_F(PictureBuilding, PicturesThatTheHostDoesNotMakeAreLeftOut)
{
    host.behavior().refusedTypes = {KestTypes::Symbol};
    host.behavior().mismatchedTypes = {KestTypes::Picture};
    readControls(pictureBox("<svg/>") + pictureBox(monoPng(1, 1)));
    EXPECT_EQ(host.itemCount(), 0);
    EXPECT_EQ(host.livingItems(), 0);
    EXPECT_EQ(logText(), u"Left out of the label: a symbol, for which the host made no item\n"
                         "Left out of the label: a picture, for which the host made no item"_s);
}

TEST_F(PictureBuilding, APictureThatClaimsToBeHugeIsAFailedLoad)
{
    readControls(pictureBox("P6 20000 30000 255 x"));
    EXPECT_EQ(callsOf("item:1").first(), u"pixmapImportActions 0x0"_s);
    EXPECT_EQ(host.itemCount(), 1);
    EXPECT_EQ(logText(), u"Left out of the label: a picture of 20000 by 30000 pixels "
                         "is too large"_s);
}

TEST_F(PictureBuilding, TheLimitOfAllPicturesAppliesToEachLabel)
{
    // 25 million pixels each: five fit into 128 million, the sixth does not.
    const QByteArray large = pictureBox(monoPng(5000, 5000)).repeated(6);
    const QByteArray label =
        "<qmtx><controls>" + large + pictureBox(monoPng(2, 2)) + "</controls></qmtx>";
    const QString whole = u"pixmapImportActions 5000x5000"_s;
    EXPECT_TRUE(import(label));
    EXPECT_EQ(callsOf("item:5").first(), whole);
    EXPECT_EQ(callsOf("item:6").first(), u"pixmapImportActions 0x0"_s);
    EXPECT_EQ(callsOf("item:7").first(), u"pixmapImportActions 2x2"_s);
    EXPECT_TRUE(import(label));
    EXPECT_EQ(callsOf("item:8").first(), whole);
}

TEST_F(PictureBuilding, RendersADrawingThatDoesNotBeginWithSvg)
{
    const QByteArray svg = "<svg xmlns='http://www.w3.org/2000/svg' width='4' height='3'>"
                           "<rect width='4' height='3' fill='red'/></svg>";
    const QByteArray starts[] = {"<?xml version='1.0'?>", "<!-- logo -->", "\n ", "<!DOCTYPE svg>"};
    for (const QByteArray& start : starts) {
        readControls(pictureBox(start + svg));
        EXPECT_TRUE(takeCalls().filter(u"pixmapImportActions 4x3"_s).size() == 1)
            << start.constData();
    }
    EXPECT_EQ(logText(), QString());
}

TEST_F(PictureBuilding, ADrawingThatCannotBeRenderedKeepsItsPlace)
{
    readControls(pictureBox("<?xml version='1.0'?><svg xmlns='http://www.w3.org/2000/svg'>"));
    EXPECT_EQ(callsOf("item:1").first(), u"pixmapImportActions 0x0"_s);
    EXPECT_TRUE(logText().contains(u"a drawing that is damaged or too large"_s));
}

TEST_F(PictureBuilding, ADrawingOfTooManyPixelsIsNotRendered)
{
    readControls(pictureBox("<?xml version='1.0'?><svg xmlns='http://www.w3.org/2000/svg' "
                            "width='100000' height='100000'/>"));
    EXPECT_EQ(callsOf("item:1").first(), u"pixmapImportActions 0x0"_s);
    EXPECT_TRUE(logText().contains(u"is too large"_s));
}

TEST_F(PictureBuilding, ABackgroundPictureFillsTheLabel)
{
    EXPECT_TRUE(import("<qmtx><pre_printed_image><content>" + monoPng(3, 2).toBase64() +
                       "</content></pre_printed_image><controls><transparent_label/></controls>"
                       "</qmtx>"));
    const QStringList calls = takeCalls();
    EXPECT_EQ(calls.mid(0, 12), QStringList({
                                    u"canvas importCanvasParameters 432 288 false false"_s,
                                    u"canvas canvasDefaultPenColor"_s,
                                    u"canvas canvasBackgroundColor"_s,
                                    u"factory create 1000c"_s,
                                    u"item:1 pixmapImportActions 3x2"_s,
                                    u"canvas importItem 'item:1'"_s,
                                    u"item:1 setItemSize 432 288"_s,
                                    u"item:1 setFlipHorizontal false"_s,
                                    u"item:1 setFlipVertical false"_s,
                                    u"item:1 setItemRotation 0"_s,
                                    u"canvas setUserBackgroundStateOnItemsInList true ['item:1']"_s,
                                    u"factory create 10016"_s,
                                }));
    EXPECT_EQ(host.item(1)->pos(), QPointF(0, 0));
}

TEST_F(PictureBuilding, AnSvgBackgroundIsDrawnInTheCanvasColors)
{
    EXPECT_TRUE(import("<qmtx><printable_control><bounds><w>400</w><h>600</h></bounds>"
                       "</printable_control><pre_printed_image><content>" +
                       QByteArray("<svg/>").toBase64() + "</content></pre_printed_image></qmtx>"));
    EXPECT_EQ(callsOf("item:1"), QStringList({
                                     u"loadItemFromData "_s + TestHost::shown("symbol of <svg/>"),
                                     u"getItemSize"_s,
                                     u"setForegroundColor '#ff405060'"_s,
                                     u"setFillColor '#00000000'"_s,
                                     u"setItemSize 300 450"_s,
                                     u"setFlipHorizontal false"_s,
                                     u"setFlipVertical false"_s,
                                     u"setItemRotation 0"_s,
                                 }));
}

TEST_F(PictureBuilding, ABackgroundWithoutBytesOrSymbolIsIgnored)
{
    host.behavior().conversion = recorder::Behavior::Conversion::Fails;
    for (const QByteArray& image :
         {QByteArray(), QByteArray("<content/>"), QByteArray("<content>@@</content>"),
          QByteArray("<a><content>YWJj</content></a>"),
          QByteArray("<content/><content>YWJj</content>")}) {
        SCOPED_TRACE(image.constData());
        host.forgetCalls();
        EXPECT_TRUE(import("<qmtx><pre_printed_image>" + image + "</pre_printed_image></qmtx>"));
        EXPECT_EQ(takeCalls(), QStringList({u"canvas importCanvasParameters 432 288 false false"_s,
                                            u"canvas completeCanvasLoading"_s}));
    }
    EXPECT_TRUE(import("<qmtx><pre_printed_image><content>" + QByteArray("<svg/>").toBase64() +
                       "</content></pre_printed_image></qmtx>"));
    EXPECT_TRUE(callsOf("canvas").filter(u"setUserBackground"_s).isEmpty());
}
