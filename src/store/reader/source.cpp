#include "store/reader/source.h"

#include <algorithm>
#include <vector>

#include <sys/stat.h>

namespace store {

namespace {

// What the number of a place on a page carries above the position itself.
constexpr unsigned PositionMask = 0x1FFF;
constexpr unsigned PointerFlag = 0x4000;
constexpr unsigned DeletedFlag = 0x8000;

/// Of a file that ends inside a page the library makes a whole page; only these bytes of it are the file's.
std::size_t bytesOn(const Source& source, std::uint32_t page)
{
    const off_t pageSize = static_cast<off_t>(source.pageSize());
    return static_cast<std::size_t>(std::clamp<off_t>(source.size - off_t{page} * pageSize, 0, pageSize));
}

}  // namespace

std::uint32_t Source::pages() const
{
    const off_t pageBytes = static_cast<off_t>(pageSize());
    return static_cast<std::uint32_t>((size + pageBytes - 1) / pageBytes);
}

Bytes Source::page(std::uint32_t number) const
{
    const std::size_t bytes = bytesOn(*this, number);
    if (bytes == 0 || mdb_read_pg(mdb, number) != mdb->fmt->pg_size)
        return {};
    return {mdb->pg_buf, bytes};
}

Bytes Source::otherPage(std::uint32_t number) const
{
    const std::size_t bytes = bytesOn(*this, number);
    if (bytes == 0 || mdb_read_alt_pg(mdb, number) != mdb->fmt->pg_size)
        return {};
    return {mdb->alt_pg_buf, bytes};
}

unsigned Source::placesOn(Bytes page) const
{
    const std::size_t offset = mdb->fmt->row_count_offset;
    return page.size() < offset + 2 ? 0 : number16(page, offset);
}

std::optional<Place> Source::place(Bytes page, unsigned slot) const
{
    const std::size_t slots = std::size_t{mdb->fmt->row_count_offset} + 2;
    const std::size_t ownSlot = slots + 2 * std::size_t{slot};
    if (slot >= placesOn(page) || ownSlot + 2 > page.size())
        return std::nullopt;
    const unsigned start = number16(page, ownSlot);
    const Place place{.begin = start & PositionMask,
                      .end = slot == 0 ? pageSize() : number16(page, ownSlot - 2) & PositionMask,
                      .isPointer = (start & PointerFlag) != 0,
                      .isDeleted = (start & DeletedFlag) != 0};
    if (place.begin < ownSlot + 2 || place.begin > place.end || place.end > page.size())
        return std::nullopt;
    return place;
}

std::string Source::decoded(Bytes stored) const
{
    std::vector<char> utf8(3 * stored.size() + 4);
    const int length =
        mdb_unicode2ascii(mdb, reinterpret_cast<const char*>(stored.data()), stored.size(), utf8.data(), utf8.size());
    return {utf8.data(), static_cast<std::size_t>(std::clamp<int>(length, 0, static_cast<int>(utf8.size())))};
}

bool Source::hasChanged() const
{
    struct stat now{};
    return fstat(file, &now) != 0 || now.st_size != size || now.st_mtim.tv_sec != changed.tv_sec ||
           now.st_mtim.tv_nsec != changed.tv_nsec;
}

}  // namespace store
