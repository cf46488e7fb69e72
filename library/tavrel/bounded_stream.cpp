#include "tavrel/bounded_stream.h"

#include "tavrel/field_run.h"

#include <QBuffer>
#include <QByteArrayView>
#include <QtEndian>

#include <algorithm>
#include <optional>

namespace tavrel {
namespace {

constexpr quint32 NullLength = 0xFFFFFFFF;
constexpr qsizetype CharacterBytes = sizeof(char16_t);

// Where the stream does not hold what a length claims, all that is left is part of it.
bool holds(QDataStream& stream, quint32 length)
{
    const qint64 left = bytesLeft(stream);
    if (length > left) {
        skipBytes(stream, left);
    }
    return length <= left;
}

// The bytes of the text that follows; nothing where there is no text in the stream.
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
    return holds(stream, length) ? std::optional<qsizetype>(length) : std::nullopt;
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

// A label's bytes lie in memory: taken there instead of read through the device, they save a
// twenty-fifth of a large label's import.
qsizetype readRaw(QDataStream& stream, std::span<char> to)
{
    auto* const buffer = qobject_cast<QBuffer*>(stream.device());
    if (buffer == nullptr) {
        return std::max(0, stream.readRawData(to.data(), static_cast<int>(to.size())));
    }
    const qint64 position = buffer->pos();
    const QByteArrayView left = QByteArrayView(buffer->data()).sliced(position);
    const auto count = std::min(left.size(), static_cast<qsizetype>(to.size()));
    std::copy_n(left.data(), count, to.data());
    buffer->seek(position + count);
    if (count < static_cast<qsizetype>(to.size())) {
        stream.setStatus(QDataStream::ReadPastEnd);
    }
    return count;
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
    if (length == NullLength || !holds(stream, length)) {
        return {};
    }
    QByteArray bytes(static_cast<qsizetype>(length), Qt::Uninitialized);
    readRaw(stream, {bytes.data(), static_cast<std::size_t>(length)});
    return bytes;
}

} // namespace tavrel
