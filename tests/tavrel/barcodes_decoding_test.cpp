#include "tavrel/barcodes.h"
#include "tavrel/label_stream.h"
#include "tests/tavrel/bytes.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

using namespace tavrel;
using tavrel_test::HeaderHex;
using tavrel_test::hex;

namespace {

const QByteArray Header = hex(HeaderHex);
const QByteArray Content = hex("00000004 0034 0032");        // "42"
const QByteArray SourceText = hex("00000002 0054");          // "T"
const QByteArray Key = hex("00000004 005F 0058");            // "_X"
const QByteArray Symbology = hex("00000014");                // 20
const QByteArray Unused = hex("01 00000002 0055");           // flag and text
const QByteArray Module = hex("00000007");                   // 7 dots: 1.68 points
const QByteArray Placement = hex("00000002");                // right
const QByteArray Flags = hex("01 00 01 01");                 // flags 1 to 4
const QByteArray Number = hex("00000004 0031 0037");         // "17"
const QByteArray Values = hex("00000003 00000009 FFFFFFFF"); // value 1, value 2, unused
const QByteArray Next = hex("55");

struct BarcodeRow
{
    quint32 version;
    QByteArray bytes;
};

class BarcodeLayout : public testing::TestWithParam<BarcodeRow>
{};

TEST_P(BarcodeLayout, IsReadCompletely)
{
    QDataStream stream(GetParam().bytes + Next);
    const BarcodeRecord record = readBarcodeRecord(stream, {GetParam().version, {300.0, 150.0}}, 4);
    EXPECT_EQ(bytesLeft(stream), 1);
    EXPECT_EQ(record.header.zValue, 3004.0);
    EXPECT_EQ(record.content, u"42"_s);
    EXPECT_EQ(record.datasourceText, u"T"_s);
    EXPECT_EQ(record.datasourceKey, u"_X"_s);
    EXPECT_EQ(record.symbology, 20);
    EXPECT_EQ(record.moduleWidth, 2);
    EXPECT_EQ(record.textAlignment, Qt::AlignRight);
    EXPECT_TRUE(record.hasQuietZones);
    EXPECT_FALSE(record.hasBearerBars);
    EXPECT_TRUE(record.hasText);
    EXPECT_TRUE(record.hasCheckDigit);
    EXPECT_EQ(record.size, 17);
    EXPECT_EQ(record.errorCorrection, 3);
    EXPECT_EQ(record.columns, 9);
}

BarcodeRow keyFirst(quint32 version)
{
    return {version, Header + Key + Symbology + Content + Unused + Module + Placement + Flags +
                         Number + Values + SourceText};
}

BarcodeRow contentFirst(quint32 version)
{
    return {version, Header + Content + SourceText + Key + Symbology + Unused + Module + Placement +
                         Flags + Number + Values};
}

INSTANTIATE_TEST_SUITE_P(Versions, BarcodeLayout,
                         testing::Values(keyFirst(2000015), keyFirst(2000016), keyFirst(2000017),
                                         keyFirst(2000018), keyFirst(2000019), keyFirst(2000020),
                                         keyFirst(2000021), contentFirst(2000022),
                                         contentFirst(2000023), contentFirst(2000024),
                                         contentFirst(2000025)));

BarcodeRecord recordWith(const QByteArray& symbology, const QByteArray& module,
                         const QByteArray& placement, const QByteArray& number)
{
    QDataStream stream(Header + Content + SourceText + Key + symbology + Unused + module +
                       placement + Flags + number + Values);
    return readBarcodeRecord(stream, {2000024, {300.0, 150.0}}, 0);
}

TEST(BarcodeRecord, EachFlagHasItsPlace)
{
    for (qsizetype place = 0; place < 4; ++place) {
        SCOPED_TRACE(place);
        QByteArray flags(4, '\0');
        flags[place] = '\1';
        QDataStream stream(Header + Content + SourceText + Key + Symbology + Unused + Module +
                           Placement + flags + Number + Values);
        const BarcodeRecord record = readBarcodeRecord(stream, {2000024, {300.0, 150.0}}, 0);
        EXPECT_EQ(record.hasQuietZones, place == 0);
        EXPECT_EQ(record.hasBearerBars, place == 1);
        EXPECT_EQ(record.hasText, place == 2);
        EXPECT_EQ(record.hasCheckDigit, place == 3);
    }
}

struct PlacementRow
{
    const char* code;
    int alignment;
};

TEST(BarcodeRecord, PlacementCodeIsAnAlignment)
{
    for (const PlacementRow& row :
         {PlacementRow{"00000000", 0x84}, PlacementRow{"00000001", 1}, PlacementRow{"00000002", 2},
          PlacementRow{"00000003", 0x84}, PlacementRow{"FFFFFFFF", 0x84}}) {
        EXPECT_EQ(recordWith(Symbology, Module, hex(row.code), Number).textAlignment, row.alignment)
            << row.code;
    }
}

TEST(BarcodeRecord, ModuleWidthIsRounded)
{
    EXPECT_EQ(recordWith(Symbology, hex("00000007"), Placement, Number).moduleWidth, 2);
    EXPECT_EQ(recordWith(Symbology, hex("00000005"), Placement, Number).moduleWidth, 1);
    EXPECT_EQ(recordWith(Symbology, hex("00000000"), Placement, Number).moduleWidth, 0);
}

struct NumberRow
{
    QString text;
    int number;
};

TEST(BarcodeRecord, InvalidNumberIsZero)
{
    for (const NumberRow& row :
         {NumberRow{u"abc"_s, 0}, NumberRow{u"99999999999"_s, 0},
          NumberRow{u"2147483647"_s, 2147483647}, NumberRow{u"2147483648"_s, 0},
          NumberRow{u"-5"_s, -5}, NumberRow{u"0x10"_s, 0}, NumberRow{u"010"_s, 10},
          NumberRow{u"1.5"_s, 0}, NumberRow{QString(), 0}}) {
        const QByteArray bytes = tavrel_test::Bytes().text(row.text).bytes();
        EXPECT_EQ(recordWith(Symbology, Module, Placement, bytes).size, row.number)
            << row.text.toStdString();
    }
}

TEST(BarcodeRecord, OptionIsTheSecondValueForSymbology55AndElseTheFourthFlag)
{
    EXPECT_EQ(recordWith(hex("00000037"), Module, Placement, Number).option(), 9);
    EXPECT_EQ(recordWith(hex("00000014"), Module, Placement, Number).option(), 1);
    EXPECT_EQ(recordWith(hex("00010037"), Module, Placement, Number).option(), 1)
        << "the whole number decides, not its low 16 bits";
    BarcodeRecord record;
    record.columns = 9;
    EXPECT_EQ(record.option(), 0);
}

} // namespace
