#include "archive/memory_bound.h"

#include "archive/worker_death.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <exception>
#include <new>

#include <sys/mman.h>
#include <sys/resource.h>
#include <unistd.h>

namespace archive {
namespace {

// The sanitizers map far more than a program holds; a bound would stop them at once.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool MayBoundMemory = false;
#else
constexpr bool MayBoundMemory = true;
#endif

void endBadly()
{
    try {
        if (std::current_exception()) {
            std::rethrow_exception(std::current_exception());
        }
    } catch (const std::bad_alloc&) {
        endForWantOfMemory();
    } catch (...) {
    }
    std::abort();
}

/// What must still be to be had for a crash not to be laid to the want of memory.
std::size_t g_spare = 0;

/// Not every library asks whether it was given the memory that it wanted: where it was not,
/// it crashes. Does only what a signal handler may.
void judgeCrash(int signal)
{
    void* spare =
        ::mmap(nullptr, g_spare, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (spare == MAP_FAILED) {
        endForWantOfMemory();
    }
    // The default is in force again; the signal strikes when this returns.
    ::raise(signal);
}

void watchCrashes(std::size_t bound)
{
    // What was refused is as a rule a table that doubles: up to half of the bound is free then.
    g_spare = bound / 2;

    // Where the stack has run out, there is no room for a handler on it.
    alignas(std::max_align_t) static std::array<std::byte, 64 * 1024> handlerStack;
    stack_t stack{};
    stack.ss_sp = handlerStack.data();
    stack.ss_size = handlerStack.size();
    ::sigaltstack(&stack, nullptr);

    struct sigaction action
    {};
    action.sa_handler = &judgeCrash;
    action.sa_flags = static_cast<int>(SA_ONSTACK | SA_RESETHAND);
    for (const int signal : {SIGSEGV, SIGBUS, SIGABRT}) {
        ::sigaction(signal, &action, nullptr);
    }
}

} // namespace

void boundMemory(int memoryMiB)
{
    std::set_new_handler(&endForWantOfMemory);
    std::set_terminate(&endBadly);
    if (MayBoundMemory && memoryMiB > 0) {
        const auto bytes = static_cast<rlim_t>(memoryMiB) * 1024 * 1024;
        rlimit limit{};
        ::getrlimit(RLIMIT_DATA, &limit);
        limit.rlim_cur = std::min(bytes, limit.rlim_max);
        ::setrlimit(RLIMIT_DATA, &limit);
        watchCrashes(static_cast<std::size_t>(limit.rlim_cur));
    }
}

void endForWantOfMemory()
{
    ::_exit(WorkerExitOutOfMemory);
}

} // namespace archive
