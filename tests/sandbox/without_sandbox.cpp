// Runs a program as on a kernel without Landlock and without filters for system calls:
//   without_sandbox PROGRAM [ARGUMENT...]
//
// A filter of its own lets the calls fail as such a kernel does.

#include <seccomp.h>

#include <array>
#include <cerrno>
#include <cstdio>

#include <sys/syscall.h>
#include <unistd.h>

int main(int argc, char** argv)
{
    if (argc < 2) {
        return 2;
    }
    const scmp_filter_ctx filter = seccomp_init(SCMP_ACT_ALLOW);
    bool isReady = filter != nullptr;
    constexpr std::array<long, 4> calls{SYS_landlock_create_ruleset, SYS_landlock_add_rule,
                                        SYS_landlock_restrict_self, SYS_seccomp};
    for (const long call : calls) {
        isReady = isReady &&
                  seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), static_cast<int>(call), 0) == 0;
    }
    if (!isReady || seccomp_load(filter) != 0) {
        std::fputs("without_sandbox: cannot filter system calls\n", stderr);
        return 3;
    }
    ::execv(argv[1], argv + 1);
    std::perror(argv[1]);
    return 4;
}
