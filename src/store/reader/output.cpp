#include "store/reader/output.h"

#include <cerrno>
#include <cstddef>

#include <unistd.h>

#include "store/wire.h"

namespace store {

namespace {

constexpr std::size_t Piece = std::size_t{64} << 10;

}  // namespace

Output::Output() : m_pending(wire::Greeting)
{
    flush();
}

void Output::begin(char mark)
{
    if (m_pending.size() >= Piece)
        flush();
    m_item = m_pending.size();
    m_pending += mark;
}

void Output::fail(Refusal refusal)
{
    m_pending.resize(m_item);
    begin(wire::Failure);
    m_pending += static_cast<char>(refusal);
}

void Output::yesNo(bool value)
{
    m_pending += value ? '\1' : '\0';
}

void Output::number(std::uint32_t value)
{
    for (int shift = 0; shift < 32; shift += 8)
        m_pending += static_cast<char>(value >> shift & 0xFF);
}

void Output::text(std::string_view text)
{
    number(static_cast<std::uint32_t>(text.size()));
    m_pending += text;
}

void Output::end()
{
    begin(wire::End);
    flush();
}

void Output::flush()
{
    for (std::string_view rest = m_pending; !rest.empty();) {
        const ssize_t count = write(STDOUT_FILENO, rest.data(), rest.size());
        if (count < 0 && errno != EINTR)
            _exit(1);
        rest.remove_prefix(count < 0 ? 0 : static_cast<std::size_t>(count));
    }
    m_pending.clear();
}

}  // namespace store
