#include "store/reader/confine.h"

#include <algorithm>
#include <csignal>
#include <vector>

#include <fcntl.h>
#include <linux/landlock.h>
#include <seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace store {

namespace {

void limit(__rlimit_resource resource, rlim_t soft, rlim_t hard)
{
    rlimit current{};
    getrlimit(resource, &current);
    const rlimit wanted{.rlim_cur = std::min(soft, current.rlim_max), .rlim_max = std::min(hard, current.rlim_max)};
    setrlimit(resource, &wanted);
}

struct Allowed {
    int call;
    std::vector<scmp_arg_cmp> arguments;  // under which it is allowed
};

/// What the library, the C library beneath it and this program use once the file is open.
std::vector<Allowed> allowedCalls()
{
    const auto output = [](int file) { return Allowed{SCMP_SYS(write), {SCMP_A0(SCMP_CMP_EQ, scmp_datum_t(file))}}; };
    const scmp_arg_cmp noCode = SCMP_A2(SCMP_CMP_MASKED_EQ, PROT_EXEC, 0);
    return {
        {SCMP_SYS(read), {}},  // pages of the data file: their place, their bytes
        {SCMP_SYS(lseek), {}},
        {SCMP_SYS(_llseek), {}},  // lseek where an address has 32 bits
        {SCMP_SYS(fstat), {}},    // the library asks for the file's size before every page
        {SCMP_SYS(fstat64), {}},
        {SCMP_SYS(newfstatat), {SCMP_A3(SCMP_CMP_EQ, AT_EMPTY_PATH)}},  // fstat in glibc 2.33 to 2.38
        output(STDOUT_FILENO),
        output(STDERR_FILENO),  // the library's warnings, which go nowhere
        {SCMP_SYS(brk), {}},    // malloc
        {SCMP_SYS(mmap), {noCode}},
        {SCMP_SYS(mmap2), {noCode}},
        {SCMP_SYS(munmap), {}},
        {SCMP_SYS(mremap), {}},
        {SCMP_SYS(futex), {}},  // locks of the C library and of C++ exceptions
        {SCMP_SYS(exit_group), {}},
#if defined(__SANITIZE_ADDRESS__)
        {SCMP_SYS(madvise), {}},      // AddressSanitizer's own memory
        {SCMP_SYS(sigaltstack), {}},  // where the stack lies, before a call that does not return
        {SCMP_SYS(sched_yield), {}},  // its locks
        {SCMP_SYS(getpid), {}},
        {SCMP_SYS(gettid), {}},
#endif
    };
}

}  // namespace

void limitResources()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);  // no core dump, also where the system pipes them into a program

    limit(RLIMIT_CORE, 0, 0);
    limit(RLIMIT_CPU, 2, 3);  // [s] the first is a signal that says so, the second the end
    limit(RLIMIT_FSIZE, 0, 0);
    limit(RLIMIT_NOFILE, 16, 16);
#if !defined(__SANITIZE_ADDRESS__)  // AddressSanitizer's shadow alone is terabytes of addresses
    limit(RLIMIT_AS, rlim_t{256} << 20, rlim_t{256} << 20);
#endif
}

/// A Landlock domain that allows nothing: every file that is opened, made or removed from here on is refused.
void shutFiles()
{
    constexpr int rightsOfFirstVersion = 13;  // from LANDLOCK_ACCESS_FS_EXECUTE to LANDLOCK_ACCESS_FS_MAKE_SYM
    landlock_ruleset_attr nothing{};
    nothing.handled_access_fs = (1U << rightsOfFirstVersion) - 1;
    const long ruleset = syscall(SYS_landlock_create_ruleset, &nothing, sizeof nothing, 0);
    if (ruleset < 0)
        return;
    syscall(SYS_landlock_restrict_self, ruleset, 0);
    close(static_cast<int>(ruleset));
}

bool allowReadingAlone()
{
    const scmp_filter_ctx filter = seccomp_init(SCMP_ACT_KILL_PROCESS);
    if (!filter)
        return false;
    // Also calls by the numbers of another kind of processor, of which some processors know several.
    bool isReady = seccomp_attr_set(filter, SCMP_FLTATR_ACT_BADARCH, SCMP_ACT_KILL_PROCESS) == 0;
    for (const Allowed& allowed : allowedCalls())
        isReady = isReady && seccomp_rule_add_array(filter, SCMP_ACT_ALLOW, allowed.call,
                                                    static_cast<unsigned>(allowed.arguments.size()),
                                                    allowed.arguments.data()) == 0;
    const bool isConfined = isReady && seccomp_load(filter) == 0;
    seccomp_release(filter);
    return isConfined;
}

}  // namespace store
