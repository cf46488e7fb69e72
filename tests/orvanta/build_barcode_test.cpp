#include "tests/orvanta/reader_fixture.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using BarcodeBuilding = ReaderFixture;

} // namespace

TEST_F(BarcodeBuilding, ABarcodeIsMadeImportedAndSetUpInOrder)
{
    readControls("<barcode><printable_control><text>4006381333931</text>"
                 "<transparency>false</transparency><fore_color>255</fore_color>"
                 "<back_color>65280</back_color>"
                 "<bounds><x>300</x><y>240</y><w>400</w><h>100</h></bounds>"
                 "<font><size>9.9</size><style>2</style></font></printable_control>"
                 "<barcode_type>10</barcode_type>"
                 "<rotation>90</rotation><flip_horizontally>true</flip_horizontally></barcode>");
    EXPECT_EQ(takeCalls(), QStringList({
                               u"factory create 1001d"_s,
                               u"canvas importItem 'item:1'"_s,
                               u"item:1 setBackgroundColor '#ff00ff00'"_s,
                               u"item:1 setForegroundColor '#ff0000ff'"_s,
                               u"item:1 setItemSize 300 75"_s,
                               u"item:1 setFlipHorizontal false"_s,
                               u"item:1 setFlipVertical false"_s,
                               u"item:1 setItemRotation 0"_s,
                               u"item:1 setFontFamily 'Arial'"_s,
                               u"item:1 setFontBold false"_s,
                               u"item:1 setFontItalic true"_s,
                               u"item:1 setFontUnderline false"_s,
                               u"item:1 setFontPointSize 9"_s,
                               u"item:1 setBarcodeType 13"_s,
                           }));
    EXPECT_EQ(host.item(1)->pos(), QPointF(75, 30));
    EXPECT_EQ(logText(), QString());
}

TEST_F(BarcodeBuilding, AnEmptyBarcodeHasTheDefaultSymbology)
{
    readControls("<barcode/>");
    const QStringList calls = callsOf("item:1");
    EXPECT_EQ(calls.first(), u"setBackgroundColor '#00000000'"_s);
    EXPECT_EQ(calls.last(), u"setBarcodeType 8"_s);
    EXPECT_TRUE(callsOf("datasources").isEmpty());
}

TEST_F(BarcodeBuilding, ANegativeBarcodeExchangesBarsAndGround)
{
    readControls("<barcode><printable_control><negative>true</negative>"
                 "<transparency>false</transparency></printable_control></barcode>");
    EXPECT_EQ(callsOf("item:1").mid(0, 2), QStringList({u"setBackgroundColor '#ff000000'"_s,
                                                        u"setForegroundColor '#ffffffff'"_s}));
}

TEST_F(BarcodeBuilding, ASizeBeyondAnIntIsTheLargest)
{
    readControls("<barcode><printable_control><font><size>1e300</size></font></printable_control>"
                 "</barcode>");
    EXPECT_TRUE(callsOf("item:1").contains(u"setFontPointSize 2147483647"_s));
}

TEST_F(BarcodeBuilding, ABarcodeThatTheHostDoesNotMakeIsLeftOut)
{
    host.behavior().mismatchedTypes = {KestTypes::Barcode};
    readControls("<barcode><ArrayOfString><s>a</s></ArrayOfString></barcode>");
    EXPECT_EQ(host.itemCount(), 0);
    EXPECT_TRUE(callsOf("datasources").isEmpty());
    EXPECT_EQ(logText(), u"Left out of the label: a barcode, for which the host made no item"_s);
}
