#include "sample_contents.h"

#include "workbench/barcodes/barcode_painter.h"
#include "workbench/barcodes/symbologies.h"

#include <QImage>
#include <QPainter>

#define ZX_USE_UTF8 1
#include <ZXing/ReadBarcode.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

using namespace workbench::barcodes;
using samples::Reads;
using samples::Sample;

namespace {

constexpr double PixelsPerPoint = 300.0 / 72.0;
constexpr double Margin = 20.0;
constexpr int ExtendedCode39 = 9;

ZXing::BarcodeFormat format(Reads reads)
{
    using F = ZXing::BarcodeFormat;
    constexpr F formats[] = {F::None,    F::Aztec,   F::Codabar,         F::Code39,     F::Code93,
                             F::Code128, F::DataBar, F::DataBarExpanded, F::DataMatrix, F::EAN8,
                             F::EAN13,   F::ITF,     F::MaxiCode,        F::PDF417,     F::QRCode,
                             F::UPCA,    F::UPCE,    F::MicroQRCode};
    return formats[static_cast<int>(reads)];
}

/// The barcode as printed at 300 dpi, surrounded by blank paper.
QImage printed(const BarcodeRequest& request, const QSizeF& points, double degrees = 0.0)
{
    const double side = std::max(points.width(), points.height()) + 2.0 * Margin;
    const int pixels = static_cast<int>(side * PixelsPerPoint);
    QImage image(pixels, pixels, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(PixelsPerPoint, PixelsPerPoint);
    painter.translate(side / 2.0, side / 2.0);
    painter.rotate(degrees);
    BarcodeStyle style;
    style.font.setPixelSize(9);
    paintBarcode(painter, QRectF(QPointF(-points.width() / 2.0, -points.height() / 2.0), points),
                 encode(request), style);
    return image;
}

ZXing::Result readBack(const QImage& image, Reads reads, bool extended = false)
{
    const QImage gray = image.convertToFormat(QImage::Format_Grayscale8);
    const ZXing::ImageView view(gray.constBits(), gray.width(), gray.height(),
                                ZXing::ImageFormat::Lum, static_cast<int>(gray.bytesPerLine()));
    ZXing::DecodeHints hints;
    hints.setFormats(format(reads));
    hints.setTryHarder(true);
    hints.setTryRotate(true);
    hints.setReturnCodabarStartEnd(true);
    hints.setTryCode39ExtendedMode(extended);
    return ZXing::ReadBarcode(view, hints);
}

QSizeF boxOf(int code)
{
    if (findSymbology(code)->matrix && encode({code, u"1"_s}).fixedRatio) {
        return {100.0, 100.0};
    }
    return {260.0, 90.0};
}

QString expectedText(const Sample& sample)
{
    return QString::fromUtf16(sample.text ? sample.text : sample.content);
}

} // namespace

TEST(ReadBack, EverySymbologyIsEncodedAndReadByAnIndependentDecoder)
{
    int encoded = 0;
    int read = 0;
    std::printf("code  symbology                                        encoded  read back\n");
    for (const Sample& sample : samples::Samples) {
        SCOPED_TRACE(sample.code);
        const BarcodeRequest request{sample.code, QString::fromUtf16(sample.content)};
        const BarcodeSymbol symbol = encode(request);
        EXPECT_EQ(symbol.error.toStdString(), "");
        encoded += symbol.isValid() ? 1 : 0;
        QString answer = u"the decoder does not know it"_s;
        if (sample.reads != Reads::None) {
            const ZXing::Result result = readBack(printed(request, boxOf(sample.code)),
                                                  sample.reads, sample.code == ExtendedCode39);
            const QString text = QString::fromStdString(result.text());
            EXPECT_TRUE(result.isValid()) << ZXing::ToString(result.error());
            EXPECT_EQ(text.toStdString(), expectedText(sample).toStdString());
            read += result.isValid() ? 1 : 0;
            answer = result.isValid() ? u'"' + text + u'"' : u"NOT READ"_s;
        }
        std::printf("%4d  %-48s %-8s %s\n", sample.code,
                    symbologyName(sample.code).toUtf8().constData(),
                    symbol.isValid() ? "yes" : "NO", answer.toUtf8().constData());
    }
    std::printf("%d symbologies encoded, %d read back\n", encoded, read);
    EXPECT_EQ(static_cast<std::size_t>(encoded), symbologies().size())
        << "every symbology has a sample";
}

TEST(ReadBack, ShortArticleNumbersAreReadToo)
{
    const ZXing::Result result = readBack(printed({13, u"1234567"_s}, {120.0, 60.0}), Reads::EAN8);
    EXPECT_EQ(result.text(), "12345670");
}

TEST(ReadBack, BarcodesAreReadHoweverTheyAreTurned)
{
    for (const double degrees : {90.0, 180.0, 270.0, 17.0}) {
        SCOPED_TRACE(degrees);
        const ZXing::Result matrix =
            readBack(printed({58, u"turned"_s}, {100.0, 100.0}, degrees), Reads::QRCode);
        EXPECT_EQ(matrix.text(), "turned");
        if (degrees == 17.0) {
            continue;
        }
        const ZXing::Result linear =
            readBack(printed({20, u"turned"_s}, {200.0, 60.0}, degrees), Reads::Code128);
        EXPECT_EQ(linear.text(), "turned");
    }
}

TEST(ReadBack, SettingsKeepBarcodesReadable)
{
    const struct
    {
        BarcodeRequest request;
        Reads reads;
        const char* text;
    } rows[] = {
        {{8, u"CHECK"_s, true, false, false, 1, 0, 0}, Reads::Code39, "CHECKW"},
        {{3, u"1234567"_s, true, false, false, 1, 0, 0}, Reads::ITF, "12345670"},
        {{20, u"bars"_s, true, true, true, 0, 0, 0}, Reads::Code128, "bars"},
        {{20, u"no text"_s, false, false, false, 0, 0, 0}, Reads::Code128, "no text"},
        {{55, u"columns"_s, true, false, false, 6, 0, 4}, Reads::PDF417, "columns"},
        {{58, u"level"_s, true, true, false, 0, 10, 4}, Reads::QRCode, "level"},
        {{71, u"size"_s, true, false, false, 0, 8, 0}, Reads::DataMatrix, "size"},
        {{92, u"level"_s, true, false, false, 0, 0, 4}, Reads::Aztec, "level"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        const ZXing::Result result =
            readBack(printed(row.request, boxOf(row.request.symbology)), row.reads);
        EXPECT_EQ(result.text(), row.text);
    }
}
