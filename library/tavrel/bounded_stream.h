#pragma once

#include <QByteArray>
#include <QDataStream>
#include <QSizeF>
#include <QString>

#include <span>

/// Reads single values from a label's stream.
///
/// The stream's own encodings hold. A value that the stream cuts short is zero or empty
/// and leaves the stream at its end; the stream's status is not looked at, because old
/// labels that end early are to be read as far as they go. A length is compared with what
/// the stream still holds before any memory is taken.
namespace tavrel {

/// Bytes between the stream's position and its end.
[[nodiscard]] qint64 bytesLeft(const QDataStream& stream);
/// Moves over bytes, at most to the end of the stream.
void skipBytes(QDataStream& stream, qint64 count);
/// Reads bytes as they stand, as many as there are.
/// @return how many
qsizetype readRaw(QDataStream& stream, std::span<char> to);

/// One byte; everything but 0 is true.
bool readBool(QDataStream& stream);
qint32 readInt32(QDataStream& stream);
quint32 readUInt32(QDataStream& stream);
/// Eight bytes; may be infinite or not a number.
double readDouble(QDataStream& stream);
/// Width, then height.
QSizeF readSize(QDataStream& stream);
/// A length in bytes, then UTF-16. An odd length gives an empty text and takes nothing
/// but the length, however large; an even one beyond the end gives an empty text and the end
/// of the stream.
QString readText(QDataStream& stream);
/// Moves over a text, as readText() does.
void skipText(QDataStream& stream);
/// A length, then bytes. One beyond the end gives no bytes and the end of the stream.
QByteArray readBytes(QDataStream& stream);

} // namespace tavrel
