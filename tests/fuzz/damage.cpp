#include "fuzz/damage.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace store {

namespace {

using Random = std::mt19937_64;

constexpr std::size_t PageSize = 4096;

// The first byte of a page.
constexpr char RecordPage = 1;
constexpr char DefinitionPage = 2;

// What stands where in a page of records and in a table's definition.
constexpr std::size_t RecordsOfPage = 12;
constexpr std::size_t RecordsOfTable = 16;
constexpr std::size_t ColumnsOfTable = 45;
constexpr std::size_t MapOfTable = 55;
constexpr std::size_t FirstColumn = 63;
constexpr std::size_t ColumnSize = 25;

std::size_t below(Random& random, std::size_t limit)
{
    return static_cast<std::size_t>(random() % limit);
}

char anyByte(Random& random)
{
    constexpr std::array usual{'\0', '\1', '\x7f', '\xff'};
    return random() % 2 == 0 ? usual[below(random, usual.size())] : static_cast<char>(random());
}

std::size_t number(const std::string& bytes, std::size_t at, std::size_t count)
{
    std::size_t value = 0;
    for (std::size_t i = count; i > 0; --i)
        value = value << 8 | static_cast<unsigned char>(bytes.at(at + i - 1));
    return value;
}

/// Whether a table is defined on the page at `at` that the test's own files hold beside those of Access: the map of its
/// pages is one of the second kind.
bool isTable(const std::string& bytes, std::size_t at)
{
    if (at + PageSize > bytes.size() || bytes[at] != DefinitionPage)
        return false;
    const std::size_t page = number(bytes, at + MapOfTable + 1, 3) * PageSize;
    const std::size_t slot = page + RecordsOfPage + 2 + 2 * number(bytes, at + MapOfTable, 1);
    if (slot + 2 > bytes.size())
        return false;
    const std::size_t map = page + number(bytes, slot, 2) % PageSize;
    return map < bytes.size() && bytes[map] == 1;
}

/// Where a page begins that defines such a table or holds records of it, if there is one.
std::size_t pageOf(char kind, const std::string& bytes, Random& random)
{
    std::size_t page = 0;
    for (int tries = 0; tries < 1000; ++tries) {
        page = below(random, bytes.size() / PageSize) * PageSize;
        const std::size_t table = kind == DefinitionPage ? page : number(bytes, page + 4, 4) * PageSize;
        if (bytes[page] == kind && isTable(bytes, table))
            break;
    }
    return page;
}

/// A byte that tells where other bytes are, most likely: at the start of a page or in the definition of a table.
std::size_t structuralPlace(Random& random, const std::string& bytes)
{
    std::size_t page = below(random, bytes.size() / PageSize);
    for (int tries = 0; tries < 20 && bytes[page * PageSize] != DefinitionPage; ++tries)
        page = below(random, bytes.size() / PageSize);
    return page * PageSize + below(random, random() % 2 == 0 ? 64 : 1024);
}

std::string& page(std::string& bytes, std::size_t at, const std::string& content)
{
    return bytes.replace(at * PageSize, PageSize, content);
}

/// Another value, near to the old one or not.
void change(char& byte, Random& random)
{
    const char before = byte;
    while (byte == before)
        byte = random() % 2 == 0 ? static_cast<char>(byte + static_cast<char>(below(random, 9)) - 4) : anyByte(random);
}

std::size_t slotOf(std::size_t page, const std::string& bytes, Random& random)
{
    const std::size_t records = std::clamp<std::size_t>(number(bytes, page + RecordsOfPage, 2), 1, 1000);
    return page + RecordsOfPage + 2 + 2 * below(random, records);
}

/// The number of columns at its beginning, or what stands at its end: places, their number, the mask.
std::size_t placeInsideRecord(const std::string& bytes, Random& random)
{
    const std::size_t page = pageOf(RecordPage, bytes, random);
    const std::size_t slot = slotOf(page, bytes, random);
    const bool isFirst = slot == page + RecordsOfPage + 2;
    const std::size_t begin = number(bytes, slot, 2) % PageSize;
    const std::size_t end = isFirst ? PageSize : number(bytes, slot - 2, 2) % PageSize;
    const std::size_t place = random() % 4 == 0 ? begin + below(random, 2) : end + PageSize - 1 - below(random, 16);
    return page + place % PageSize;
}

std::size_t placeOfCount(const std::string& bytes, Random& random)
{
    constexpr std::array countsOfDefinition{RecordsOfTable, std::size_t{41}, std::size_t{43}, ColumnsOfTable,
                                            std::size_t{51}};
    if (random() % 3 == 0)
        return pageOf(RecordPage, bytes, random) + RecordsOfPage + below(random, 2);
    return pageOf(DefinitionPage, bytes, random) + countsOfDefinition[below(random, countsOfDefinition.size())] +
           below(random, 2);
}

std::size_t placeInDefinition(const std::string& bytes, Random& random)
{
    const std::size_t page = pageOf(DefinitionPage, bytes, random);
    const std::size_t columns = std::clamp<std::size_t>(number(bytes, page + ColumnsOfTable, 2), 1, 100);
    return page + FirstColumn + below(random, columns * ColumnSize);
}

/// Where the map is, in it, or on the page of bits that it names.
std::size_t placeInMap(const std::string& bytes, Random& random)
{
    const std::size_t table = pageOf(DefinitionPage, bytes, random) + MapOfTable;
    const std::size_t page = number(bytes, table + 1, 3) * PageSize;
    const std::size_t slot = page + RecordsOfPage + 2 + 2 * number(bytes, table, 1);
    if (random() % 4 == 0 || slot + 2 > bytes.size())
        return table + below(random, 4);
    const std::size_t map = page + number(bytes, slot, 2) % PageSize;
    const std::size_t bits = number(bytes, map + 1, 4) * PageSize;
    if (bytes.at(map) == 1 && random() % 2 == 0 && bits + PageSize <= bytes.size())
        return bits + below(random, 24);
    return map + below(random, 24);
}

void forgetCounts(std::string& bytes)
{
    for (std::size_t page = 0; page + PageSize <= bytes.size(); page += PageSize)
        if (bytes[page] == DefinitionPage)
            bytes.replace(page + RecordsOfTable, 4, 4, '\0');
}

}  // namespace

bool isCut(Damage damage)
{
    return damage == Damage::Cut || damage == Damage::CutBetweenPages || damage == Damage::CutCountUnknown;
}

std::string damaged(std::string bytes, Damage damage, Random& random)
{
    const std::size_t pages = bytes.size() / PageSize;
    const std::size_t times = 1 + below(random, 8);
    switch (damage) {
    case Damage::Bits:
        for (std::size_t i = 0; i < times; ++i)
            bytes[below(random, bytes.size())] ^= static_cast<char>(1 << below(random, 8));
        break;
    case Damage::Bytes:
        for (std::size_t i = 0; i < times; ++i)
            bytes[below(random, bytes.size())] = anyByte(random);
        break;
    case Damage::Structure:
        for (std::size_t i = 0; i < times; ++i)
            bytes[structuralPlace(random, bytes)] = anyByte(random);
        break;
    case Damage::Stretch: {
        const std::size_t begin = below(random, bytes.size());
        const std::size_t end = std::min(bytes.size(), begin + 1 + below(random, 200));
        const char byte = anyByte(random);
        const bool isNoise = random() % 2 == 0;
        for (std::size_t i = begin; i < end; ++i)
            bytes[i] = isNoise ? static_cast<char>(random()) : byte;
        break;
    }
    case Damage::PagesSwapped: {
        const std::size_t one = below(random, pages);
        const std::size_t other = below(random, pages);
        const std::string content = bytes.substr(one * PageSize, PageSize);
        page(bytes, one, bytes.substr(other * PageSize, PageSize));
        page(bytes, other, content);
        break;
    }
    case Damage::PageCopied:
        page(bytes, below(random, pages), bytes.substr(below(random, pages) * PageSize, PageSize));
        break;
    case Damage::PageCleared:
        page(bytes, below(random, pages), std::string(PageSize, anyByte(random)));
        break;
    case Damage::Cut:
        bytes.resize(below(random, bytes.size()));
        break;
    case Damage::CutBetweenPages:
        bytes.resize(below(random, pages) * PageSize);
        break;
    case Damage::RecordPlace:
        change(bytes.at(slotOf(pageOf(RecordPage, bytes, random), bytes, random) + below(random, 2)), random);
        break;
    case Damage::RecordInside:
        change(bytes.at(placeInsideRecord(bytes, random)), random);
        break;
    case Damage::Count:
        change(bytes.at(placeOfCount(bytes, random)), random);
        break;
    case Damage::Definition:
        change(bytes.at(placeInDefinition(bytes, random)), random);
        break;
    case Damage::PageMap:
        change(bytes.at(placeInMap(bytes, random)), random);
        break;
    case Damage::CutCountUnknown:
        forgetCounts(bytes);
        bytes.resize(below(random, pages) * PageSize + (random() % 2 == 0 ? 0 : below(random, PageSize)));
        break;
    }
    return bytes;
}

}  // namespace store
