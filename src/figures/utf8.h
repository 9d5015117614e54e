#pragma once
#include <cstddef>
#include <string>
#include <string_view>

namespace figures {

/// No byte of it stands outside a whole character of UTF-8.
bool isUtf8(std::string_view text);

/// `text`, or where it has more than `maxBytes` bytes its beginning, cut between characters, and "...".
std::string shortened(std::string_view text, std::size_t maxBytes);

}  // namespace figures
