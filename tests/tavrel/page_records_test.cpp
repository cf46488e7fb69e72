// The records before the items: header, canvas record, counter settings, database list.

#include "tavrel/label_stream.h"
#include "tavrel/page_records.h"
#include "tests/tavrel/bytes.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

using namespace tavrel;
using tavrel_test::Bytes;
using tavrel_test::hex;

namespace {

TEST(CanvasHeader, ReadsTheVersionBehindAWordThatIsNotChecked)
{
    for (const char* bytes : {"00000000 001E8490", "DEADBEEF 001E8490"}) {
        QDataStream stream(hex(bytes));
        EXPECT_EQ(readCanvasHeader(stream).version, 2000016U);
        EXPECT_TRUE(stream.atEnd());
    }
}

TEST(CanvasHeader, OnlyAnOldVersionIsRefused)
{
    EXPECT_FALSE(CanvasHeader{0}.isSupported());
    EXPECT_FALSE(CanvasHeader{2000015}.isSupported());
    EXPECT_TRUE(CanvasHeader{2000016}.isSupported());
    EXPECT_TRUE(CanvasHeader{2000024}.isSupported());
    EXPECT_TRUE(CanvasHeader{2000025}.isSupported());
    EXPECT_TRUE(CanvasHeader{0xFFFFFFFF}.isSupported()) << "a negative number is a large one";
}

// The complete canvas record after its size, with orientation code 2.
constexpr char SuppliesHex[] = "00000007"      // label type 7
                               "00000003"      // ribbon type 3
                               "00000002 0041" // unused text "A"
                               "FFFFFFFF"      // unused text, null
                               "01"            // canvas flag
                               "00000002"      // orientation code
                               "0000002A"      // unused
                               "01"            // unused
                               "3FF0000000000000 3FF0000000000000"
                               "3FF0000000000000 3FF0000000000000";
constexpr char DotSizeHex[] = "01 00000258 00000262"; // unused flag, 600 and 610 dots
constexpr char InchSizeHex[] = "01 4000000000000000 4008000000000000"; // 2.0 and 3.0 inches
constexpr char ResolutionsHex[] = "4082C00000000000 4059000000000000"; // 600.0 and 100.0

struct CanvasRow
{
    quint32 version;
    QByteArray bytes;
    double width;
    double height;
    double resolutionX;
    double resolutionY;
};

class CanvasLayout : public testing::TestWithParam<CanvasRow>
{};

TEST_P(CanvasLayout, IsReadCompletely)
{
    const CanvasRow& row = GetParam();
    QDataStream stream(row.bytes + hex("55"));
    const CanvasRecord record = readCanvasRecord(stream, row.version);
    EXPECT_EQ(bytesLeft(stream), 1);
    EXPECT_EQ(record.width, row.width);
    EXPECT_EQ(record.height, row.height);
    EXPECT_EQ(record.labelType, 7);
    EXPECT_EQ(record.ribbonType, 3);
    EXPECT_TRUE(record.canvasFlag);
    EXPECT_TRUE(record.orientationFlag);
    EXPECT_EQ(record.resolution.x, row.resolutionX);
    EXPECT_EQ(record.resolution.y, row.resolutionY);
}

CanvasRow inDots(quint32 version)
{
    return {version, hex(DotSizeHex) + hex(SuppliesHex), 144.0, 144.0, 300.0, 305.0};
}

CanvasRow inInches(quint32 version)
{
    return {version, hex(InchSizeHex) + hex(SuppliesHex), 216.0, 144.0, 300.0, 305.0};
}

CanvasRow withResolutions(quint32 version)
{
    return {version, hex(InchSizeHex) + hex(SuppliesHex) + hex(ResolutionsHex), 216.0, 144.0, 600.0,
            100.0};
}

INSTANTIATE_TEST_SUITE_P(Versions, CanvasLayout,
                         testing::Values(inDots(2000015), inDots(2000016), inDots(2000017),
                                         inDots(2000018), inInches(2000019), inInches(2000020),
                                         inInches(2000021), inInches(2000022), inInches(2000023),
                                         withResolutions(2000024), withResolutions(2000025)));

struct OrientationRow
{
    qint32 code;
    bool flag;
    double resolutionX;
    double resolutionY;
};

TEST(CanvasRecord, OrientationCodeDecidesFlagAndUsualResolution)
{
    for (const OrientationRow& row :
         {OrientationRow{0, true, 300.0, 305.0}, OrientationRow{1, false, 305.0, 300.0},
          OrientationRow{2, true, 300.0, 305.0}, OrientationRow{3, false, 305.0, 300.0},
          OrientationRow{-1, false, 305.0, 300.0}, OrientationRow{4, false, 305.0, 300.0}}) {
        SCOPED_TRACE(row.code);
        QDataStream stream(Bytes()
                               .flag(false)
                               .number(300)
                               .number(305)
                               .number(0)
                               .number(0)
                               .text({})
                               .text({})
                               .flag(false)
                               .number(row.code)
                               .bytes());
        const CanvasRecord record = readCanvasRecord(stream, 2000018);
        EXPECT_EQ(record.orientationFlag, row.flag);
        EXPECT_EQ(record.resolution.x, row.resolutionX);
        EXPECT_EQ(record.resolution.y, row.resolutionY);
        EXPECT_FALSE(record.canvasFlag);
    }
}

TEST(CanvasRecord, EmptyStreamGivesAPageOfNoSize)
{
    QDataStream stream{QByteArray()};
    const CanvasRecord record = readCanvasRecord(stream, 2000024);
    EXPECT_EQ(record.width, 0.0);
    EXPECT_TRUE(record.orientationFlag) << "the code that is not there is 0";
    EXPECT_EQ(record.resolution.x, 0.0);
}

constexpr char SequenceHex[] = "0000000A"           // start 10
                               "00000063"           // end 99
                               "FFFFFFFF"           // step -1
                               "00000004"           // four digits
                               "00000004 004E 006F" // "No"
                               "00000002 0021";     // "!"

struct SequenceRow
{
    quint32 version;
    int left;
    qint32 trailingValue;
};

class SequenceLayout : public testing::TestWithParam<SequenceRow>
{};

TEST_P(SequenceLayout, IsReadCompletely)
{
    const SequenceRow& row = GetParam();
    QDataStream stream(hex(SequenceHex) + hex("00000005"));
    const SequenceSettings settings = readSequenceSettings(stream, row.version);
    EXPECT_EQ(bytesLeft(stream), row.left);
    EXPECT_EQ(settings.sequenceStart, 10);
    EXPECT_EQ(settings.sequenceEnd, 99);
    EXPECT_EQ(settings.sequenceStep, -1);
    EXPECT_EQ(settings.sequenceZeroPad, 4);
    EXPECT_EQ(settings.sequencePrefix, u"No"_s);
    EXPECT_EQ(settings.sequenceSuffix, u"!"_s);
    EXPECT_EQ(settings.sequenceTrailingValue, row.trailingValue);
}

INSTANTIATE_TEST_SUITE_P(Versions, SequenceLayout,
                         testing::Values(SequenceRow{2000015, 4, 10}, SequenceRow{2000016, 4, 10},
                                         SequenceRow{2000017, 4, 10}, SequenceRow{2000018, 4, 10},
                                         SequenceRow{2000019, 4, 10}, SequenceRow{2000020, 0, 5},
                                         SequenceRow{2000021, 0, 5}, SequenceRow{2000022, 0, 5},
                                         SequenceRow{2000023, 0, 5}, SequenceRow{2000024, 0, 5},
                                         SequenceRow{2000025, 0, 5}));

struct DatabaseRow
{
    const char* what;
    qint32 selected;
    qint32 count;
    QStringList paths;
    bool linked;
    int left;
};

class DatabaseList : public testing::TestWithParam<DatabaseRow>
{};

TEST_P(DatabaseList, ReportsWhetherAFileIsSelected)
{
    const DatabaseRow& row = GetParam();
    Bytes bytes;
    bytes.number(11).number(12).number(row.selected).number(row.count);
    for (const QString& path : row.paths) {
        bytes.text(path).number(99);
    }
    QDataStream stream(bytes.bytes());
    EXPECT_EQ(readDatabaseList(stream), row.linked) << row.what;
    EXPECT_EQ(bytesLeft(stream), row.left) << row.what;
}

const QString Windows = u"C:\\data\\list.csv"_s;
const QString Unix = u"/data/list.csv"_s;
const QString Word = u"list"_s;

INSTANTIATE_TEST_SUITE_P(
    Lists, DatabaseList,
    testing::Values(DatabaseRow{"backslash", 0, 1, {Windows}, true, 0},
                    DatabaseRow{"slash", 0, 1, {Unix}, true, 0},
                    DatabaseRow{"bare word", 0, 1, {Word}, false, 0},
                    DatabaseRow{"second of three", 1, 3, {Word, Windows, Word}, true, 0},
                    DatabaseRow{"a path, but not selected", 0, 2, {Word, Windows}, false, 0},
                    DatabaseRow{"selected outside", 5, 1, {Windows}, false, 0},
                    DatabaseRow{"nothing selected", -1, 1, {Windows}, false, 0},
                    DatabaseRow{"no entries, nothing is read", 0, 0, {Windows}, false, 40},
                    DatabaseRow{"negative count", 0, -1, {Windows}, false, 40},
                    DatabaseRow{"count below the entries", 0, 1, {Windows, Word}, true, 16},
                    DatabaseRow{"count of 2^31-1", 0, 2147483647, {Windows, Word}, true, 0}));

TEST(DatabaseListBytes, AreTwoUnusedSelectedCountThenEntries)
{
    QDataStream stream(hex("00000000 00000000"
                           "00000001"                    // selected: the second
                           "00000002"                    // two entries
                           "00000002 0061 00000000"      // "a"
                           "00000004 0062 002F 00000000" // "b/"
                           "AA"));
    EXPECT_TRUE(readDatabaseList(stream));
    EXPECT_EQ(bytesLeft(stream), 1);
}

} // namespace
