#pragma once
#include <array>
#include <random>
#include <string>

namespace store {

/// Ways in which a data file is damaged. The second half aims at what tells where other bytes are.
enum class Damage {
    Bits,
    Bytes,
    Structure,
    Stretch,
    PagesSwapped,
    PageCopied,
    PageCleared,
    Cut,
    CutBetweenPages,
    RecordPlace,
    RecordInside,
    Count,
    Definition,
    PageMap,
    CutCountUnknown,
};

inline constexpr std::array DamageNames{
    "bits flipped", "bytes changed", "structure changed", "stretch overwritten", "pages swapped",   "page copied",
    "page cleared", "cut",           "cut between pages", "record's place",      "inside a record", "count",
    "definition",   "map of pages",  "cut, count unknown"};

/// The file was only cut; nothing of what is left has changed but a number of records that says "unknown" now.
bool isCut(Damage damage);

/// `bytes` of a file with pages of 4,096 bytes, damaged.
std::string damaged(std::string bytes, Damage damage, std::mt19937_64& random);

}  // namespace store
