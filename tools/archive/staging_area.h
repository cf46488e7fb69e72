#pragma once

#include "archive/file_lock.h"

#include <QString>

namespace archive {

/// A hidden folder within the output folder where outputs are written before they are moved into
/// place. Removed by the destructor; leftovers of a killed run are removed by the next. Commands
/// that run at the same time have folders of their own.
class StagingArea
{
public:
    StagingArea() = default;
    ~StagingArea();
    StagingArea(const StagingArea&) = delete;
    StagingArea& operator=(const StagingArea&) = delete;

    /// Creates the folder, and the output folder if it is missing.
    /// @return user-visible error; empty on success
    [[nodiscard]] QString open(const QString& outputFolder);
    /// Removes the folder and its contents.
    void close();

    [[nodiscard]] const QString& path() const { return m_path; }
    /// An empty folder for one worker; its former content is removed.
    [[nodiscard]] QString emptySlot(int number) const;

private:
    QString m_path;
    FileLock m_lock;
};

} // namespace archive
