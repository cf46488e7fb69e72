#include "tavrel/bounded_stream.h"

#include <QIODevice>
#include <QtEndian>

#include <algorithm>

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

// Where the stream does not hold what a length claims, all that is left is part of it.
bool holds(QDataStream& stream, quint32 length)
{
    const qint64 left = bytesLeft(stream);
    if (length > left) {
        skipBytes(stream, left);
    }
    return length <= left;
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
    const quint32 length = readUInt32(stream);
    if (length == NullLength) {
        return {};
    }
    if (length % sizeof(char16_t) != 0) {
        stream.setStatus(QDataStream::ReadCorruptData);
        return {};
    }
    if (!holds(stream, length)) {
        return {};
    }
    QString text(static_cast<qsizetype>(length / sizeof(char16_t)), Qt::Uninitialized);
    stream.readRawData(reinterpret_cast<char*>(text.data()), static_cast<int>(length));
    qFromBigEndian<char16_t>(text.constData(), text.size(), text.data());
    return text;
}

QByteArray readBytes(QDataStream& stream)
{
    const quint32 length = readUInt32(stream);
    if (length == NullLength || !holds(stream, length)) {
        return {};
    }
    QByteArray bytes(static_cast<qsizetype>(length), Qt::Uninitialized);
    stream.readRawData(bytes.data(), static_cast<int>(length));
    return bytes;
}

} // namespace tavrel
