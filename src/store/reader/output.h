#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "store/refusal.h"

namespace store {

/// Standard output in the form of store/wire.h, written in large pieces. If nobody reads it any more, the
/// program ends.
class Output {
public:
    /// Writes the greeting at once: what goes wrong from here on is not for want of a program that can be started.
    Output();

    /// Begins an item; the rest of it follows by the next three.
    void begin(char mark);
    void yesNo(bool value);
    void number(std::uint32_t value);
    void text(std::string_view text);

    /// Takes the item in hand back and says instead why there is no table.
    void fail(Refusal refusal);

    /// Writes what is left; nothing may follow.
    void end();

private:
    void flush();

    std::string m_pending;
    std::size_t m_item = 0;  // where in m_pending the item in hand begins
};

}  // namespace store
