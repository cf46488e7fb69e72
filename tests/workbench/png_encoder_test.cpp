// The written PNG files must be valid for every reader, Qt's own first.

#include "workbench/pictures/png_encoder.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

using workbench::encodePng;

namespace {

QByteArray encoded(const QImage& image)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(encodePng(image, buffer));
    return buffer.data();
}

QImage readBack(const QImage& image)
{
    return QImage::fromData(encoded(image), "png");
}

QImage withAlpha(const QImage& image)
{
    return image.convertToFormat(QImage::Format_ARGB32);
}

// This number of colors, in a size that compresses to several chunks if there are many.
QImage pictureOf(const QSize& size, quint32 colors, int alpha)
{
    QImage image(size, QImage::Format_ARGB32);
    quint32 noise = 1;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            noise = noise * 1664525U + 1013904223U;
            const int color = static_cast<int>((noise >> 8) % colors);
            image.setPixel(x, y, qRgba(color % 256, color / 256 % 256, color % 7, alpha));
        }
    }
    return image;
}

/// Accepts this number of bytes, then fails.
class FullDisk : public QIODevice
{
public:
    explicit FullDisk(qint64 room)
        : m_room(room)
    {
        open(QIODevice::WriteOnly);
    }

protected:
    qint64 readData(char* /*data*/, qint64 /*size*/) override { return -1; }
    qint64 writeData(const char* /*data*/, qint64 size) override
    {
        const qint64 taken = std::min(size, m_room);
        m_room -= taken;
        return taken == size ? taken : -1;
    }

private:
    qint64 m_room;
};

} // namespace

TEST(PngEncoder, WritesWhatQtReadsBack)
{
    for (const QSize& size : {QSize(1, 1), QSize(3, 7), QSize(300, 200)}) {
        for (const quint32 colors : {1U, 2U, 200U, 60000U}) {
            for (const int alpha : {255, 128, 0}) {
                SCOPED_TRACE(testing::Message() << size.width() << 'x' << size.height() << ", "
                                                << colors << " colors, alpha " << alpha);
                const QImage image = pictureOf(size, colors, alpha);
                EXPECT_EQ(withAlpha(readBack(image)), image);
            }
        }
    }
}

TEST(PngEncoder, TakesPicturesOfEveryFormat)
{
    const QImage image = pictureOf({20, 20}, 60000, 255);
    for (const auto format : {QImage::Format_RGB32, QImage::Format_ARGB32_Premultiplied,
                              QImage::Format_RGB888, QImage::Format_RGBA8888}) {
        EXPECT_EQ(withAlpha(readBack(image.convertToFormat(format))), image) << int(format);
    }
    const QImage mono = image.convertToFormat(QImage::Format_Mono);
    EXPECT_EQ(withAlpha(readBack(mono)), withAlpha(mono));
}

TEST(PngEncoder, WritesTheKindOfPictureThatIsNeeded)
{
    constexpr qsizetype BitDepthAt = 24;
    constexpr qsizetype ColorTypeAt = 25;
    const struct
    {
        quint32 colors;
        int bits;
    } rows[] = {{1, 1}, {2, 1}, {3, 2}, {4, 2}, {5, 4}, {16, 4}, {17, 8}, {256, 8}};
    for (const auto& row : rows) {
        const QImage image = pictureOf({40, 40}, row.colors, 255);
        EXPECT_EQ(encoded(image).at(BitDepthAt), row.bits) << row.colors;
        EXPECT_EQ(encoded(image).at(ColorTypeAt), 3) << row.colors;
        EXPECT_EQ(withAlpha(readBack(image)), image) << row.colors;
    }
    EXPECT_EQ(encoded(pictureOf({20, 20}, 100, 255)).at(ColorTypeAt), 3);
    EXPECT_EQ(encoded(pictureOf({20, 20}, 60000, 255)).at(ColorTypeAt), 2);
    EXPECT_EQ(encoded(pictureOf({20, 20}, 60000, 200)).at(ColorTypeAt), 6);
}

TEST(PngEncoder, WritesResolutionAndTextsAheadOfThePixels)
{
    QImage image = pictureOf({9, 9}, 60000, 255);
    image.setDotsPerMeterX(11811);
    image.setDotsPerMeterY(5906);
    image.setText(u"Software"_s, u"a program"_s);
    image.setText(u"Title"_s, u"K\u00e4se \u20ac"_s);
    QByteArray bytes = encoded(image);
    const QImage read = QImage::fromData(bytes, "png");
    EXPECT_EQ(read.dotsPerMeterX(), 11811);
    EXPECT_EQ(read.dotsPerMeterY(), 5906);

    QBuffer head(&bytes);
    QImageReader reader(&head, "png");
    EXPECT_EQ(reader.text(u"Software"_s), u"a program"_s);
    EXPECT_EQ(reader.text(u"Title"_s), u"K\u00e4se \u20ac"_s);
}

// A picture may come with any texts; libpng refuses a file with such a key.
TEST(PngEncoder, LeavesOutTextsWithoutAKey)
{
    QImage image = pictureOf({9, 9}, 4, 255);
    image.setText(u" "_s, u"no key"_s);
    image.setText(QString(80, u'k'), u"long key"_s);
    EXPECT_FALSE(encoded(image).contains("iTXt"));
    EXPECT_EQ(withAlpha(readBack(image)), image);
}

TEST(PngEncoder, RefusesAPictureOfNothing)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_FALSE(encodePng(QImage(), buffer));
    EXPECT_TRUE(buffer.data().isEmpty());
}

TEST(PngEncoder, ReportsAFullDevice)
{
    const QImage image = pictureOf({300, 200}, 60000, 255);
    const qint64 needed = encoded(image).size();
    for (const qint64 room : {qint64(0), qint64(10), qint64(60), needed / 2, needed - 1}) {
        FullDisk disk(room);
        EXPECT_FALSE(encodePng(image, disk)) << room;
    }
    FullDisk disk(needed);
    EXPECT_TRUE(encodePng(image, disk));
}
