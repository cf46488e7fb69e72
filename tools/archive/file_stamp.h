#pragma once

#include <QJsonObject>
#include <QString>
#include <QtGlobal>

#include <optional>

namespace archive {

/// By what a file is known again: its size and when it was last changed.
struct FileStamp
{
    QString path;
    qint64 size = -1;     ///< bytes
    qint64 modified = -1; ///< milliseconds since 1970, UTC
    bool operator==(const FileStamp&) const = default;
};

/// The stamp of a file as it is now; nothing when there is no such file.
[[nodiscard]] std::optional<FileStamp> stampOf(const QString& path);

[[nodiscard]] QJsonObject toJson(const FileStamp& stamp);
[[nodiscard]] FileStamp fileStampFromJson(const QJsonObject& object);

} // namespace archive
