#pragma once

#include <QJsonObject>
#include <QString>
#include <QtGlobal>

#include <optional>

namespace archive {

/// Identifies an unchanged file: path, size, modification time.
struct FileStamp
{
    QString path;
    qint64 size = -1;     ///< bytes
    qint64 modified = -1; ///< milliseconds since 1970, UTC
    bool operator==(const FileStamp&) const = default;
};

/// The current stamp of a regular file; empty if there is none.
[[nodiscard]] std::optional<FileStamp> stampOf(const QString& path);

[[nodiscard]] QJsonObject toJson(const FileStamp& stamp);
[[nodiscard]] FileStamp fileStampFromJson(const QJsonObject& object);

} // namespace archive
