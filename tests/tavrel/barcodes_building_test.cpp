// The calls of the barcode builder to a host.

#include "tavrel/barcodes.h"

#include "tests/tavrel/builder_fixture.h"

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
        record.content = QStringLiteral("42");
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
    EXPECT_EQ(buildBarcode(host(), barcode(), binder()), BuildResult::Built);
    EXPECT_EQ(
        fake.calls.lines(),
        lines({"factory create \"1001d\"",
               "item1 importBarcodeProperties 20 \"42\" yes 132 2 yes no 1 17 3",
               "item1 setItemSize 60x20", "item1 setItemRotation 30", "item1 setZValue 1003",
               "item1 setFlag movable yes", "item1 setForegroundColor #ffff0000",
               "item1 setBackgroundColor #ffffff00", "item1 setPos 100x50", "canvas importItem"}));
    expectPlaced();
}

TEST_F(BarcodeBuilder, Symbology55TakesItsNumberOption)
{
    BarcodeRecord record = barcode();
    record.symbology = 55;
    EXPECT_EQ(buildBarcode(host(), record, binder()), BuildResult::Built);
    EXPECT_EQ(fake.calls.with("importBarcodeProperties"),
              lines({"item1 importBarcodeProperties 55 \"42\" yes 132 2 yes no 9 17 3"}));
}

TEST_F(BarcodeBuilder, EachFlagHasItsPlace)
{
    for (bool BarcodeRecord::*flag : {&BarcodeRecord::hasQuietZones, &BarcodeRecord::hasBearerBars,
                                      &BarcodeRecord::hasText, &BarcodeRecord::hasCheckDigit}) {
        BarcodeRecord record = barcode();
        record.hasQuietZones = record.hasBearerBars = record.hasText = record.hasCheckDigit = false;
        record.*flag = true;
        EXPECT_EQ(buildBarcode(host(), record, binder()), BuildResult::Built);
    }
    EXPECT_EQ(fake.calls.with("importBarcodeProperties"),
              lines({"item1 importBarcodeProperties 20 \"42\" no 132 2 yes no 0 17 3",
                     "item2 importBarcodeProperties 20 \"42\" no 132 2 no yes 0 17 3",
                     "item3 importBarcodeProperties 20 \"42\" yes 132 2 no no 0 17 3",
                     "item4 importBarcodeProperties 20 \"42\" no 132 2 no no 1 17 3"}));
}

TEST_F(BarcodeBuilder, PassesTheCompleteSymbologyNumber)
{
    BarcodeRecord record = barcode();
    record.symbology = 0x10014; // its low 16 bits, 20, are used only to check the symbology
    EXPECT_EQ(buildBarcode(host(), record, binder()), BuildResult::Built);
    EXPECT_EQ(fake.calls.with("importBarcodeProperties"),
              lines({"item1 importBarcodeProperties 65556 \"42\" yes 132 2 yes no 1 17 3"}));
}

TEST_F(BarcodeBuilder, BindsBeforeItHandsOver)
{
    BarcodeRecord record = barcode();
    record.datasourceKey = QStringLiteral("_SPECIAL");
    record.datasourceText = QStringLiteral("%_TIME%");
    EXPECT_EQ(buildBarcode(host(), record, binder()), BuildResult::Built);
    EXPECT_EQ(fake.calls.lines().mid(9),
              lines({"datasources createDatasource \"SystemDatasource\"", "item1 setDatasourceId 1",
                     "datasources getDatasource 1",
                     "datasource1 setDatasourceProperty \"DateFormat\" \"\"",
                     "datasource1 setDatasourceProperty \"TimeFormat\" \"hh:mm:ss\"",
                     "canvas importItem"}));
}

TEST_F(BarcodeBuilder, HostWithoutBarcodesLeavesItOut)
{
    fake.canvas.factory.mismatchedTypes = {KestTypes::Barcode};
    EXPECT_EQ(buildBarcode(host(), barcode(), binder()), BuildResult::NoItem);
}

TEST(Symbology, IsAskedOfItsOwnListWithSixteenBits)
{
    FakeServices& services = FakeServices::reset();
    services.linearCodes = {20};
    services.matrixCodes = {55};
    EXPECT_TRUE(isValidSymbology(20, true));
    EXPECT_FALSE(isValidSymbology(20, false));
    EXPECT_FALSE(isValidSymbology(55, true));
    EXPECT_TRUE(isValidSymbology(55, false));
    EXPECT_TRUE(isValidSymbology(0x10014, true)) << "the low bits are 20";
    EXPECT_FALSE(isValidSymbology(-1, true));
    EXPECT_EQ(services.askedCodes, (QList<int>{20, 20, 55, 55, 20, 65535}));
}

} // namespace
