#include "store/files.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "support/tsv.h"

namespace store {

std::filesystem::path dataFile(const std::string& name)
{
    return std::filesystem::path(CREWMARK_TEST_DATA) / name;
}

std::filesystem::path sample(const std::string& name)
{
    return std::filesystem::path(CREWMARK_SAMPLES) / name;
}

Grid gridOf(const Table& table)
{
    Grid grid;
    for (int row = 0; row < table.rows(); ++row) {
        std::vector<std::string>& line = grid.emplace_back();
        for (int column = 1; column < table.columns(); ++column)
            line.emplace_back(table.text(row, column));
    }
    return grid;
}

Grid expectedGrid(const std::string& sampleName, const std::string& table)
{
    return readTsv(std::string(CREWMARK_EXPECTED) + "/cells/" + sampleName + "." + table + ".tsv");
}

std::string bytesOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error("no such file: " + path.string());
    return {std::istreambuf_iterator<char>(file), {}};
}

Folder::Folder()
{
    std::string name = (std::filesystem::temp_directory_path() / "crewmark-XXXXXX").string();
    if (!mkdtemp(name.data()))
        throw std::runtime_error("no folder can be made in the temporary folder");
    m_path = name;
}

Folder::~Folder()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

}  // namespace store
