#include "figures/utf8.h"

namespace figures {

namespace {

bool continues(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// Bytes of the character that `text` begins with; 0 if that is none.
std::size_t characterLength(std::string_view text)
{
    const auto first = static_cast<unsigned char>(text[0]);
    if (first < 0x80)
        return 1;
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || text.size() < length)
        return 0;
    for (std::size_t i = 1; i < length; ++i)
        if (!continues(text[i]))
            return 0;
    // Written longer than it need be, half of a UTF-16 pair, or beyond the last character.
    const auto second = static_cast<unsigned char>(text[1]);
    const bool isNone = (first == 0xE0 && second < 0xA0) || (first == 0xED && second > 0x9F) ||
                        (first == 0xF0 && second < 0x90) || (first == 0xF4 && second > 0x8F);
    return isNone ? 0 : length;
}

}  // namespace

bool isUtf8(std::string_view text)
{
    while (!text.empty()) {
        const std::size_t length = characterLength(text);
        if (length == 0)
            return false;
        text.remove_prefix(length);
    }
    return true;
}

std::string shortened(std::string_view text, std::size_t maxBytes)
{
    if (text.size() <= maxBytes)
        return std::string(text);
    std::size_t end = maxBytes;
    while (end > 0 && continues(text[end]))
        --end;
    return std::string(text.substr(0, end)) + "...";
}

}  // namespace figures
