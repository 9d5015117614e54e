#include "store/reader/page_map.h"

#include "store/reader/source.h"

namespace store {

namespace {

constexpr unsigned char InRecord = 0;  // a first page's number, then a bit for each page from there
constexpr unsigned char OnPages = 1;   // numbers of pages that hold nothing but bits
constexpr unsigned char MapPage = 5;
constexpr std::size_t MapPageHeader = 4;

void addBits(PageMap& map, Bytes bits, std::uint64_t firstPage, std::uint32_t pagesOfFile)
{
    for (std::size_t i = 0; i < bits.size(); ++i)
        for (unsigned bit = 0; bits[i] >> bit != 0; ++bit) {
            if ((bits[i] >> bit & 1) == 0)
                continue;
            const std::uint64_t page = firstPage + 8 * i + bit;
            if (page < pagesOfFile)
                map.pages.push_back(static_cast<std::uint32_t>(page));
            else
                map.isWhole = false;
        }
}

}  // namespace

PageMap readPageMap(const Source& source, std::uint32_t where)
{
    const Bytes page = source.page(where >> 8);
    const std::optional<Place> place = source.place(page, where & 0xFF);
    if (!place || place->end - place->begin < 5)
        throw ReadError{Refusal::Damaged};
    const Bytes record = page.subspan(place->begin, place->end - place->begin);

    PageMap map;
    if (record[0] == InRecord) {
        addBits(map, record.subspan(5), number32(record, 1), source.pages());
        return map;
    }
    if (record[0] != OnPages)
        throw ReadError{Refusal::Damaged};
    const std::uint64_t pagesEach = 8 * (source.pageSize() - MapPageHeader);
    for (std::size_t i = 0; 1 + 4 * i + 4 <= record.size(); ++i) {
        const std::uint32_t number = number32(record, 1 + 4 * i);
        if (number == 0)
            continue;  // none of these pages is the table's
        const Bytes bits = source.otherPage(number);
        if (bits.size() == source.pageSize() && bits[0] == MapPage)
            addBits(map, bits.subspan(MapPageHeader), i * pagesEach, source.pages());
        else
            map.isWhole = false;
    }
    return map;
}

}  // namespace store
