#include "tests/orvanta/reader_fixture.h"

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
                               QStringLiteral("factory create 1001d"),
                               QStringLiteral("canvas importItem 'item:1'"),
                               QStringLiteral("item:1 setBackgroundColor '#ff00ff00'"),
                               QStringLiteral("item:1 setForegroundColor '#ff0000ff'"),
                               QStringLiteral("item:1 setItemSize 300 75"),
                               QStringLiteral("item:1 setFlipHorizontal false"),
                               QStringLiteral("item:1 setFlipVertical false"),
                               QStringLiteral("item:1 setItemRotation 0"),
                               QStringLiteral("item:1 setFontFamily 'Arial'"),
                               QStringLiteral("item:1 setFontBold false"),
                               QStringLiteral("item:1 setFontItalic true"),
                               QStringLiteral("item:1 setFontUnderline false"),
                               QStringLiteral("item:1 setFontPointSize 9"),
                               QStringLiteral("item:1 setBarcodeType 13"),
                           }));
    EXPECT_EQ(host.item(1)->pos(), QPointF(75, 30));
    EXPECT_EQ(logText(), QString());
}

TEST_F(BarcodeBuilding, AnEmptyBarcodeHasTheDefaultSymbology)
{
    readControls("<barcode/>");
    const QStringList calls = callsOf("item:1");
    EXPECT_EQ(calls.first(), QStringLiteral("setBackgroundColor '#00000000'"));
    EXPECT_EQ(calls.last(), QStringLiteral("setBarcodeType 8"));
    EXPECT_TRUE(callsOf("datasources").isEmpty());
}

TEST_F(BarcodeBuilding, ANegativeBarcodeExchangesBarsAndGround)
{
    readControls("<barcode><printable_control><negative>true</negative>"
                 "<transparency>false</transparency></printable_control></barcode>");
    EXPECT_EQ(callsOf("item:1").mid(0, 2),
              QStringList({QStringLiteral("setBackgroundColor '#ff000000'"),
                           QStringLiteral("setForegroundColor '#ffffffff'")}));
}

TEST_F(BarcodeBuilding, ASizeBeyondAnIntIsTheLargest)
{
    readControls("<barcode><printable_control><font><size>1e300</size></font></printable_control>"
                 "</barcode>");
    EXPECT_TRUE(callsOf("item:1").contains(QStringLiteral("setFontPointSize 2147483647")));
}

TEST_F(BarcodeBuilding, ABarcodeThatTheHostDoesNotMakeIsLeftOut)
{
    host.behavior().mismatchedTypes = {KestTypes::Barcode};
    readControls("<barcode><ArrayOfString><s>a</s></ArrayOfString></barcode>");
    EXPECT_EQ(host.itemCount(), 0);
    EXPECT_TRUE(callsOf("datasources").isEmpty());
    EXPECT_EQ(logText(),
              QStringLiteral("Left out of the label: a barcode, for which the host made no item"));
}
