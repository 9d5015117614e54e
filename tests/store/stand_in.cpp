// stand_in FILE HOW
//
// Takes the reader's place and misbehaves, HOW says in what way. FILE is where it writes down the number of a process
// that it leaves behind.

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>

#include <sys/resource.h>
#include <unistd.h>

#include "store/wire_output.h"

namespace {

using store::WireOutput;

void write(const std::string& bytes)
{
    if (::write(STDOUT_FILENO, bytes.data(), bytes.size()) < 0)
        _exit(3);
}

[[noreturn]] void hang()
{
    for (;;)
        std::this_thread::sleep_for(std::chrono::hours(1));
}

[[noreturn]] void dieBy(int signal)
{
    const rlimit none{};
    setrlimit(RLIMIT_CORE, &none);
    std::signal(signal, SIG_DFL);
    raise(signal);
    std::abort();
}

[[noreturn]] void greetAndDieBy(int signal)
{
    write(WireOutput().bytes());
    dieBy(signal);
}

[[noreturn]] void flood()
{
    const std::string piece(std::size_t{1} << 20, 'R');
    for (;;)
        write(piece);
}

void writeDown(pid_t process, const char* file)
{
    std::FILE* const out = std::fopen(file, "w");
    std::fprintf(out, "%d", process);
    std::fclose(out);
}

/// Leaves a process behind that keeps the output open, without its parent.
void leaveChild(const char* file)
{
    const pid_t child = fork();
    if (child == 0)
        hang();
    writeDown(child, file);
}

/// Goes over to the group of the program that started it.
[[noreturn]] void leaveGroup(const char* file)
{
    if (setpgid(0, getpgid(getppid())) != 0)
        _exit(3);
    writeDown(getpid(), file);
    hang();
}

WireOutput good()
{
    return WireOutput().headings({"A"}).record({"1"}).shortfall(1).end();
}

/// That nothing was passed on that the reader does not need: no open files, no environment, no input.
std::string surroundings(char** environment)
{
    std::string found;
    for (int number = 3; number < 1000; ++number)
        if (char byte = 0; lseek(number, 0, SEEK_CUR) >= 0 || ::read(number, &byte, 0) >= 0)
            found += "file " + std::to_string(number) + " ";
    for (char** variable = environment; *variable; ++variable)
        found += *variable + std::string(" ");
    if (char byte = 0; ::read(STDIN_FILENO, &byte, 1) != 0)
        found += "input ";
    sigset_t blocked;
    sigprocmask(SIG_SETMASK, nullptr, &blocked);
    if (sigismember(&blocked, SIGTERM) == 1)
        found += "blocked signal ";
    if (std::signal(SIGPIPE, SIG_DFL) != SIG_DFL)
        found += "ignored signal ";
    return found.empty() ? "nothing" : found;
}

/// One segment from km 10 to `end`.
WireOutput track(const std::string& end)
{
    return WireOutput()
        .headings({"ID", "NSEG", "SEGNO", "LINE", "KMFROM", "KMTO", "EXTRAKM", "CONCKM", "CONCTOUT", "TOTTOUT", "GMT",
                   "LWRKM", "METHOD"})
        .record({"1", "1", "1", "UP", "10", end, "0", "0", "0", "0", "23.7", "3", "Machine Packed"});
}

/// Wants to be allowed to read.
WireOutput unconfined(bool isAllowed)
{
    return isAllowed ? track("25").shortfall(1).end() : WireOutput().failure(store::Refusal::Unconfined).end();
}

/// Is written to while it is read, the first time; FILE remembers that.
WireOutput saved(const char* file)
{
    const bool isFirst = access(file, F_OK) != 0;
    writeDown(0, file);
    return isFirst ? track("999").shortfall(1, false, false, 0, {}, {}, true).end() : track("25").shortfall(1).end();
}

}  // namespace

int main(int count, char** arguments, char** environment)
{
    const std::string file = arguments[1];
    const std::string how = arguments[2];
    if (file.ends_with("unconfined.mdb"))
        write(unconfined(count == 4 && arguments[3] == store::wire::Unconfined).bytes());
    else if (file.ends_with("saved.mdb"))
        write(saved(arguments[1]).bytes());
    else if (how == "good")
        write(good().bytes());
    else if (how == "surroundings")
        write(WireOutput().headings({surroundings(environment)}).shortfall(0).end().bytes());
    else if (how == "arguments")
        write(WireOutput().headings({arguments[1], arguments[2]}).shortfall(0).end().bytes());
    else if (how == "slow") {
        const std::string bytes = good().bytes();
        for (const char byte : bytes) {
            write(std::string(1, byte));
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        }
    } else if (how == "crash at once")
        dieBy(SIGSEGV);
    else if (how == "crash")
        greetAndDieBy(SIGSEGV);
    else if (how == "abort")
        greetAndDieBy(SIGABRT);
    else if (how == "out of time")
        greetAndDieBy(SIGXCPU);
    else if (how == "overstep")
        greetAndDieBy(SIGSYS);
    else if (how == "crash after all") {
        write(good().bytes());
        dieBy(SIGSEGV);
    } else if (how == "hang")
        hang();
    else if (how == "hang after all") {
        write(good().bytes());
        hang();
    } else if (how == "hang silently") {
        write(good().bytes());
        close(STDOUT_FILENO);
        hang();
    } else if (how == "ignore signals") {
        for (int signal = 1; signal < NSIG; ++signal)
            std::signal(signal, SIG_IGN);
        hang();
    } else if (how == "flood")
        flood();
    else if (how == "trickle") {
        for (;; std::this_thread::sleep_for(std::chrono::milliseconds(1)))
            write("R");
    } else if (how == "nonsense")
        write("The quick brown fox");
    else if (how == "cut")
        write(good().bytes().substr(0, good().bytes().size() - 1));
    else if (how == "lie")
        write(WireOutput().raw("H").number(1).number(0xFFFFFFF0).raw("A").end().bytes());
    else if (how == "fail")
        return 1;
    else if (how == "fail after all") {
        write(good().bytes());
        return 1;
    } else if (how == "not started")
        return 127;
    else if (how == "leave child") {
        leaveChild(arguments[1]);
        write(good().bytes());
    } else if (how == "leave group")
        leaveGroup(arguments[1]);
    else if (how != "silence")
        return 2;
    return 0;
}
