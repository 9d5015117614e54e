#pragma once
#include <cstdint>
#include <vector>

namespace store {

struct Source;

/// The pages of a table by its map, in the order of their numbers.
struct PageMap {
    std::vector<std::uint32_t> pages;  ///< those that the file has
    bool isWhole = true;               ///< false: it names a page that the file does not have, or a part of it is gone
};

/// The map at `place` (page << 8 | slot). Throws ReadError if there is none.
PageMap readPageMap(const Source& source, std::uint32_t place);

}  // namespace store
