#pragma once

#include <QString>

namespace archive {

/// A lock on a file. Released with this object, and by the system if the process ends in any way.
class FileLock
{
public:
    /// Any number of processes may hold a shared lock, only one an exclusive lock.
    enum Kind { Shared, Exclusive };

    FileLock() = default;
    ~FileLock();
    FileLock(FileLock&& other) noexcept;
    FileLock& operator=(FileLock&& other) noexcept;

    /// Locks a file if no other process holds it; never waits.
    /// @param mayCreate creates a missing file
    [[nodiscard]] static FileLock tryLock(const QString& path, Kind kind, bool mayCreate);
    /// Locks a file, which is created if missing; waits for other processes.
    [[nodiscard]] static FileLock waitForLock(const QString& path, Kind kind);

    [[nodiscard]] bool isHeld() const { return m_descriptor >= 0; }
    /// Unlocks the file now; without effect if no lock is held.
    void release();

private:
    [[nodiscard]] static FileLock lockWith(const QString& path, int openFlags, int operation);

    int m_descriptor = -1;
};

} // namespace archive
