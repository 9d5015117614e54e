// What the reader can no longer do when a damaged file has taken it over.

#include "store/reader/confine.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <linux/landlock.h>
#include <seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include "store/files.h"

namespace store {
namespace {

enum class Confinement { Limits, Files, Calls };  // each with those before

/// Status in which a child ends that confines itself and then does `deed`; its exit code is what `deed` returns.
int statusAfter(const std::function<int()>& deed, Confinement confinement = Confinement::Calls)
{
    const pid_t child = fork();
    if (child == 0) {
        limitResources();
        if (confinement >= Confinement::Files)
            shutFiles();
        if (confinement == Confinement::Calls && !allowReadingAlone())
            _exit(77);
        _exit(deed());
    }
    int status = -1;
    waitpid(child, &status, 0);
    return status;
}

/// The system has ended the child at its call.
bool isEnded(int status)
{
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGSYS;
}

template <typename... Arguments>
bool isEndedAt(long call, Arguments... arguments)
{
    return isEnded(statusAfter([&] {
        syscall(call, arguments...);
        return 0;
    }));
}

/// 0 if the call was refused.
int refused(long result)
{
    return result < 0 && errno == EACCES ? 0 : 1;
}

bool hasLandlock()
{
    return syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION) >= 1;
}

/// Number of a system call on this processor; below 0 if the library, which is older than the call, has none for it.
int numberOf(const char* call)
{
    return seccomp_syscall_resolve_name(call);
}

/// The tests of the filter say nothing where the kernel has none.
class SystemCalls : public testing::Test {
protected:
    void SetUp() override
    {
        if (prctl(PR_GET_SECCOMP) < 0)
            GTEST_SKIP() << "this kernel has no filter of system calls";
    }
};

TEST_F(SystemCalls, FilesThatAreOpenAreReadOn)
{
    const int file = open("/proc/self/exe", O_RDONLY | O_CLOEXEC);
    ASSERT_GE(file, 0);
    const auto readOn = [file] {
        char bytes[4] = {};
        struct stat about{};
        const std::string memory(std::size_t{1} << 20, 'x');
        void* const block = realloc(malloc(std::size_t{1} << 20), std::size_t{2} << 20);
        const bool isRead = read(file, bytes, 4) == 4 && lseek(file, 0, SEEK_SET) == 0;
        return isRead && fstat(file, &about) == 0 && memory.back() == 'x' && block != nullptr ? 0 : 1;
    };
    EXPECT_EQ(statusAfter(readOn), 0);
    close(file);
}

TEST_F(SystemCalls, AnExceptionIsCaught)
{
    EXPECT_EQ(statusAfter([] {
                  try {
                      throw std::bad_alloc();
                  } catch (const std::exception&) {
                      return 0;
                  }
              }),
              0);
}

TEST_F(SystemCalls, NoProgramIsStartedAndNoConnectionMade)
{
    EXPECT_TRUE(isEnded(statusAfter([] { return fork(); })));
    EXPECT_TRUE(isEnded(statusAfter([] { return execl("/bin/true", "true", nullptr); })));
    EXPECT_TRUE(isEndedAt(SYS_socket, 2, 1, 0));
    EXPECT_TRUE(isEndedAt(SYS_socket, 1, 1, 0));
#if defined(__x86_64__)
    constexpr long secondSet = 0x40000000;  // of numbers, for programs with short addresses
    EXPECT_TRUE(isEndedAt(secondSet | SYS_getpid));
    EXPECT_TRUE(isEndedAt(secondSet | SYS_read, 0, nullptr, 0));
#endif
}

// A reader that a file has taken over could end the program, with all that stands on its screens.
TEST_F(SystemCalls, TheProgramThatStartedItIsLeftAlone)
{
    siginfo_t queued{};
    queued.si_code = SI_QUEUE;
    const rlimit none{};
    const int priority = getpriority(PRIO_PROCESS, 0);
    EXPECT_TRUE(isEndedAt(SYS_kill, getpid(), 0));
    EXPECT_TRUE(isEndedAt(SYS_tkill, getpid(), 0));
    EXPECT_TRUE(isEndedAt(SYS_tgkill, getpid(), getpid(), 0));
    EXPECT_TRUE(isEndedAt(SYS_rt_sigqueueinfo, getpid(), 0, &queued));
    EXPECT_TRUE(isEndedAt(SYS_rt_tgsigqueueinfo, getpid(), getpid(), 0, &queued));
    EXPECT_TRUE(isEndedAt(SYS_pidfd_send_signal, -1, 0, nullptr, 0));
    EXPECT_TRUE(isEndedAt(SYS_prlimit64, getpid(), RLIMIT_FSIZE, nullptr, nullptr));
    EXPECT_TRUE(isEndedAt(SYS_prlimit64, getpid(), RLIMIT_CPU, &none, nullptr));
    EXPECT_TRUE(isEndedAt(SYS_ptrace, 16, getpid(), nullptr, nullptr));
    EXPECT_TRUE(isEndedAt(SYS_setpriority, PRIO_PROCESS, getpid(), 19));
    EXPECT_EQ(getpriority(PRIO_PROCESS, 0), priority);
}

// Bytes that arrive in a pipe would have sent the program the signal that ends it.
TEST_F(SystemCalls, NoSignalIsBookedForThatProgram)
{
    std::array<int, 2> pipe{};
    ASSERT_EQ(::pipe(pipe.data()), 0);
    constexpr int setSignal = 10;  // F_SETSIG
    EXPECT_TRUE(isEndedAt(SYS_fcntl, pipe[0], F_SETOWN, getpid()));
    EXPECT_TRUE(isEndedAt(SYS_fcntl, pipe[0], setSignal, SIGKILL));
    EXPECT_TRUE(isEndedAt(SYS_fcntl, pipe[0], F_SETFL, O_ASYNC));
    constexpr int setOwner = 0x8901;  // FIOSETOWN
    const int owner = getpid();
    EXPECT_TRUE(isEndedAt(SYS_ioctl, pipe[0], setOwner, &owner));
    EXPECT_EQ(fcntl(pipe[0], F_GETOWN), 0);
    close(pipe[0]);
    close(pipe[1]);
}

TEST_F(SystemCalls, TheUsersFilesStayAsTheyAre)
{
    const Folder folder;
    const std::string path = folder.path() / "file.mdb";
    std::ofstream(path) << "text";
    struct stat before{};
    ASSERT_EQ(stat(path.c_str(), &before), 0);
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);

    EXPECT_TRUE(isEndedAt(SYS_fchmod, file, 0));
    EXPECT_TRUE(isEndedAt(SYS_fchmodat, AT_FDCWD, path.c_str(), 0));
    EXPECT_TRUE(isEndedAt(SYS_fchown, file, 1, 1));
    EXPECT_TRUE(isEndedAt(SYS_fchownat, AT_FDCWD, path.c_str(), 1, 1, 0));
    EXPECT_TRUE(isEndedAt(SYS_utimensat, AT_FDCWD, path.c_str(), nullptr, 0));
    EXPECT_TRUE(isEndedAt(SYS_setxattr, path.c_str(), "user.x", "x", 1, 0));
    EXPECT_TRUE(isEndedAt(SYS_fsetxattr, file, "user.x", "x", 1, 0));
    EXPECT_TRUE(isEndedAt(SYS_flock, file, 2));
    EXPECT_TRUE(isEndedAt(SYS_truncate, path.c_str(), 0));
    EXPECT_TRUE(isEndedAt(SYS_openat, AT_FDCWD, path.c_str(), O_RDONLY));
    EXPECT_TRUE(isEndedAt(SYS_unlinkat, AT_FDCWD, path.c_str(), 0));
#if defined(SYS_chmod)  // the older calls, which not every processor has
    EXPECT_TRUE(isEndedAt(SYS_chmod, path.c_str(), 0));
    EXPECT_TRUE(isEndedAt(SYS_open, path.c_str(), O_RDONLY));
    EXPECT_TRUE(isEndedAt(SYS_unlink, path.c_str()));
#endif

    struct stat after{};
    ASSERT_EQ(stat(path.c_str(), &after), 0);
    EXPECT_EQ(after.st_mode, before.st_mode);
    EXPECT_EQ(after.st_ctim.tv_sec, before.st_ctim.tv_sec);
    EXPECT_EQ(after.st_ctim.tv_nsec, before.st_ctim.tv_nsec);
    EXPECT_EQ(bytesOf(path), "text");
    close(file);
}

TEST_F(SystemCalls, NoFileIsLookedUpByItsName)
{
    struct stat about{};
    // The C library's fstat goes through this call in some of its versions, with a name that is empty.
    if (const int call = numberOf("newfstatat"); call >= 0) {
        EXPECT_TRUE(isEndedAt(call, AT_FDCWD, "/etc/passwd", &about, 0));
    }
    EXPECT_TRUE(isEndedAt(SYS_statx, AT_FDCWD, "/etc/passwd", 0, 0, nullptr));
}

TEST_F(SystemCalls, NoCodeIsAdded)
{
    EXPECT_TRUE(isEnded(statusAfter([] {
        mmap(nullptr, 4096, PROT_READ | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        return 0;
    })));
    EXPECT_TRUE(isEndedAt(SYS_mprotect, nullptr, 0, PROT_EXEC));
}

TEST_F(SystemCalls, ItCannotSlipAway)
{
    EXPECT_TRUE(isEndedAt(SYS_setpgid, 0, getpgrp()));
    EXPECT_TRUE(isEndedAt(SYS_setsid));
    EXPECT_TRUE(isEndedAt(SYS_prctl, PR_SET_PDEATHSIG, 0));
    EXPECT_TRUE(isEndedAt(SYS_unshare, 0x10000000));  // CLONE_NEWUSER
    EXPECT_TRUE(isEndedAt(SYS_shmget, 0, 4096, 0600));
    EXPECT_TRUE(isEndedAt(SYS_shmat, 0, nullptr, 0));
    EXPECT_TRUE(isEndedAt(SYS_memfd_create, "x", 0));
    EXPECT_TRUE(isEndedAt(SYS_rt_sigaction, SIGTERM, nullptr, nullptr, 8));
    for (const char* const name : {"userfaultfd", "io_uring_setup", "bpf", "pidfd_getfd", "process_vm_writev", "setns"})
        if (const int call = numberOf(name); call >= 0) {
            EXPECT_TRUE(isEndedAt(call, 0, 0, 0, 0)) << name;
        }
}

TEST_F(SystemCalls, AnyOtherEndsIt)
{
    const std::vector<const char*> used{"read",    "lseek",       "fstat",  "brk",        "mmap",
                                        "munmap",  "mremap",      "futex",  "exit_group",
#if defined(__SANITIZE_ADDRESS__)
                                        "madvise", "sched_yield", "getpid", "gettid"
#endif
    };
    const auto isUsed = [&used](int call) {
#if defined(__x86_64__)
        if (call == 335 || call == 336)  // ways back into the kernel's own probes, which pass by every filter
            return true;
#endif
        return std::any_of(used.begin(), used.end(), [call](const char* name) { return numberOf(name) == call; });
    };
    std::mt19937 random(1951);
    for (int tried = 0; tried < 100;) {
        const int call = static_cast<int>(random() % 500);  // some 460 are known, in Debian 12 and in 13
        if (isUsed(call))
            continue;
        EXPECT_TRUE(isEndedAt(call, 0, 0, 0, 0, 0, 0)) << "system call " << call;
        ++tried;
    }
}

// The system of the test cannot be without the filter, so it is made to look like that.
TEST_F(SystemCalls, WithoutAFilterItIsTold)
{
    const pid_t child = fork();
    if (child == 0) {
        const scmp_filter_ctx filter = seccomp_init(SCMP_ACT_ALLOW);
        seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(seccomp), 0);
        seccomp_rule_add(filter, SCMP_ACT_ERRNO(EINVAL), SCMP_SYS(prctl), 1, SCMP_A0(SCMP_CMP_EQ, PR_SET_SECCOMP));
        if (seccomp_load(filter) != 0)
            _exit(77);
        _exit(allowReadingAlone() ? 1 : 0);
    }
    int status = -1;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
}

TEST(Confine, NoFileIsOpenedMadeOrRemoved)
{
    if (!hasLandlock())
        GTEST_SKIP() << "this kernel has no Landlock";
    const Folder folder;
    const std::string there = folder.path() / "there";
    const std::string made = folder.path() / "made";
    std::ofstream(there) << "text";
    const auto isRefused = [](const std::function<long()>& call) {
        return statusAfter([&] { return refused(call()); }, Confinement::Files) == 0;
    };

    EXPECT_TRUE(isRefused([&] { return open(there.c_str(), O_RDONLY); }));
    EXPECT_TRUE(isRefused([&] { return open(there.c_str(), O_WRONLY); }));
    EXPECT_TRUE(isRefused([&] { return open(folder.path().c_str(), O_RDONLY | O_DIRECTORY); }));
    EXPECT_TRUE(isRefused([&] { return open(made.c_str(), O_WRONLY | O_CREAT, 0600); }));
    EXPECT_TRUE(isRefused([&] { return mkdir(made.c_str(), 0700); }));
    EXPECT_TRUE(isRefused([&] { return symlink("there", made.c_str()); }));
    EXPECT_TRUE(isRefused([&] { return unlink(there.c_str()); }));

    EXPECT_EQ(bytesOf(there), "text");
    EXPECT_FALSE(std::filesystem::exists(std::filesystem::symlink_status(made)));
}

TEST(Confine, NothingIsWrittenToAFile)
{
    const Folder folder;
    const std::string path = folder.path() / "file";
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_GE(file, 0);
    const auto writeTo = [file] { return static_cast<int>(write(file, "x", 1)); };
    const int limited = statusAfter(writeTo, Confinement::Limits);
    const int confined = statusAfter(writeTo);
    close(file);
    EXPECT_TRUE(WIFSIGNALED(limited) && WTERMSIG(limited) == SIGXFSZ) << limited;
    EXPECT_TRUE(isEnded(confined)) << confined;
    EXPECT_EQ(bytesOf(path), "");
}

TEST(Confine, ProcessorTimeEnds)  // slow
{
    const int status = statusAfter([]() -> int {
        for (volatile bool stopped = false; !stopped;) {
        }
        return 0;
    });
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGXCPU) << status;
}

TEST(Confine, MemoryEnds)
{
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "AddressSanitizer needs more addresses than the limit leaves";
#else
    EXPECT_EQ(statusAfter([] { return malloc(std::size_t{300} << 20) == nullptr ? 0 : 1; }), 0);
    EXPECT_EQ(statusAfter([] { return malloc(std::size_t{64} << 20) != nullptr ? 0 : 1; }), 0);
    for (const std::size_t size : {std::size_t{1} << 10, std::size_t{100} << 10, std::size_t{1} << 20})
        EXPECT_EQ(statusAfter([size] {
                      while (malloc(size) != nullptr) {
                      }
                      return 0;
                  }),
                  0)
            << "in pieces of " << size << " bytes";
#endif
}

TEST(Confine, NoCoreIsDumpedAndNoRightsAreGained)
{
    const auto dumpable = [] { return prctl(PR_GET_DUMPABLE); };
    const auto gainsRights = [] { return prctl(PR_GET_NO_NEW_PRIVS, 0, 0, 0, 0) == 1 ? 0 : 1; };
    EXPECT_EQ(statusAfter(dumpable, Confinement::Limits), 0);
    EXPECT_EQ(statusAfter(gainsRights, Confinement::Limits), 0);
}

}  // namespace
}  // namespace store
