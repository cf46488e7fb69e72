#include "tavrel/stream_picture.h"

#include "limits/image/png_chunks.h"
#include "tavrel/label_stream.h"
#include "tavrel/tavrel_limits.h"

#include <QBuffer>
#include <QByteArray>
#include <QImageReader>
#include <QtEndian>

#include <array>

namespace tavrel {
namespace {

using imagelimits::isPixelChunk;
using imagelimits::PngChecksumSize;
using imagelimits::PngEndType;
using imagelimits::PngHeader;
using imagelimits::pngHeader;
using imagelimits::PngSignature;

/// A PNG cut out of a stream.
struct CutPng
{
    QByteArray bytes;        ///< signature and kept chunks
    qint64 packedPixels = 0; ///< bytes of pixel data
    bool isPng = false;
    bool isComplete = false;
};

struct Chunk
{
    quint32 length = 0;
    QByteArray type;
};

bool takeSignature(QDataStream& stream)
{
    const qsizetype size = PngSignature.size();
    if (QByteArrayView(stream.device()->peek(size)) != PngSignature) {
        return false;
    }
    skipBytes(stream, size);
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
    png.packedPixels += chunk.type == "IDAT" ? qint64(chunk.length) : 0;
}

// Leaves the stream after the end chunk, or at its end if the chunk is missing.
CutPng cutPng(QDataStream& stream, bool keepBytes)
{
    CutPng png;
    png.isPng = takeSignature(stream);
    png.bytes = PngSignature.toByteArray();
    while (png.isPng && !png.isComplete && bytesLeft(stream) > 0) {
        const Chunk chunk = readChunkStart(stream);
        const qint64 rest = chunk.length + PngChecksumSize;
        if (rest > bytesLeft(stream)) {
            skipBytes(stream, bytesLeft(stream));
        } else if (keepBytes && isPixelChunk(chunk.type)) {
            appendChunk(png, chunk, stream.device()->read(rest));
            png.isComplete = chunk.type == PngEndType;
        } else {
            skipBytes(stream, rest);
            png.isComplete = chunk.type == PngEndType;
        }
    }
    return png;
}

// Whether the pixels may be unpacked: there are not too many of them, and the packed
// data is enough to hold them.
bool isAffordable(const PngHeader& header, qint64 packedPixels, qint64 pixelsLeft)
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
    const auto header = pngHeader(png.bytes);
    if (png.isComplete && header && isAffordable(*header, png.packedPixels, pixelsLeft)) {
        pixelsLeft -= header->pixels();
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
