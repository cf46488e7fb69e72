#include "limits/image/safe_picture.h"
#include "tests/support/encoded_picture.h"

#include <QImage>
#include <QtEndian>

#include <gtest/gtest.h>

#include <sys/resource.h>

using imagelimits::safePicture;

namespace {

QImage checkered()
{
    QImage image(7, 5, QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            image.setPixelColor(x, y, (x + y) % 2 == 0 ? Qt::red : Qt::transparent);
        }
    }
    return image;
}

QByteArray bigEndian(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

// The decoder reads on after a wrong checksum of what it does not need, so none is needed.
QByteArray chunk(const QByteArray& type, const QByteArray& data)
{
    return bigEndian(quint32(data.size())) + type + data + QByteArray(4, '\0');
}

constexpr qsizetype HeaderEnd = 8 + 4 + 4 + 13 + 4;

QByteArray withChunks(const QByteArray& png, const QByteArray& chunks)
{
    return png.left(HeaderEnd) + chunks + png.mid(HeaderEnd);
}

// A text that unpacks to a thousand times its size.
QByteArray packedText(qsizetype size)
{
    // What Qt packs is preceded by four bytes of its own.
    return chunk("zTXt", QByteArray("key\0\0", 5) + qCompress(QByteArray(size, 'a')).mid(4));
}

long peakKilobytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

TEST(SafePicture, IsTheSameByteForByteWhereThereIsNothingToLeaveOut)
{
    for (const char* format : {"PNG", "BMP", "PPM", "XPM", "ICO", "JPG"}) {
        const QByteArray bytes = encoded(checkered().convertToFormat(QImage::Format_RGB32), format);
        ASSERT_FALSE(bytes.isEmpty()) << format;
        EXPECT_EQ(safePicture(bytes), bytes) << format;
    }
    EXPECT_EQ(safePicture("no picture at all"), "no picture at all");
    EXPECT_EQ(safePicture({}), QByteArray());
}

TEST(SafePicture, LosesEveryChunkThatPixelsDoNotNeed)
{
    const QByteArray png = encoded(checkered(), "PNG");
    const QByteArray chunks = packedText(100) + chunk("tEXt", QByteArray("a\0b", 3)) +
                              chunk("iTXt", QByteArray("a\0\1\0\0\0x", 7)) +
                              chunk("iCCP", QByteArray("p\0\0x", 4)) + chunk("eXIf", "II") +
                              chunk("sPLT", "x") + chunk("ruNk", "");
    EXPECT_EQ(safePicture(withChunks(png, chunks)), png);
    EXPECT_EQ(safePicture(png + "behind the end"), png);
}

TEST(SafePicture, KeepsPaletteTransparencyAndResolution)
{
    QImage image = checkered().convertToFormat(QImage::Format_Indexed8);
    image.setDotsPerMeterX(1000);
    image.setDotsPerMeterY(2000);
    const QByteArray png = encoded(image, "PNG");
    const QImage decoded = QImage::fromData(safePicture(withChunks(png, packedText(10))));
    EXPECT_EQ(decoded, QImage::fromData(png));
    EXPECT_EQ(decoded.dotsPerMeterY(), 2000);
    EXPECT_EQ(decoded.pixelColor(1, 0).alpha(), 0);
}

TEST(SafePicture, TextsThatUnpackToGigabytesTakeNoMemory)
{
    const QByteArray bomb =
        withChunks(encoded(checkered(), "PNG"), packedText(7'900'000).repeated(200));
    const long before = peakKilobytes();
    EXPECT_EQ(QImage::fromData(safePicture(bomb)), checkered());
    EXPECT_LT(peakKilobytes() - before, 32 * 1024);
}

TEST(SafePicture, TruncatedAnywhereIsNotLarger)
{
    const QByteArray whole = withChunks(encoded(checkered(), "PNG"), packedText(100));
    for (qsizetype size = 0; size < whole.size(); ++size) {
        const QByteArray cut = safePicture(whole.left(size));
        EXPECT_LE(cut.size(), size);
        (void)QImage::fromData(cut);
    }
    for (const quint32 length : {0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
        const QByteArray claim = bigEndian(length) + "zTXt";
        EXPECT_LT(safePicture(withChunks(whole, claim)).size(), whole.size());
    }
}

TEST(SafePicture, OfManyPassesIsRefused)
{
    const QByteArray jpeg = encoded(checkered().convertToFormat(QImage::Format_RGB32), "JPG");
    const auto scans = int(jpeg.count("\xff\xda"));
    ASSERT_EQ(scans, 1);
    const QByteArray scan("\xff\xda\x00\x08", 4);
    const QByteArray most = jpeg + scan.repeated(imagelimits::MaximumScans - scans);
    EXPECT_EQ(safePicture(most), most);
    EXPECT_EQ(safePicture(most + scan), QByteArray());
}

TEST(SafePicture, InAnIconMayHoldFewPackedTexts)
{
    const QByteArray icon("\0\0\1\0\1\0", 6);
    const QByteArray png = encoded(checkered(), "PNG");
    const auto iconWith = [&](int texts) {
        return icon + withChunks(png, packedText(100).repeated(texts));
    };
    const QByteArray most = iconWith(imagelimits::MaximumPackedTexts);
    EXPECT_EQ(safePicture(most), most);
    EXPECT_EQ(safePicture(iconWith(imagelimits::MaximumPackedTexts + 1)), QByteArray());
    const QByteArray half = iconWith(imagelimits::MaximumPackedTexts / 2 + 1);
    EXPECT_EQ(safePicture(half + half), QByteArray()) << "in all of them together";
}

} // namespace
