#pragma once
#include <chrono>
#include <filesystem>
#include <optional>
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
    bool isStale = false;          ///< the file was written to while it was read; goes with an open table only
    bool needsPermission = false;  ///< nothing was read, as this system cannot confine the reader, and the user has not
                                   ///< been asked: see allowUnconfined
};

/// The Sr SE data file. Never writes to it, never throws, never takes much longer than the deadline.
class DataFile {
public:
    /// `reader` is the program that reads Access files; the one of this installation if not given.
    explicit DataFile(std::filesystem::path reader = installedReader(),
                      std::chrono::milliseconds deadline = std::chrono::seconds(5));

    /// Reads the table `tableName` of the file at `path`.
    Reading read(const std::filesystem::path& path, const std::string& tableName) const;

    /// The user's answer whether to read where the system cannot confine the reader: a reader that a file has taken
    /// over can do there whatever the user can do.
    void allowUnconfined(bool isAllowed) { m_isUnconfinedAllowed = isAllowed; }

    static std::filesystem::path installedReader();

private:
    std::filesystem::path m_reader;
    std::chrono::milliseconds m_deadline;
    std::optional<bool> m_isUnconfinedAllowed;  // none: not asked yet
};

}  // namespace store
