#pragma once

#include <QDataStream>
#include <QImage>

namespace tavrel {

/// A picture of a stream: a marker, 0 for no picture, then a PNG file.
struct StreamPicture
{
    QImage image;         ///< null when there is none or it was refused
    bool refused = false; ///< there is a picture, but too large or damaged
};

/// Reads a picture and subtracts its pixels from those that the file may still unpack.
///
/// The PNG's chunks are walked over by their lengths first, so that the next record is
/// found after a picture that cannot be decoded. Data that does not start as a PNG is
/// left in the stream, as QDataStream would leave it.
[[nodiscard]] StreamPicture readPicture(QDataStream& stream, qint64& pixelsLeft);

/// Moves over a picture without decoding it.
void skipPicture(QDataStream& stream);

} // namespace tavrel
