#pragma once

#include <QFile>
#include <QHash>
#include <QString>

#include <optional>

namespace opendocument {

/// The table of contents of a zip file, read to find out whether a member can be trusted
/// before Qt's zip reader unpacks it: that one allocates whatever a header claims, doubles it
/// until everything fits, reads beyond truncated data and does not look at checksums.
class ZipDirectory
{
public:
    /// Reads the table of contents.
    /// @return nothing on success, else what is wrong with the file
    [[nodiscard]] std::optional<QString> open(const QString& fileName);

    /// Whether the file that was opened last is a zip package, be it a damaged one.
    [[nodiscard]] bool isPackage() const { return m_isPackage; }
    [[nodiscard]] bool hasMember(const QString& name) const { return m_members.contains(name); }

    /// Unpacks a member without keeping it, to see whether it is what the table claims.
    /// @param largest the uncompressed size that is accepted, in bytes
    /// @return nothing when the member can be read, else what is wrong with it
    [[nodiscard]] std::optional<QString> refusalOf(const QString& name, qint64 largest);

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

    [[nodiscard]] std::optional<EndRecord> findEndRecord();
    [[nodiscard]] bool readMember();
    [[nodiscard]] std::optional<int> moveToData(const Member& member);
    [[nodiscard]] bool isStoredIntact(const Member& member);
    [[nodiscard]] bool isDeflatedIntact(const Member& member);

    QFile m_file;
    bool m_isPackage = false;
    QHash<QString, Member> m_members;
};

} // namespace opendocument
