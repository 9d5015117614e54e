#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace store {

/// Why a table could not be opened. Those up to `Changed` are found by the reader, and their numbers travel in its
/// output: never give one of them another meaning. The rest is what became of the reader itself.
enum class Refusal : std::uint8_t {
    NoSuchFile = 1,
    CannotOpen = 2,
    Folder = 3,
    NotAFile = 4,
    Empty = 5,
    NotAccess = 6,
    OnlyHeader = 7,
    Damaged = 8,
    Encrypted = 9,
    NoTable = 10,
    TooLarge = 11,
    Unconfined = 12,  ///< the system cannot confine the reader, and the user has not allowed to read all the same
    NoProc = 13,
    Changed = 14,
    Died,
    Overstepped,  ///< the reader tried what it may not do
    TooSlow,
    NoProperAnswer,
    NotStarted,
};

/// What the user asked for, by the names on the screen: the name of the data file (without its folders) and of the
/// table.
struct Asked {
    std::string file;
    std::string table;
};

/// The reason in plain words: what is wrong with which file, and what to do.
std::string reasonFor(Refusal refusal, const Asked& asked);

/// What is missing from a table that was opened all the same.
struct Shortfall {
    std::uint32_t recordsSaid = 0;  ///< by the table's own header; 0 if it does not know
    std::uint32_t recordsRead = 0;
    bool recordsLost = false;                      ///< a page is gone, or a place for a record held none
    bool endsInsidePage = false;                   ///< the file's size is no multiple of its page size
    bool changed = false;                          ///< somebody wrote to the file while it was read
    std::uint32_t cellsUnreadable = 0;             ///< shown empty
    std::vector<std::uint32_t> recordsDamaged{};   ///< numbers from 0 of records that are shown empty
    std::vector<std::string> columnsUnreadable{};  ///< headings of columns of a kind that is not read; shown empty
};

/// The notice beside the grid in plain words; "" if nothing is missing.
std::string noticeFor(const Shortfall& shortfall);

}  // namespace store
