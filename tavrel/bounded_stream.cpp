#include "tavrel/bounded_stream.h"

#include <QIODevice>
#include <QtEndian>

#include <algorithm>
#include <array>

namespace tavrel {
namespace {

constexpr quint32 NullLength = 0xFFFFFFFF;

template <typename Value>
Value readValue(QDataStream& stream)
{
    Value value{};
    stream >> value;
    return value;
}

// The length at the stream's position, which stays where it is. Cut short it counts as 0,
// as the stream itself reads it.
quint32 peekLength(const QDataStream& stream)
{
    std::array<char, sizeof(quint32)> bytes{};
    const qint64 count = stream.device()->peek(bytes.data(), bytes.size());
    return count == bytes.size() ? qFromBigEndian<quint32>(bytes.data()) : 0;
}

bool claimsMoreThanIsLeft(const QDataStream& stream)
{
    const quint32 length = peekLength(stream);
    return length != NullLength && length > bytesLeft(stream) - qint64(sizeof(quint32));
}

// Texts and byte arrays: the stream's own operator where the claim can be true.
template <typename Value>
Value readCounted(QDataStream& stream)
{
    if (bytesLeft(stream) >= qint64(sizeof(quint32)) && claimsMoreThanIsLeft(stream)) {
        skipBytes(stream, bytesLeft(stream));
        return {};
    }
    return readValue<Value>(stream);
}

} // namespace

qint64 bytesLeft(const QDataStream& stream)
{
    return stream.device()->bytesAvailable();
}

void skipBytes(QDataStream& stream, qint64 count)
{
    QIODevice* const device = stream.device();
    device->seek(device->pos() + std::clamp<qint64>(count, 0, bytesLeft(stream)));
}

bool readBool(QDataStream& stream)
{
    return readValue<bool>(stream);
}

qint32 readInt32(QDataStream& stream)
{
    return readValue<qint32>(stream);
}

quint32 readUInt32(QDataStream& stream)
{
    return readValue<quint32>(stream);
}

double readDouble(QDataStream& stream)
{
    return readValue<double>(stream);
}

QSizeF readSize(QDataStream& stream)
{
    return readValue<QSizeF>(stream);
}

QString readText(QDataStream& stream)
{
    return readCounted<QString>(stream);
}

QByteArray readBytes(QDataStream& stream)
{
    return readCounted<QByteArray>(stream);
}

} // namespace tavrel
