// What the reader can no longer do when a damaged file has taken it over.

#include "store/reader/confine.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <string>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include "store/files.h"

namespace store {
namespace {

/// Status in which a child ends that confines itself and then does `deed`; its exit code is what `deed` returns.
int statusAfter(const std::function<int()>& deed)
{
    const pid_t child = fork();
    if (child == 0) {
        limitResources();
        shutDoors();
        _exit(deed());
    }
    int status = -1;
    waitpid(child, &status, 0);
    return status;
}

/// 0 if the call was refused.
int refused(long result)
{
    return result < 0 && (errno == EPERM || errno == EACCES) ? 0 : 1;
}

bool hasLandlock()
{
    return syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION) >= 1;
}

bool hasSystemCallFilter()
{
    return prctl(PR_GET_SECCOMP) >= 0;
}

TEST(Confine, NoFileIsOpenedMadeOrRemoved)
{
    if (!hasLandlock())
        GTEST_SKIP() << "this kernel has no Landlock";
    const Folder folder;
    const std::string there = folder.path() / "there";
    const std::string made = folder.path() / "made";
    std::ofstream(there) << "text";

    EXPECT_EQ(statusAfter([&] { return refused(open(there.c_str(), O_RDONLY)); }), 0);
    EXPECT_EQ(statusAfter([&] { return refused(open(there.c_str(), O_WRONLY)); }), 0);
    EXPECT_EQ(statusAfter([&] { return refused(open(folder.path().c_str(), O_RDONLY | O_DIRECTORY)); }), 0);
    EXPECT_EQ(statusAfter([&] { return refused(open(made.c_str(), O_WRONLY | O_CREAT, 0600)); }), 0);
    EXPECT_EQ(statusAfter([&] { return refused(mkdir(made.c_str(), 0700)); }), 0);
    EXPECT_EQ(statusAfter([&] { return refused(symlink("there", made.c_str())); }), 0);
    EXPECT_EQ(statusAfter([&] { return refused(unlink(there.c_str())); }), 0);
    EXPECT_EQ(statusAfter([&] { return refused(truncate(there.c_str(), 0)); }), 0);

    EXPECT_EQ(bytesOf(there), "text");
    EXPECT_FALSE(std::filesystem::exists(std::filesystem::symlink_status(made)));
}

TEST(Confine, NoProgramIsStartedAndNoConnectionMade)
{
    if (!hasSystemCallFilter())
        GTEST_SKIP() << "this kernel has no filter of system calls";
    EXPECT_EQ(statusAfter([] { return refused(fork()); }), 0);
    EXPECT_EQ(statusAfter([] { return refused(execl("/bin/true", "true", nullptr)); }), 0);
    EXPECT_EQ(statusAfter([] { return refused(socket(AF_INET, SOCK_STREAM, 0)); }), 0);
    EXPECT_EQ(statusAfter([] { return refused(socket(AF_UNIX, SOCK_STREAM, 0)); }), 0);
#if defined(__x86_64__)
    constexpr long secondSet = 0x40000000;
    EXPECT_EQ(statusAfter([] { return refused(syscall(secondSet | SYS_getpid)); }), 0);
#endif
}

// A reader that a file has taken over could end the program, with all that stands on its screens.
TEST(Confine, TheProgramThatStartedItIsLeftAlone)
{
    if (!hasSystemCallFilter())
        GTEST_SKIP() << "this kernel has no filter of system calls";
    siginfo_t queued{};
    queued.si_code = SI_QUEUE;
    const rlimit none{};
    EXPECT_EQ(statusAfter([] { return refused(kill(getppid(), 0)); }), 0);
    EXPECT_EQ(statusAfter([] { return refused(syscall(SYS_tkill, getppid(), 0)); }), 0);
    EXPECT_EQ(statusAfter([] { return refused(syscall(SYS_tgkill, getppid(), getppid(), 0)); }), 0);
    EXPECT_EQ(statusAfter([&] { return refused(syscall(SYS_rt_sigqueueinfo, getppid(), 0, &queued)); }), 0);
    EXPECT_EQ(statusAfter([&] { return refused(syscall(SYS_rt_tgsigqueueinfo, getppid(), getppid(), 0, &queued)); }),
              0);
    EXPECT_EQ(statusAfter([&] { return refused(prlimit(getppid(), RLIMIT_FSIZE, nullptr, nullptr)); }), 0);
    EXPECT_EQ(statusAfter([&] { return refused(prlimit(getppid(), RLIMIT_CPU, &none, nullptr)); }), 0);
    // Without the filter this would fail for the file, which does not exist.
    EXPECT_EQ(statusAfter([] { return refused(syscall(SYS_pidfd_send_signal, -1, 0, nullptr, 0)); }), 0);
}

TEST(Confine, FilesThatAreOpenAreReadOn)
{
    const int file = open("/proc/self/exe", O_RDONLY | O_CLOEXEC);
    ASSERT_GE(file, 0);
    const auto readOn = [file] {
        char bytes[4] = {};
        const std::string memory(std::size_t{1} << 20, 'x');
        return read(file, bytes, 4) == 4 && lseek(file, 0, SEEK_SET) == 0 && memory.back() == 'x' ? 0 : 1;
    };
    EXPECT_EQ(statusAfter(readOn), 0);
    close(file);
}

TEST(Confine, NothingIsWrittenToAFile)
{
    const Folder folder;
    const std::string path = folder.path() / "file";
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_GE(file, 0);
    const int status = statusAfter([file] { return static_cast<int>(write(file, "x", 1)); });
    close(file);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGXFSZ) << status;
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
#endif
}

TEST(Confine, NoCoreIsDumpedAndNoRightsAreGained)
{
    EXPECT_EQ(statusAfter([] { return prctl(PR_GET_DUMPABLE); }), 0);
    EXPECT_EQ(statusAfter([] { return prctl(PR_GET_NO_NEW_PRIVS, 0, 0, 0, 0) == 1 ? 0 : 1; }), 0);
}

}  // namespace
}  // namespace store
