#include "tavrel/label_stream.h"
#include "tavrel/pictures.h"
#include "tavrel/stream_picture.h"
#include "tavrel/tavrel_limits.h"
#include "tests/tavrel/bytes.h"

#include <QBuffer>
#include <QColor>

#include <gtest/gtest.h>

using namespace tavrel;
using tavrel_test::Bytes;
using tavrel_test::HeaderHex;
using tavrel_test::hex;

namespace {

const QByteArray Marker = hex("00000001");
const QByteArray Signature = hex("89504E470D0A1A0A");
// 2 by 1 pixels, eight bits per channel, red, green and blue.
const QByteArray Start = hex("0000000D 49484452 00000002 00000001 08 02 00 00 00 7B40E8DD");
// A red and a green pixel.
const QByteArray Pixels = hex("0000000F 49444154 78DA63F8CFC0C0F09F010007FF01FF B80435E0");
const QByteArray End = hex("00000000 49454E44 AE426082");
const QByteArray Picture = Marker + Signature + Start + Pixels + End;
// The data after the picture in the file.
const QByteArray NextField = hex("0000002A");

struct Outcome
{
    StreamPicture picture;
    qint64 left;
    qint64 pixelsLeft;
};

Outcome read(const QByteArray& bytes, qint64 pixelsLeft = MaximumPixelsPerFile)
{
    QDataStream stream(bytes);
    Outcome outcome{readPicture(stream, pixelsLeft), 0, 0};
    outcome.left = bytesLeft(stream);
    outcome.pixelsLeft = pixelsLeft;
    return outcome;
}

// A chunk with a checksum that no reader verifies.
QByteArray chunk(const char* type, const QByteArray& data)
{
    return Bytes().word(quint32(data.size())).raw(type).raw(data).word(0).bytes();
}

TEST(StreamPicture, IsAMarkerAndAPng)
{
    const Outcome outcome = read(Picture + NextField);
    EXPECT_EQ(outcome.picture.image.size(), QSize(2, 1));
    EXPECT_EQ(outcome.picture.image.pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(outcome.picture.image.pixelColor(1, 0), QColor(Qt::green));
    EXPECT_FALSE(outcome.picture.refused);
    EXPECT_EQ(outcome.left, 4);
}

TEST(StreamPicture, IsWhatTheStreamOfQtWrites)
{
    QImage image(3, 2, QImage::Format_ARGB32);
    image.fill(Qt::blue);
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << image << QImage();
    EXPECT_EQ(read(bytes).picture.image.size(), QSize(3, 2));
    EXPECT_EQ(read(bytes).left, 4) << "the null picture is a marker of 0";
}

TEST(StreamPicture, MarkerOfZeroIsNotAPicture)
{
    const Outcome outcome = read(hex("00000000") + NextField);
    EXPECT_TRUE(outcome.picture.image.isNull());
    EXPECT_FALSE(outcome.picture.refused);
    EXPECT_EQ(outcome.left, 4);
}

TEST(StreamPicture, OtherDataThanPngStaysInTheStream)
{
    const Outcome outcome = read(Marker + NextField);
    EXPECT_TRUE(outcome.picture.image.isNull());
    EXPECT_TRUE(outcome.picture.refused);
    EXPECT_EQ(outcome.left, 4);
}

struct DamageRow
{
    const char* what;
    QByteArray png;
};

class DamagedPicture : public testing::TestWithParam<DamageRow>
{};

TEST_P(DamagedPicture, IsRefusedAndTheNextRecordIsFound)
{
    const Outcome outcome = read(Marker + Signature + GetParam().png + NextField);
    EXPECT_TRUE(outcome.picture.image.isNull()) << GetParam().what;
    EXPECT_TRUE(outcome.picture.refused) << GetParam().what;
    EXPECT_EQ(outcome.left, 4) << GetParam().what;
}

// 60,000 by 60,000 pixels, with a valid checksum.
const QByteArray HugeStart = hex("0000000D 49484452 0000EA60 0000EA60 08 02 00 00 00 0FB0E215");

INSTANTIATE_TEST_SUITE_P(
    Kinds, DamagedPicture,
    testing::Values(
        DamageRow{"60,000 by 60,000", HugeStart + Pixels + End},
        DamageRow{"sides that do not fit",
                  chunk("IHDR", hex("FFFFFFFF FFFFFFFF 10 06 00 00 00")) + Pixels + End},
        DamageRow{"4096 by 4096 claimed, two pixels stored",
                  chunk("IHDR", hex("00001000 00001000 08 06 00 00 00")) + Pixels + End},
        DamageRow{"wrong checksum", Start + hex("00000001 49444154 00 00000000") + End},
        DamageRow{"no start chunk", Pixels + End}, DamageRow{"no pixels", Start + End},
        DamageRow{"short start chunk", chunk("IHDR", hex("00000001")) + End},
        DamageRow{"unknown color type",
                  chunk("IHDR", hex("00000001 00000001 08 09 00 00 00")) + Pixels + End},
        DamageRow{"no size",
                  chunk("IHDR", hex("00000000 00000000 08 02 00 00 00")) + Pixels + End}));

TEST(StreamPicture, ClaimIsRefusedBeforeAnythingIsUnpacked)
{
    const QByteArray unbacked = chunk("IHDR", hex("00001000 00001000 08 06 00 00 00"));
    for (const QByteArray& start : {HugeStart, unbacked}) {
        const Outcome outcome = read(Marker + Signature + start + Pixels + End);
        EXPECT_TRUE(outcome.picture.refused);
        EXPECT_EQ(outcome.pixelsLeft, MaximumPixelsPerFile);
    }
}

TEST(StreamPicture, ChunkBeyondTheEndTakesTheRest)
{
    for (const char* length : {"00000100", "80000000", "FFFFFFFF"}) {
        const Outcome outcome =
            read(Marker + Signature + Start + hex(length) + QByteArray("IDAT") + NextField);
        EXPECT_TRUE(outcome.picture.refused) << length;
        EXPECT_EQ(outcome.left, 0) << length;
    }
}

TEST(StreamPicture, CutAnywhereIsRefusedOrEmpty)
{
    for (qsizetype size = 0; size < Picture.size(); ++size) {
        EXPECT_TRUE(read(Picture.left(size)).picture.image.isNull()) << size;
    }
}

TEST(StreamPicture, ChunksThatThePixelsDoNotNeedAreLeftOut)
{
    const QByteArray bomb = chunk("zTXt", QByteArray("key\0\0", 5) + QByteArray(2000, 'x'));
    const QByteArray profile = chunk("iCCP", QByteArray("p\0\0", 3) + QByteArray(2000, 'x'));
    const Outcome outcome =
        read(Marker + Signature + Start + bomb + profile + Pixels + End + NextField);
    EXPECT_EQ(outcome.picture.image.size(), QSize(2, 1));
    EXPECT_TRUE(outcome.picture.image.textKeys().isEmpty());
    EXPECT_EQ(outcome.left, 4);
}

TEST(StreamPicture, PixelsOfAFileAreCounted)
{
    EXPECT_EQ(read(Picture, 10).pixelsLeft, 8);
    EXPECT_FALSE(read(Picture, 2).picture.refused);

    const Outcome outcome = read(Picture + NextField, 1);
    EXPECT_TRUE(outcome.picture.refused);
    EXPECT_EQ(outcome.pixelsLeft, 1);
    EXPECT_EQ(outcome.left, 4);
}

TEST(StreamPicture, LargePictureWithinTheBoundIsTaken)
{
    QImage image(4000, 3000, QImage::Format_RGB32);
    image.fill(Qt::white);
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << image;
    EXPECT_EQ(read(bytes).picture.image.size(), QSize(4000, 3000));
}

class SkippedPicture : public testing::TestWithParam<QByteArray>
{};

TEST_P(SkippedPicture, LeavesTheStreamWhereReadingLeavesIt)
{
    QDataStream stream(GetParam());
    skipPicture(stream);
    EXPECT_EQ(bytesLeft(stream), read(GetParam()).left);
}

INSTANTIATE_TEST_SUITE_P(Kinds, SkippedPicture,
                         testing::Values(Picture + NextField, hex("00000000") + NextField,
                                         Marker + NextField,
                                         Marker + Signature + HugeStart + Pixels + End + NextField,
                                         Marker + Signature + Start, Marker, QByteArray()));

TEST(PictureRecord, IsHeaderAndPicture)
{
    QDataStream stream(hex(HeaderHex) + Picture + NextField);
    qint64 pixelsLeft = 100;
    const PictureRecord record =
        readPictureRecord(stream, {2000024, {300.0, 150.0}}, 4, pixelsLeft);
    EXPECT_EQ(bytesLeft(stream), 4);
    EXPECT_EQ(record.header.zValue, 3004.0);
    EXPECT_EQ(record.picture.image.size(), QSize(2, 1));
    EXPECT_EQ(pixelsLeft, 98);
}

} // namespace
