#include "sandbox/call_filter.h"

#include <seccomp.h>

#include <array>
#include <cerrno>
#include <memory>
#include <span>

#include <linux/seccomp.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace sandbox {
namespace {

// The leak sanitizer traces the process from a process of its own when it ends.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool CanFilter = false;
#else
constexpr bool CanFilter = true;
#endif

using Filter = std::unique_ptr<void, decltype(&seccomp_release)>;

/// The system calls of imports of all samples to all targets, with fonts, image plug-ins and symbol
/// databases, as measured; and those that the same functions of the C library make on other
/// systems.
constexpr std::array Allowed{
    // files
    SCMP_SYS(read),
    SCMP_SYS(write),
    SCMP_SYS(readv),
    SCMP_SYS(writev),
    SCMP_SYS(pread64),
    SCMP_SYS(pwrite64),
    SCMP_SYS(preadv),
    SCMP_SYS(pwritev),
    SCMP_SYS(open),
    SCMP_SYS(openat),
    SCMP_SYS(close),
    SCMP_SYS(close_range),
    SCMP_SYS(stat),
    SCMP_SYS(fstat),
    SCMP_SYS(lstat),
    SCMP_SYS(newfstatat),
    SCMP_SYS(statx),
    SCMP_SYS(statfs),
    SCMP_SYS(fstatfs),
    SCMP_SYS(access),
    SCMP_SYS(faccessat),
    SCMP_SYS(faccessat2),
    SCMP_SYS(readlink),
    SCMP_SYS(readlinkat),
    SCMP_SYS(lseek),
    SCMP_SYS(fcntl),
    SCMP_SYS(flock),
    SCMP_SYS(dup),
    SCMP_SYS(dup2),
    SCMP_SYS(dup3),
    SCMP_SYS(ftruncate),
    SCMP_SYS(fallocate),
    SCMP_SYS(fadvise64),
    SCMP_SYS(getdents),
    SCMP_SYS(getdents64),
    SCMP_SYS(getcwd),
    SCMP_SYS(link),
    SCMP_SYS(linkat),
    SCMP_SYS(unlink),
    SCMP_SYS(unlinkat),
    SCMP_SYS(rename),
    SCMP_SYS(renameat),
    SCMP_SYS(renameat2),
    SCMP_SYS(copy_file_range),
    SCMP_SYS(sendfile),
    // memory
    SCMP_SYS(mmap),
    SCMP_SYS(munmap),
    SCMP_SYS(mprotect),
    SCMP_SYS(mremap),
    SCMP_SYS(madvise),
    SCMP_SYS(brk),
    SCMP_SYS(msync),
    SCMP_SYS(membarrier),
    // threads and time
    SCMP_SYS(futex),
    SCMP_SYS(set_robust_list),
    SCMP_SYS(get_robust_list),
    SCMP_SYS(rseq),
    SCMP_SYS(set_tid_address),
    SCMP_SYS(gettid),
    SCMP_SYS(sched_yield),
    SCMP_SYS(sched_getaffinity),
    SCMP_SYS(sched_getparam),
    SCMP_SYS(sched_getscheduler),
    SCMP_SYS(sched_get_priority_min),
    SCMP_SYS(sched_get_priority_max),
    SCMP_SYS(getcpu),
    SCMP_SYS(clock_gettime),
    SCMP_SYS(clock_getres),
    SCMP_SYS(clock_nanosleep),
    SCMP_SYS(nanosleep),
    SCMP_SYS(gettimeofday),
    SCMP_SYS(time),
    SCMP_SYS(times),
    SCMP_SYS(getrusage),
    SCMP_SYS(restart_syscall),
    // waiting
    SCMP_SYS(poll),
    SCMP_SYS(ppoll),
    SCMP_SYS(select),
    SCMP_SYS(pselect6),
    SCMP_SYS(eventfd2),
    SCMP_SYS(pipe2),
    SCMP_SYS(pause),
    // signals to itself
    SCMP_SYS(rt_sigaction),
    SCMP_SYS(rt_sigprocmask),
    SCMP_SYS(rt_sigreturn),
    SCMP_SYS(rt_sigpending),
    SCMP_SYS(sigaltstack),
    // itself
    SCMP_SYS(getpid),
    SCMP_SYS(getppid),
    SCMP_SYS(getuid),
    SCMP_SYS(geteuid),
    SCMP_SYS(getgid),
    SCMP_SYS(getegid),
    SCMP_SYS(getpgrp),
    SCMP_SYS(getrlimit),
    SCMP_SYS(getrandom),
    SCMP_SYS(sysinfo),
    SCMP_SYS(uname),
    SCMP_SYS(umask),
    SCMP_SYS(exit),
    SCMP_SYS(exit_group),
};

/// These calls succeed and do nothing. The worker's files become outputs later, and after a power
/// failure the import is repeated: waiting for the disk takes a fifth of the time of an archive.
constexpr std::array Ignored{SCMP_SYS(fsync), SCMP_SYS(fdatasync)};

/// No import makes these calls, and no library tries them. A process that does is controlled by a
/// hostile file.
constexpr std::array Fatal{
    // programs and processes
    SCMP_SYS(execve),
    SCMP_SYS(execveat),
    SCMP_SYS(fork),
    SCMP_SYS(vfork),
    SCMP_SYS(ptrace),
    SCMP_SYS(process_vm_readv),
    SCMP_SYS(process_vm_writev),
    SCMP_SYS(pidfd_open),
    SCMP_SYS(pidfd_getfd),
    SCMP_SYS(pidfd_send_signal),
    SCMP_SYS(kcmp),
    // mounts and namespaces
    SCMP_SYS(mount),
    SCMP_SYS(umount2),
    SCMP_SYS(pivot_root),
    SCMP_SYS(chroot),
    SCMP_SYS(move_mount),
    SCMP_SYS(open_tree),
    SCMP_SYS(fsopen),
    SCMP_SYS(fsmount),
    SCMP_SYS(mount_setattr),
    SCMP_SYS(unshare),
    SCMP_SYS(setns),
    SCMP_SYS(open_by_handle_at),
    // the kernel
    SCMP_SYS(io_uring_setup),
    SCMP_SYS(io_uring_enter),
    SCMP_SYS(io_uring_register),
    SCMP_SYS(add_key),
    SCMP_SYS(request_key),
    SCMP_SYS(keyctl),
    SCMP_SYS(bpf),
    SCMP_SYS(perf_event_open),
    SCMP_SYS(userfaultfd),
    SCMP_SYS(init_module),
    SCMP_SYS(finit_module),
    SCMP_SYS(delete_module),
    SCMP_SYS(kexec_load),
    SCMP_SYS(kexec_file_load),
};

constexpr std::array Sockets{SCMP_SYS(socket), SCMP_SYS(socketpair), SCMP_SYS(connect),
                             SCMP_SYS(bind), SCMP_SYS(listen)};

bool addAll(void* filter, uint32_t action, std::span<const int> calls)
{
    bool isComplete = true;
    for (const int call : calls) {
        isComplete = seccomp_rule_add(filter, action, call, 0) == 0 && isComplete;
    }
    return isComplete;
}

bool addWith(void* filter, uint32_t action, int call, const scmp_arg_cmp& argument)
{
    return seccomp_rule_add_array(filter, action, call, 1, &argument) == 0;
}

scmp_arg_cmp equals(unsigned int argument, scmp_datum_t value)
{
    return {argument, SCMP_CMP_EQ, value, 0};
}

/// Calls that are allowed or not depending on their arguments.
bool addConditional(void* filter)
{
    const auto self = static_cast<scmp_datum_t>(::getpid());
    constexpr scmp_datum_t thread = CLONE_THREAD;
    bool isComplete = true;
    // Allows threads, not processes. A filter cannot read the arguments of clone3(); without it,
    // the C library calls clone().
    isComplete &=
        addWith(filter, SCMP_ACT_ALLOW, SCMP_SYS(clone), {0, SCMP_CMP_MASKED_EQ, thread, thread});
    isComplete &=
        addWith(filter, SCMP_ACT_KILL_PROCESS, SCMP_SYS(clone), {0, SCMP_CMP_MASKED_EQ, thread, 0});
    for (const int call : {SCMP_SYS(kill), SCMP_SYS(tgkill), SCMP_SYS(rt_tgsigqueueinfo)}) {
        isComplete &= addWith(filter, SCMP_ACT_ALLOW, call, equals(0, self));
        isComplete &= addWith(filter, SCMP_ACT_KILL_PROCESS, call, {0, SCMP_CMP_NE, self, 0});
    }
    // Asks whether a descriptor is a terminal, and how much can be read. Others write to terminals.
    constexpr std::array<scmp_datum_t, 3> requests{TCGETS, FIONREAD, FIOCLEX};
    for (const scmp_datum_t request : requests) {
        isComplete &= addWith(filter, SCMP_ACT_ALLOW, SCMP_SYS(ioctl), equals(1, request));
    }
    constexpr std::array<scmp_datum_t, 3> options{PR_SET_NAME, PR_GET_NAME, PR_SET_VMA};
    for (const scmp_datum_t option : options) {
        isComplete &= addWith(filter, SCMP_ACT_ALLOW, SCMP_SYS(prctl), equals(0, option));
    }
    // Its own limits, which it may lower.
    isComplete &= addWith(filter, SCMP_ACT_ALLOW, SCMP_SYS(prlimit64), equals(0, 0));
    return isComplete;
}

} // namespace

bool canFilterCalls()
{
    const uint32_t action = SECCOMP_RET_KILL_PROCESS;
    return CanFilter && ::syscall(SYS_seccomp, SECCOMP_GET_ACTION_AVAIL, 0, &action) == 0;
}

bool filterCalls()
{
    if (!canFilterCalls()) {
        return false;
    }
    const Filter filter(seccomp_init(SCMP_ACT_ERRNO(ENOSYS)), &seccomp_release);
    return filter && addAll(filter.get(), SCMP_ACT_ALLOW, Allowed) &&
           addAll(filter.get(), SCMP_ACT_ERRNO(0), Ignored) &&
           addAll(filter.get(), SCMP_ACT_KILL_PROCESS, Fatal) &&
           addAll(filter.get(), SCMP_ACT_ERRNO(EACCES), Sockets) && addConditional(filter.get()) &&
           // A binary tree: comparing each call with a list would take longer.
           seccomp_attr_set(filter.get(), SCMP_FLTATR_CTL_OPTIMIZE, 2) == 0 &&
           seccomp_load(filter.get()) == 0;
}

} // namespace sandbox
