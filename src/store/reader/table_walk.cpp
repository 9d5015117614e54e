#include "store/reader/table_walk.h"

#include <algorithm>

#include "store/wire.h"

namespace store {

namespace {

// What the number of a place on a page carries above the position itself.
constexpr int PositionMask = 0x1FFF;
constexpr int PointerFlag = 0x4000;  // the record outgrew its place: here is only where to
constexpr int DeletedFlag = 0x8000;  // or the other end of such a pointer

constexpr unsigned MostIndexes = 1000;      // Access allows 32 and a few of its own; the library would read on for ever
constexpr std::size_t LongTextHeader = 12;  // length and flags, place of the first piece, 4 bytes unused

// In a column's definition since Access 2000 (Access 97 knows neither):
constexpr std::size_t ScaleOffset = 12;  // decimals of a Decimal; the library takes the digits for them
constexpr std::size_t CalculatedOffset = 16;
constexpr int CalculatedFlag = 0xC0;  // worked out from other columns, and stored in a form of its own

bool isKnown(int kind)
{
    switch (static_cast<Kind>(kind)) {
    case Kind::YesNo:
    case Kind::Byte:
    case Kind::Integer:
    case Kind::Long:
    case Kind::Currency:
    case Kind::Single:
    case Kind::Double:
    case Kind::DateTime:
    case Kind::Text:
    case Kind::Memo:
    case Kind::Decimal:
        return true;
    }
    return false;
}

}  // namespace

TableWalk::TableWalk(const Source& source, unsigned long page)
    : m_source(source),
      m_entry{.mdb = source.mdb,
              .object_name = "",
              .object_type = MDB_TABLE,
              .table_pg = page,
              .props = nullptr,
              .flags = 0},
      m_table(read(page) ? mdb_read_table(&m_entry) : nullptr, mdb_free_tabledef)
{
    if (!m_table || !m_table->usage_map || m_table->map_sz == 0)
        throw Refused{Refusal::Damaged};
    if (m_table->num_cols == 0 || m_table->num_cols > wire::MaxColumns || m_table->num_real_idxs > MostIndexes)
        throw Refused{Refusal::Damaged};
    readColumns();
    m_fields.resize(m_table->num_cols);
    mdb_rewind_table(m_table.get());
}

/// The first `count` bytes of the table's definition, which goes on from page to page.
std::vector<unsigned char> TableWalk::readDefinition(std::size_t count)
{
    constexpr int continuationHeader = 8;  // the next page's number ends it, on the first page too
    std::vector<unsigned char> definition;
    unsigned long page = m_entry.table_pg;
    for (int begin = 0; definition.size() < count; begin = continuationHeader) {
        if (!read(page))
            throw Refused{Refusal::Damaged};
        const unsigned char* const bytes = m_source.mdb->pg_buf;
        definition.insert(definition.end(), bytes + begin, bytes + m_source.pageSize());
        page = static_cast<std::uint32_t>(lowByteFirst({bytes, continuationHeader}, 4, 4));
    }
    return definition;
}

/// The library's columns, brought back into the order of the definition, which is read once more for that.
void TableWalk::readColumns()
{
    const GPtrArray* const sorted = mdb_read_columns(m_table.get());
    if (!sorted || sorted->len != m_table->num_cols)
        throw Refused{Refusal::Damaged};
    const auto at = [sorted](std::size_t index) {
        return static_cast<const MdbColumn*>(g_ptr_array_index(sorted, index));
    };

    const MdbFormatConstants& format = *m_source.mdb->fmt;
    const std::size_t entry = format.tab_col_entry_size;
    const std::size_t begin = format.tab_cols_start_offset + m_table->num_real_idxs * format.tab_ridx_entry_size;
    const std::vector<unsigned char> definition = readDefinition(begin + sorted->len * entry);

    std::vector<bool> taken(sorted->len);
    for (std::size_t i = 0; i < sorted->len; ++i) {
        const unsigned char* const column = definition.data() + begin + i * entry;
        const int number = column[format.col_num_offset];
        std::size_t field = 0;
        while (field < sorted->len && (taken[field] || at(field)->col_num != number))
            ++field;
        if (field == sorted->len)
            throw Refused{Refusal::Damaged};
        taken[field] = true;

        const bool isCalculated = !m_source.isJet3() && (column[CalculatedOffset] & CalculatedFlag) == CalculatedFlag;
        m_columns.push_back({.name = at(field)->name,
                             .kind = static_cast<Kind>(at(field)->col_type),
                             .isReadable = isKnown(at(field)->col_type) && !isCalculated,
                             .number = static_cast<unsigned>(number),
                             .scale = m_source.isJet3() ? 0 : column[ScaleOffset],
                             .field = field});
    }
}

/// Of a file that ends inside a page the library makes a whole page; only these bytes of it are the file's.
int TableWalk::bytesOnPage(unsigned long page) const
{
    const off_t begin = static_cast<off_t>(page) * m_source.pageSize();
    return static_cast<int>(std::clamp<off_t>(m_source.size - begin, 0, m_source.pageSize()));
}

bool TableWalk::read(unsigned long page)
{
    return bytesOnPage(page) > 0 && mdb_read_pg(m_source.mdb, page) == m_source.pageSize();
}

/// Goes to the table's next page, in the order of the table's map of pages.
bool TableWalk::nextPage()
{
    if (mdb_read_next_dpg(m_table.get()) == 0)
        return false;
    if (++m_pagesWalked > m_source.size / m_source.pageSize() + 1)
        throw Refused{Refusal::Damaged};  // the map goes in a circle
    m_page = m_source.mdb->cur_pg;

    const int countOffset = m_source.mdb->fmt->row_count_offset;
    const int places = (bytesOnPage(m_page) - countOffset - 2) / 2;
    const int said = mdb_get_int16(m_source.mdb->pg_buf, countOffset);
    m_slots = static_cast<unsigned>(std::clamp(said, 0, std::max(places, 0)));
    m_slot = 0;
    if (said > places)
        m_recordsLost = true;
    return true;
}

bool TableWalk::next()
{
    for (;;) {
        while (m_slot < m_slots)
            if (reach(m_slot++))
                return true;
        if (!nextPage())
            return false;
    }
}

/// Finds the place `slot` of the page in hand; false if it does not lie within the page.
bool TableWalk::find(unsigned slot, Place& place) const
{
    int start = 0;
    std::size_t length = 0;
    if (mdb_find_row(m_source.mdb, static_cast<int>(slot), &start, &length) != 0)
        return false;
    place.begin = start & PositionMask;
    place.end = place.begin + static_cast<int>(length);
    place.isPointer = (start & PointerFlag) != 0;
    place.isDeleted = (start & DeletedFlag) != 0;
    return place.end <= bytesOnPage(m_source.mdb->cur_pg);
}

/// Goes where the pointer at `place` points to, and on if there is another one. False if it leads nowhere.
bool TableWalk::followPointer(Place& place)
{
    constexpr int mostSteps = 8;
    for (int step = 0; place.isPointer; ++step) {
        if (step == mostSteps || place.end - place.begin < 4)
            return false;
        const auto where = static_cast<std::uint32_t>(mdb_get_int32(m_source.mdb->pg_buf, place.begin));
        if (!read(where >> 8) || m_source.mdb->pg_buf[0] != MDB_PAGE_DATA ||
            mdb_get_int32(m_source.mdb->pg_buf, 4) != static_cast<long>(m_entry.table_pg) || !find(where & 0xFF, place))
            return false;
    }
    return true;
}

/// Takes the record at `slot` of the table's page apart. False if there is none: deleted, moved here from elsewhere
/// (it was or will be met at its pointer), or damaged.
bool TableWalk::reach(unsigned slot)
{
    Place place;
    if (!read(m_page) || !find(slot, place)) {
        m_recordsLost = true;
        return false;
    }
    if (place.isDeleted || place.begin == place.end)
        return false;
    if (!followPointer(place) || place.begin == place.end) {
        m_recordsLost = true;
        return false;
    }
    m_record = place;
    m_fieldsPresent =
        mdb_crack_row(m_table.get(), place.begin, static_cast<std::size_t>(place.end - place.begin), m_fields.data());
    if (m_fieldsPresent <= 0) {
        m_recordsLost = true;
        return false;
    }
    return true;
}

TableWalk::Cell TableWalk::cell(const Column& column, std::string& text)
{
    text.clear();
    if (!column.isReadable)
        return Cell::Empty;

    // A record written before the column was added has no bit for it.
    const MdbField& field = m_fields[column.field];
    const bool isNull = field.is_null || column.number >= static_cast<unsigned>(m_fieldsPresent);
    if (column.kind == Kind::YesNo) {
        text = isNull ? "False" : "True";
        return Cell::Text;
    }
    if (isNull)
        return Cell::Empty;
    if (field.siz < 0 || field.start < m_record.begin || field.start > m_record.end - field.siz)
        return Cell::Unreadable;

    const Bytes stored(m_source.mdb->pg_buf + field.start, static_cast<std::size_t>(field.siz));
    switch (column.kind) {
    case Kind::Text:
        appendStoredText(stored, text);
        return Cell::Text;
    case Kind::Memo:
        return longText(stored, text);
    default:
        return appendNumber(text, column.kind, stored, column.scale) ? Cell::Text : Cell::Unreadable;
    }
}

/// A long text lies in its record, in one piece on another page, or in a chain of pieces.
TableWalk::Cell TableWalk::longText(Bytes field, std::string& text)
{
    constexpr std::uint32_t inRecord = 0x80000000;
    constexpr std::uint32_t inOnePiece = 0x40000000;
    constexpr std::uint32_t lengthMask = 0x3FFFFFFF;
    if (field.size() < LongTextHeader)
        return Cell::Unreadable;
    const auto head = static_cast<std::uint32_t>(lowByteFirst(field, 0, 4));
    const std::size_t length = head & lengthMask;

    if ((head & inRecord) != 0) {
        if (length > field.size() - LongTextHeader)
            return Cell::Unreadable;
        appendStoredText(field.subspan(LongTextHeader, length), text);
        return Cell::Text;
    }

    std::vector<unsigned char> stored;
    auto where = static_cast<std::uint32_t>(lowByteFirst(field, 4, 4));
    const std::size_t pieceHeader = (head & inOnePiece) != 0 ? 0 : 4;
    const off_t mostPieces = m_source.size / m_source.pageSize() + 1;
    for (off_t pieces = 0; stored.size() < length && where != 0; ++pieces) {
        if (pieces == mostPieces)
            throw Refused{Refusal::Damaged};  // more pieces than pages: the chain goes in a circle
        std::uint32_t next = 0;
        if (!appendPiece(where, stored, pieceHeader, next))
            return Cell::Unreadable;
        where = next;
    }
    if (stored.size() < length)
        return Cell::Unreadable;
    appendStoredText(Bytes(stored).first(length), text);
    return Cell::Text;
}

/// Appends the piece at `where` without its header, which tells where the next one is. The record in hand stays.
bool TableWalk::appendPiece(std::uint32_t where, std::vector<unsigned char>& stored, std::size_t header,
                            std::uint32_t& next)
{
    void* page = nullptr;
    int begin = 0;
    std::size_t length = 0;
    if (mdb_find_pg_row(m_source.mdb, static_cast<int>(where), &page, &begin, &length) != 0 || length < header ||
        begin + static_cast<int>(length) > bytesOnPage(where >> 8))
        return false;
    const Bytes piece(static_cast<const unsigned char*>(page) + begin, length);
    if (header != 0)
        next = static_cast<std::uint32_t>(lowByteFirst(piece, 0, header));
    stored.insert(stored.end(), piece.begin() + static_cast<std::ptrdiff_t>(header), piece.end());
    return true;
}

/// Access 97 stores one byte a character in the code page of its country, which the library knows.
void TableWalk::appendStoredText(Bytes stored, std::string& text) const
{
    if (!m_source.isJet3()) {
        appendText(text, stored);
        return;
    }
    std::vector<char> utf8(3 * stored.size() + 4);
    const int length = mdb_unicode2ascii(m_source.mdb, reinterpret_cast<const char*>(stored.data()), stored.size(),
                                         utf8.data(), utf8.size());
    text.append(utf8.data(), static_cast<std::size_t>(std::clamp<int>(length, 0, static_cast<int>(utf8.size()))));
}

}  // namespace store
