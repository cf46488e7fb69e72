// The common item header, shape records and the sequence number.

#include "tavrel/file_versions.h"
#include "tavrel/item_header.h"
#include "tavrel/label_stream.h"
#include "tavrel/shapes.h"
#include "tavrel/symbols.h"
#include "tests/tavrel/bytes.h"

#include <cmath>
#include <utility>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

using namespace tavrel;
using tavrel_test::Bytes;
using tavrel_test::HeaderHex;
using tavrel_test::hex;

namespace {

FileContext file(quint32 version)
{
    return {version, {300.0, 150.0}};
}

TEST(FileVersions, LayoutIsTheLastThatIsNotYoungerThanTheFile)
{
    static constexpr std::array layouts{Layout<char>{10, 'a'}, Layout<char>{20, 'b'},
                                        Layout<char>{22, 'c'}};
    EXPECT_EQ(layoutFor(layouts, 0), 'a');
    EXPECT_EQ(layoutFor(layouts, 19), 'a');
    EXPECT_EQ(layoutFor(layouts, 20), 'b');
    EXPECT_EQ(layoutFor(layouts, 21), 'b');
    EXPECT_EQ(layoutFor(layouts, 22), 'c');
    EXPECT_EQ(layoutFor(layouts, 0xFFFFFFFF), 'c');
}

struct HeaderRow
{
    quint32 version;
    double x;
    double y;
};

class HeaderLayout : public testing::TestWithParam<HeaderRow>
{};

TEST_P(HeaderLayout, IsReadCompletely)
{
    QDataStream stream(hex(HeaderHex) + hex("55"));
    const ItemHeader header = readItemHeader(stream, file(GetParam().version), 5);
    EXPECT_EQ(bytesLeft(stream), 1);
    EXPECT_TRUE(header.movable);
    EXPECT_EQ(header.x, GetParam().x);
    EXPECT_EQ(header.y, GetParam().y);
    EXPECT_EQ(header.zValue, 3005.0);
    EXPECT_EQ(header.rotation, 90.0);
    EXPECT_EQ(header.width, 72.0);
    EXPECT_EQ(header.height, 36.0);
}

// 1 dot at 300 and 2 dots at 150 dots per inch; since 2000017, 1 and 2 inches.
HeaderRow dots(quint32 version)
{
    return {version, 1.0 / 300.0 * 72.0, 2.0 / 150.0 * 72.0};
}

HeaderRow inches(quint32 version)
{
    return {version, 72.0, 144.0};
}

INSTANTIATE_TEST_SUITE_P(Versions, HeaderLayout,
                         testing::Values(dots(2000015), dots(2000016), inches(2000017),
                                         inches(2000018), inches(2000019), inches(2000020),
                                         inches(2000021), inches(2000022), inches(2000023),
                                         inches(2000024), inches(2000025)));

TEST(ItemHeader, BeforeReadingHasNoSizeAndIsAtTheOrigin)
{
    const ItemHeader header;
    EXPECT_EQ(header.size(), QSizeF(-1.0, -1.0));
    EXPECT_EQ(header.position(), QPointF(0.0, 0.0));
}

TEST(ItemHeader, LockedItemIsNotMovable)
{
    QDataStream stream(hex("01"));
    EXPECT_FALSE(readItemHeader(stream, file(2000024), 0).movable);
}

struct LengthRow
{
    QString text;
    double points;
};

TEST(ItemHeader, LengthsAreFractionsOfAnInch)
{
    for (const LengthRow& row :
         {LengthRow{u"3/4"_s, 54.0}, LengthRow{u"0.5"_s, 36.0}, LengthRow{u"2"_s, 144.0},
          LengthRow{QString(), 72.0}, LengthRow{u"abc"_s, 72.0}, LengthRow{u"0"_s, 72.0},
          LengthRow{u"-4"_s, 72.0}}) {
        SCOPED_TRACE(row.text.toStdString());
        QDataStream stream(Bytes()
                               .flag(false)
                               .real(0)
                               .real(0)
                               .real(0)
                               .real(0)
                               .text(row.text)
                               .text(row.text)
                               .bytes());
        const ItemHeader header = readItemHeader(stream, file(2000024), 0);
        EXPECT_EQ(header.width, row.points);
        EXPECT_EQ(header.height, row.points);
    }
}

TEST(ItemHeader, InfiniteLengthIsNotANumber)
{
    for (const auto& [size, points] : {std::pair(999, 36.0), std::pair(1000, 72.0)}) {
        const QString text = u"0.5"_s.leftJustified(size + 1, QLatin1Char('0'));
        QDataStream stream(
            Bytes().flag(false).real(0).real(0).real(0).real(0).text(text).text({}).bytes());
        EXPECT_EQ(readItemHeader(stream, file(2000024), 0).width, points) << size;
    }
}

TEST(ItemHeader, ZeroDenominatorAndOddNumbersPass)
{
    QDataStream stream(Bytes()
                           .flag(false)
                           .real(NAN)
                           .real(HUGE_VAL)
                           .real(NAN)
                           .real(-HUGE_VAL)
                           .text(u"1/0"_s)
                           .text(u"0/0"_s)
                           .bytes());
    const ItemHeader header = readItemHeader(stream, file(2000024), 0);
    EXPECT_TRUE(std::isnan(header.x));
    EXPECT_TRUE(std::isinf(header.y));
    EXPECT_TRUE(std::isnan(header.zValue));
    EXPECT_TRUE(std::isinf(header.rotation));
    EXPECT_TRUE(std::isinf(header.width));
    EXPECT_TRUE(std::isnan(header.height));
}

TEST(ItemHeader, CutHeaderIsMadeOfZeros)
{
    QDataStream stream(hex("01 3FF0"));
    const ItemHeader header = readItemHeader(stream, file(2000024), 7);
    EXPECT_FALSE(header.movable);
    EXPECT_EQ(header.x, 0.0);
    EXPECT_EQ(header.zValue, 7.0);
    EXPECT_EQ(header.width, 72.0) << "no text counts as one inch";
}

TEST(ItemNumber, RisesByOneAndIsNeverReset)
{
    const qint64 first = takeItemNumber();
    EXPECT_EQ(takeItemNumber(), first + 1);
    EXPECT_EQ(takeItemNumber(), first + 2);
}

TEST(ShapeRecord, IsHeaderWidthStyleFillName)
{
    QDataStream stream(hex(HeaderHex) + hex("0000001A"                     // 26 dots: 6.24 points
                                            "00000002"                     // pen style
                                            "00000001"                     // fill mode
                                            "00000008 004F 0076 0061 006C" // "Oval"
                                            "55"));
    const ShapeRecord record = readShapeRecord(stream, file(2000024), 0);
    EXPECT_EQ(bytesLeft(stream), 1);
    EXPECT_EQ(record.header.width, 72.0);
    EXPECT_EQ(record.penWidth, 6);
    EXPECT_EQ(record.penStyle, 2);
    EXPECT_EQ(record.fillMode, 1);
    EXPECT_EQ(record.name, u"Oval"_s);
}

struct ShapeRow
{
    const char* name;
    int code;
    ShapeRule rule;
};

TEST(ShapeKind, FollowsTheNameExactly)
{
    constexpr ShapeRule filled = ShapeRule::Filled;
    for (const ShapeRow& row :
         {ShapeRow{"HorizontalLine", 0x1001F, ShapeRule::HorizontalLine},
          ShapeRow{"VerticalLine", 0x1001F, ShapeRule::VerticalLine},
          ShapeRow{"RoundedRectangle", 0x1002B, filled}, ShapeRow{"Triangle", 0x10034, filled},
          ShapeRow{"Octagon", 0x10038, filled}, ShapeRow{"Diamond", 0x10035, filled},
          ShapeRow{"Hexagon", 0x10037, filled}, ShapeRow{"Oval", 0x1002C, filled},
          ShapeRow{"Rectangle", 0x1002A, filled}, ShapeRow{"Square", 0x1002A, filled},
          ShapeRow{"oval", 0x1002A, filled}, ShapeRow{"Oval ", 0x1002A, filled},
          ShapeRow{"horizontalline", 0x1002A, filled}, ShapeRow{"", 0x1002A, filled}}) {
        SCOPED_TRACE(row.name);
        const ShapeKind kind = shapeKindOf(QLatin1String(row.name));
        EXPECT_EQ(kind.type, row.code);
        EXPECT_EQ(kind.rule, row.rule);
    }
}

TEST(UprightLine, IsTurnedByAQuarterAboutTheMiddle)
{
    ItemHeader header;
    header.x = 100.0;
    header.y = 100.0;
    header.width = 5.0;
    header.height = 72.0;
    header.rotation = 10.0;
    const ItemHeader line = uprightLineHeader(header);
    EXPECT_EQ(line.position(), QPointF(64.0, 136.0));
    EXPECT_EQ(line.width, 72.0);
    EXPECT_EQ(line.rotation, 100.0);
}

constexpr char SymbolHex[] = "00000006 0061 002F 0062" // name "a/b"
                             "00000003 535647";        // data "SVG"

struct SymbolRow
{
    quint32 version;
    const char* data;
    int left;
};

class SymbolLayout : public testing::TestWithParam<SymbolRow>
{};

TEST_P(SymbolLayout, IsReadCompletely)
{
    QDataStream stream(hex(HeaderHex) + hex(SymbolHex));
    const SymbolRecord record = readSymbolRecord(stream, file(GetParam().version), 0);
    EXPECT_EQ(bytesLeft(stream), GetParam().left);
    EXPECT_EQ(record.header.height, 36.0);
    EXPECT_EQ(record.name, u"a/b"_s);
    EXPECT_EQ(record.data, QByteArray(GetParam().data));
}

INSTANTIATE_TEST_SUITE_P(Versions, SymbolLayout,
                         testing::Values(SymbolRow{2000015, "", 7}, SymbolRow{2000016, "", 7},
                                         SymbolRow{2000017, "", 7}, SymbolRow{2000018, "", 7},
                                         SymbolRow{2000019, "", 7}, SymbolRow{2000020, "", 7},
                                         SymbolRow{2000021, "", 7}, SymbolRow{2000022, "", 7},
                                         SymbolRow{2000023, "SVG", 0}, SymbolRow{2000024, "SVG", 0},
                                         SymbolRow{2000025, "SVG", 0}));

} // namespace
