#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <memory>
#include <optional>

class QIODevice;

namespace ziplimits {

/// Most members of a package. Their table of contents is kept in memory.
inline constexpr int MaximumMembers = 4096;
/// Largest table of contents in bytes.
inline constexpr qint64 MaximumDirectoryBytes = 4LL << 20;

/// The table of contents of a zip package, for checking members before they are unpacked.
///
/// Qt's zip reader needs this check: it allocates the sizes that headers claim, doubles its
/// buffer until the data fits, reads beyond the end of truncated data and ignores checksums.
class ZipDirectory
{
public:
    ZipDirectory();
    ~ZipDirectory();

    /// Reads the table of contents of a file.
    /// @return nothing on success, else the reason for refusing the file
    [[nodiscard]] std::optional<QString> open(const QString& fileName);
    /// Reads the table of contents of a package in memory.
    [[nodiscard]] std::optional<QString> openBytes(const QByteArray& package);

    /// Whether the input that was opened last is a zip package, possibly a damaged one.
    [[nodiscard]] bool isPackage() const { return m_isPackage; }
    [[nodiscard]] bool hasMember(const QString& name) const { return m_members.contains(name); }

    /// Unpacks a member without keeping it, and compares it with its entry in the table.
    /// @param largest the largest accepted size in bytes, uncompressed
    /// @return nothing if the member can be read, else the reason for refusing it
    [[nodiscard]] std::optional<QString> refusalOf(const QString& name, qint64 largest);

    /// Unpacks a member; nothing if refusalOf() would refuse it.
    [[nodiscard]] std::optional<QByteArray> read(const QString& name, qint64 largest);

private:
    struct Member
    {
        qint64 headerOffset = 0;
        qint64 compressedSize = 0;
        qint64 size = 0;
        quint32 checksum = 0;
    };
    struct EndRecord
    {
        qint64 directoryOffset = 0;
        int members = 0;
    };

    [[nodiscard]] std::optional<QString> checkDirectory(const QString& name);
    [[nodiscard]] std::optional<QString> readDirectory(const QString& name);
    [[nodiscard]] std::optional<EndRecord> findEndRecord();
    [[nodiscard]] bool readMember();
    [[nodiscard]] std::optional<int> moveToData(const Member& member);
    [[nodiscard]] std::optional<QString> unpack(const QString& name, qint64 largest,
                                                QByteArray* content);
    [[nodiscard]] bool unpackStored(const Member& member, QByteArray* content);
    [[nodiscard]] bool unpackDeflated(const Member& member, QByteArray* content);

    std::unique_ptr<QIODevice> m_package;
    bool m_isPackage = false;
    QHash<QString, Member> m_members;
};

} // namespace ziplimits
