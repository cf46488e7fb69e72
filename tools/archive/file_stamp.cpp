#include "archive/file_stamp.h"

#include "console/file_name.h"

#include <sys/stat.h>

namespace archive {
using namespace Qt::StringLiterals;

std::optional<FileStamp> stampOf(const QString& path)
{
    struct stat status
    {};
    if (::stat(console::fileNameToBytes(path).constData(), &status) != 0 ||
        !S_ISREG(status.st_mode)) {
        return std::nullopt;
    }
    constexpr qint64 nanosecondsPerMillisecond = 1'000'000;
    return FileStamp{path, status.st_size,
                     status.st_mtim.tv_sec * 1000LL +
                         status.st_mtim.tv_nsec / nanosecondsPerMillisecond};
}

QJsonObject toJson(const FileStamp& stamp)
{
    return {{u"path"_s, stamp.path}, {u"size"_s, stamp.size}, {u"modified"_s, stamp.modified}};
}

FileStamp fileStampFromJson(const QJsonObject& object)
{
    return {object.value("path"_L1).toString(), object.value("size"_L1).toInteger(-1),
            object.value("modified"_L1).toInteger(-1)};
}

} // namespace archive
