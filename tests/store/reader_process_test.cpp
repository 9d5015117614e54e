// What becomes of the program when its reader misbehaves: a plain reason, before long, and nothing left behind.

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <fstream>
#include <functional>
#include <iterator>
#include <thread>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sched.h>
#include <seccomp.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include "store/data_file.h"
#include "store/files.h"

namespace store {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr auto Deadline = milliseconds(400);
constexpr auto Patience = milliseconds(1500);  // with a machine that is busy with something else

const std::filesystem::path StandIn = CREWMARK_STAND_IN;

std::ptrdiff_t openFiles()
{
    const std::filesystem::directory_iterator files("/proc/self/fd");
    return std::distance(begin(files), end(files));
}

void expectNoChildren()
{
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a child was left";
    EXPECT_EQ(errno, ECHILD);
}

/// Gone, or dead and only not yet buried by the system.
bool isGone(const std::string& process)
{
    std::ifstream file("/proc/" + process + "/stat");
    std::string line;
    std::getline(file, line);
    return line.empty() || line.find(") Z ") != std::string::npos;
}

// clang-format off
const std::string Damaged =    R"("x.mdb" is damaged: reading its table "HOW" had to be given up. Use another copy of the file, or type the figures.)";
const std::string TooSlow =    R"(Reading the table "HOW" of "x.mdb" took too long: the file may be damaged. Use another copy of the file, or type the figures.)";
const std::string TooLarge =   R"(The table "HOW" of "x.mdb" is too large to be read. Choose the .mdb file of the Sr SE.)";
const std::string Overstepped = R"(Reading the table "HOW" of "x.mdb" was stopped: it tried more than reading. The file may be damaged, or made to do harm. Use another copy of the file, or type the figures.)";
const std::string NoAnswer =   R"("x.mdb" could not be read: the program that reads data files gave no proper answer. Install Crewmark again.)";
const std::string NotStarted = R"("x.mdb" could not be read: the program that reads data files could not be started. Install Crewmark again.)";
// clang-format on

struct Misbehaviour {
    const char* how;
    std::string reason;
    milliseconds deadline = Deadline;
};

class MisbehavingReader : public testing::TestWithParam<Misbehaviour> {};

TEST_P(MisbehavingReader, EndsInAPlainReason)
{
    const auto& [how, expected, deadline] = GetParam();
    std::string reason = expected;
    if (const std::size_t at = reason.find("HOW"); at != std::string::npos)
        reason.replace(at, 3, how);

    const std::ptrdiff_t filesBefore = openFiles();
    const Clock::time_point start = Clock::now();
    const Reading reading = DataFile(StandIn, deadline).read("/folder/x.mdb", how);

    EXPECT_LT(Clock::now() - start, deadline + Patience);
    EXPECT_EQ(reading.reason, reason);
    EXPECT_EQ(reading.notice, "");
    EXPECT_EQ(reading.table.rows(), 0);
    EXPECT_EQ(openFiles(), filesBefore) << "a file was left open";
    expectNoChildren();
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Ways, MisbehavingReader, testing::Values(
    Misbehaviour{"crash at once",   NotStarted},  // before its greeting: no file is to blame
    Misbehaviour{"overstep",        Overstepped},
    Misbehaviour{"crash",           Damaged},
    Misbehaviour{"abort",           Damaged},
    Misbehaviour{"crash after all", Damaged},
    Misbehaviour{"out of time",     TooSlow},
    Misbehaviour{"hang",            TooSlow},
    Misbehaviour{"hang after all",  TooSlow},
    Misbehaviour{"hang silently",   TooSlow},
    Misbehaviour{"ignore signals",  TooSlow},
    Misbehaviour{"trickle",         TooSlow},
    Misbehaviour{"flood",           TooLarge, milliseconds(10'000)},  // stopped by its size, not by the clock
    Misbehaviour{"nonsense",        NoAnswer},
    Misbehaviour{"silence",         NoAnswer},
    Misbehaviour{"cut",             NoAnswer},
    Misbehaviour{"lie",             NoAnswer},
    Misbehaviour{"fail",            NoAnswer},
    Misbehaviour{"fail after all",  NoAnswer},
    Misbehaviour{"not started",     NotStarted}),
    [](const auto& tested) {
        std::string name = tested.param.how;
        std::replace(name.begin(), name.end(), ' ', '_');
        return name;
    });
// clang-format on

TEST(ReaderProcess, AGoodAnswerIsTakenByteByByte)
{
    for (const char* how : {"good", "slow"}) {
        const Reading reading = DataFile(StandIn, milliseconds(5000)).read("x.mdb", how);
        EXPECT_EQ(reading.reason, "") << how;
        EXPECT_EQ(gridOf(reading.table), (Grid{{"A"}, {"1"}})) << how;
    }
}

TEST(ReaderProcess, NothingOfItGoesOn)
{
    for (const char* const how : {"leave child", "leave group"}) {
        const Folder folder;
        const std::filesystem::path note = folder.path() / "x.mdb";
        const Clock::time_point start = Clock::now();
        const Reading reading = DataFile(StandIn, Deadline).read(note, how);
        EXPECT_LT(Clock::now() - start, Deadline + Patience) << how;
        EXPECT_NE(reading.reason, "") << how;  // the output was never closed
        expectNoChildren();

        const std::string process = bytesOf(note);
        ASSERT_FALSE(process.empty()) << how;
        for (int i = 0; i < 100 && !isGone(process); ++i)
            std::this_thread::sleep_for(milliseconds(10));
        EXPECT_TRUE(isGone(process)) << how << ": process " << process;
    }
}

TEST(ReaderProcess, ThereIsNoSuchProgram)
{
    const Folder folder;
    const std::filesystem::path text = folder.path() / "text";
    std::ofstream(text) << "no program\n";
    const std::filesystem::path program = folder.path() / "program";
    std::ofstream(program) << "no program\n";
    std::filesystem::permissions(program, std::filesystem::perms::all);

    for (const std::filesystem::path& reader : {folder.path() / "missing", text, program, folder.path(), {}}) {
        const std::ptrdiff_t filesBefore = openFiles();
        const Reading reading = DataFile(reader).read("x.mdb", "TR");
        EXPECT_EQ(reading.reason, NotStarted) << reader;
        EXPECT_EQ(reading.table.rows(), 0) << reader;
        EXPECT_EQ(openFiles(), filesBefore) << reader;
        expectNoChildren();
    }
}

// A copy of the reader that broke off, was overwritten, or has lost its right to be executed.
TEST(ReaderProcess, ABrokenProgramIsNotTheFilesFault)
{
    const std::string good = bytesOf(DataFile::installedReader());
    const Folder folder;
    std::string zeroed = good;
    std::fill(zeroed.begin() + 4096, zeroed.end(), '\0');
    const struct {
        const char* name;
        std::string bytes;
        bool isExecutable;
    } readers[] = {
        {"cut in its header", good.substr(0, 40), true},
        {"cut behind its header", good.substr(0, 4096), true},
        {"zeroed", zeroed, true},
        {"not executable", good, false},
    };
    for (const auto& [name, bytes, isExecutable] : readers) {
        const std::filesystem::path reader = folder.path() / name;
        std::ofstream(reader, std::ios::binary) << bytes;
        if (isExecutable)
            std::filesystem::permissions(reader, std::filesystem::perms::owner_all);
        EXPECT_EQ(DataFile(reader).read("/folder/x.mdb", "TR").reason, NotStarted) << name;
    }
}

/// What `read` gives in a process that first does `before`, or nothing where that cannot be done. Each text stands on a
/// line of its own.
std::string readingAfter(const std::function<bool()>& before, const std::function<std::string()>& read)
{
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0)
        return "";
    const pid_t child = fork();
    if (child == 0) {
        const std::string said = before() ? read() : "";
        _exit(write(ends[1], said.data(), said.size()) < 0 ? 1 : 0);
    }
    close(ends[1]);
    std::string said(4096, '\0');
    said.resize(static_cast<std::size_t>(std::max<ssize_t>(::read(ends[0], said.data(), said.size()), 0)));
    close(ends[0]);
    waitpid(child, nullptr, 0);
    return said;
}

bool takeAwayProc()
{
    return unshare(CLONE_NEWNS) == 0 && mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           mount("none", "/proc", "tmpfs", 0, nullptr) == 0;
}

TEST(ReaderProcess, WithoutProcTheSystemIsToBlame)
{
    const std::filesystem::path reader = DataFile::installedReader();
    const std::string said = readingAfter(takeAwayProc, [&reader] {
        return DataFile(reader).read(sample("1-ambapur.mdb"), "TR").reason + '\n' +
               DataFile().read(sample("1-ambapur.mdb"), "TR").reason;  // whose reader cannot even be found
    });
    if (said.empty())
        GTEST_SKIP() << "nobody here who may take /proc away";
    const std::string reason = "\"1-ambapur.mdb\" could not be read: this system has no /proc. Ask whoever looks after "
                               "it, or type the figures.";
    EXPECT_EQ(said, reason + '\n' + reason);
}

/// From here on this process and those that it starts have a system without a filter of system calls.
bool takeAwaySystemCallFilter()
{
    const scmp_filter_ctx filter = seccomp_init(SCMP_ACT_ALLOW);
    return seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(seccomp), 0) == 0 &&
           seccomp_rule_add(filter, SCMP_ACT_ERRNO(EINVAL), SCMP_SYS(prctl), 1, SCMP_A0(SCMP_CMP_EQ, PR_SET_SECCOMP)) ==
               0 &&
           seccomp_load(filter) == 0;
}

TEST(ReaderProcess, UnconfinedItReadsOnlyIfItIsAllowedTo)
{
    const std::string said = readingAfter(takeAwaySystemCallFilter, [] {
        DataFile dataFile;
        std::string texts;
        const auto read = [&] {
            const Reading reading = dataFile.read(sample("1-ambapur.mdb"), "TR");
            texts += reading.reason + (reading.needsPermission ? " (to be asked) " : " ") +
                     std::to_string(reading.table.rows()) + " rows\n";
        };
        read();
        dataFile.allowUnconfined(false);
        read();
        dataFile.allowUnconfined(true);
        read();
        return texts + dataFile.read("/nowhere/x.mdb", "TR").reason;
    });
    if (said.empty())
        GTEST_SKIP() << "this kernel has no filter of system calls";
    const std::string reason = "\"1-ambapur.mdb\" is not read: this system cannot confine the program that reads data "
                               "files. Type the figures, or start Crewmark again and allow it.";
    EXPECT_EQ(said, reason + " (to be asked) 0 rows\n" + reason + " 0 rows\n" + " 6 rows\n" +  // headings + 5 segments
                        "There is no file \"x.mdb\". Choose the .mdb file of the Sr SE.");
}

TEST(ReaderProcess, WhereItCanBeConfinedAnAllowanceChangesNothing)
{
    DataFile dataFile;
    dataFile.allowUnconfined(true);
    const Reading reading = dataFile.read(sample("1-ambapur.mdb"), "TR");
    EXPECT_EQ(reading.reason + reading.notice, "");
    EXPECT_EQ(gridOf(reading.table), expectedGrid("1-ambapur", "TR"));
}

TEST(ReaderProcess, NothingIsPassedOnToIt)
{
    const int inherited = open("/dev/null", O_RDONLY);  // not closed by itself when another program starts
    ASSERT_GE(inherited, 0);
    const auto before = std::signal(SIGPIPE, SIG_IGN);
    const Reading reading = DataFile(StandIn).read("x.mdb", "surroundings");
    std::signal(SIGPIPE, before);
    close(inherited);
    EXPECT_EQ(gridOf(reading.table), (Grid{{"nothing"}}));
}

TEST(ReaderProcess, PathAndTableArriveUnchanged)
{
    const Reading reading = DataFile(StandIn).read("/a b/\"c\"\n/-d $(e)", "arguments");
    EXPECT_EQ(gridOf(reading.table), (Grid{{"/a b/\"c\"\n/-d $(e)", "arguments"}}));
}

TEST(ReaderProcess, ASignalInBetweenDoesNotDisturb)
{
    struct sigaction doNothing = {};
    struct sigaction before = {};
    doNothing.sa_handler = [](int) {};  // and no SA_RESTART: calls are interrupted
    sigaction(SIGUSR1, &doNothing, &before);
    const pthread_t reading = pthread_self();
    std::atomic<bool> done = false;
    std::thread disturber([&] {
        while (!done) {
            pthread_kill(reading, SIGUSR1);
            std::this_thread::sleep_for(milliseconds(1));
        }
    });
    const Reading good = DataFile(StandIn, milliseconds(5000)).read("x.mdb", "slow");
    const Clock::time_point start = Clock::now();
    const Reading hanging = DataFile(StandIn, Deadline).read("x.mdb", "hang");
    const auto took = Clock::now() - start;
    done = true;
    disturber.join();
    sigaction(SIGUSR1, &before, nullptr);

    EXPECT_EQ(good.reason, "");
    EXPECT_NE(hanging.reason, "");
    EXPECT_GE(took, Deadline);
    EXPECT_LT(took, Deadline + Patience);
}

TEST(ReaderProcess, WithoutStandardStreamsItWorksAsWell)
{
    const pid_t child = fork();
    if (child == 0) {
        close(0);
        close(1);
        close(2);
        const bool good = DataFile().read(sample("1-ambapur.mdb"), "TR").table.rows() == 6;
        _exit(good ? 0 : 1);
    }
    int status = -1;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
}

TEST(ReaderProcess, ItWorksWhereChildrenAreLeftToTheSystem)
{
    const auto before = std::signal(SIGCHLD, SIG_IGN);
    const Reading reading = DataFile().read(sample("1-ambapur.mdb"), "TR");
    const Reading crash = DataFile(StandIn, Deadline).read("x.mdb", "crash");
    std::signal(SIGCHLD, before);
    EXPECT_EQ(reading.reason, "");
    EXPECT_EQ(reading.table.rows(), 6);  // headings + 5 segments
    EXPECT_NE(crash.reason, "");
}

TEST(ReaderProcess, ManyAtATimeDoNotMeet)
{
    std::vector<std::thread> threads;
    threads.reserve(8);
    std::atomic<int> good = 0;
    for (int i = 0; i < 8; ++i)
        threads.emplace_back([&good, i] {
            const char* const table = AllTables[static_cast<std::size_t>(i) % AllTables.size()];
            for (int round = 0; round < 5; ++round)
                if (gridOf(DataFile().read(sample("1-ambapur.mdb"), table).table) == expectedGrid("1-ambapur", table))
                    ++good;
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(good, 8 * 5);
}

TEST(ReaderProcess, TheInstalledReaderIsBesideTheProgram)
{
    const std::filesystem::path reader = DataFile::installedReader();
    EXPECT_EQ(reader.filename(), "crewmark-reader");
    EXPECT_EQ(access(reader.c_str(), X_OK), 0) << reader;
}

}  // namespace
}  // namespace store
