// The calls of the barcode builder to a host.

#include "tavrel/barcodes.h"

#include "tests/tavrel/builder_fixture.h"

using namespace Qt::Literals::StringLiterals;

using namespace tavrel;
using namespace tavrel_test;

namespace {

class BarcodeBuilder : public Builders
{
protected:
    [[nodiscard]] BarcodeRecord barcode() const
    {
        BarcodeRecord record;
        record.header = header;
        record.content = u"42"_s;
        record.symbology = 20;
        record.moduleWidth = 2;
        record.textAlignment = Qt::AlignCenter;
        record.hasQuietZones = true;
        record.hasText = true;
        record.hasCheckDigit = true;
        record.size = 17;
        record.errorCorrection = 3;
        record.columns = 9;
        return record;
    }
};

TEST_F(BarcodeBuilder, HandsTheStoredPropertiesOver)
{
    EXPECT_EQ(buildBarcode(canvas(), barcode(), binder()), BuildResult::Built);
    EXPECT_EQ(host.calls(),
              lines({"factory create 1001d",
                     "item:1 importBarcodeProperties 20 '42' true 132 2 true false 1 17 3",
                     "item:1 setItemSize 60 20", "item:1 setItemRotation 30",
                     "item:1 setZValue 1003", "item:1 setMovable true",
                     "canvas canvasDefaultPenColor", "item:1 setForegroundColor '#ffff0000'",
                     "canvas canvasBackgroundColor", "item:1 setBackgroundColor '#ffffff00'",
                     "item:1 setPos 100 50", "canvas importItem 'item:1'"}));
    expectPlaced();
}

TEST_F(BarcodeBuilder, Symbology55TakesItsNumberOption)
{
    BarcodeRecord record = barcode();
    record.symbology = 55;
    EXPECT_EQ(buildBarcode(canvas(), record, binder()), BuildResult::Built);
    EXPECT_EQ(host.callsWith("importBarcodeProperties"),
              lines({"item:1 importBarcodeProperties 55 '42' true 132 2 true false 9 17 3"}));
}

TEST_F(BarcodeBuilder, EachFlagHasItsPlace)
{
    for (bool BarcodeRecord::*flag : {&BarcodeRecord::hasQuietZones, &BarcodeRecord::hasBearerBars,
                                      &BarcodeRecord::hasText, &BarcodeRecord::hasCheckDigit}) {
        BarcodeRecord record = barcode();
        record.hasQuietZones = record.hasBearerBars = record.hasText = record.hasCheckDigit = false;
        record.*flag = true;
        EXPECT_EQ(buildBarcode(canvas(), record, binder()), BuildResult::Built);
    }
    EXPECT_EQ(host.callsWith("importBarcodeProperties"),
              lines({"item:1 importBarcodeProperties 20 '42' false 132 2 true false 0 17 3",
                     "item:2 importBarcodeProperties 20 '42' false 132 2 false true 0 17 3",
                     "item:3 importBarcodeProperties 20 '42' true 132 2 false false 0 17 3",
                     "item:4 importBarcodeProperties 20 '42' false 132 2 false false 1 17 3"}));
}

TEST_F(BarcodeBuilder, PassesTheCompleteSymbologyNumber)
{
    BarcodeRecord record = barcode();
    record.symbology = 0x10014; // its low 16 bits, 20, are used only to check the symbology
    EXPECT_EQ(buildBarcode(canvas(), record, binder()), BuildResult::Built);
    EXPECT_EQ(host.callsWith("importBarcodeProperties"),
              lines({"item:1 importBarcodeProperties 65556 '42' true 132 2 true false 1 17 3"}));
}

TEST_F(BarcodeBuilder, BindsBeforeItHandsOver)
{
    BarcodeRecord record = barcode();
    record.datasourceKey = u"_SPECIAL"_s;
    record.datasourceText = u"%_TIME%"_s;
    EXPECT_EQ(buildBarcode(canvas(), record, binder()), BuildResult::Built);
    EXPECT_EQ(
        host.calls().mid(11),
        lines({"datasources createDatasource 'SystemDatasource'", "item:1 setDatasourceId 1",
               "datasources getDatasource 1", "datasource:1 setDatasourceProperty 'DateFormat' ''",
               "datasource:1 setDatasourceProperty 'TimeFormat' 'hh:mm:ss'",
               "canvas importItem 'item:1'"}));
}

TEST_F(BarcodeBuilder, HostWithoutBarcodesLeavesItOut)
{
    host.behavior().mismatchedTypes = {KestTypes::Barcode};
    EXPECT_EQ(buildBarcode(canvas(), barcode(), binder()), BuildResult::NoItem);
}

TEST(Symbology, IsAskedOfItsOwnListWithSixteenBits)
{
    const TestHost host;
    EXPECT_TRUE(isValidSymbology(20, true));
    EXPECT_FALSE(isValidSymbology(20, false));
    EXPECT_FALSE(isValidSymbology(55, true));
    EXPECT_TRUE(isValidSymbology(55, false));
    EXPECT_TRUE(isValidSymbology(0x10014, true)) << "the low bits are 20";
    EXPECT_FALSE(isValidSymbology(-1, true));
    EXPECT_EQ(host.callsOn(u"lists"_s),
              lines({"isValidBarcode1D 20", "isValidBarcode2D 20", "isValidBarcode1D 55",
                     "isValidBarcode2D 55", "isValidBarcode1D 20", "isValidBarcode1D 65535"}));
}

} // namespace
