#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

/// The structure of PNG files, without decoding them.
namespace imagelimits {

/// The first bytes of every PNG file.
inline constexpr QByteArrayView PngSignature("\x89PNG\r\n\x1a\n");

/// Bytes of a chunk in addition to its data: length and type before it, checksum after it.
inline constexpr qint64 PngChunkHeadSize = 8;
inline constexpr qint64 PngChecksumSize = 4;
/// The type of the last chunk.
inline constexpr QByteArrayView PngEndType("IEND");

/// Bytes of a file from which pngHeader() can be read.
inline constexpr qsizetype PngHeaderEnd = 8 + PngChunkHeadSize + 13;

/// One chunk in its file.
struct PngChunk
{
    QByteArrayView type;     ///< four characters
    QByteArrayView bytes;    ///< length, type, data and checksum, up to the end of the file
    bool isComplete = false; ///< whether the file contains all of it
};

/// Iterates over the chunks of a PNG up to its end chunk or to the end of the file.
class PngChunks
{
public:
    /// @param chunks the bytes after the signature
    explicit PngChunks(QByteArrayView chunks)
        : m_rest(chunks)
    {}

    /// Moves to the next chunk; false if there is none.
    [[nodiscard]] bool next();
    [[nodiscard]] const PngChunk& chunk() const { return m_chunk; }

private:
    QByteArrayView m_rest;
    PngChunk m_chunk;
};

/// The claims of a PNG's header chunk.
struct PngHeader
{
    qint64 width = 0;  ///< 0 to 2^32 - 1
    qint64 height = 0; ///< 0 to 2^32 - 1
    int bitsPerPixel = 0;

    /// Limited to the largest qint64.
    [[nodiscard]] qint64 pixels() const;
};

/// Reads the header, which must be the first chunk; nothing if the bytes do not begin with a
/// PNG's signature and header.
[[nodiscard]] std::optional<PngHeader> pngHeader(QByteArrayView png);

/// Whether decoding the pixels needs chunks of this type. The others, texts and color profiles,
/// may be compressed and expand to gigabytes.
[[nodiscard]] bool isPixelChunk(QByteArrayView type);

/// A PNG with only the chunks that its pixels need.
[[nodiscard]] QByteArray pixelsOnly(const QByteArray& png);

/// The number of texts, possibly compressed, in the PNG at the start of the bytes.
[[nodiscard]] int packedTextsIn(QByteArrayView png);

} // namespace imagelimits
