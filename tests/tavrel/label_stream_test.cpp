#include "tavrel/label_stream.h"
#include "tests/tavrel/bytes.h"

#include <QBuffer>
#include <QTemporaryFile>

#include <cmath>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

using namespace tavrel;
using tavrel_test::hex;

namespace {

TEST(LabelStream, ReadsBigEndianNumbers)
{
    QDataStream stream(hex("00 01 7F"          // three flags
                           "FFFFFFFE"          // -2
                           "FFFFFFFE"          // 4294967294
                           "4052000000000000"  // 72.0
                           "3FF0000000000000"  // 1.0
                           "4000000000000000") // 2.0
    );
    EXPECT_FALSE(readBool(stream));
    EXPECT_TRUE(readBool(stream));
    EXPECT_TRUE(readBool(stream)) << "every byte but 0 is true";
    EXPECT_EQ(readInt32(stream), -2);
    EXPECT_EQ(readUInt32(stream), 4294967294U);
    EXPECT_EQ(readDouble(stream), 72.0);
    EXPECT_EQ(readSize(stream), QSizeF(1.0, 2.0));
    EXPECT_TRUE(stream.atEnd());
}

TEST(LabelStream, ReadsInfinityAndNotANumber)
{
    QDataStream stream(hex("7FF0000000000000 7FF8000000000000"));
    EXPECT_TRUE(std::isinf(readDouble(stream)));
    EXPECT_TRUE(std::isnan(readDouble(stream)));
}

TEST(LabelStream, ReadsTexts)
{
    QDataStream stream(hex("00000004 0041 20AC" // "A", euro sign
                           "00000000"           // empty
                           "FFFFFFFF"           // null
                           "00000002 0042"));   // "B"
    EXPECT_EQ(readText(stream), u"A\u20AC"_s);
    EXPECT_EQ(readText(stream), QString());
    EXPECT_TRUE(readText(stream).isNull());
    EXPECT_EQ(readText(stream), u"B"_s);
    EXPECT_TRUE(stream.atEnd());
}

TEST(LabelStream, ReadsBytes)
{
    QDataStream stream(hex("00000003 616263 00000000 FFFFFFFF 00000001 7A"));
    EXPECT_EQ(readBytes(stream), QByteArray("abc"));
    EXPECT_EQ(readBytes(stream), QByteArray());
    EXPECT_EQ(readBytes(stream), QByteArray());
    EXPECT_EQ(readBytes(stream), QByteArray("z"));
}

TEST(LabelStream, SkipsTextsAsItReadsThem)
{
    for (const char* bytes :
         {"00000004 0041 20AC 00000007", "00000000 00000007", "FFFFFFFF 00000007",
          "00000003 00000007", "00000008 00000007", "00000002", "00", ""}) {
        SCOPED_TRACE(bytes);
        QDataStream read(hex(bytes));
        QDataStream skipped(hex(bytes));
        readText(read);
        skipText(skipped);
        EXPECT_EQ(bytesLeft(skipped), bytesLeft(read));
        EXPECT_EQ(skipped.status(), read.status());
    }
}

TEST(LabelStream, TextOfOddLengthTakesOnlyTheLength)
{
    for (const char* length : {"00000003", "00000005", "FFFFFFFD"}) {
        QDataStream stream(hex(length) + hex("0041 00"));
        EXPECT_EQ(readText(stream), QString()) << length;
        EXPECT_EQ(bytesLeft(stream), 3) << length;
    }
}

TEST(LabelStream, ContinuesAfterABadValue)
{
    QDataStream stream(hex("00000003 00000007"));
    EXPECT_EQ(readText(stream), QString());
    EXPECT_NE(stream.status(), QDataStream::Ok);
    EXPECT_EQ(readInt32(stream), 7);
}

class ClaimBeyondTheEnd : public testing::TestWithParam<const char*>
{};

TEST_P(ClaimBeyondTheEnd, GivesNothingAndTheEndOfTheStream)
{
    QDataStream texts(hex(GetParam()));
    EXPECT_EQ(readText(texts), QString());
    EXPECT_TRUE(texts.atEnd());

    QDataStream bytes(hex(GetParam()));
    EXPECT_EQ(readBytes(bytes), QByteArray());
    EXPECT_TRUE(bytes.atEnd());
}

INSTANTIATE_TEST_SUITE_P(Lengths, ClaimBeyondTheEnd,
                         testing::Values("00000004 0041",     // two bytes too many
                                         "80000000 00410042", // 2^31
                                         "FFFFFFFE 00410042", // the largest length
                                         "7FFFFFFE",          // no data after it
                                         "0000",              // half a length
                                         ""));

TEST(LabelStream, CutNumbersAreZero)
{
    QDataStream number(hex("FFFFFF"));
    EXPECT_EQ(readInt32(number), 0);
    EXPECT_TRUE(number.atEnd());

    QDataStream real(hex("40520000"));
    EXPECT_EQ(readDouble(real), 0.0);

    QDataStream flag(hex(""));
    EXPECT_FALSE(readBool(flag));
}

TEST(LabelStream, SkipsAtMostToTheEnd)
{
    QDataStream stream(hex("0102030405"));
    skipBytes(stream, 2);
    EXPECT_EQ(bytesLeft(stream), 3);
    skipBytes(stream, -1);
    EXPECT_EQ(bytesLeft(stream), 3);
    skipBytes(stream, 1LL << 40);
    EXPECT_TRUE(stream.atEnd());
}

using Fields = std::tuple<bool, qint32, double, quint32, bool>;

constexpr const char* WholeRun = "01"               // true
                                 "FFFFFFFE"         // -2
                                 "4052000000000000" // 72.0
                                 "FFFFFFFE"         // 4294967294
                                 "7F";              // true: any byte but 0

Fields readRun(QDataStream& stream)
{
    return readFields<bool, qint32, double, quint32, bool>(stream);
}

// With the stream's own operators, which define the format.
Fields readOneByOne(QDataStream& stream)
{
    Fields fields;
    std::apply([&stream](auto&... field) { (stream >> ... >> field); }, fields);
    return fields;
}

TEST(FieldRun, IsReadInItsOrder)
{
    QDataStream stream(hex(WholeRun));
    EXPECT_EQ(readRun(stream), Fields(true, -2, 72.0, 4294967294U, true));
    EXPECT_TRUE(stream.atEnd());
}

TEST(FieldRun, LeavesTheFollowingBytes)
{
    QDataStream stream(hex("00000007 00000009"));
    EXPECT_EQ(readFields<qint32>(stream), std::tuple(7));
    EXPECT_EQ(readInt32(stream), 9);
}

TEST(FieldRun, IsAsReadFieldByFieldWhereverTheStreamEnds)
{
    const QByteArray whole = hex(WholeRun);
    for (qsizetype length = 0; length <= whole.size(); ++length) {
        SCOPED_TRACE(length);
        QDataStream atOnce(whole.first(length));
        QDataStream oneByOne(whole.first(length));
        EXPECT_EQ(readRun(atOnce), readOneByOne(oneByOne));
        EXPECT_TRUE(atOnce.atEnd());
        EXPECT_EQ(atOnce.status(), oneByOne.status());
    }
}

TEST(FieldRun, IsTheSameInAFileAndBehindALookAhead)
{
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write(hex("0A0B") + hex(WholeRun) + hex("0C"));
    file.seek(0);
    QByteArray bytes = file.readAll();
    QBuffer buffer(&bytes);
    ASSERT_TRUE(buffer.open(QIODevice::ReadOnly));
    file.seek(0);
    for (QIODevice* device : {static_cast<QIODevice*>(&file), static_cast<QIODevice*>(&buffer)}) {
        QDataStream stream(device);
        skipBytes(stream, 1);
        EXPECT_EQ(device->peek(3).size(), 3) << "as pictures are distinguished";
        EXPECT_EQ(std::get<0>(readFields<quint8>(stream)), 0x0B);
        EXPECT_EQ(readRun(stream), Fields(true, -2, 72.0, 4294967294U, true));
        EXPECT_EQ(bytesLeft(stream), 1);
        EXPECT_EQ(device->readAll(), hex("0C"));
    }
}

} // namespace
