#include "limits/image/png_chunks.h"

#include <QtEndian>

#include <algorithm>
#include <array>

namespace imagebounds {

namespace {

constexpr qsizetype LengthSize = 4;
constexpr qsizetype TypeSize = 4;
constexpr qsizetype ChecksumSize = 4;
constexpr QByteArrayView EndType("IEND");

constexpr std::array<QByteArrayView, 7> KeptTypes{"IHDR", "PLTE", "tRNS", "gAMA",
                                                  "pHYs", "IDAT", "IEND"};
constexpr std::array<QByteArrayView, 2> PackedTextTypes{"zTXt", "iTXt"};

template <std::size_t count>
bool isOneOf(const std::array<QByteArrayView, count>& types, QByteArrayView type)
{
    return std::find(types.begin(), types.end(), type) != types.end();
}

} // namespace

bool PngChunks::next()
{
    constexpr qsizetype headSize = LengthSize + TypeSize;
    if (m_chunk.type == EndType || m_rest.size() < headSize) {
        return false;
    }
    const qint64 length = qFromBigEndian<quint32>(m_rest.data());
    const qint64 size = std::min<qint64>(headSize + length + ChecksumSize, m_rest.size());
    m_chunk = {m_rest.sliced(LengthSize, TypeSize), m_rest.first(size)};
    m_rest = m_rest.sliced(size);
    return true;
}

QByteArray pixelsOnly(const QByteArray& png)
{
    QByteArray kept = PngSignature.toByteArray();
    kept.reserve(png.size());
    PngChunks chunks(QByteArrayView(png).sliced(PngSignature.size()));
    while (chunks.next()) {
        if (isOneOf(KeptTypes, chunks.chunk().type)) {
            kept.append(chunks.chunk().whole);
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

} // namespace imagebounds
