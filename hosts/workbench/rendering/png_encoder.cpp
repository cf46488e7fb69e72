#include "workbench/rendering/png_encoder.h"

#include "workbench/rendering/frugal_image.h"

#include <QIODevice>
#include <QImage>
#include <QtEndian>

#include <array>
#include <span>

#include <zlib.h>

namespace workbench {

namespace {

constexpr char Signature[] = "\x89PNG\r\n\x1a\n";
constexpr char BitsPerSample = 8;
enum ColorType : char { Rgb = 2, Table = 3, RgbWithAlpha = 6 };
constexpr char NoFilter = 0;
constexpr char PerMetre = 1;
// Measured on the samples at 300 dots per inch: higher levels take twice the time for a tenth
// of the bytes.
constexpr int Compression = 3;
constexpr qsizetype PieceBytes = 1 << 16;

QByteArray bigEndian(quint32 value)
{
    std::array<char, sizeof value> bytes{};
    qToBigEndian(value, bytes.data());
    return {bytes.data(), bytes.size()};
}

bool writeChunk(QIODevice& device, const QByteArray& type, const QByteArray& data)
{
    const QByteArray checked = type + data;
    const uLong checksum = crc32(0, reinterpret_cast<const Bytef*>(checked.constData()),
                                 static_cast<uInt>(checked.size()));
    const QByteArray chunk = bigEndian(static_cast<quint32>(data.size())) + checked +
                             bigEndian(static_cast<quint32>(checksum));
    return device.write(chunk) == chunk.size();
}

ColorType colorTypeOf(const QImage& image)
{
    if (image.format() == QImage::Format_Indexed8) {
        return Table;
    }
    return image.hasAlphaChannel() ? RgbWithAlpha : Rgb;
}

bool writeHeader(QIODevice& device, const QImage& image)
{
    const QByteArray data = bigEndian(static_cast<quint32>(image.width())) +
                            bigEndian(static_cast<quint32>(image.height())) + BitsPerSample +
                            char(colorTypeOf(image)) + QByteArray(3, '\0');
    return writeChunk(device, "IHDR", data);
}

bool writeColorTable(QIODevice& device, const QImage& image)
{
    QByteArray colors;
    QByteArray alphas;
    const QList<QRgb> table = image.colorTable();
    for (const QRgb color : table) {
        colors += char(qRed(color));
        colors += char(qGreen(color));
        colors += char(qBlue(color));
        alphas += char(qAlpha(color));
    }
    return colors.isEmpty() ||
           (writeChunk(device, "PLTE", colors) && writeChunk(device, "tRNS", alphas));
}

bool writeResolution(QIODevice& device, const QImage& image)
{
    return writeChunk(device, "pHYs",
                      bigEndian(static_cast<quint32>(image.dotsPerMeterX())) +
                          bigEndian(static_cast<quint32>(image.dotsPerMeterY())) + PerMetre);
}

// Before the pixels, where readers find them without reading those.
bool writeTexts(QIODevice& device, const QImage& image)
{
    bool isWritten = true;
    const QStringList keys = image.textKeys();
    for (const QString& key : keys) {
        // The keyword, not compressed, no language, no translated keyword.
        const QByteArray data = key.toLatin1() + QByteArray(5, '\0') + image.text(key).toUtf8();
        isWritten = isWritten && writeChunk(device, "iTXt", data);
    }
    return isWritten;
}

// One row as it stands in the file, before compression.
QByteArray rowOf(const QImage& image, int y)
{
    const ColorType type = colorTypeOf(image);
    if (type == Table) {
        return NoFilter +
               QByteArray(reinterpret_cast<const char*>(image.constScanLine(y)), image.width());
    }
    const int samples = type == RgbWithAlpha ? 4 : 3;
    QByteArray row(1 + qsizetype(samples) * image.width(), NoFilter);
    char* to = row.data() + 1;
    const std::span pixels(reinterpret_cast<const QRgb*>(image.constScanLine(y)),
                           static_cast<std::size_t>(image.width()));
    for (const QRgb color : pixels) {
        *to++ = char(qRed(color));
        *to++ = char(qGreen(color));
        *to++ = char(qBlue(color));
        if (type == RgbWithAlpha) {
            *to++ = char(qAlpha(color));
        }
    }
    return row;
}

/// Compresses rows, and writes what comes out in pieces: a picture may be larger than the
/// memory should take twice.
class PixelWriter
{
public:
    explicit PixelWriter(QIODevice& device)
        : m_device(device)
        , m_isWell(deflateInit(&m_stream, Compression) == Z_OK)
    {}
    ~PixelWriter() { deflateEnd(&m_stream); }
    PixelWriter(const PixelWriter&) = delete;
    PixelWriter& operator=(const PixelWriter&) = delete;

    [[nodiscard]] bool write(QByteArray row) { return deflateAll(row, Z_NO_FLUSH); }
    [[nodiscard]] bool finish()
    {
        QByteArray nothing;
        return deflateAll(nothing, Z_FINISH) && flush();
    }

private:
    [[nodiscard]] bool deflateAll(QByteArray& bytes, int mode)
    {
        m_stream.next_in = reinterpret_cast<Bytef*>(bytes.data());
        m_stream.avail_in = static_cast<uInt>(bytes.size());
        do {
            m_stream.next_out = reinterpret_cast<Bytef*>(m_piece.data()) + m_used;
            m_stream.avail_out = static_cast<uInt>(m_piece.size() - m_used);
            m_isWell = m_isWell && deflate(&m_stream, mode) != Z_STREAM_ERROR;
            m_used = m_piece.size() - m_stream.avail_out;
        } while (m_isWell && m_stream.avail_out == 0 && flush());
        return m_isWell;
    }

    [[nodiscard]] bool flush()
    {
        m_isWell = m_isWell && writeChunk(m_device, "IDAT", m_piece.first(m_used));
        m_used = 0;
        return m_isWell;
    }

    QIODevice& m_device;
    z_stream m_stream{};
    QByteArray m_piece = QByteArray(PieceBytes, '\0');
    qsizetype m_used = 0;
    bool m_isWell;
};

bool writePixels(QIODevice& device, const QImage& image)
{
    PixelWriter writer(device);
    for (int y = 0; y < image.height(); ++y) {
        if (!writer.write(rowOf(image, y))) {
            return false;
        }
    }
    return writer.finish();
}

} // namespace

bool encodePng(const QImage& image, QIODevice& device)
{
    const QImage frugal = frugalImage(image);
    constexpr qint64 length = sizeof Signature - 1;
    return !frugal.isNull() && device.write(Signature, length) == length &&
           writeHeader(device, frugal) && writeColorTable(device, frugal) &&
           writeResolution(device, frugal) && writeTexts(device, frugal) &&
           writePixels(device, frugal) && writeChunk(device, "IEND", {});
}

} // namespace workbench
