#include "tavrel/bounded_stream.h"
#include "tests/tavrel/bytes.h"

#include <cmath>

#include <gtest/gtest.h>

using namespace tavrel;
using tavrel_test::hex;

namespace {

TEST(BoundedStream, ReadsBigEndianNumbers)
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

TEST(BoundedStream, ReadsInfinityAndNotANumber)
{
    QDataStream stream(hex("7FF0000000000000 7FF8000000000000"));
    EXPECT_TRUE(std::isinf(readDouble(stream)));
    EXPECT_TRUE(std::isnan(readDouble(stream)));
}

TEST(BoundedStream, ReadsTexts)
{
    QDataStream stream(hex("00000004 0041 20AC" // "A", euro sign
                           "00000000"           // empty
                           "FFFFFFFF"           // null
                           "00000002 0042"));   // "B"
    EXPECT_EQ(readText(stream), QStringLiteral("A\u20AC"));
    EXPECT_EQ(readText(stream), QString());
    EXPECT_TRUE(readText(stream).isNull());
    EXPECT_EQ(readText(stream), QStringLiteral("B"));
    EXPECT_TRUE(stream.atEnd());
}

TEST(BoundedStream, ReadsBytes)
{
    QDataStream stream(hex("00000003 616263 00000000 FFFFFFFF 00000001 7A"));
    EXPECT_EQ(readBytes(stream), QByteArray("abc"));
    EXPECT_EQ(readBytes(stream), QByteArray());
    EXPECT_EQ(readBytes(stream), QByteArray());
    EXPECT_EQ(readBytes(stream), QByteArray("z"));
}

TEST(BoundedStream, SkipsTextsAsItReadsThem)
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

TEST(BoundedStream, TextOfOddLengthTakesOnlyTheLength)
{
    for (const char* length : {"00000003", "00000005", "FFFFFFFD"}) {
        QDataStream stream(hex(length) + hex("0041 00"));
        EXPECT_EQ(readText(stream), QString()) << length;
        EXPECT_EQ(bytesLeft(stream), 3) << length;
    }
}

TEST(BoundedStream, GoesOnAfterABadValue)
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
                                         "FFFFFFFE 00410042", // as large as can be
                                         "7FFFFFFE",          // nothing behind it
                                         "0000",              // half a length
                                         ""));

TEST(BoundedStream, CutNumbersAreZero)
{
    QDataStream number(hex("FFFFFF"));
    EXPECT_EQ(readInt32(number), 0);
    EXPECT_TRUE(number.atEnd());

    QDataStream real(hex("40520000"));
    EXPECT_EQ(readDouble(real), 0.0);

    QDataStream flag(hex(""));
    EXPECT_FALSE(readBool(flag));
}

TEST(BoundedStream, SkipsAtMostToTheEnd)
{
    QDataStream stream(hex("0102030405"));
    skipBytes(stream, 2);
    EXPECT_EQ(bytesLeft(stream), 3);
    skipBytes(stream, -1);
    EXPECT_EQ(bytesLeft(stream), 3);
    skipBytes(stream, 1LL << 40);
    EXPECT_TRUE(stream.atEnd());
}

} // namespace
