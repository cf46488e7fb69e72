#include "tavrel/file_content.h"

#include "limits/file/special_file.h"
#include "tavrel/tavrel_limits.h"

#include <QFile>

#include <algorithm>

namespace tavrel {
namespace {

// Reads in blocks: a single read up to the limit would allocate the limit for every file. The
// file's size is only an estimate, because the file may grow while it is read.
QByteArray readUpTo(QFile& file, qint64 limit)
{
    constexpr qint64 BlockSize = 64 * 1024;
    QByteArray bytes;
    bytes.reserve(std::min(file.size(), limit));
    QByteArray block;
    do {
        block = file.read(BlockSize);
        bytes += block;
    } while (!block.isEmpty() && bytes.size() < limit);
    return bytes;
}

} // namespace

FileContent loadFile(const QString& path)
{
    if (filelimits::isSpecialFile(path)) {
        return {FileContent::Status::SpecialFile, {}};
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {FileContent::Status::CannotBeOpened, {}};
    }
    QByteArray bytes = readUpTo(file, MaximumFileSize + 1);
    if (bytes.size() > MaximumFileSize) {
        return {FileContent::Status::TooLarge, {}};
    }
    return {FileContent::Status::Loaded, bytes};
}

} // namespace tavrel
