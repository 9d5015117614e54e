#pragma once
#include <array>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "store/data_file.h"

namespace store {

/// The tables of a data file, in the order of the screens.
inline constexpr std::array AllTables{"TR", "CS", "YD", "M1", "M2", "S1", "S2"};

/// A data file of tests/data or of the samples.
std::filesystem::path dataFile(const std::string& name);
std::filesystem::path sample(const std::string& name);

/// The grid of an open table as lines of cells, row 0 the headings; the margin is left out.
using Grid = std::vector<std::vector<std::string>>;
Grid gridOf(const Table& table);

/// The grid that somebody else has read from the sample's bytes, without the program and without its library.
Grid expectedGrid(const std::string& sampleName, const std::string& table);

std::string bytesOf(const std::filesystem::path& path);

/// A folder of its own, gone at the end with all that is in it.
class Folder {
public:
    Folder();
    ~Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

}  // namespace store
