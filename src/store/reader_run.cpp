#include "store/reader_run.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <ctime>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

namespace store {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

/// No Sr SE's table is anywhere near this size.
constexpr std::size_t OutputLimit = std::size_t{64} << 20;

constexpr pid_t NoProcess = -1;

/// What the dynamic loader and the shell exit with when a program cannot be started.
constexpr int ExitNotStarted = 127;

class Descriptor {
public:
    explicit Descriptor(int number) : m_number(number) {}
    ~Descriptor() { close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const { return m_number; }
    void close()
    {
        if (m_number >= 0)
            ::close(m_number);
        m_number = -1;
    }

private:
    int m_number;
};

/// Standard output to `output`, no input, no messages, nothing else open.
class Files {
public:
    explicit Files(int output)
    {
        posix_spawn_file_actions_init(&m_actions);
        // Output first: if the program was started without standard streams, the pipe itself may be number 0 or 2.
        posix_spawn_file_actions_adddup2(&m_actions, output, STDOUT_FILENO);
        posix_spawn_file_actions_addopen(&m_actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&m_actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addclosefrom_np(&m_actions, STDERR_FILENO + 1);
    }
    ~Files() { posix_spawn_file_actions_destroy(&m_actions); }
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;

    const posix_spawn_file_actions_t* get() const { return &m_actions; }

private:
    posix_spawn_file_actions_t m_actions{};
};

/// A process group of its own, so that it can be stopped with all that it started; every signal as it is by default.
class Attributes {
public:
    Attributes()
    {
        posix_spawnattr_init(&m_attributes);
        sigset_t all;
        sigset_t none;
        sigfillset(&all);
        sigemptyset(&none);
        posix_spawnattr_setsigdefault(&m_attributes, &all);
        posix_spawnattr_setsigmask(&m_attributes, &none);
        posix_spawnattr_setpgroup(&m_attributes, 0);
        posix_spawnattr_setflags(&m_attributes, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETPGROUP);
    }
    ~Attributes() { posix_spawnattr_destroy(&m_attributes); }
    Attributes(const Attributes&) = delete;
    Attributes& operator=(const Attributes&) = delete;

    const posix_spawnattr_t* get() const { return &m_attributes; }

private:
    posix_spawnattr_t m_attributes{};
};

/// The program, started; no process if it could not be.
pid_t spawn(const std::vector<std::string>& arguments, int output)
{
    std::vector<char*> argv;
    for (const std::string& argument : arguments)
        argv.push_back(const_cast<char*>(argument.c_str()));  // NOLINT: posix_spawn changes none of them
    argv.push_back(nullptr);
    std::array<char*, 1> environment{nullptr};

    const Files files(output);
    const Attributes attributes;
    pid_t process = NoProcess;
    if (posix_spawn(&process, argv.front(), files.get(), attributes.get(), argv.data(), environment.data()) != 0)
        return NoProcess;
    return process;
}

/// Time left until `end`, rounded up: 0 means that it is over.
int millisecondsUntil(Clock::time_point end)
{
    return static_cast<int>(std::max(milliseconds(0), std::chrono::ceil<milliseconds>(end - Clock::now())).count());
}

enum class Collected { All, TooSlow, TooMuch };

/// Collects what the reader writes until it closes its output.
Collected collect(int from, Clock::time_point end, std::string& output)
{
    std::vector<char> piece(std::size_t{64} << 10);
    for (;;) {
        pollfd waiting{.fd = from, .events = POLLIN, .revents = 0};
        const int left = millisecondsUntil(end);
        if (left == 0)
            return Collected::TooSlow;
        if (poll(&waiting, 1, left) <= 0)
            continue;  // interrupted, or the time is over
        const ssize_t count = ::read(from, piece.data(), piece.size());
        if (count == 0)
            return Collected::All;
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return Collected::All;  // all that can be had; its missing end mark shows
        if (output.size() + static_cast<std::size_t>(count) > OutputLimit)
            return Collected::TooMuch;
        output.append(piece.data(), static_cast<std::size_t>(count));
    }
}

/// A running program; stopped, with all that it started, when this goes out of scope before its end.
class Process {
public:
    Process(const std::vector<std::string>& arguments, int output) : m_id(spawn(arguments, output)) {}
    ~Process()
    {
        if (m_id == NoProcess)
            return;
        kill(m_id, SIGKILL);  // one that has left its group
        kill(-m_id, SIGKILL);
        // A process blocked on a dead network mount cannot be killed; give up on it after 200 ms.
        waitForEnd(Clock::now() + milliseconds(200));
    }
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    bool isRunning() const { return m_id != NoProcess; }

    /// Waits until the program has ended, asking after it at growing intervals: it has closed its output, so it is
    /// about to go. False if it is still there at `end`.
    bool waitForEnd(Clock::time_point end)
    {
        for (long pause = 20'000;; pause = std::min(2 * pause, 2'000'000L)) {
            const pid_t gone = waitpid(m_id, &m_status, WNOHANG);
            // If this program leaves all its children to the system, the status is lost. It counts as a good one: the
            // output's own end mark tells whether it is whole.
            if (gone == m_id || (gone < 0 && errno == ECHILD)) {
                m_id = NoProcess;
                return true;
            }
            if (millisecondsUntil(end) == 0)
                return false;
            const timespec time{.tv_sec = 0, .tv_nsec = pause};
            nanosleep(&time, nullptr);
        }
    }

    int status() const { return m_status; }

private:
    pid_t m_id;
    int m_status = 0;
};

ReaderRun::Ending endingOf(int status, bool silent)
{
    using Ending = ReaderRun::Ending;
    if (WIFSIGNALED(status)) {
        const int signal = WTERMSIG(status);
        if (signal == SIGSYS)
            return Ending::Overstepped;
        return signal == SIGXCPU || signal == SIGKILL ? Ending::TooSlow : Ending::Died;
    }
    if (WEXITSTATUS(status) == 0)
        return Ending::Finished;
    return WEXITSTATUS(status) == ExitNotStarted && silent ? Ending::NotStarted : Ending::Failed;
}

}  // namespace

ReaderRun runReader(const std::vector<std::string>& arguments, milliseconds deadline)
{
    using Ending = ReaderRun::Ending;
    const Clock::time_point end = Clock::now() + deadline;

    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        return {Ending::NotStarted, ""};
    const Descriptor readEnd(ends[0]);
    Descriptor writeEnd(ends[1]);

    Process process(arguments, writeEnd.number());
    if (!process.isRunning())
        return {Ending::NotStarted, ""};
    writeEnd.close();

    ReaderRun run;
    switch (collect(readEnd.number(), end, run.output)) {
    case Collected::TooSlow:
        return {Ending::TooSlow, ""};
    case Collected::TooMuch:
        return {Ending::TooMuch, ""};
    case Collected::All:
        break;
    }
    if (!process.waitForEnd(end))
        return {Ending::TooSlow, ""};
    run.ending = endingOf(process.status(), run.output.empty());
    return run;
}

}  // namespace store
