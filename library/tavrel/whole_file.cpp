#include "tavrel/whole_file.h"

#include "tavrel/bounds.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace tavrel {
namespace {

bool isEndless(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() && !info.isFile() && !info.isDir();
}

// In blocks, because one read of the whole bound would take its memory for every file. The size
// is only what is expected: the file may grow meanwhile.
QByteArray readUpTo(QFile& file, qint64 bound)
{
    constexpr qint64 blockSize = 64 * 1024;
    QByteArray bytes;
    bytes.reserve(std::min(file.size(), bound));
    QByteArray block;
    do {
        block = file.read(blockSize);
        bytes += block;
    } while (!block.isEmpty() && bytes.size() < bound);
    return bytes;
}

} // namespace

WholeFile readWholeFile(const QString& path)
{
    if (isEndless(path)) {
        return {WholeFile::Status::NotAFile, {}};
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {WholeFile::Status::CannotBeOpened, {}};
    }
    QByteArray bytes = readUpTo(file, MaximumFileSize + 1);
    if (bytes.size() > MaximumFileSize) {
        return {WholeFile::Status::TooLarge, {}};
    }
    return {WholeFile::Status::Read, bytes};
}

} // namespace tavrel
