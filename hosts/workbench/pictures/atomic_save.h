#pragma once

#include <QSaveFile>
#include <QString>

namespace workbench {

/// Replaces the old file with the new one if all of it was written.
///
/// A full disk is noticed only when the buffer is flushed, and commit() does not check that:
/// it would replace the old file with an incomplete one.
[[nodiscard]] inline bool commitComplete(QSaveFile& file)
{
    if (!file.flush() || file.error() != QFileDevice::NoError) {
        return false; // discarded by the destructor; canceling would replace the system's error
    }
    return file.commit();
}

/// The system's reason why writing failed, such as a full disk. The system gives it only
/// with the first write that fails completely, and not with the partial one before it.
/// @param file a file on which writing failed; it must not be committed
[[nodiscard]] inline QString writeError(QSaveFile& file)
{
    file.flush();
    file.write(" ");
    file.flush();
    return file.errorString();
}

} // namespace workbench
