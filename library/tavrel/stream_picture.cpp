#include "tavrel/stream_picture.h"

#include "tavrel/label_stream.h"
#include "tavrel/limits.h"

#include <QBuffer>
#include <QByteArray>
#include <QImageReader>
#include <QtEndian>

#include <algorithm>
#include <array>

namespace tavrel {
namespace {

constexpr char Signature[] = "\x89PNG\r\n\x1a\n";
constexpr qint64 SignatureSize = 8;
constexpr qint64 ChecksumSize = 4;

// What the pixels need. All else is left out before decoding: texts and colour profiles
// are packed too and can unpack to gigabytes.
constexpr std::array KeptChunks{"IHDR", "PLTE", "tRNS", "gAMA", "pHYs", "IDAT", "IEND"};

/// A PNG cut out of a stream.
struct CutPng
{
    QByteArray bytes;        ///< signature and kept chunks
    qint64 packedPixels = 0; ///< bytes of pixel data
    bool isPng = false;
    bool isWhole = false;
};

struct ImageHeader
{
    qint64 width = 0;
    qint64 height = 0;
    qint64 bitsPerPixel = 0;

    [[nodiscard]] qint64 pixels() const { return width * height; }
};

struct Chunk
{
    quint32 length = 0;
    QByteArray type;

    [[nodiscard]] bool is(const char* name) const { return type == name; }
};

bool isKept(const Chunk& chunk)
{
    return std::any_of(KeptChunks.begin(), KeptChunks.end(),
                       [&chunk](const char* name) { return chunk.is(name); });
}

bool takeSignature(QDataStream& stream)
{
    if (stream.device()->peek(SignatureSize) != QByteArray(Signature, SignatureSize)) {
        return false;
    }
    skipBytes(stream, SignatureSize);
    return true;
}

Chunk readChunkStart(QDataStream& stream)
{
    Chunk chunk;
    chunk.length = readUInt32(stream);
    chunk.type = stream.device()->read(4);
    return chunk;
}

void appendChunk(CutPng& png, const Chunk& chunk, const QByteArray& dataAndChecksum)
{
    std::array<char, sizeof(quint32)> length{};
    qToBigEndian(chunk.length, length.data());
    png.bytes.append(length.data(), qsizetype(length.size()));
    png.bytes.append(chunk.type);
    png.bytes.append(dataAndChecksum);
    png.packedPixels += chunk.is("IDAT") ? qint64(chunk.length) : 0;
}

// Leaves the stream behind the end chunk, or at its end where that is missing.
CutPng cutPng(QDataStream& stream, bool keepBytes)
{
    CutPng png;
    png.isPng = takeSignature(stream);
    png.bytes = QByteArray(Signature, SignatureSize);
    while (png.isPng && !png.isWhole && bytesLeft(stream) > 0) {
        const Chunk chunk = readChunkStart(stream);
        const qint64 rest = chunk.length + ChecksumSize;
        if (rest > bytesLeft(stream)) {
            skipBytes(stream, bytesLeft(stream));
        } else if (keepBytes && isKept(chunk)) {
            appendChunk(png, chunk, stream.device()->read(rest));
            png.isWhole = chunk.is("IEND");
        } else {
            skipBytes(stream, rest);
            png.isWhole = chunk.is("IEND");
        }
    }
    return png;
}

qint64 channelsOf(quint8 colorType)
{
    constexpr std::array<qint64, 7> channels{1, 0, 3, 1, 2, 0, 4};
    return colorType < channels.size() ? channels[colorType] : 0;
}

// The first chunk of a PNG, which tells the size. All zero where another stands there.
ImageHeader imageHeaderOf(const QByteArray& png)
{
    constexpr qsizetype start = SignatureSize + 8;
    if (png.size() < start + 13 || png.mid(SignatureSize + 4, 4) != "IHDR") {
        return {};
    }
    const char* data = png.constData() + start;
    const auto depth = static_cast<quint8>(data[8]);
    const auto colorType = static_cast<quint8>(data[9]);
    return {qFromBigEndian<quint32>(data), qFromBigEndian<quint32>(data + 4),
            depth * channelsOf(colorType)};
}

// Whether the pixels may be unpacked: there are not too many of them, and the packed
// data is enough to hold them.
bool isAffordable(const ImageHeader& header, qint64 packedPixels, qint64 pixelsLeft)
{
    constexpr qint64 largestSide = 0x7FFFFFFF; // the format's own bound
    if (header.width > largestSide || header.height > largestSide || header.pixels() > pixelsLeft) {
        return false;
    }
    return header.pixels() * header.bitsPerPixel / 8 <= packedPixels * MaximumDeflateRatio;
}

QImage decode(QByteArray png)
{
    QBuffer buffer(&png);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, "png");
    reader.setAutoDetectImageFormat(false);
    return reader.read();
}

bool hasPicture(QDataStream& stream)
{
    return readInt32(stream) != 0;
}

} // namespace

StreamPicture readPicture(QDataStream& stream, qint64& pixelsLeft)
{
    StreamPicture picture;
    if (!hasPicture(stream)) {
        return picture;
    }
    const CutPng png = cutPng(stream, true);
    const ImageHeader header = imageHeaderOf(png.bytes);
    if (png.isWhole && isAffordable(header, png.packedPixels, pixelsLeft)) {
        pixelsLeft -= header.pixels();
        picture.image = decode(png.bytes);
    }
    picture.refused = picture.image.isNull();
    return picture;
}

void skipPicture(QDataStream& stream)
{
    if (hasPicture(stream)) {
        cutPng(stream, false);
    }
}

} // namespace tavrel
