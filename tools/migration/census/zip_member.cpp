#include "migration/census/zip_member.h"

#include <QtEndian>

#include <algorithm>

#include <zlib.h>

namespace migration {

namespace {

constexpr quint32 kEnd = 0x06054b50;
constexpr qint64 kEndSize = 22;
constexpr qint64 kLongestComment = 65535;
constexpr quint32 kEntry = 0x02014b50;
constexpr qint64 kEntrySize = 46;
constexpr qint64 kLocalSize = 30;
constexpr int kStored = 0;
constexpr int kDeflated = 8;
constexpr qsizetype kChunk = 256 * 1024;

/// Where a member lies.
struct Place
{
    int method = 0;
    qint64 packed = 0;
    qint64 header = 0;
};

quint16 word(const QByteArray& bytes, qint64 at)
{
    return qFromLittleEndian<quint16>(bytes.constData() + at);
}

quint32 number(const QByteArray& bytes, qint64 at)
{
    return qFromLittleEndian<quint32>(bytes.constData() + at);
}

// Where the table of contents begins; -1 when there is none.
qint64 tableOf(const QByteArray& package)
{
    const qint64 last = package.size() - kEndSize;
    for (qint64 at = last; at >= 0 && at >= last - kLongestComment; --at) {
        if (number(package, at) == kEnd) {
            return number(package, at + 16);
        }
    }
    return -1;
}

std::optional<Place> findMember(const QByteArray& package, const QByteArray& name)
{
    qint64 at = tableOf(package);
    while (at >= 0 && at + kEntrySize <= package.size() && number(package, at) == kEntry) {
        const qint64 nameSize = word(package, at + 28);
        if (package.mid(at + kEntrySize, nameSize) == name) {
            return Place{word(package, at + 10), number(package, at + 20),
                         number(package, at + 42)};
        }
        at += kEntrySize + nameSize + word(package, at + 30) + word(package, at + 32);
    }
    return std::nullopt;
}

std::optional<QByteArray> packedBytes(const QByteArray& package, const Place& place)
{
    if (place.header + kLocalSize > package.size()) {
        return std::nullopt;
    }
    const qint64 start = place.header + kLocalSize + word(package, place.header + 26) +
                         word(package, place.header + 28);
    if (start + place.packed > package.size()) {
        return std::nullopt;
    }
    return QByteArray::fromRawData(package.constData() + start, place.packed);
}

std::optional<QByteArray> inflated(const QByteArray& packed, qint64 largest)
{
    z_stream stream = {};
    if (inflateInit2(&stream, -MAX_WBITS) != Z_OK) {
        return std::nullopt;
    }
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(packed.constData()));
    stream.avail_in = static_cast<uInt>(packed.size());
    QByteArray chunk(kChunk, Qt::Uninitialized);
    QByteArray bytes;
    int status = Z_OK;
    while (status == Z_OK && bytes.size() <= largest) {
        stream.next_out = reinterpret_cast<Bytef*>(chunk.data());
        stream.avail_out = static_cast<uInt>(chunk.size());
        status = inflate(&stream, Z_NO_FLUSH);
        bytes.append(chunk.constData(), chunk.size() - stream.avail_out);
    }
    inflateEnd(&stream);
    return status == Z_STREAM_END && bytes.size() <= largest ? std::optional(bytes) : std::nullopt;
}

} // namespace

std::optional<QByteArray> zipMember(const QByteArray& package, const QByteArray& name,
                                    qint64 largest)
{
    const auto place = findMember(package, name);
    const auto packed = place ? packedBytes(package, *place) : std::nullopt;
    if (!packed) {
        return std::nullopt;
    }
    if (place->method == kDeflated) {
        return inflated(*packed, largest);
    }
    // A copy, because the package may go before the member.
    return place->method == kStored && packed->size() <= largest
               ? std::optional(QByteArray(packed->constData(), packed->size()))
               : std::nullopt;
}

} // namespace migration
