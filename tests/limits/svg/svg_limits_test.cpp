// The limits of drawings, each at its last good value and at the first bad one.

#include "limits/svg/svg_limits.h"
#include "limits/svg/svg_sanitizer.h"
#include "tests/support/encoded_picture.h"

#include <QImage>
#include <QtEndian>

#include <gtest/gtest.h>

using svglimits::sanitizeSvg;

namespace {

QByteArray svg(const QByteArray& content, const QByteArray& size = "width='10' height='10'")
{
    return "<svg xmlns='http://www.w3.org/2000/svg' " + size + ">" + content + "</svg>";
}

qsizetype kept(const char* what, const QByteArray& content)
{
    const auto safe = sanitizeSvg(svg(content));
    return safe ? safe->body.count(QLatin1String(what)) : -1;
}

QByteArray image(const QByteArray& png)
{
    return "<image width='1' height='1' href='data:image/png;base64," + png.toBase64() + "'/>";
}

TEST(SvgLimits, MeasureTheDocument)
{
    const qsizetype rest = svglimits::DocumentBytes - svg({}).size();
    EXPECT_TRUE(sanitizeSvg(svg(QByteArray(rest, ' '))));
    EXPECT_FALSE(sanitizeSvg(svg(QByteArray(rest + 1, ' '))));
}

TEST(SvgLimits, MeasurePictures)
{
    EXPECT_EQ(kept("<image", image(monoPng(svglimits::ImageSide, 1))), 1);
    EXPECT_EQ(kept("<image", image(monoPng(1, svglimits::ImageSide + 1))), 0);
    static_assert(svglimits::ImagePixels == 5000 * 5000);
    EXPECT_EQ(kept("<image", image(monoPng(5000, 5000))), 1);
    EXPECT_EQ(kept("<image", image(monoPng(5001, 5000))), 0);
}

TEST(SvgLimits, CountThePixelsOfAllPictures)
{
    static_assert(svglimits::AllImagePixels == 4 * svglimits::ImagePixels);
    const QByteArray most = image(monoPng(5000, 5000)).repeated(4);
    EXPECT_EQ(kept("<image", most), 4);
    EXPECT_EQ(kept("<image", most + image(monoPng(1, 1))), 4);
}

// The root, a group of n paths, and copies of the group: each is its own element, the group, and n.
TEST(SvgLimits, CountWhatIsDrawn)
{
    constexpr int paths = 998;
    constexpr int copies = 999;
    static_assert(svglimits::DrawnElements == 1 + (1 + paths) + copies * (2 + paths));
    const QByteArray most = "<g id='a'>" + QByteArray("<path/>").repeated(paths) + "</g>" +
                            QByteArray("<use href='#a'/>").repeated(copies);
    EXPECT_TRUE(sanitizeSvg(svg(most)));
    EXPECT_FALSE(sanitizeSvg(svg(most + "<path/>")));
}

// Three numbers, each perhaps as large as the largest, over the length of a dash and its gap.
TEST(SvgLimits, CountDashes)
{
    static_assert(svglimits::Dashes == 3 * 1e8 / 6);
    EXPECT_EQ(kept("dasharray", "<path d='M0 0H1e8' stroke-dasharray='6'/>"), 1);
    EXPECT_EQ(kept("dasharray", "<path d='M0 0H1e8' stroke-dasharray='5.99'/>"), 0);
}

TEST(SvgLimits, HoldFontSizes)
{
    static_assert(svglimits::FontSize == 10'000.0);
    EXPECT_EQ(kept("font-size=\"10000\"", "<text font-size='10000'>t</text>"), 1);
    EXPECT_EQ(kept("font-size=\"10000\"", "<text font-size='10001'>t</text>"), 1);
    EXPECT_EQ(kept("font-size=\"9999\"", "<text font-size='9999'>t</text>"), 1);
}

TEST(SvgLimits, HoldCoordinates)
{
    static_assert(svglimits::Coordinate == 1e9);
    EXPECT_EQ(kept("<path", "<path d='M0 0L1000000000 0'/>"), 1);
    EXPECT_EQ(kept("<path", "<path d='M0 0L1000000001 0'/>"), 0);
}

TEST(SvgLimits, NeverUnpackTheTextsOfAPicture)
{
    QByteArray chunk("zTXtkey\0\0", 9);
    chunk += qCompress(QByteArray(7'900'000, 'a')).mid(4);
    QByteArray length(4, '\0');
    qToBigEndian(quint32(chunk.size() - 4), length.data());
    constexpr qsizetype behindHeader = 33;
    QByteArray bomb = monoPng(3, 2);
    bomb.insert(behindHeader, (length + chunk + QByteArray(4, '\0')).repeated(20));
    const auto safe = sanitizeSvg(svg(image(bomb)));
    ASSERT_TRUE(safe);
    EXPECT_TRUE(safe->body.contains(QLatin1String(monoPng(3, 2).toBase64())));
    EXPECT_LT(safe->body.size(), 1000);
}

} // namespace
