#pragma once
#include <chrono>
#include <string>
#include <vector>

namespace store {

/// One run of the reader program, from its start until it is gone.
struct ReaderRun {
    enum class Ending {
        Finished,     ///< by itself and content with itself
        Failed,       ///< by itself, but not content
        Died,         ///< by a signal that was not ours: a crash or a limit of memory
        Overstepped,  ///< ended by the system for a call that it may not make
        TooSlow,      ///< stopped at the deadline, or out of processor time
        TooMuch,      ///< stopped because it wrote more than the limit
        NotStarted,   ///< there is no such program, or its libraries are missing
    };
    Ending ending = Ending::NotStarted;
    std::string output;  ///< what it wrote before its end, of one that was not stopped
};

/// Runs `arguments` (the program's path first) with no input, an empty environment and no other open file, and
/// collects what it writes. Returns at the latest shortly after the deadline, whatever the program does; no
/// process of it is left then.
ReaderRun runReader(const std::vector<std::string>& arguments, std::chrono::milliseconds deadline);

}  // namespace store
