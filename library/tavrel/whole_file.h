#pragma once

#include <QByteArray>
#include <QString>

namespace tavrel {

/// A label file in memory, or why there is none.
struct WholeFile
{
    enum class Status {
        Read,
        CannotBeOpened,
        NotAFile, ///< a pipe or a device: it would never end, or never begin
        TooLarge, ///< more than MaximumFileSize
    };

    Status status = Status::CannotBeOpened;
    QByteArray bytes;
};

[[nodiscard]] WholeFile readWholeFile(const QString& path);

} // namespace tavrel
