#include "store/reader/confine.h"

#include <algorithm>
#include <csignal>
#include <cstddef>
#include <iterator>
#include <vector>

#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/landlock.h>
#include <linux/seccomp.h>
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

/// A Landlock domain that allows nothing: every file that is opened or changed from here on is refused.
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

#if defined(__x86_64__)
constexpr unsigned Architecture = AUDIT_ARCH_X86_64;
#elif defined(__aarch64__)
constexpr unsigned Architecture = AUDIT_ARCH_AARCH64;
#else
constexpr unsigned Architecture = 0;
#endif

/// A filter of system calls that refuses to start, to connect and to meddle. It is a list of what is refused, not of
/// what is allowed: reading a file must not fail where the C library takes to another call for it.
void shutProcessesAndNetwork()
{
    constexpr long refused[] = {
        SYS_execve,
        SYS_execveat,
        SYS_clone,
        SYS_clone3,
        SYS_kill,
        SYS_tkill,
        SYS_tgkill,
        SYS_rt_sigqueueinfo,
        SYS_rt_tgsigqueueinfo,
        SYS_pidfd_send_signal,
        SYS_prlimit64,  // also of another process
        SYS_ptrace,
        SYS_process_vm_readv,
        SYS_process_vm_writev,
        SYS_socket,
        SYS_socketpair,
        SYS_io_uring_setup,  // through which calls pass that no filter sees
        SYS_truncate,        // which the first version of Landlock does not know
#if defined(SYS_fork)
        SYS_fork,
        SYS_vfork,
#endif
    };
    if (Architecture == 0)
        return;
    const auto compare = [](unsigned value, std::size_t jumpIfEqual, std::size_t jumpIfNot) {
        return sock_filter{BPF_JMP | BPF_JEQ | BPF_K, static_cast<unsigned char>(jumpIfEqual),
                           static_cast<unsigned char>(jumpIfNot), value};
    };
    const auto load = [](std::size_t offset) {
        return sock_filter{BPF_LD | BPF_W | BPF_ABS, 0, 0, static_cast<unsigned>(offset)};
    };
    const auto finish = [](unsigned action) { return sock_filter{BPF_RET | BPF_K, 0, 0, action}; };

    std::vector<sock_filter> filter{
        load(offsetof(seccomp_data, arch)),
        compare(Architecture, 1, 0),
        finish(SECCOMP_RET_KILL_PROCESS),  // calls by another architecture's numbers
        load(offsetof(seccomp_data, nr)),
    };
    // Of x86-64 there is a second set of numbers, above the first.
    constexpr unsigned secondSet = 0x40000000;
    filter.push_back({BPF_JMP | BPF_JGE | BPF_K, static_cast<unsigned char>(std::size(refused) + 1), 0, secondSet});
    for (std::size_t left = std::size(refused); left > 0; --left)
        filter.push_back(compare(static_cast<unsigned>(refused[std::size(refused) - left]), left, 0));
    filter.push_back(finish(SECCOMP_RET_ALLOW));
    filter.push_back(finish(SECCOMP_RET_ERRNO | 1));  // EPERM

    const sock_fprog program{static_cast<unsigned short>(filter.size()), filter.data()};
    prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program);
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

void shutDoors()
{
    shutFiles();
    shutProcessesAndNetwork();
}

}  // namespace store
