#include "limits/zip/zip_directory.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <limits>

#include <zlib.h>

namespace ziplimits {

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
// Deflated data that is this much longer than its content is treated as an attack.
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

/// Unpacks deflated data chunk by chunk; keeps its size and checksum, and the content only if
/// there is a place for it.
class Inflater
{
public:
    explicit Inflater(QByteArray* content)
        : m_content(content)
    {
        m_isReady = inflateInit2(&m_stream, -MAX_WBITS) == Z_OK;
    }
    ~Inflater() { inflateEnd(&m_stream); }
    Inflater(const Inflater&) = delete;
    Inflater& operator=(const Inflater&) = delete;

    // Unpacks the next chunk of input. False if the data is damaged or too large.
    bool take(QByteArray chunk, qint64 largest);
    [[nodiscard]] bool isFinished() const { return m_isFinished; }
    [[nodiscard]] qint64 size() const { return m_size; }
    [[nodiscard]] uLong checksum() const { return m_checksum; }

private:
    QByteArray* m_content;
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
        if (m_content != nullptr) {
            m_content->append(m_output.data(), produced);
        }
    }
    m_isFinished = status == Z_STREAM_END;
    // Z_BUF_ERROR: the chunk has no more input.
    return m_size <= largest && (m_isFinished || status == Z_BUF_ERROR);
}

} // namespace

ZipDirectory::ZipDirectory() = default;
ZipDirectory::~ZipDirectory() = default;

std::optional<QString> ZipDirectory::open(const QString& fileName)
{
    m_members.clear();
    m_isPackage = false;
    auto file = std::make_unique<QFile>(fileName);
    // Opening a pipe or a device could wait forever.
    if (!QFileInfo(fileName).isFile() || !file->open(QIODevice::ReadOnly)) {
        return u"The file cannot be opened: %1"_s.arg(fileName);
    }
    m_package = std::move(file);
    return checkDirectory(fileName);
}

std::optional<QString> ZipDirectory::openBytes(const QByteArray& package)
{
    m_members.clear();
    auto buffer = std::make_unique<QBuffer>();
    buffer->setData(package);
    buffer->open(QIODevice::ReadOnly);
    m_package = std::move(buffer);
    return checkDirectory(u"(memory)"_s);
}

std::optional<QString> ZipDirectory::checkDirectory(const QString& name)
{
    auto refusal = readDirectory(name);
    if (refusal) {
        m_members.clear();
    }
    return refusal;
}

std::optional<QString> ZipDirectory::readDirectory(const QString& name)
{
    const auto end = findEndRecord();
    m_isPackage = end.has_value();
    if (!m_isPackage) {
        return u"The file is not a zip package: %1"_s.arg(name);
    }
    if (end->members > MaximumMembers) {
        return u"The package has more than %1 members"_s.arg(MaximumMembers);
    }
    m_package->seek(end->directoryOffset);
    for (int i = 0; i < end->members; ++i) {
        if (!readMember()) {
            return u"The package's table of contents is damaged: %1"_s.arg(name);
        }
        if (m_package->pos() - end->directoryOffset > MaximumDirectoryBytes) {
            return u"The package's table of contents is longer than %1 bytes"_s.arg(
                MaximumDirectoryBytes);
        }
    }
    return std::nullopt;
}

// The end record is searched from the end, as Qt's reader does, so that both find the same.
std::optional<ZipDirectory::EndRecord> ZipDirectory::findEndRecord()
{
    const qint64 fileSize = m_package->size();
    const qint64 tailSize = std::min<qint64>(fileSize, EndBytes + LongestComment);
    if (fileSize > std::numeric_limits<int>::max() || !m_package->seek(fileSize - tailSize)) {
        return std::nullopt;
    }
    const QByteArray tail = m_package->read(tailSize);
    for (qsizetype at = tail.size() - EndBytes; at >= 0; --at) {
        if (longAt(tail, at) == EndSignature) {
            return EndRecord{longAt(tail, at + 16), shortAt(tail, at + 10)};
        }
    }
    return std::nullopt;
}

bool ZipDirectory::readMember()
{
    const QByteArray header = m_package->read(MemberBytes);
    if (header.size() < MemberBytes || longAt(header, 0) != MemberSignature) {
        return false;
    }
    const qsizetype nameSize = shortAt(header, 28);
    const qint64 rest = shortAt(header, 30) + shortAt(header, 32);
    const QByteArray name = m_package->read(nameSize);
    if (name.size() != nameSize || m_package->skip(rest) != rest) {
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

// Moves to the member's data and returns its compression method; nothing if the data is not
// completely inside the file.
std::optional<int> ZipDirectory::moveToData(const Member& member)
{
    const qint64 fileSize = m_package->size();
    m_package->seek(std::min(member.headerOffset, fileSize));
    const QByteArray header = m_package->read(LocalBytes);
    if (header.size() < LocalBytes) {
        return std::nullopt;
    }
    const qint64 data =
        member.headerOffset + LocalBytes + shortAt(header, 26) + shortAt(header, 28);
    if (data + member.compressedSize > fileSize || !m_package->seek(data)) {
        return std::nullopt;
    }
    return shortAt(header, 8);
}

bool ZipDirectory::unpackStored(const Member& member, QByteArray* content)
{
    uLong checksum = crc32(0, nullptr, 0);
    for (qint64 left = member.compressedSize; left > 0;) {
        const QByteArray chunk = m_package->read(std::min(left, ChunkBytes));
        if (chunk.isEmpty()) {
            return false;
        }
        checksum = checksumOf(checksum, chunk.constData(), chunk.size());
        if (content != nullptr) {
            content->append(chunk);
        }
        left -= chunk.size();
    }
    return member.compressedSize == member.size && checksum == member.checksum;
}

bool ZipDirectory::unpackDeflated(const Member& member, QByteArray* content)
{
    Inflater inflater(content);
    for (qint64 left = member.compressedSize; left > 0 && !inflater.isFinished();) {
        const QByteArray chunk = m_package->read(std::min(left, ChunkBytes));
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
    return unpack(name, largest, nullptr);
}

std::optional<QByteArray> ZipDirectory::read(const QString& name, qint64 largest)
{
    QByteArray content;
    return unpack(name, largest, &content) ? std::nullopt : std::optional(content);
}

std::optional<QString> ZipDirectory::unpack(const QString& name, qint64 largest,
                                            QByteArray* content)
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
    const bool isIntact = (method == MethodStored && unpackStored(member, content)) ||
                          (method == MethodDeflated && unpackDeflated(member, content));
    return isIntact ? std::nullopt
                    : std::optional(u"The package's member %1 is damaged"_s.arg(name));
}

} // namespace ziplimits
