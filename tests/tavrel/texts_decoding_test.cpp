#include "tavrel/label_stream.h"
#include "tavrel/texts.h"
#include "tests/tavrel/bytes.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

using namespace tavrel;
using tavrel_test::HeaderHex;
using tavrel_test::hex;

namespace {

// The parts of the layouts, in hexadecimal.
const QByteArray Header = hex(HeaderHex);
const QByteArray FixedSize = hex("4000000000000000 3FE0000000000000"); // 2.0 and 0.5 inches
const QByteArray Content = hex("00000004 0048 0069");                  // "Hi"
const QByteArray SourceText = hex("00000002 0054");                    // "T"
const QByteArray Key = hex("00000004 005F 0058");                      // "_X"
const QByteArray PenAndFont = hex("0000001A"      // line width, 26 dots: 6.24 points
                                  "00000003"      // pen style
                                  "00000002 0055" // unused text
                                  "00000019"      // font size, 25 dots: 6 points
                                  "01 00 01");    // style flags
const QByteArray Alignment = hex("00000002");
const QByteArray Colors = hex("01 00");        // inverse, not transparent
const QByteArray Options = hex("00 01 01");    // A, A again, B
const QByteArray SecondFont = hex("00000032"); // 50 dots: 12 points
const QByteArray Trailer = hex("00000001 00000002");
const QByteArray Next = hex("55"); // of the next record

struct TextRow
{
    quint32 version;
    QByteArray bytes;
    double fixedWidth = -1.0;
    double fixedHeight = -1.0;
    QString sourceText = {};
    int fontSize = 6;
    int alignment = Qt::AlignHCenter;
    bool options = false;
};

class TextLayout : public testing::TestWithParam<TextRow>
{};

TEST_P(TextLayout, IsReadCompletely)
{
    const TextRow& row = GetParam();
    QDataStream stream(row.bytes + Next);
    const TextRecord record = readTextRecord(stream, {row.version, {300.0, 150.0}}, 4);
    EXPECT_EQ(bytesLeft(stream), 1);
    EXPECT_EQ(record.header.zValue, 3004.0);
    EXPECT_EQ(record.fixedWidth, row.fixedWidth);
    EXPECT_EQ(record.fixedHeight, row.fixedHeight);
    EXPECT_EQ(record.content, u"Hi"_s);
    EXPECT_EQ(record.datasourceText, row.sourceText);
    EXPECT_EQ(record.datasourceKey, u"_X"_s);
    EXPECT_EQ(record.penWidth, 6);
    EXPECT_EQ(record.penStyle, 3);
    EXPECT_EQ(record.fontSize, row.fontSize);
    EXPECT_TRUE(record.bold);
    EXPECT_FALSE(record.italic);
    EXPECT_TRUE(record.underline);
    EXPECT_EQ(record.alignment.toInt(), row.alignment);
    EXPECT_TRUE(record.inverse);
    EXPECT_FALSE(record.transparentBackground);
    EXPECT_EQ(record.optionA, row.options);
    EXPECT_EQ(record.optionB, row.options);
}

TextRow bare(quint32 version)
{
    return {version, Header + Key + PenAndFont + Content + Alignment + Colors};
}

TextRow sized(quint32 version)
{
    return {version, Header + FixedSize + Key + PenAndFont + Content + Alignment + Colors, 2.0,
            0.5};
}

TextRow withOptions(quint32 version)
{
    return {version,
            Header + FixedSize + Key + PenAndFont + Content + Alignment + Colors + Options,
            2.0,
            0.5,
            {},
            6,
            Qt::AlignRight,
            true};
}

TextRow withSecondFont(quint32 version)
{
    TextRow row = withOptions(version);
    row.bytes += SecondFont;
    row.fontSize = 12;
    return row;
}

TextRow contentFirst(quint32 version)
{
    TextRow row = withSecondFont(version);
    row.bytes = Header + Content + SourceText + Key + FixedSize + PenAndFont + Alignment + Colors +
                Options + SecondFont;
    row.sourceText = u"T"_s;
    return row;
}

TextRow withTrailer(quint32 version)
{
    TextRow row = contentFirst(version);
    row.bytes += Trailer;
    return row;
}

INSTANTIATE_TEST_SUITE_P(Versions, TextLayout,
                         testing::Values(bare(2000015), bare(2000016), bare(2000017),
                                         sized(2000018), sized(2000019), withOptions(2000020),
                                         withSecondFont(2000021), contentFirst(2000022),
                                         withTrailer(2000023), withTrailer(2000024),
                                         withTrailer(2000025)));

struct AlignmentRow
{
    const char* code;
    int mapped;
    int flags;
};

TEST(TextRecord, AlignmentIsACodeUntil2000019AndFlagsThen)
{
    for (const AlignmentRow& row : {
             AlignmentRow{"00000000", Qt::AlignLeft, 0},
             AlignmentRow{"00000001", Qt::AlignRight, Qt::AlignLeft},
             AlignmentRow{"00000002", Qt::AlignHCenter, Qt::AlignRight},
             AlignmentRow{"00000003", Qt::AlignLeft, 3},
             AlignmentRow{"00000084", Qt::AlignLeft, Qt::AlignCenter},
             AlignmentRow{"FFFFFFFF", Qt::AlignLeft, -1},
         }) {
        SCOPED_TRACE(row.code);
        const QByteArray bytes = Header + FixedSize + Key + PenAndFont + Content + hex(row.code);
        QDataStream old(bytes);
        EXPECT_EQ(readTextRecord(old, {2000019, {300.0, 300.0}}, 0).alignment.toInt(), row.mapped);
        QDataStream later(bytes);
        EXPECT_EQ(int(readTextRecord(later, {2000020, {300.0, 300.0}}, 0).alignment.toInt()),
                  row.flags);
    }
}

TEST(TextRecord, OfTheFirstOptionTheSecondValueCounts)
{
    const QByteArray start = Header + FixedSize + Key + PenAndFont + Content + Alignment + Colors;
    QDataStream stream(start + hex("01 00 00"));
    const TextRecord off = readTextRecord(stream, {2000020, {300.0, 300.0}}, 0);
    EXPECT_FALSE(off.optionA);
    EXPECT_FALSE(off.optionB);

    QDataStream other(start + hex("00 01 00"));
    const TextRecord first = readTextRecord(other, {2000020, {300.0, 300.0}}, 0);
    EXPECT_TRUE(first.optionA);
    EXPECT_FALSE(first.optionB);

    QDataStream third(start + hex("00 00 01"));
    const TextRecord second = readTextRecord(third, {2000020, {300.0, 300.0}}, 0);
    EXPECT_FALSE(second.optionA);
    EXPECT_TRUE(second.optionB);
}

TEST(TextRecord, EachFlagHasItsPlace)
{
    const QByteArray start = Header + Key + hex("00000000 00000000 00000000 00000000");
    for (qsizetype place = 0; place < 5; ++place) {
        SCOPED_TRACE(place);
        QByteArray flags(5, '\0');
        flags[place] = '\1';
        QDataStream stream(start + flags.left(3) + Content + Alignment + flags.mid(3));
        const TextRecord record = readTextRecord(stream, {2000016, {300.0, 300.0}}, 0);
        EXPECT_EQ(record.bold, place == 0);
        EXPECT_EQ(record.italic, place == 1);
        EXPECT_EQ(record.underline, place == 2);
        EXPECT_EQ(record.inverse, place == 3);
        EXPECT_EQ(record.transparentBackground, place == 4);
    }
}

TEST(TextRecord, FontSizeIsRoundedAtTheHorizontalResolution)
{
    const QByteArray start = Header + Key + hex("00000000 00000000 00000000");
    QDataStream stream(start + hex("00000007")); // 7 dots: 1.68 points
    EXPECT_EQ(readTextRecord(stream, {2000016, {300.0, 150.0}}, 0).fontSize, 2);
    QDataStream half(start + hex("00000001")); // half a point
    EXPECT_EQ(readTextRecord(half, {2000016, {144.0, 1.0}}, 0).fontSize, 1);
}

TEST(TextRecord, WithoutFixedSizeSaysSo)
{
    const TextRecord record;
    EXPECT_EQ(record.fixedWidth, -1.0);
    EXPECT_EQ(record.fixedHeight, -1.0);
}

} // namespace
