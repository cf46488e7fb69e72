#include "workbench/barcodes/barcode_painter.h"

#include <QImage>
#include <QPainter>
#include <QPicture>

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::Literals::StringLiterals;

using namespace workbench::barcodes;

namespace {

BarcodeSymbol linear(bool caption = false)
{
    return encode({20, u"AB"_s, caption});
}

BarcodeSymbol matrix()
{
    return encode({58, u"1"_s});
}

BarcodeStyle plainStyle()
{
    BarcodeStyle style;
    style.font.setPixelSize(10);
    return style;
}

QImage painted(const BarcodeSymbol& symbol, const QSize& pixels, double scale, const QRectF& box,
               const BarcodeStyle& style)
{
    QImage image(pixels, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    paintBarcode(painter, box, symbol, style);
    return image;
}

/// The bounding rectangle of all pixels that are not white.
QRect inked(const QImage& image)
{
    QRect rect;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != QColor(Qt::white)) {
                rect |= QRect(x, y, 1, 1);
            }
        }
    }
    return rect;
}

} // namespace

TEST(BarcodeLayout, FillsTheBoxWithALinearSymbol)
{
    const BarcodeLayout layout = layOut(linear(), QRectF(10, 20, 114, 40), plainStyle());
    EXPECT_DOUBLE_EQ(layout.moduleWidth, 2.0);
    EXPECT_EQ(layout.bars, QRectF(10, 20, 114, 40));
}

TEST(BarcodeLayout, KeepsAMatrixSquareAndInTheMiddle)
{
    const BarcodeLayout layout = layOut(matrix(), QRectF(0, 0, 100, 42), plainStyle());
    EXPECT_DOUBLE_EQ(layout.moduleWidth, 2.0);
    EXPECT_EQ(layout.bars, QRectF(29, 0, 42, 42));
}

TEST(BarcodeLayout, TakesTheModuleWidthWhereItFits)
{
    BarcodeStyle style = plainStyle();
    style.moduleWidth = 1.0;
    EXPECT_EQ(layOut(linear(), QRectF(0, 0, 114, 40), style).bars, QRectF(28.5, 0, 57, 40));
    EXPECT_EQ(layOut(matrix(), QRectF(0, 0, 42, 42), style).bars, QRectF(10.5, 10.5, 21, 21));
    style.moduleWidth = 9.0;
    EXPECT_DOUBLE_EQ(layOut(linear(), QRectF(0, 0, 114, 40), style).moduleWidth, 2.0);
    style.moduleWidth = -1.0;
    EXPECT_DOUBLE_EQ(layOut(linear(), QRectF(0, 0, 114, 40), style).moduleWidth, 2.0);
}

TEST(BarcodeLayout, LeavesRoomForTheText)
{
    const BarcodeLayout layout = layOut(linear(true), QRectF(0, 0, 114, 60), plainStyle());
    EXPECT_DOUBLE_EQ(layout.captionPixelSize, 10.0);
    EXPECT_GE(layout.caption.height(), 10.0);
    EXPECT_DOUBLE_EQ(layout.bars.bottom(), layout.caption.top());
    EXPECT_DOUBLE_EQ(layout.caption.bottom(), 60.0);

    BarcodeStyle large = plainStyle();
    large.font.setPixelSize(500);
    const BarcodeLayout crowded = layOut(linear(true), QRectF(0, 0, 1000, 60), large);
    EXPECT_NEAR(crowded.caption.height(), 60.0 * MaximumCaptionShare, 1e-6);
    EXPECT_LT(layOut(linear(true), QRectF(0, 0, 5, 60), plainStyle()).captionPixelSize, 10.0)
        << "a text wider than the box gets smaller";
}

TEST(BarcodeLayout, IsEmptyForWhatCannotBeDrawn)
{
    const double infinite = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const QRectF& box : {QRectF(), QRectF(0, 0, -5, 5), QRectF(0, 0, 5, 0),
                              QRectF(0, 0, infinite, 5), QRectF(0, 0, nan, 5)}) {
        EXPECT_EQ(layOut(linear(true), box, plainStyle()).moduleWidth, 0.0);
        EXPECT_TRUE(inked(painted(linear(true), {20, 20}, 1.0, box, plainStyle())).isEmpty());
        EXPECT_TRUE(inked(painted(encode({}), {20, 20}, 1.0, box, plainStyle())).isEmpty());
    }
}

TEST(BarcodePainter, GivesEveryModuleWholePixels)
{
    // 57 modules in 180 pixels: three pixels each, and no gray pixels.
    const QImage image =
        painted(linear(), {200, 60}, 1.0, QRectF(10.3, 5.0, 180.0, 40.0), plainStyle());
    EXPECT_EQ(inked(image).width(), 57 * 3);
    int runStart = 0;
    for (int x = 1; x < image.width(); ++x) {
        const QColor color = image.pixelColor(x, 20);
        ASSERT_TRUE(color == QColor(Qt::white) || color == QColor(Qt::black)) << x;
        if (color != image.pixelColor(x - 1, 20)) {
            if (runStart > 0) {
                EXPECT_EQ((x - runStart) % 3, 0) << x;
            }
            runStart = x;
        }
    }
}

TEST(BarcodePainter, SmoothsWhatIsTooSmallForWholePixels)
{
    const QImage image = painted(linear(), {100, 40}, 1.0, QRectF(5, 5, 80, 30), plainStyle());
    EXPECT_NEAR(inked(image).width(), 80, 1) << "as wide as the box";
}

TEST(BarcodePainter, DrawsTheLayoutOnDevicesWithoutPixels)
{
    QPicture picture;
    QPainter painter(&picture);
    paintBarcode(painter, QRectF(0, 0, 150, 40), linear(), plainStyle());
    painter.end();
    EXPECT_NEAR(picture.boundingRect().width(), 150, 2);
}

TEST(BarcodePainter, TakesItsColors)
{
    BarcodeStyle style = plainStyle();
    style.foreground = Qt::blue;
    style.textColor = Qt::red;
    const QImage image = painted(linear(true), {250, 120}, 2.0, QRectF(0, 0, 120, 60), style);
    EXPECT_EQ(image.pixelColor(inked(image).left() + 1, 10), QColor(Qt::blue));
    bool redBelow = false;
    for (int y = 90; y < 120; ++y) {
        for (int x = 0; x < 250; ++x) {
            redBelow = redBelow || image.pixelColor(x, y) == QColor(Qt::red);
        }
    }
    EXPECT_TRUE(redBelow);
}

TEST(BarcodePainter, PlacesTheTextAsAligned)
{
    const auto captionOf = [](Qt::Alignment alignment) {
        BarcodeStyle style = plainStyle();
        style.captionAlignment = alignment;
        const QImage image = painted(linear(true), {400, 120}, 1.0, QRectF(0, 0, 400, 120), style);
        return inked(image.copy(0, 112, 400, 8));
    };
    const QRect left = captionOf(Qt::AlignLeft);
    const QRect center = captionOf(Qt::AlignCenter);
    const QRect right = captionOf(Qt::AlignRight);
    ASSERT_FALSE(left.isEmpty());
    EXPECT_LT(left.right(), 60);
    EXPECT_NEAR(center.center().x(), 200, 10);
    EXPECT_GT(right.left(), 340);
}

TEST(BarcodePainter, ShowsAnErrorInWords)
{
    const BarcodeSymbol wrong = encode({8, QString(QChar(0xe4))});
    ASSERT_FALSE(wrong.isValid());
    const QRectF box(20, 20, 160, 60);
    const QRect ink = inked(painted(wrong, {200, 100}, 1.0, box, plainStyle()));
    EXPECT_FALSE(ink.isEmpty());
    EXPECT_TRUE(box.toAlignedRect().adjusted(-1, -1, 1, 1).contains(ink)) << "it stays in the box";
    const QRect words =
        inked(painted(wrong, {200, 100}, 1.0, box, plainStyle()).copy(30, 30, 140, 40));
    EXPECT_GT(words.width(), 60);
}

TEST(BarcodePainter, LeavesThePainterAsItWas)
{
    QImage image(50, 50, QImage::Format_RGB32);
    QPainter painter(&image);
    const QTransform before = painter.transform();
    paintBarcode(painter, QRectF(0, 0, 40, 40), matrix(), plainStyle());
    EXPECT_EQ(painter.transform(), before);
    EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
}
