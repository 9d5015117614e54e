#include "store/reader_output.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "figures/utf8.h"
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

    std::string_view text()
    {
        const std::string_view taken = take(number());
        if (!figures::isUtf8(taken))
            throw Malformed();
        return taken;
    }

    /// Numbers below `limit`, each larger than the one before.
    std::vector<std::uint32_t> numbersBelow(int limit)
    {
        std::vector<std::uint32_t> numbers;
        for (std::uint32_t left = number(); left > 0; --left) {
            numbers.push_back(number());
            const bool isRising = numbers.size() == 1 || numbers[numbers.size() - 2] < numbers.back();
            if (!isRising || numbers.back() >= static_cast<std::uint64_t>(limit))
                throw Malformed();
        }
        return numbers;
    }

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
    shortfall.changed = cursor.yesNo();
    shortfall.cellsUnreadable = cursor.number();
    shortfall.recordsDamaged = cursor.numbersBelow(table.rows() - 1);
    for (const std::uint32_t column : cursor.numbersBelow(table.columns() - 1))
        shortfall.columnsUnreadable.emplace_back(table.text(0, static_cast<int>(column) + 1));
    return shortfall;
}

/// Room for what such an output can hold: an upper bound; unused capacity costs address space, not memory.
void reserveFor(Table& table, std::size_t outputBytes)
{
    constexpr std::size_t minCell = 4;  // its length
    table.reserve(outputBytes, outputBytes / minCell);
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
        } else if (mark == wire::Failure && !refusal) {
            const char number = cursor.mark();
            if (number < char{1} || number > static_cast<char>(Refusal::Changed))
                throw Malformed();
            refusal = static_cast<Refusal>(number);
        } else {
            throw Malformed();
        }
    }
    if (!cursor.atEnd() || (!shortfall && !refusal))
        throw Malformed();
    if (refusal)
        return failedReading(*refusal, asked);
    return {.table = std::move(table), .notice = noticeFor(*shortfall), .isStale = shortfall->changed};
}

}  // namespace

Reading failedReading(Refusal refusal, const Asked& asked)
{
    return {.table = Table(asked.table, {}),
            .reason = reasonFor(refusal, asked),
            .needsPermission = refusal == Refusal::Unconfined};
}

Reading parseReaderOutput(std::string_view bytes, const Asked& asked)
{
    try {
        return parse(Cursor(bytes), bytes.size(), asked);
    } catch (const Malformed&) {
        return failedReading(Refusal::NoProperAnswer, asked);
    }
}

}  // namespace store
