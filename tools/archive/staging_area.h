#pragma once

#include "archive/file_lock.h"

#include <QString>

namespace archive {

/// A hidden folder within the output folder where outputs are made before they are put in
/// their place. It goes with this value; what a killed command left behind goes with the next
/// one's. Commands that run at the same time have folders of their own.
class StagingArea
{
public:
    StagingArea() = default;
    ~StagingArea();
    StagingArea(const StagingArea&) = delete;
    StagingArea& operator=(const StagingArea&) = delete;

    /// Makes the folder, the output folder too if it is missing.
    /// @return why it could not be made, for a person; else empty
    [[nodiscard]] QString open(const QString& outputFolder);
    /// Removes the folder with all that is in it.
    void close();

    [[nodiscard]] const QString& path() const { return m_path; }
    /// An empty folder for one worker; what was in it is gone.
    [[nodiscard]] QString emptySlot(int number) const;

private:
    QString m_path;
    FileLock m_lock;
};

} // namespace archive
