#pragma once
#include <chrono>
#include <filesystem>
#include <string>

#include "store/table.h"

namespace store {

/// What came of reading one table. Exactly one of these holds: `reason` is empty and `table` is open; or `reason`
/// says in plain words why nothing could be read and `table` has no rows. `notice` goes with an open table only:
/// what is missing from it ("The file says 16 records, 9 could be read: it may be damaged."), else "".
struct Reading {
    Table table;
    std::string reason{};
    std::string notice{};
    bool isStale = false;       ///< the file was written to while it was read; goes with an open table only
    bool isUnconfined = false;  ///< nothing was read because the system cannot confine the reader; see allowUnconfined
};

/// The Sr SE data file. Never writes to it, never throws, never takes much longer than the deadline.
class DataFile {
public:
    /// `reader` is the program that reads Access files; the one of this installation if not given.
    explicit DataFile(std::filesystem::path reader = installedReader(),
                      std::chrono::milliseconds deadline = std::chrono::seconds(5));

    /// Reads the table `tableName` of the file at `path`.
    Reading read(const std::filesystem::path& path, const std::string& tableName) const;

    /// From here on files are also read where the system cannot confine the reader: one that a file has taken over can
    /// then do whatever the user can do. For the user alone to decide.
    void allowUnconfined() { m_mayReadUnconfined = true; }

    static std::filesystem::path installedReader();

private:
    std::filesystem::path m_reader;
    std::chrono::milliseconds m_deadline;
    bool m_mayReadUnconfined = false;
};

}  // namespace store
