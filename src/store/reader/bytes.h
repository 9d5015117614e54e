#pragma once
#include <cstddef>
#include <cstdint>
#include <span>

namespace store {

using Bytes = std::span<const unsigned char>;

/// Number of `count` bytes (8 at most) from `offset`, low byte first; they must be there.
inline std::uint64_t lowByteFirst(Bytes stored, std::size_t offset, std::size_t count)
{
    std::uint64_t value = 0;
    for (std::size_t i = count; i > 0; --i)
        value = value << 8 | stored[offset + i - 1];
    return value;
}

/// The same of 2 bytes and of 4.
inline unsigned number16(Bytes stored, std::size_t offset)
{
    return static_cast<unsigned>(lowByteFirst(stored, offset, 2));
}
inline std::uint32_t number32(Bytes stored, std::size_t offset)
{
    return static_cast<std::uint32_t>(lowByteFirst(stored, offset, 4));
}

}  // namespace store
