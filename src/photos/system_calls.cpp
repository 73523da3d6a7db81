// SPDX-FileCopyrightText: 2026 The Paircade authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The half of the confinement that concerns system calls, by seccomp.
#include "photos/confinement.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <memory>
#include <sched.h>
#include <seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <type_traits>
#include <unistd.h>

namespace {

// What decoding takes, with the threads of some decoders. All else fails as if the
// kernel did not know it: libraries then try an older call or do without.
constexpr std::array allowed = {
    SCMP_SYS(read),
    SCMP_SYS(readv),
    SCMP_SYS(pread64),
    SCMP_SYS(preadv),
    SCMP_SYS(write),
    SCMP_SYS(writev),
    SCMP_SYS(close),
    SCMP_SYS(lseek),
    SCMP_SYS(_llseek),
    SCMP_SYS(dup),
    SCMP_SYS(fstat),
    SCMP_SYS(fstat64),
    SCMP_SYS(stat),
    SCMP_SYS(stat64),
    SCMP_SYS(lstat),
    SCMP_SYS(lstat64),
    SCMP_SYS(newfstatat),
    SCMP_SYS(fstatat64),
    SCMP_SYS(statx),
    SCMP_SYS(statfs),
    SCMP_SYS(statfs64),
    SCMP_SYS(fstatfs),
    SCMP_SYS(fstatfs64),
    SCMP_SYS(access),
    SCMP_SYS(faccessat),
    SCMP_SYS(faccessat2),
    SCMP_SYS(readlink),
    SCMP_SYS(readlinkat),
    SCMP_SYS(getcwd),
    SCMP_SYS(getdents),
    SCMP_SYS(getdents64),
    SCMP_SYS(fadvise64),
    SCMP_SYS(fadvise64_64),
    SCMP_SYS(poll),
    SCMP_SYS(ppoll),
    SCMP_SYS(pipe2),
    SCMP_SYS(eventfd2),
    SCMP_SYS(munmap),
    SCMP_SYS(mremap),
    SCMP_SYS(mprotect),
    SCMP_SYS(madvise),
    SCMP_SYS(brk),
    SCMP_SYS(membarrier),
    SCMP_SYS(rt_sigaction),
    SCMP_SYS(rt_sigprocmask),
    SCMP_SYS(rt_sigreturn),
    SCMP_SYS(sigreturn),
    SCMP_SYS(sigaltstack),
    SCMP_SYS(restart_syscall),
    SCMP_SYS(futex),
    SCMP_SYS(futex_time64),
    SCMP_SYS(futex_waitv),
    SCMP_SYS(set_robust_list),
    SCMP_SYS(rseq),
    SCMP_SYS(set_tid_address),
    SCMP_SYS(arch_prctl),
    SCMP_SYS(set_tls),
    SCMP_SYS(sched_yield),
    SCMP_SYS(sched_getaffinity),
    SCMP_SYS(sched_getparam),
    SCMP_SYS(sched_getscheduler),
    SCMP_SYS(sched_get_priority_max),
    SCMP_SYS(sched_get_priority_min),
    SCMP_SYS(getcpu),
    SCMP_SYS(gettid),
    SCMP_SYS(getpid),
    SCMP_SYS(getuid),
    SCMP_SYS(geteuid),
    SCMP_SYS(getgid),
    SCMP_SYS(getegid),
    SCMP_SYS(getrusage),
    SCMP_SYS(getrlimit),
    SCMP_SYS(ugetrlimit),
    SCMP_SYS(setrlimit),
    SCMP_SYS(clock_gettime),
    SCMP_SYS(clock_gettime64),
    SCMP_SYS(clock_getres),
    SCMP_SYS(clock_nanosleep),
    SCMP_SYS(clock_nanosleep_time64),
    SCMP_SYS(nanosleep),
    SCMP_SYS(gettimeofday),
    SCMP_SYS(time),
    SCMP_SYS(times),
    SCMP_SYS(getrandom),
    SCMP_SYS(uname),
    SCMP_SYS(sysinfo),
    SCMP_SYS(exit),
    SCMP_SYS(exit_group),
};

constexpr std::uint64_t writing =
    O_WRONLY | O_RDWR | O_CREAT | O_TRUNC | O_APPEND | (O_TMPFILE & ~O_DIRECTORY);

// The arguments below that are compared whole have 32 bits.
constexpr std::uint64_t whole = 0xffff'ffff;

} // namespace

bool confineSystemCalls()
{
    const std::unique_ptr<std::remove_pointer_t<scmp_filter_ctx>, void (*)(scmp_filter_ctx)> filter(
        seccomp_init(SCMP_ACT_ERRNO(ENOSYS)), seccomp_release);
    if (!filter)
        return false;
    // A call that this architecture does not have needs no rule.
    const auto allow = [&filter](int call) {
        (void)seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, call, 0);
    };
    const auto allowIf = [&filter](int call, unsigned argument, std::uint64_t mask,
                                   std::uint64_t value) {
        const scmp_arg_cmp condition{argument, SCMP_CMP_MASKED_EQ, mask, value};
        (void)seccomp_rule_add_array(filter.get(), SCMP_ACT_ALLOW, call, 1, &condition);
    };
    for (const int call : allowed)
        allow(call);
    // Opening for reading only, no new processes but threads, limits and signals of
    // this process only, names for threads.
    allowIf(SCMP_SYS(open), 1, writing, 0);
    allowIf(SCMP_SYS(openat), 2, writing, 0);
    allowIf(SCMP_SYS(clone), 0, CLONE_THREAD, CLONE_THREAD);
    allowIf(SCMP_SYS(prlimit64), 0, whole, 0);
    allowIf(SCMP_SYS(tgkill), 0, whole, std::uint64_t(::getpid()));
    allowIf(SCMP_SYS(prctl), 0, whole, PR_SET_NAME);
    // No signals by way of a descriptor's owner.
    for (const int call : {SCMP_SYS(fcntl), SCMP_SYS(fcntl64)}) {
        for (const int command : {F_GETFD, F_SETFD, F_GETFL, F_DUPFD_CLOEXEC})
            allowIf(call, 1, whole, std::uint64_t(command));
    }
    // Memory that could be shared does not count as data, and would have no limit.
    for (const int call : {SCMP_SYS(mmap), SCMP_SYS(mmap2)}) {
        allowIf(call, 3, MAP_SHARED, 0);
        allowIf(call, 3, MAP_ANONYMOUS, 0);
    }
    return seccomp_load(filter.get()) == 0;
}
