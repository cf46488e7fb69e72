#pragma once

#include <QSaveFile>

namespace workbench {

/// Replaces the old file with the new one if all of it was written.
///
/// A full disk is noticed only when the buffer is flushed, and commit() does not check that:
/// it would replace the old file with an incomplete one.
[[nodiscard]] inline bool commitWhole(QSaveFile& file)
{
    if (!file.flush() || file.error() != QFileDevice::NoError) {
        return false; // discarded by the destructor; canceling would replace the system's error
    }
    return file.commit();
}

} // namespace workbench
