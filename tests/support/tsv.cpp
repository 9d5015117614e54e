#include "support/tsv.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

std::vector<std::vector<std::string>> readTsv(const std::string& path)
{
    std::ifstream file(path);
    if (!file)
        throw std::runtime_error("no such file: " + path);
    std::vector<std::vector<std::string>> lines;
    for (std::string line; std::getline(file, line);) {
        std::vector<std::string>& cells = lines.emplace_back();
        std::istringstream rest(line + '\t');  // an empty last cell is one too
        for (std::string cell; std::getline(rest, cell, '\t');)
            cells.push_back(cell);
    }
    return lines;
}
