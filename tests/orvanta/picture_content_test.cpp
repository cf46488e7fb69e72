#include "orvanta/picture_content.h"

#include "orvanta/raster_picture.h"
#include "tests/orvanta/printing.h"
#include "tests/support/encoded_picture.h"

#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 PlentyOfPixels = orvanta::MaximumLabelPixels;

QImage checkered()
{
    QImage image(7, 5, QImage::Format_RGB32);
    image.fill(Qt::white);
    image.setPixelColor(3, 2, Qt::red);
    return image;
}

} // namespace

TEST(PictureContent, LosesOneByteOrderMark)
{
    EXPECT_EQ(orvanta::withoutByteOrderMark("\xEF\xBB\xBF<svg"), QByteArray("<svg"));
    EXPECT_EQ(orvanta::withoutByteOrderMark("\xEF\xBB\xBF\xEF\xBB\xBF<svg"),
              QByteArray("\xEF\xBB\xBF<svg"));
    EXPECT_EQ(orvanta::withoutByteOrderMark("\xEF\xBB<svg"), QByteArray("\xEF\xBB<svg"));
    EXPECT_EQ(orvanta::withoutByteOrderMark("<svg\xEF\xBB\xBF"), QByteArray("<svg\xEF\xBB\xBF"));
    EXPECT_EQ(orvanta::withoutByteOrderMark(""), QByteArray());
}

TEST(PictureContent, IsSvgOnlyWithTheExactStart)
{
    for (const char* bytes : {"<svg", "<svg/>", "<svg xmlns='x'>", "<svgx"}) {
        EXPECT_TRUE(orvanta::isSvg(bytes)) << bytes;
    }
    for (const char* bytes : {"", "<sv", "<SVG/>", " <svg/>", "\n<svg/>", "<?xml?><svg/>",
                              "<x:svg/>", "<!-- --><svg/>"}) {
        EXPECT_FALSE(orvanta::isSvg(bytes)) << bytes;
    }
}

TEST(PictureContent, SvgLosesWhatTheSerializerAdded)
{
    const struct
    {
        const char* svg;
        const char* cleaned;
    } rows[] = {
        {"<svg/>", "<svg/>"},
        {"<svg d1p1:a='1' d1p1:b='2'/>", "<svg a='1' b='2'/>"},
        {"<svg xmlns:d1p1='x' d1p1:a='1'/>", "<svg xmlns='x' a='1'/>"},
        {"<svg viewBox=\"0, 0, 0, 0\"><svg viewBox=\"0, 0, 0, 0\"/></svg>", "<svg ><svg /></svg>"},
        {"<svg viewBox=\"0, 0, 0, 1\"/>", "<svg viewBox=\"0, 0, 0, 1\"/>"},
        {"<svg viewBox='0, 0, 0, 0'/>", "<svg viewBox='0, 0, 0, 0'/>"},
        {"<svg viewBox=\"0 0 0 0\"/>", "<svg viewBox=\"0 0 0 0\"/>"},
        {"<svg d1p1viewBox=\"0, 0, 0, 0\"/>", "<svg d1p1/>"},
        {"<svg a:d1p1:b=''/>", "<svg a:b=''/>"},
        {"<svg D1P1:a=''/>", "<svg D1P1:a=''/>"},
        // The prefix is removed in one pass, so that prefixes created by the removal are kept.
        {"<svg d1pd1p1:1:a=''/>", "<svg d1p1:a=''/>"},
        // First the prefix is removed, then names with a colon, then the view box.
        {"<svg vied1p1:wBox=\"0, 0, 0:d1p1, 0\"/>", "<svg />"},
        {"<svg :d1d1p1:p1/>", "<svg />"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.svg);
        EXPECT_EQ(orvanta::cleanedSvg(row.svg), QByteArray(row.cleaned));
    }
}

TEST(RasterPicture, IsDecodedByItsContent)
{
    for (const char* format : {"PNG", "BMP", "PPM", "XPM"}) {
        SCOPED_TRACE(format);
        const auto picture =
            orvanta::decodeRasterPicture(encoded(checkered(), format), PlentyOfPixels);
        EXPECT_EQ(picture.refusal, QString());
        ASSERT_EQ(picture.image.size(), QSize(7, 5));
        EXPECT_EQ(picture.image.pixelColor(3, 2), QColor(Qt::red));
        EXPECT_EQ(picture.image.pixelColor(2, 2), QColor(Qt::white));
    }
}

// Qt's plug-in would open and show the picture that a drawing refers to.
TEST(RasterPicture, OfADrawingShowsNoExternalPicture)
{
    const QTemporaryDir folder;
    const QString red = folder.filePath(u"red.png"_s);
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(red));
    const QByteArray drawing = "<?xml version='1.0'?><svg xmlns='http://www.w3.org/2000/svg' "
                               "xmlns:xlink='http://www.w3.org/1999/xlink' width='8' height='8'>"
                               "<rect width='4' height='8' fill='blue'/>"
                               "<image x='4' width='4' height='8' xlink:href='" +
                               red.toUtf8() + "'/></svg>";
    ASSERT_EQ(QImage::fromData(drawing).pixelColor(6, 4), QColor(Qt::red)) << "by the plug-in";
    const auto rendered = orvanta::decodeRasterPicture(drawing, 64);
    EXPECT_EQ(rendered.refusal, QString());
    EXPECT_EQ(rendered.image.size(), QSize(8, 8));
    EXPECT_EQ(rendered.image.pixelColor(1, 4), QColor(Qt::blue));
    EXPECT_EQ(rendered.image.pixelColor(6, 4).alpha(), 0);
    EXPECT_NE(orvanta::decodeRasterPicture(drawing, 63).refusal, QString());
}

TEST(RasterPicture, OtherDataIsNullWithoutRefusal)
{
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("abc"), QByteArray(1000, '\xFF'), QByteArray("<html/>")}) {
        const auto picture = orvanta::decodeRasterPicture(bytes, PlentyOfPixels);
        EXPECT_TRUE(picture.image.isNull());
        EXPECT_EQ(picture.refusal, QString());
    }
}

TEST(RasterPicture, CutOffAnywhereIsNullOrAPicture)
{
    const QByteArray whole = encoded(checkered(), "PNG");
    for (qsizetype length = 0; length < whole.size(); ++length) {
        const auto picture = orvanta::decodeRasterPicture(whole.left(length), PlentyOfPixels);
        EXPECT_TRUE(picture.image.isNull() || picture.image.size() == QSize(7, 5)) << length;
    }
}

TEST(RasterPicture, ThatClaimsTooManyPixelsIsRefusedUndecoded)
{
    const auto picture = orvanta::decodeRasterPicture("P6 20000 30000 255 x", PlentyOfPixels);
    EXPECT_TRUE(picture.image.isNull());
    EXPECT_EQ(picture.refusal, u"a picture of 20000 by 30000 pixels is too large"_s);

    QByteArray bitmap = encoded(checkered(), "BMP");
    const QByteArray huge("\x00\x00\x01\x00", 4); // 65536, little-endian
    bitmap.replace(18, 4, huge).replace(22, 4, huge);
    EXPECT_TRUE(orvanta::decodeRasterPicture(bitmap, PlentyOfPixels).image.isNull());
}

TEST(RasterPicture, MayUseWhatIsLeftToTheLabel)
{
    const QByteArray bytes = encoded(checkered(), "PNG");
    EXPECT_EQ(orvanta::decodeRasterPicture(bytes, 35).image.size(), QSize(7, 5));
    const auto refused = orvanta::decodeRasterPicture(bytes, 34);
    EXPECT_TRUE(refused.image.isNull());
    EXPECT_EQ(refused.refusal, u"a picture of 7 by 5 pixels is too large"_s);
}

TEST(RasterPicture, RendersADrawingBehindADeclarationOrSpaces)
{
    for (const char* svg :
         {"<?xml version=\"1.0\"?><svg xmlns=\"http://www.w3.org/2000/svg\" width=\"4\" "
          "height=\"4\"/>",
          " <svg xmlns=\"http://www.w3.org/2000/svg\" width=\"4\" height=\"4\"/>"}) {
        SCOPED_TRACE(svg);
        EXPECT_EQ(orvanta::decodeRasterPicture(svg, PlentyOfPixels).image.size(), QSize(4, 4));
    }
}
