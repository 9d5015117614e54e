#include "store/reader_output.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "store/wire.h"

namespace store {

namespace {

/// The output is not what a reader writes.
struct Malformed {};

/// Takes the output apart from its front; throws Malformed where it holds less than is asked for.
class Cursor {
public:
    explicit Cursor(std::string_view bytes) : m_rest(bytes) {}

    bool atEnd() const { return m_rest.empty(); }

    std::string_view take(std::size_t count)
    {
        if (count > m_rest.size())
            throw Malformed();
        const std::string_view taken = m_rest.substr(0, count);
        m_rest.remove_prefix(count);
        return taken;
    }

    char mark() { return take(1).front(); }

    std::uint32_t number()
    {
        std::uint32_t value = 0;
        int shift = 0;
        for (const char byte : take(4)) {
            value |= std::uint32_t{static_cast<unsigned char>(byte)} << shift;
            shift += 8;
        }
        return value;
    }

    bool yesNo()
    {
        const char byte = mark();
        if (byte != 0 && byte != 1)
            throw Malformed();
        return byte == 1;
    }

    std::string_view text() { return take(number()); }

private:
    std::string_view m_rest;
};

std::vector<std::string> readHeadings(Cursor& cursor)
{
    const std::uint32_t count = cursor.number();
    if (count == 0 || count > wire::MaxColumns)
        throw Malformed();
    std::vector<std::string> headings;
    for (std::uint32_t i = 0; i < count; ++i)
        headings.emplace_back(cursor.text());
    return headings;
}

Shortfall readShortfall(Cursor& cursor, const Table& table)
{
    Shortfall shortfall;
    shortfall.recordsSaid = cursor.number();
    shortfall.recordsRead = static_cast<std::uint32_t>(table.rows() - 1);
    shortfall.recordsLost = cursor.yesNo();
    shortfall.endsInsidePage = cursor.yesNo();
    shortfall.cellsUnreadable = cursor.number();
    const std::uint32_t columns = cursor.number();
    if (columns > wire::MaxColumns)
        throw Malformed();
    for (std::uint32_t i = 0; i < columns; ++i) {
        const std::uint32_t column = cursor.number();
        if (column + std::uint64_t{1} >= static_cast<std::uint64_t>(table.columns()))
            throw Malformed();
        shortfall.columnsUnreadable.emplace_back(table.text(0, static_cast<int>(column) + 1));
    }
    return shortfall;
}

/// Room for what such an output can hold at most; what is reserved in vain costs no memory, only addresses.
void reserveFor(Table& table, std::size_t outputBytes)
{
    constexpr std::size_t leastCell = 4;  // its length
    table.reserve(outputBytes, outputBytes / leastCell);
}

Reading parse(Cursor cursor, std::size_t size, const Asked& asked)
{
    if (cursor.take(wire::Greeting.size()) != wire::Greeting)
        throw Malformed();

    Table table(asked.table, {});
    std::vector<std::string_view> cells;
    std::optional<Shortfall> shortfall;
    std::optional<Refusal> refusal;
    for (char mark = cursor.mark(); mark != wire::End; mark = cursor.mark()) {
        const bool open = table.columns() != 0 && !shortfall && !refusal;
        if (mark == wire::Headings && table.columns() == 0 && !refusal) {
            table = Table(asked.table, readHeadings(cursor));
            cells.resize(static_cast<std::size_t>(table.columns()) - 1);
            reserveFor(table, size);
        } else if (mark == wire::Record && open && static_cast<std::size_t>(table.rows()) <= wire::MaxRecords) {
            for (std::string_view& cell : cells)
                cell = cursor.text();
            table.append(cells);
        } else if (mark == wire::Shortfall && open) {
            shortfall = readShortfall(cursor, table);
        } else if (mark == wire::Refused && !refusal) {
            const char number = cursor.mark();
            if (number < char{1} || number > static_cast<char>(Refusal::TooLarge))
                throw Malformed();
            refusal = static_cast<Refusal>(number);
        } else {
            throw Malformed();
        }
    }
    if (!cursor.atEnd() || (!shortfall && !refusal))
        throw Malformed();
    if (refusal)
        return refused(*refusal, asked);
    return {std::move(table), "", noticeFor(*shortfall)};
}

}  // namespace

Reading refused(Refusal refusal, const Asked& asked)
{
    return {Table(asked.table, {}), reasonFor(refusal, asked), ""};
}

Reading parseReaderOutput(std::string_view bytes, const Asked& asked)
{
    try {
        return parse(Cursor(bytes), bytes.size(), asked);
    } catch (const Malformed&) {
        return refused(Refusal::NoProperAnswer, asked);
    }
}

}  // namespace store
