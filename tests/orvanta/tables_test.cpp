#include "orvanta/barcode_codes.h"
#include "orvanta/control_kinds.h"
#include "orvanta/shape_choice.h"
#include "tests/orvanta/printing.h"

#include <QMap>

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Every source code that differs from the default, by the host's code.
QMap<int, int> barcodeCodes()
{
    const struct
    {
        int host;
        QList<int> sources;
    } rows[] = {
        {3, {2, 3, 4, 6, 7}},
        {2, {5}},
        {13, {10, 11, 12}},
        {69, {13, 14, 15, 23, 69, 72}},
        {60, {16}},
        {18, {18, 19, 74, 110, 111}},
        {20, {20, 33, 59, 60, 61, 98, 100}},
        {34, {34, 35, 36}},
        {37, {37, 38, 39}},
        {55, {55, 56, 84, 106, 107, 108, 109}},
        {58, {58, 97, 104, 105}},
        {71, {71, 102, 103, 112}},
    };
    QMap<int, int> codes;
    for (const auto& row : rows) {
        for (const int source : row.sources) {
            codes.insert(source, row.host);
        }
    }
    return codes;
}

KestTypes::ShapeType expectedShape(int sides, int index)
{
    switch (sides) {
    case 0:
        return index == 0 || index == 1   ? KestTypes::Rectangle
               : index == 4 || index == 5 ? KestTypes::Triangle
                                          : KestTypes::Ellipse;
    case 3:
        return KestTypes::Triangle;
    case 4:
        return KestTypes::Diamond;
    case 5:
        return KestTypes::Pentagon;
    case 6:
        return KestTypes::Hexagon;
    case 8:
        return KestTypes::Octagon;
    default:
        return KestTypes::Ellipse;
    }
}

} // namespace

TEST(BarcodeCodes, CoverTheCompleteRange)
{
    const QMap<int, int> codes = barcodeCodes();
    ASSERT_EQ(codes.size(), 49);
    for (int source = -5; source <= 300; ++source) {
        SCOPED_TRACE(source);
        EXPECT_EQ(orvanta::hostBarcodeCode(source), codes.value(source, 8));
    }
    EXPECT_EQ(orvanta::hostBarcodeCode(std::numeric_limits<int>::min()), 8);
    EXPECT_EQ(orvanta::hostBarcodeCode(std::numeric_limits<int>::max()), 8);
}

TEST(ShapeChoice, GoesBySidesThenByIndex)
{
    for (int sides = -3; sides <= 20; ++sides) {
        for (int index = -3; index <= 20; ++index) {
            SCOPED_TRACE(::testing::Message() << sides << " sides, index " << index);
            const orvanta::ShapeChoice choice = orvanta::chooseShape(sides, index);
            EXPECT_EQ(choice.type, expectedShape(sides, index));
            EXPECT_EQ(choice.turn, sides == 6 ? 90.0 : sides == 8 ? 22.5 : 0.0);
        }
    }
}

TEST(ShapeChoice, EvenIndicesAreOutlines)
{
    for (const int index : {0, 2, 4, 100, -2, std::numeric_limits<int>::min()}) {
        EXPECT_TRUE(orvanta::isOutline(index)) << index;
    }
    for (const int index : {1, 3, 5, 101, -1, std::numeric_limits<int>::max()}) {
        EXPECT_FALSE(orvanta::isOutline(index)) << index;
    }
}

TEST(Alignment, IsLeftForZeroRightForTwoCenteredOtherwise)
{
    for (int code = -5; code <= 20; ++code) {
        SCOPED_TRACE(code);
        const int expected = code == 0 ? 1 : code == 2 ? 2 : 0x84;
        EXPECT_EQ(int(orvanta::alignmentFromCode(code)), expected);
    }
}

TEST(DateTimeFormats, AreTenAndSixteen)
{
    QStringList dates;
    for (const QLatin1String format : orvanta::DateFormats) {
        dates.append(format);
    }
    EXPECT_EQ(dates.join(QLatin1Char('|')),
              u"|yyyy-MM-dd|MM-dd-yyyy|MM/dd/yyyy|MM/dd/yy|dd-MM-yyyy|dd/MM/yyyy|"
              "dd MMM yyyy|MMMM d, yyyy|dddd, MMMM d, yyyy"_s);
    QStringList times;
    for (const QLatin1String format : orvanta::TimeFormats) {
        times.append(format);
    }
    EXPECT_EQ(times.join(QLatin1Char('|')),
              u"|hh:mm:ss AP|h:mm:ss ap|HH:mm:ss|H:mm:ss|hh:mm ap|h:mm AP|HH:mm|H:mm|"
              "mm:sshh:mm:ss ap|h:m:s ap|hh:mm:ss|h:m:s|h:m ap|hh:mm|h:m"_s);
}

TEST(DateTimeFormats, FollowTheCode)
{
    for (int code = -5; code <= 50; ++code) {
        SCOPED_TRACE(code);
        QString expected = u"MM-dd-yyyy|HH:mm:ss"_s;
        if (code == 1) {
            expected = u"MM-dd-yyyy|"_s;
        } else if (code == 2) {
            expected = u"MM/dd/yy|"_s;
        } else if (code == 4) {
            expected = u"|HH:mm:ss"_s;
        }
        const QStringList formats = orvanta::dateTimeFormats(code);
        EXPECT_EQ(formats.size(), 2);
        EXPECT_EQ(formats.join(QLatin1Char('|')), expected);
    }
}
