#pragma once

#include <QByteArray>
#include <QByteArrayView>

/// The parts of a PNG.
namespace imagebounds {

inline constexpr QByteArrayView PngSignature("\x89PNG\r\n\x1a\n");

/// One chunk where it stands in the file.
struct PngChunk
{
    QByteArrayView type;  ///< four characters
    QByteArrayView whole; ///< length, type, data and checksum, as far as the file goes
};

/// Goes through the chunks of a PNG from behind its signature to its end chunk, or to where
/// the file ends.
class PngChunks
{
public:
    explicit PngChunks(QByteArrayView behindSignature)
        : m_rest(behindSignature)
    {}

    /// Moves to the next chunk; false when there is none.
    [[nodiscard]] bool next();
    [[nodiscard]] const PngChunk& chunk() const { return m_chunk; }

private:
    QByteArrayView m_rest;
    PngChunk m_chunk;
};

/// A PNG with nothing in it but what its pixels need.
[[nodiscard]] QByteArray pixelsOnly(const QByteArray& png);

/// The texts in the PNG at the start of some bytes that may be packed.
[[nodiscard]] int packedTextsIn(QByteArrayView png);

} // namespace imagebounds
