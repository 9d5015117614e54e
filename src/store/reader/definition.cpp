#include "store/reader/definition.h"

#include <algorithm>
#include <array>

#include "store/reader/source.h"
#include "store/reader/utf16_text.h"
#include "store/wire.h"

namespace store {

namespace {

/// Where things stand in a definition, and in its entry for a column [byte].
struct Layout {
    std::size_t records, maxColumns, maxVariableColumns, columns, indexes, pageMap, firstIndex, indexEntry, columnEntry;
    std::size_t number, variablePlace, flags, fixedPlace, length;
};
// clang-format off
constexpr Layout OfAccess97   = {12, 21, 23, 25, 31, 35, 43,  8, 18,   1, 3, 13, 14, 16};
constexpr Layout OfAccess2000 = {16, 41, 43, 45, 51, 55, 63, 12, 25,   5, 7, 15, 21, 23};
// clang-format on

constexpr unsigned FixedFlag = 0x01;

// In a column's entry since Access 2000 (Access 97 knows neither):
constexpr std::size_t ScaleOffset = 12;
constexpr std::size_t CalculatedOffset = 16;
constexpr unsigned CalculatedFlag = 0xC0;

constexpr std::size_t MaxIndexes = 1000;  // Access allows 32 and a few of its own
constexpr std::size_t MaxNameLength = 64;
constexpr unsigned char DefinitionPage = 2;

void require(bool rule)
{
    if (!rule)
        throw ReadError{Refusal::Damaged};
}

/// A definition's bytes, gathered from page to page as far as they are asked for.
class DefinitionBytes {
public:
    DefinitionBytes(const Source& source, std::uint32_t page) : m_source(source), m_nextPage(page) {}

    Bytes take(std::size_t offset, std::size_t count)
    {
        while (m_bytes.size() < offset + count)
            addPage();
        return Bytes(m_bytes).subspan(offset, count);
    }
    unsigned number16(std::size_t offset) { return store::number16(take(offset, 2), 0); }
    std::uint32_t number32(std::size_t offset) { return store::number32(take(offset, 4), 0); }

private:
    void addPage()
    {
        constexpr std::size_t header = 8;  // the next page's number ends it; the first page's counts as well
        const Bytes page = m_source.page(m_nextPage);
        require(page.size() == m_source.pageSize() && page[0] == DefinitionPage && m_nextPage != 0);
        const Bytes added = m_bytes.empty() ? page : page.subspan(header);
        m_bytes.insert(m_bytes.end(), added.begin(), added.end());
        m_nextPage = store::number32(page, header - 4);
    }

    const Source& m_source;
    std::uint32_t m_nextPage;
    std::vector<unsigned char> m_bytes;
};

Column columnFrom(Bytes entry, const Layout& at, bool isJet3)
{
    Column column;
    column.kind = static_cast<Kind>(entry[0]);
    column.isCalculated = !isJet3 && (entry[CalculatedOffset] & CalculatedFlag) == CalculatedFlag;
    column.isReadable = hasText(column.kind);
    column.isFixed = (entry[at.flags] & FixedFlag) != 0;
    column.number = number16(entry, at.number);
    column.place = number16(entry, column.isFixed ? at.fixedPlace : at.variablePlace);
    column.length = number16(entry, at.length);
    column.scale = isJet3 ? 0 : entry[ScaleOffset];
    return column;
}

/// A number is taken once, and within the maximum.
void takeOnce(std::vector<bool>& taken, unsigned number)
{
    require(number < taken.size() && !taken[number]);
    taken[number] = true;
}

void checkColumns(const Definition& table, std::size_t pageSize)
{
    std::vector<bool> numbers(table.maxColumns);
    std::vector<bool> variablePlaces(table.maxVariableColumns);
    std::vector<bool> fixedBytes(pageSize);
    for (const Column& column : table.columns) {
        takeOnce(numbers, column.number);
        if (column.isInMask())
            continue;
        if (!column.isFixed)
            takeOnce(variablePlaces, column.place);
        else
            for (unsigned byte = 0; byte < column.length; ++byte)
                takeOnce(fixedBytes, column.place + byte);
    }
}

}  // namespace

Definition readDefinition(const Source& source, std::uint32_t page)
{
    const Layout& at = source.isJet3() ? OfAccess97 : OfAccess2000;
    DefinitionBytes bytes(source, page);
    Definition table{.columns = {},
                     .recordsSaid = bytes.number32(at.records),
                     .maxColumns = bytes.number16(at.maxColumns),
                     .maxVariableColumns = bytes.number16(at.maxVariableColumns),
                     .pageMap = bytes.number32(at.pageMap),
                     .isJet3 = source.isJet3()};
    const std::size_t count = bytes.number16(at.columns);
    const std::size_t indexes = bytes.number32(at.indexes);
    require(count > 0 && count <= wire::MaxColumns && indexes <= MaxIndexes);

    std::size_t offset = at.firstIndex + indexes * at.indexEntry;
    for (std::size_t i = 0; i < count; ++i, offset += at.columnEntry)
        table.columns.push_back(columnFrom(bytes.take(offset, at.columnEntry), at, table.isJet3));
    checkColumns(table, source.pageSize());

    for (Column& column : table.columns) {
        const std::size_t lengthBytes = table.isJet3 ? 1 : 2;
        const std::size_t length = lowByteFirst(bytes.take(offset, lengthBytes), 0, lengthBytes);
        require(length > 0 && length <= MaxNameLength * lengthBytes);
        const Bytes name = bytes.take(offset + lengthBytes, length);
        if (table.isJet3)
            column.name = source.decoded(name);
        else
            appendText(column.name, name);
        offset += lengthBytes + length;
    }
    return table;
}

}  // namespace store
