#pragma once
#include <cstdint>
#include <string_view>

#include "store/reader/source.h"

namespace store {

/// Opens the data file at `path`, whatever lies there: a pipe or a device is not waited for. Reads no more than the
/// header. Throws ReadError.
Source openSource(const char* path);

/// Page on which the definition of the table `name` starts, by the file's own catalogue; capitals do not matter.
/// Throws ReadError.
std::uint32_t findTable(const Source& source, std::string_view name);

}  // namespace store
