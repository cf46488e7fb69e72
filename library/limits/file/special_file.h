#pragma once

#include <QFileInfo>
#include <QString>

namespace filelimits {

/// Whether a path names a pipe, a socket or a device. Opening one may block forever, and reading
/// it may never end.
[[nodiscard]] inline bool isSpecialFile(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() && !info.isFile() && !info.isDir();
}

} // namespace filelimits
