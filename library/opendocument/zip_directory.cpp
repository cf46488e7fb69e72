#include "opendocument/zip_directory.h"

#include "opendocument/limits.h"

#include <QFileInfo>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <limits>

#include <zlib.h>

namespace opendocument {

namespace {

using namespace Qt::StringLiterals;

constexpr quint32 EndSignature = 0x06054b50;
constexpr qsizetype EndBytes = 22;
constexpr qsizetype LongestComment = 65535;
constexpr quint32 MemberSignature = 0x02014b50;
constexpr qsizetype MemberBytes = 46;
constexpr qsizetype LocalBytes = 30;

constexpr int MethodStored = 0;
constexpr int MethodDeflated = 8;

constexpr qint64 ChunkBytes = 65536;
// Deflated data that is longer than this beside what it unpacks to was made to keep us busy.
constexpr qint64 SlackBytes = 4096;

quint16 shortAt(const QByteArray& bytes, qsizetype offset)
{
    return qFromLittleEndian<quint16>(bytes.constData() + offset);
}

quint32 longAt(const QByteArray& bytes, qsizetype offset)
{
    return qFromLittleEndian<quint32>(bytes.constData() + offset);
}

uLong checksumOf(uLong before, const char* data, qint64 size)
{
    return crc32(before, reinterpret_cast<const Bytef*>(data), static_cast<uInt>(size));
}

/// Unpacks deflated data chunk by chunk into nothing but a size and a checksum.
class Inflater
{
public:
    Inflater() { m_isReady = inflateInit2(&m_stream, -MAX_WBITS) == Z_OK; }
    ~Inflater() { inflateEnd(&m_stream); }
    Inflater(const Inflater&) = delete;
    Inflater& operator=(const Inflater&) = delete;

    // Takes the next chunk of input. False when the data is damaged or unpacks to too much.
    bool take(QByteArray chunk, qint64 largest);
    [[nodiscard]] bool isFinished() const { return m_isFinished; }
    [[nodiscard]] qint64 size() const { return m_size; }
    [[nodiscard]] uLong checksum() const { return m_checksum; }

private:
    z_stream m_stream = {};
    std::array<char, ChunkBytes> m_output = {};
    qint64 m_size = 0;
    uLong m_checksum = crc32(0, nullptr, 0);
    bool m_isReady = false;
    bool m_isFinished = false;
};

bool Inflater::take(QByteArray chunk, qint64 largest)
{
    m_stream.next_in = reinterpret_cast<Bytef*>(chunk.data());
    m_stream.avail_in = static_cast<uInt>(chunk.size());
    int status = m_isReady ? Z_OK : Z_STREAM_ERROR;
    while (status == Z_OK && m_size <= largest) {
        m_stream.next_out = reinterpret_cast<Bytef*>(m_output.data());
        m_stream.avail_out = static_cast<uInt>(m_output.size());
        status = inflate(&m_stream, Z_NO_FLUSH);
        const qint64 produced = ChunkBytes - m_stream.avail_out;
        m_size += produced;
        m_checksum = checksumOf(m_checksum, m_output.data(), produced);
    }
    m_isFinished = status == Z_STREAM_END;
    // A buffer error only says that there is no more input in this chunk.
    return m_size <= largest && (m_isFinished || status == Z_BUF_ERROR);
}

} // namespace

std::optional<QString> ZipDirectory::open(const QString& fileName)
{
    m_members.clear();
    m_isPackage = false;
    m_file.close();
    m_file.setFileName(fileName);
    // Opening a pipe or a device could wait for ever.
    if (!QFileInfo(fileName).isFile() || !m_file.open(QIODevice::ReadOnly)) {
        return u"The file cannot be opened: %1"_s.arg(fileName);
    }
    const auto end = findEndRecord();
    m_isPackage = end.has_value();
    if (!m_isPackage) {
        return u"The file is no zip package: %1"_s.arg(fileName);
    }
    if (end->members > limits::PackageMembers) {
        return u"The package has more than %1 members"_s.arg(limits::PackageMembers);
    }
    m_file.seek(end->directoryOffset);
    for (int i = 0; i < end->members; ++i) {
        if (!readMember()) {
            return u"The package's table of contents is damaged: %1"_s.arg(fileName);
        }
        if (m_file.pos() - end->directoryOffset > limits::DirectoryBytes) {
            return u"The package's table of contents is longer than %1 bytes"_s.arg(
                limits::DirectoryBytes);
        }
    }
    return std::nullopt;
}

// The end record is searched from the end, as Qt's reader does, so that both find the same.
std::optional<ZipDirectory::EndRecord> ZipDirectory::findEndRecord()
{
    const qint64 fileSize = m_file.size();
    const qint64 tailSize = std::min<qint64>(fileSize, EndBytes + LongestComment);
    if (fileSize > std::numeric_limits<int>::max() || !m_file.seek(fileSize - tailSize)) {
        return std::nullopt;
    }
    const QByteArray tail = m_file.read(tailSize);
    for (qsizetype at = tail.size() - EndBytes; at >= 0; --at) {
        if (longAt(tail, at) == EndSignature) {
            return EndRecord{longAt(tail, at + 16), shortAt(tail, at + 10)};
        }
    }
    return std::nullopt;
}

bool ZipDirectory::readMember()
{
    const QByteArray header = m_file.read(MemberBytes);
    if (header.size() < MemberBytes || longAt(header, 0) != MemberSignature) {
        return false;
    }
    const qsizetype nameSize = shortAt(header, 28);
    const qint64 rest = shortAt(header, 30) + shortAt(header, 32);
    const QByteArray name = m_file.read(nameSize);
    if (name.size() != nameSize || m_file.skip(rest) != rest) {
        return false;
    }
    const Member member{longAt(header, 42), longAt(header, 20), longAt(header, 24),
                        longAt(header, 16)};
    const QString key = QString::fromLocal8Bit(name);
    if (!m_members.contains(key)) {
        m_members.insert(key, member);
    }
    return true;
}

// Moves the file to the member's data and gives the method that it is packed with; nothing
// when the data does not lie within the file.
std::optional<int> ZipDirectory::moveToData(const Member& member)
{
    const qint64 fileSize = m_file.size();
    m_file.seek(std::min(member.headerOffset, fileSize));
    const QByteArray header = m_file.read(LocalBytes);
    if (header.size() < LocalBytes) {
        return std::nullopt;
    }
    const qint64 data =
        member.headerOffset + LocalBytes + shortAt(header, 26) + shortAt(header, 28);
    if (data + member.compressedSize > fileSize || !m_file.seek(data)) {
        return std::nullopt;
    }
    return shortAt(header, 8);
}

bool ZipDirectory::isStoredIntact(const Member& member)
{
    uLong checksum = crc32(0, nullptr, 0);
    for (qint64 left = member.compressedSize; left > 0;) {
        const QByteArray chunk = m_file.read(std::min(left, ChunkBytes));
        if (chunk.isEmpty()) {
            return false;
        }
        checksum = checksumOf(checksum, chunk.constData(), chunk.size());
        left -= chunk.size();
    }
    return member.compressedSize == member.size && checksum == member.checksum;
}

bool ZipDirectory::isDeflatedIntact(const Member& member)
{
    Inflater inflater;
    for (qint64 left = member.compressedSize; left > 0 && !inflater.isFinished();) {
        const QByteArray chunk = m_file.read(std::min(left, ChunkBytes));
        if (chunk.isEmpty() || !inflater.take(chunk, member.size)) {
            return false;
        }
        left -= chunk.size();
    }
    return inflater.isFinished() && inflater.size() == member.size &&
           inflater.checksum() == member.checksum;
}

std::optional<QString> ZipDirectory::refusalOf(const QString& name, qint64 largest)
{
    const auto found = m_members.constFind(name);
    if (found == m_members.constEnd()) {
        return u"The package has no member %1"_s.arg(name);
    }
    const Member member = *found;
    if (member.size > largest || member.compressedSize > 2 * member.size + SlackBytes) {
        return u"The package's member %1 is too large: %2 bytes, packed in %3"_s.arg(
            name, QString::number(member.size), QString::number(member.compressedSize));
    }
    const auto method = moveToData(member);
    const bool isIntact = (method == MethodStored && isStoredIntact(member)) ||
                          (method == MethodDeflated && isDeflatedIntact(member));
    return isIntact ? std::nullopt
                    : std::optional(u"The package's member %1 is damaged"_s.arg(name));
}

} // namespace opendocument
