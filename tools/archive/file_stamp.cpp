#include "archive/file_stamp.h"

#include <QDateTime>
#include <QFileInfo>

namespace archive {

std::optional<FileStamp> stampOf(const QString& path)
{
    const QFileInfo info(path);
    if (!info.isFile()) {
        return std::nullopt;
    }
    return FileStamp{path, info.size(), info.lastModified().toMSecsSinceEpoch()};
}

QJsonObject toJson(const FileStamp& stamp)
{
    return {{QStringLiteral("path"), stamp.path},
            {QStringLiteral("size"), stamp.size},
            {QStringLiteral("modified"), stamp.modified}};
}

FileStamp fileStampFromJson(const QJsonObject& object)
{
    return {object.value(QLatin1String("path")).toString(),
            object.value(QLatin1String("size")).toInteger(-1),
            object.value(QLatin1String("modified")).toInteger(-1)};
}

} // namespace archive
