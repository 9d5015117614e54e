#pragma once
#include <string>
#include <vector>

/// A file's lines, and of each its cells, which are parted by tabs. Throws std::runtime_error if it cannot be read.
std::vector<std::vector<std::string>> readTsv(const std::string& path);
