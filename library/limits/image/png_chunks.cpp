#include "limits/image/png_chunks.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <limits>

namespace imagelimits {

namespace {

constexpr qsizetype LengthSize = 4;
constexpr qsizetype TypeSize = 4;
constexpr QByteArrayView HeaderType("IHDR");

constexpr std::array<QByteArrayView, 7> PixelTypes{HeaderType, "PLTE", "tRNS",    "gAMA",
                                                   "pHYs",     "IDAT", PngEndType};
constexpr std::array<QByteArrayView, 2> PackedTextTypes{"zTXt", "iTXt"};

template <std::size_t count>
bool isOneOf(const std::array<QByteArrayView, count>& types, QByteArrayView type)
{
    return std::find(types.begin(), types.end(), type) != types.end();
}

// Samples of a pixel; 0 for an unknown color type.
int channelsOf(quint8 colorType)
{
    constexpr std::array<int, 7> channels{1, 0, 3, 1, 2, 0, 4};
    return colorType < channels.size() ? channels[colorType] : 0;
}

} // namespace

bool PngChunks::next()
{
    if (m_chunk.type == PngEndType || m_rest.size() < PngChunkHeadSize) {
        return false;
    }
    const qint64 length = qFromBigEndian<quint32>(m_rest.data());
    const qint64 claimed = PngChunkHeadSize + length + PngChecksumSize;
    const qint64 size = std::min<qint64>(claimed, m_rest.size());
    m_chunk = {m_rest.sliced(LengthSize, TypeSize), m_rest.first(size), size == claimed};
    m_rest = m_rest.sliced(size);
    return true;
}

qint64 PngHeader::pixels() const
{
    constexpr qint64 largest = std::numeric_limits<qint64>::max();
    return height > 0 && width > largest / height ? largest : width * height;
}

std::optional<PngHeader> pngHeader(QByteArrayView png)
{
    const qsizetype typeAt = PngSignature.size() + LengthSize;
    if (png.size() < PngHeaderEnd || !png.startsWith(PngSignature) ||
        png.sliced(typeAt, TypeSize) != HeaderType) {
        return std::nullopt;
    }
    const char* data = png.data() + typeAt + TypeSize;
    const auto depth = static_cast<quint8>(data[8]);
    const auto colorType = static_cast<quint8>(data[9]);
    return PngHeader{qFromBigEndian<quint32>(data), qFromBigEndian<quint32>(data + 4),
                     depth * channelsOf(colorType)};
}

bool isPixelChunk(QByteArrayView type)
{
    return isOneOf(PixelTypes, type);
}

QByteArray pixelsOnly(const QByteArray& png)
{
    QByteArray kept = PngSignature.toByteArray();
    kept.reserve(png.size());
    PngChunks chunks(QByteArrayView(png).sliced(PngSignature.size()));
    while (chunks.next()) {
        if (isPixelChunk(chunks.chunk().type)) {
            kept.append(chunks.chunk().bytes);
        }
    }
    return kept;
}

int packedTextsIn(QByteArrayView png)
{
    int count = 0;
    PngChunks chunks(png.sliced(PngSignature.size()));
    while (chunks.next()) {
        count += isOneOf(PackedTextTypes, chunks.chunk().type) ? 1 : 0;
    }
    return count;
}

} // namespace imagelimits
