#include "archive/memory_limit.h"

#include "archive/worker_end.h"

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <new>

#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>

namespace archive {
namespace {

// The address sanitizer maps far more than the program uses, so that a limit would stop it.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool CanLimitMemory = false;
#else
constexpr bool CanLimitMemory = true;
#endif

/// Called if std::bad_alloc leaves a noexcept function or is not caught.
void terminate()
{
    try {
        if (std::current_exception()) {
            std::rethrow_exception(std::current_exception());
        }
    } catch (const std::bad_alloc&) {
        exitOutOfMemory();
    } catch (...) {
    }
    std::abort();
}

} // namespace

void limitMemory(int memoryMiB)
{
    std::set_new_handler(&exitOutOfMemory);
    std::set_terminate(&terminate);
    if (CanLimitMemory && memoryMiB > 0) {
        const auto bytes = static_cast<rlim_t>(memoryMiB) * 1024 * 1024;
        rlimit limit{};
        ::getrlimit(RLIMIT_DATA, &limit);
        limit.rlim_cur = std::min(bytes, limit.rlim_max);
        ::setrlimit(RLIMIT_DATA, &limit);
    }
}

void keepFreedMemory()
{
#if defined(__GLIBC__)
    // A picture of a label at 300 dots per inch takes about 10 MB, the largest block that the
    // first option allows 32 MB.
    constexpr int block = 32 * 1024 * 1024;
    ::mallopt(M_MMAP_THRESHOLD, block);
    ::mallopt(M_TRIM_THRESHOLD, 2 * block);
#endif
}

void exitOutOfMemory()
{
    ::_exit(WorkerExitOutOfMemory);
}

} // namespace archive
