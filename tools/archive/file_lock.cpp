#include "archive/file_lock.h"

#include "console/file_name.h"

#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace archive {

FileLock::~FileLock()
{
    release();
}

FileLock::FileLock(FileLock&& other) noexcept
    : m_descriptor(std::exchange(other.m_descriptor, -1))
{}

FileLock& FileLock::operator=(FileLock&& other) noexcept
{
    std::swap(m_descriptor, other.m_descriptor);
    return *this;
}

FileLock FileLock::tryLock(const QString& path, Kind kind, bool mayCreate)
{
    return lockWith(path, mayCreate ? O_CREAT : 0,
                    (kind == Exclusive ? LOCK_EX : LOCK_SH) | LOCK_NB);
}

FileLock FileLock::waitForLock(const QString& path, Kind kind)
{
    return lockWith(path, O_CREAT, kind == Exclusive ? LOCK_EX : LOCK_SH);
}

FileLock FileLock::lockWith(const QString& path, int openFlags, int operation)
{
    constexpr mode_t readAndWrite = 0666;
    FileLock lock;
    lock.m_descriptor = ::open(console::fileNameToBytes(path).constData(),
                               O_RDWR | O_CLOEXEC | openFlags, readAndWrite);
    if (lock.isHeld() && ::flock(lock.m_descriptor, operation) != 0) {
        lock.release();
    }
    return lock;
}

void FileLock::release()
{
    if (isHeld()) {
        ::close(std::exchange(m_descriptor, -1));
    }
}

} // namespace archive
