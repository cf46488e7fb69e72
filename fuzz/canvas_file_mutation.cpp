#include "fuzz/mutations.h"
#include "tavrel/file_versions.h"

#include <QtEndian>

#include <array>

namespace {

constexpr qsizetype VersionOffset = 4;
constexpr qsizetype StartSize = 8;

QByteArray startOf(const QByteArray& file)
{
    return file.left(StartSize).leftJustified(StartSize, '\0');
}

quint32 versionOf(const QByteArray& start)
{
    return qFromBigEndian<quint32>(start.constData() + VersionOffset);
}

void setVersion(QByteArray& start, quint32 version)
{
    qToBigEndian(version, start.data() + VersionOffset);
}

} // namespace

QByteArray mutatedCanvasFile(const QByteArray& file, quint32 seed, const BlindMutation& mutate)
{
    constexpr quint32 versions = tavrel::CurrentVersion - tavrel::OldestVersion + 1;
    QByteArray start = startOf(file);
    const bool another = seed % 8 == 0;
    if (another || versionOf(start) < tavrel::OldestVersion) {
        setVersion(start, tavrel::OldestVersion + seed / 8 % versions);
    }
    return start + mutate(file.mid(StartSize));
}
