#include "fuzz/harness.h"
#include "fuzz/mutations.h"
#include "limits/zip/zip_directory.h"

#include <QBuffer>
#include <QList>
#include <QString>

#include <private/qzipreader_p.h>
#include <private/qzipwriter_p.h>

namespace {

constexpr qint64 LargestMember = 1 << 20;

struct Member
{
    QString name;
    QByteArray bytes;
};

// Only packages with a valid directory: the zip reader does not check sizes.
std::optional<QList<Member>> unpacked(const QByteArray& package)
{
    const MemoryFile file(package);
    ziplimits::ZipDirectory directory;
    if (directory.open(file.path())) {
        return std::nullopt;
    }
    QZipReader reader(file.path(), QIODevice::ReadOnly);
    QList<Member> members;
    const auto entries = reader.fileInfoList();
    for (const QZipReader::FileInfo& entry : entries) {
        if (entry.isFile && !directory.refusalOf(entry.filePath, LargestMember)) {
            members.append({entry.filePath, reader.fileData(entry.filePath)});
        }
    }
    return members.isEmpty() ? std::nullopt : std::optional(members);
}

QByteArray packed(const QList<Member>& members, bool compress)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QZipWriter writer(&buffer);
    writer.setCompressionPolicy(compress ? QZipWriter::AlwaysCompress : QZipWriter::NeverCompress);
    for (const Member& member : members) {
        writer.addFile(member.name, member.bytes);
    }
    writer.close();
    return buffer.data();
}

} // namespace

std::optional<QByteArray> mutatedPackage(const QByteArray& package, quint32 seed,
                                         const BlindMutation& mutate)
{
    auto members = unpacked(package);
    if (!members) {
        return std::nullopt;
    }
    const quint32 choice = seed / 2;
    Member& chosen = (*members)[qsizetype(choice % quint32(members->size()))];
    chosen.bytes = mutate(chosen.bytes);
    return packed(*members, seed % 2 != 0);
}
