#pragma once

#include <QByteArray>
#include <QString>

namespace tavrel {

/// A label file in memory, or the reason why it could not be loaded.
struct FileContent
{
    /// Why a file has no content. Only Loaded comes with bytes.
    enum class Status {
        Loaded,
        CannotBeOpened,
        SpecialFile, ///< a pipe or a device
        TooLarge,    ///< more than MaximumFileSize bytes
    };

    Status status = Status::CannotBeOpened;
    QByteArray bytes;
};

/// Reads a complete file into memory, unless it exceeds the limit.
[[nodiscard]] FileContent loadFile(const QString& path);

} // namespace tavrel
