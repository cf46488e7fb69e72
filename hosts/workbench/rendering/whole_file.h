#pragma once

#include <QSaveFile>

namespace workbench {

/// Puts the written file in the place of the old one, if all of it reached the disk.
///
/// A full disk shows only when the buffer is flushed, and committing alone does not look:
/// it would put half a file in the old one's place.
[[nodiscard]] inline bool commitWhole(QSaveFile& file)
{
    if (!file.flush() || file.error() != QFileDevice::NoError) {
        return false; // discarded with the object; canceling would replace the system's error
    }
    return file.commit();
}

} // namespace workbench
