// A picture of fewer bytes must be the same picture.

#include "workbench/pictures/compact_image.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

using workbench::compactImage;

namespace {

// A picture with this number of colors, some of them translucent.
QImage pictureOf(int colors, bool translucent)
{
    QImage image(40, 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    for (int i = 1; i < colors; ++i) {
        const int alpha = translucent ? 100 + i % 100 : 255;
        image.setPixelColor(i % 40, i / 40, QColor(i % 256, i / 256, 17, alpha));
    }
    return image;
}

QImage plain(const QImage& image)
{
    return image.convertToFormat(QImage::Format_ARGB32);
}

} // namespace

TEST(CompactImage, IsTheSamePictureWhateverItsColors)
{
    for (const int colors : {1, 2, 3, 256, 257, 1000}) {
        for (const bool translucent : {false, true}) {
            SCOPED_TRACE(testing::Message() << colors << " colors, translucent " << translucent);
            const QImage image = pictureOf(colors, translucent);
            EXPECT_EQ(plain(compactImage(image)), plain(image));
        }
    }
}

TEST(CompactImage, KeepsRowsThatRepeatAndThoseThatDifferInOnePixel)
{
    QImage image(33, 9, QImage::Format_RGB32);
    image.fill(Qt::white);
    for (const int y : {3, 4, 5, 8}) {
        for (int x = 0; x < image.width(); ++x) {
            image.setPixelColor(x, y, x % 2 == 0 ? Qt::black : Qt::red);
        }
    }
    image.setPixelColor(32, 4, Qt::blue); // the last pixel of a row that else repeats
    const QImage compact = compactImage(image);
    EXPECT_EQ(compact.format(), QImage::Format_Indexed8);
    EXPECT_EQ(plain(compact), plain(image));
}

TEST(CompactImage, HasATableOfUpTo256Colors)
{
    EXPECT_EQ(compactImage(pictureOf(256, false)).format(), QImage::Format_Indexed8);
    EXPECT_EQ(compactImage(pictureOf(256, false)).colorCount(), 256);
    EXPECT_EQ(compactImage(pictureOf(200, true)).format(), QImage::Format_Indexed8);
}

TEST(CompactImage, HasNoAlphaWhereAllIsOpaque)
{
    EXPECT_FALSE(compactImage(pictureOf(257, false)).hasAlphaChannel());
    EXPECT_TRUE(compactImage(pictureOf(1000, true)).hasAlphaChannel());
}

TEST(CompactImage, OutlivesThePictureWhosePixelsItShares)
{
    const QImage same = pictureOf(1000, false);
    QImage compact;
    {
        const QImage image = same.copy();
        compact = compactImage(image);
        EXPECT_EQ(compact.constBits(), image.constBits()) << "all pixels were copied";
    }
    EXPECT_EQ(plain(compact), plain(same));
}

TEST(CompactImage, IsTheSamePictureWhateverItsFormat)
{
    for (const auto format : {QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_RGB888,
                              QImage::Format_Grayscale8, QImage::Format_RGB16}) {
        SCOPED_TRACE(int(format));
        const QImage image = pictureOf(1000, false).convertToFormat(format);
        EXPECT_EQ(plain(compactImage(image)), plain(image));
        EXPECT_FALSE(compactImage(image).hasAlphaChannel());
    }
}

TEST(CompactImage, KeepsResolutionAndTexts)
{
    for (const int colors : {2, 1000}) {
        QImage image = pictureOf(colors, false);
        image.setDotsPerMeterX(11811);
        image.setDotsPerMeterY(5906);
        image.setText(u"Software"_s, u"a program"_s);
        const QImage compact = compactImage(image);
        EXPECT_EQ(compact.dotsPerMeterX(), 11811);
        EXPECT_EQ(compact.dotsPerMeterY(), 5906);
        EXPECT_EQ(compact.text(u"Software"_s), u"a program"_s);
    }
}

TEST(CompactImage, OfNothingIsNothing)
{
    EXPECT_TRUE(compactImage(QImage()).isNull());
}
