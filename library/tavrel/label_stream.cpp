#include "tavrel/label_stream.h"

#include <QIODevice>

#include <algorithm>
#include <optional>

namespace tavrel {
namespace {

constexpr quint32 NullLength = 0xFFFFFFFF;
constexpr qsizetype CharacterBytes = sizeof(char16_t);

// Skips to the end if the stream is shorter than a length claims.
bool contains(QDataStream& stream, quint32 length)
{
    const qint64 left = bytesLeft(stream);
    if (length > left) {
        skipBytes(stream, left);
    }
    return length <= left;
}

// Length in bytes of the text at the stream's position; nothing if it has no readable text.
std::optional<qsizetype> readTextLength(QDataStream& stream)
{
    const quint32 length = readUInt32(stream);
    if (length == NullLength) {
        return std::nullopt;
    }
    if (length % CharacterBytes != 0) {
        stream.setStatus(QDataStream::ReadCorruptData);
        return std::nullopt;
    }
    return contains(stream, length) ? std::optional<qsizetype>(length) : std::nullopt;
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

qsizetype readRaw(QDataStream& stream, std::span<char> to)
{
    return std::max(0, stream.readRawData(to.data(), static_cast<int>(to.size())));
}

bool readBool(QDataStream& stream)
{
    return std::get<0>(readFields<bool>(stream));
}

qint32 readInt32(QDataStream& stream)
{
    return std::get<0>(readFields<qint32>(stream));
}

quint32 readUInt32(QDataStream& stream)
{
    return std::get<0>(readFields<quint32>(stream));
}

double readDouble(QDataStream& stream)
{
    return std::get<0>(readFields<double>(stream));
}

QSizeF readSize(QDataStream& stream)
{
    const auto [width, height] = readFields<double, double>(stream);
    return {width, height};
}

QString readText(QDataStream& stream)
{
    const std::optional<qsizetype> length = readTextLength(stream);
    if (!length) {
        return {};
    }
    QString text(*length / CharacterBytes, Qt::Uninitialized);
    readRaw(stream, {reinterpret_cast<char*>(text.data()), static_cast<std::size_t>(*length)});
    qFromBigEndian<char16_t>(text.constData(), text.size(), text.data());
    return text;
}

void skipText(QDataStream& stream)
{
    skipBytes(stream, readTextLength(stream).value_or(0));
}

QByteArray readBytes(QDataStream& stream)
{
    const quint32 length = readUInt32(stream);
    if (length == NullLength || !contains(stream, length)) {
        return {};
    }
    QByteArray bytes(static_cast<qsizetype>(length), Qt::Uninitialized);
    readRaw(stream, {bytes.data(), static_cast<std::size_t>(length)});
    return bytes;
}

} // namespace tavrel
