#pragma once

#include <QString>

namespace archive {

/// A lock on a file that lasts as long as this value, or the process: whoever dies, in
/// whatever way, holds no lock.
class FileLock
{
public:
    enum Kind { Shared, Exclusive };

    FileLock() = default;
    ~FileLock();
    FileLock(FileLock&& other) noexcept;
    FileLock& operator=(FileLock&& other) noexcept;

    /// Locks a file if nobody else holds it; never waits.
    /// @param mayCreate whether the file is made when it is missing
    [[nodiscard]] static FileLock tryLock(const QString& path, Kind kind, bool mayCreate);
    /// Locks a file, made when it is missing; waits for those who hold it.
    [[nodiscard]] static FileLock waitForLock(const QString& path, Kind kind);

    [[nodiscard]] bool isHeld() const { return m_descriptor >= 0; }
    void release();

private:
    [[nodiscard]] static FileLock lockWith(const QString& path, int openFlags, int operation);

    int m_descriptor = -1;
};

} // namespace archive
