#include "limits/image/png_chunks.h"
#include "tests/support/encoded_picture.h"

#include <QImage>
#include <QtEndian>

#include <gtest/gtest.h>

#include <limits>

using namespace imagelimits;

namespace {

QByteArray withSize(QByteArray png, quint32 width, quint32 height)
{
    qToBigEndian(width, png.data() + 16);
    qToBigEndian(height, png.data() + 20);
    return png;
}

} // namespace

TEST(PngHeader, HasSizeAndDepth)
{
    const struct
    {
        QImage::Format format;
        int bits;
    } rows[] = {{QImage::Format_Mono, 1}, {QImage::Format_RGB32, 24}, {QImage::Format_ARGB32, 32}};
    for (const auto& row : rows) {
        QImage image(3, 5, row.format);
        image.fill(0);
        const auto header = pngHeader(encoded(image));
        ASSERT_TRUE(header);
        EXPECT_EQ(header->width, 3);
        EXPECT_EQ(header->height, 5);
        EXPECT_EQ(header->pixels(), 15);
        EXPECT_EQ(header->bitsPerPixel, row.bits);
    }
}

TEST(PngHeader, MustBeFirstAndComplete)
{
    const QByteArray png = encoded(QImage(1, 1, QImage::Format_RGB32));
    EXPECT_TRUE(pngHeader(png.first(PngHeaderEnd)));
    EXPECT_FALSE(pngHeader(png.first(PngHeaderEnd - 1)));
    EXPECT_FALSE(pngHeader({}));
    EXPECT_FALSE(pngHeader(QByteArray(png).replace(0, 1, "x")));
    EXPECT_FALSE(pngHeader(QByteArray(png).replace("IHDR", "IHDX")));
}

TEST(PngHeader, CountsPixelsWithoutOverflow)
{
    constexpr quint32 most = std::numeric_limits<quint32>::max();
    const QByteArray png = encoded(QImage(1, 1, QImage::Format_RGB32));
    EXPECT_EQ(pngHeader(withSize(png, most, most))->pixels(), std::numeric_limits<qint64>::max());
    EXPECT_EQ(pngHeader(withSize(png, most, 0))->pixels(), 0);
    EXPECT_EQ(pngHeader(withSize(png, most, 2))->pixels(), 2 * qint64(most));
}

TEST(PngChunks, EndWithTheirEndChunkOrTheFile)
{
    const QByteArray png = encoded(QImage(1, 1, QImage::Format_RGB32)) + "trailing bytes";
    const auto countOf = [](QByteArrayView bytes, bool& isComplete) {
        PngChunks chunks(bytes.sliced(PngSignature.size()));
        int count = 0;
        while (chunks.next()) {
            ++count;
            isComplete = chunks.chunk().isComplete;
        }
        return count;
    };
    bool isComplete = false;
    const int all = countOf(png, isComplete);
    EXPECT_TRUE(isComplete);
    const qsizetype end = png.indexOf("IEND") + 8;
    EXPECT_EQ(countOf(QByteArrayView(png).first(end), isComplete), all);
    EXPECT_TRUE(isComplete);
    EXPECT_EQ(countOf(QByteArrayView(png).first(end - 1), isComplete), all);
    EXPECT_FALSE(isComplete);
}
