#include "workbench/pictures/png_encoder.h"

#include "workbench/pictures/compact_image.h"

#include <QIODevice>
#include <QImage>
#include <QList>

#include <algorithm>
#include <csetjmp>
#include <vector>

#include <png.h>

namespace workbench {

namespace {

// At 300 dots per inch, higher levels take twice the time and save a tenth of the bytes.
constexpr int CompressionLevel = 3;
// zlib's default is 8. It moves its tables for each 32 kB, and with small ones a picture takes a
// seventh less time. Labels even become smaller.
constexpr int CompressionMemory = 5;
constexpr png_size_t PieceBytes = 1 << 16;
constexpr int BitsPerSample = 8;
// Rows in the order of the file's bytes at a time. Qt converts many pixels with one instruction,
// libpng each byte of a row.
constexpr int BandRows = 32;
// The format's own limit.
constexpr qsizetype MaximumKeyCharacters = 79;

/// A text of a picture in the bytes that libpng takes.
struct Text
{
    QByteArray key;
    QByteArray text;
};

bool isKey(const QByteArray& key)
{
    const auto isVisible = [](char c) {
        return (c > ' ' && c < 127) || static_cast<uchar>(c) > 160;
    };
    return key.size() <= MaximumKeyCharacters && std::any_of(key.begin(), key.end(), isVisible);
}

QList<Text> textsOf(const QImage& image)
{
    QList<Text> texts;
    const QStringList keys = image.textKeys();
    for (const QString& key : keys) {
        const QByteArray latin = key.toLatin1();
        if (isKey(latin)) {
            texts.append({latin, image.text(key).toUtf8()});
        }
    }
    return texts;
}

/// The content of a picture's file, prepared before libpng runs: libpng leaves a failed function
/// by longjmp(), which destroys no objects.
struct PngContent
{
    explicit PngContent(const QImage& compact)
        : image(compact)
        , texts(textsOf(compact))
    {
        const QList<QRgb> table = image.colorTable();
        for (const QRgb color : table) {
            colors.push_back(
                {png_byte(qRed(color)), png_byte(qGreen(color)), png_byte(qBlue(color))});
            alphas.push_back(png_byte(qAlpha(color)));
        }
        for (Text& each : texts) {
            png_text text{};
            text.compression = PNG_ITXT_COMPRESSION_NONE;
            text.key = each.key.data();
            text.text = each.text.data();
            textChunks.push_back(text);
        }
    }

    [[nodiscard]] bool hasTable() const { return image.format() == QImage::Format_Indexed8; }
    [[nodiscard]] int colorType() const
    {
        if (hasTable()) {
            return PNG_COLOR_TYPE_PALETTE;
        }
        return image.hasAlphaChannel() ? PNG_COLOR_TYPE_RGB_ALPHA : PNG_COLOR_TYPE_RGB;
    }
    /// 1, 2, 4 or 8 for each number of a color, 8 for each part of a color.
    [[nodiscard]] int bitDepth() const
    {
        int bits = 1;
        while (bits < BitsPerSample && colors.size() > (std::size_t(1) << bits)) {
            bits *= 2;
        }
        return hasTable() ? bits : BitsPerSample;
    }

    /// A row in the order of the file's bytes; rows are taken from top to bottom.
    [[nodiscard]] const uchar* row(int y)
    {
        if (hasTable()) {
            return image.constScanLine(y);
        }
        if (y % BandRows == 0) {
            const int rows = std::min(BandRows, image.height() - y);
            const QImage part(image.constScanLine(y), image.width(), rows, image.bytesPerLine(),
                              image.format());
            band = part.convertToFormat(image.hasAlphaChannel() ? QImage::Format_RGBA8888
                                                                : QImage::Format_RGB888);
        }
        return band.isNull() ? nullptr : band.constScanLine(y % BandRows);
    }

    QImage image;
    QImage band;
    QList<Text> texts;
    std::vector<png_color> colors;
    std::vector<png_byte> alphas;
    std::vector<png_text> textChunks;
};

void writeBytes(png_structp png, png_bytep data, png_size_t size)
{
    auto* device = static_cast<QIODevice*>(png_get_io_ptr(png));
    const auto length = static_cast<qint64>(size);
    if (device->write(reinterpret_cast<const char*>(data), length) != length) {
        png_error(png, "the device does not accept all bytes");
    }
}

// Only the end marks the file as complete; there is nothing to flush before.
void flushNothing(png_structp /*png*/) {}

// The caller reports failures; libpng itself would print them.
[[noreturn]] void leave(png_structp png, png_const_charp /*message*/)
{
    png_longjmp(png, 1);
}

void ignoreWarning(png_structp /*png*/, png_const_charp /*message*/) {}

void writeHead(png_structp png, png_infop info, const PngContent& content)
{
    const QImage& image = content.image;
    png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
    png_set_compression_level(png, CompressionLevel);
    png_set_compression_mem_level(png, CompressionMemory);
    png_set_compression_buffer_size(png, PieceBytes);
    png_set_IHDR(png, info, png_uint_32(image.width()), png_uint_32(image.height()),
                 content.bitDepth(), content.colorType(), PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_BASE, PNG_FILTER_TYPE_BASE);
    if (content.hasTable()) {
        const int count = static_cast<int>(content.colors.size());
        png_set_PLTE(png, info, content.colors.data(), count);
        if (image.hasAlphaChannel()) {
            png_set_tRNS(png, info, content.alphas.data(), count, nullptr);
        }
    }
    png_set_pHYs(png, info, png_uint_32(image.dotsPerMeterX()), png_uint_32(image.dotsPerMeterY()),
                 PNG_RESOLUTION_METER);
    // Before the pixels, where readers find them without reading those.
    png_set_text(png, info, content.textChunks.data(), int(content.textChunks.size()));
    png_write_info(png, info);
}

// No object with a destructor may live here or in a function that libpng calls.
bool writeContent(png_structp png, png_infop info, PngContent& content)
{
    if (setjmp(png_jmpbuf(png)) != 0) {
        return false;
    }
    writeHead(png, info, content);
    png_set_packing(png);
    for (int y = 0; y < content.image.height(); ++y) {
        const uchar* row = content.row(y);
        if (row == nullptr) {
            return false; // no memory
        }
        png_write_row(png, row);
    }
    png_write_end(png, nullptr);
    return true;
}

} // namespace

bool encodePng(const QImage& image, QIODevice& device)
{
    PngContent content(compactImage(image));
    png_structp png =
        content.image.isNull()
            ? nullptr
            : png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, leave, ignoreWarning);
    png_infop info = png != nullptr ? png_create_info_struct(png) : nullptr;
    bool isWritten = false;
    if (info != nullptr) {
        png_set_write_fn(png, &device, writeBytes, flushNothing);
        isWritten = writeContent(png, info, content);
    }
    png_destroy_write_struct(&png, &info);
    return isWritten;
}

} // namespace workbench
