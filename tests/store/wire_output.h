#pragma once
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "store/refusal.h"
#include "store/wire.h"

namespace store {

/// The reader's output put together by hand, item by item; see store/wire.h.
class WireOutput {
public:
    using Cells = std::vector<std::string>;

    WireOutput() : m_bytes(wire::Greeting) {}

    WireOutput& raw(std::string_view bytes)
    {
        m_bytes += bytes;
        return *this;
    }
    WireOutput& number(std::uint32_t value)
    {
        for (int shift = 0; shift < 32; shift += 8)
            m_bytes += static_cast<char>(value >> shift & 0xFF);
        return *this;
    }
    WireOutput& text(std::string_view text)
    {
        number(static_cast<std::uint32_t>(text.size()));
        return raw(text);
    }
    WireOutput& headings(const Cells& names)
    {
        raw("H").number(static_cast<std::uint32_t>(names.size()));
        for (const std::string& name : names)
            text(name);
        return *this;
    }
    WireOutput& record(const Cells& cells)
    {
        raw("R");
        for (const std::string& cell : cells)
            text(cell);
        return *this;
    }
    WireOutput& shortfall(std::uint32_t said, bool lost = false, bool endsInPage = false, std::uint32_t cells = 0,
                          const std::vector<std::uint32_t>& columns = {},
                          const std::vector<std::uint32_t>& records = {}, bool changed = false)
    {
        raw("S").number(said).yesNo(lost).yesNo(endsInPage).yesNo(changed).number(cells);
        return numbers(records).numbers(columns);
    }
    WireOutput& yesNo(bool value) { return raw(std::string_view(value ? "\1" : "\0", 1)); }
    WireOutput& numbers(const std::vector<std::uint32_t>& list)
    {
        number(static_cast<std::uint32_t>(list.size()));
        for (const std::uint32_t each : list)
            number(each);
        return *this;
    }
    WireOutput& failure(Refusal refusal)
    {
        m_bytes += 'X';
        m_bytes += static_cast<char>(refusal);
        return *this;
    }
    WireOutput& end() { return raw("E"); }

    const std::string& bytes() const { return m_bytes; }

private:
    std::string m_bytes;
};

}  // namespace store
