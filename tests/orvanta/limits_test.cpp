// Every limit of the XML reader with its largest accepted and first rejected value.

#include "orvanta/file_limits.h"
#include "orvanta/raster_picture.h"
#include "tests/orvanta/printing.h"

#include <QTemporaryFile>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 Plenty = orvanta::MaximumLabelPixels;

QString refusalOfFileOf(qint64 bytes)
{
    QTemporaryFile file;
    EXPECT_TRUE(file.open());
    EXPECT_TRUE(file.resize(bytes)); // a sparse file, which uses no disk space
    const orvanta::FileContent content = orvanta::readWithinLimits(file);
    EXPECT_EQ(content.bytes.size(), content.refusal.isEmpty() ? bytes : 0);
    return content.refusal;
}

QString refusalOfObjects(int count)
{
    xmllimits::ElementTree document;
    EXPECT_FALSE(document.parse("<controls>" + QByteArray("<a/>").repeated(count) + "</controls>"));
    return orvanta::exceededLimit(document.documentElement());
}

TEST(OrvantaLimits, MeasureTheFile)
{
    EXPECT_EQ(refusalOfFileOf(orvanta::MaximumFileSize), QString());
    EXPECT_EQ(refusalOfFileOf(orvanta::MaximumFileSize + 1), u"it has more than 134217728 bytes"_s);
}

TEST(OrvantaLimits, CountObjects)
{
    EXPECT_EQ(refusalOfObjects(orvanta::MaximumControls), QString());
    EXPECT_EQ(refusalOfObjects(orvanta::MaximumControls + 1), u"it has more than 250000 objects"_s);
}

TEST(OrvantaLimits, CountThePixelsOfAPicture)
{
    static_assert(orvanta::MaximumPicturePixels == 8192 * 4096);
    // Neither has pixel data; only the first is decoded as far as that.
    EXPECT_EQ(orvanta::decodeRasterPicture("P6 8192 4096 255 x", Plenty).refusal, QString());
    EXPECT_EQ(orvanta::decodeRasterPicture("P6 8192 4097 255 x", Plenty).refusal,
              u"a picture of 8192 by 4097 pixels is too large"_s);
}

TEST(OrvantaLimits, CountThePassesOverAPicture)
{
    const QByteArray passes = QByteArray("\xff\xda\x00\x08", 4).repeated(1000);
    const auto picture = orvanta::decodeRasterPicture("\xff\xd8\xff" + passes, Plenty);
    EXPECT_TRUE(picture.image.isNull());
    EXPECT_EQ(picture.refusal, u"a picture that takes more work than any real one"_s);
}

} // namespace
