#include "store/reader/table_walk.h"

#include <algorithm>

#include "store/reader/utf16_text.h"

namespace store {

namespace {

// What the first byte of a page tells.
constexpr unsigned char DataPage = 1;
constexpr unsigned char IndexPage = 3;
constexpr unsigned char IndexLeafPage = 4;

constexpr std::uint32_t LongTextOwner = 0x4C41564C;  // "LVAL", instead of the table's page

}  // namespace

TableWalk::TableWalk(const Source& source, std::uint32_t page)
    : m_source(source),
      m_table(page),
      m_definition(readDefinition(source, page)),
      m_map(readPageMap(source, m_definition.pageMap)),
      m_recordsLost(!m_map.isWhole)
{
}

bool TableWalk::isOwnPage(Bytes page) const
{
    return page.size() >= 8 && page[0] == DataPage && number32(page, 4) == m_table;
}

/// Goes to the table's next page that holds records, in the order of the table's map of pages.
bool TableWalk::nextPage()
{
    while (m_nextPage < m_map.pages.size()) {
        m_page = m_map.pages[m_nextPage++];
        const Bytes page = m_source.page(m_page);
        if (isOwnPage(page)) {
            const std::size_t firstSlot = std::size_t{m_source.mdb->fmt->row_count_offset} + 2;
            const std::size_t room = page.size() < firstSlot ? 0 : (page.size() - firstSlot) / 2;
            m_slots = static_cast<unsigned>(std::min<std::size_t>(m_source.placesOn(page), room));
            m_slot = 0;
            m_recordsLost = m_recordsLost || m_source.placesOn(page) > room || page.size() < firstSlot;
            return true;
        }
        const bool isIndex =
            page.size() >= 8 && (page[0] == IndexPage || page[0] == IndexLeafPage) && number32(page, 4) == m_table;
        const bool isLongText = page.size() >= 8 && page[0] == DataPage && number32(page, 4) == LongTextOwner;
        if (!isIndex && !isLongText)
            m_recordsLost = true;
    }
    return false;
}

bool TableWalk::next()
{
    for (;;) {
        while (m_slot < m_slots)
            if (loadRecord(m_slot++))
                return true;
        if (!nextPage())
            return false;
    }
}

/// Goes where the pointer at `place` of `page` points to, and on if there is another one. False if it leads nowhere.
bool TableWalk::followPointer(Bytes& page, Place& place) const
{
    constexpr int maxSteps = 8;
    for (int step = 0; place.isPointer; ++step) {
        if (step == maxSteps || place.end - place.begin < 4)
            return false;
        const std::uint32_t where = number32(page, place.begin);
        page = m_source.page(where >> 8);
        const std::optional<Place> next = m_source.place(page, where & 0xFF);
        if (!isOwnPage(page) || !next)
            return false;
        place = *next;
    }
    return true;
}

/// Takes the record at `slot` of the table's page apart. False if there is none: deleted, moved here from elsewhere
/// (it was or will be met at its pointer), or lost.
bool TableWalk::loadRecord(unsigned slot)
{
    Bytes page = m_source.page(m_page);
    std::optional<Place> place = m_source.place(page, slot);
    if (!place) {
        m_recordsLost = true;
        return false;
    }
    if (place->isDeleted || place->begin == place->end)
        return false;
    if (!followPointer(page, *place) || place->begin == place->end) {
        m_recordsLost = true;
        return false;
    }
    m_isDamaged = !m_record.take(page.subspan(place->begin, place->end - place->begin), m_definition);
    return true;
}

TableWalk::Cell TableWalk::cell(const Column& column, std::string& text)
{
    text.clear();
    if (m_isDamaged)
        return Cell::Unreadable;
    if (!column.isReadable)
        return Cell::Empty;
    if (column.isInMask()) {
        text = m_record.isNull(column) ? "False" : "True";
        return Cell::Text;
    }
    if (m_record.isNull(column))
        return Cell::Empty;
    const Bytes stored = m_record.value(column);
    return column.kind == Kind::Memo ? longText(column, stored, text) : value(column, stored, text);
}

/// The text of a value, which for a long text is the text itself.
TableWalk::Cell TableWalk::value(const Column& column, Bytes stored, std::string& text) const
{
    if (column.isCalculated) {
        const std::optional<Bytes> calculated = calculatedValue(stored);
        if (!calculated)
            return Cell::Unreadable;
        if (calculated->empty())
            return Cell::Empty;
        stored = *calculated;
    }
    if (column.kind == Kind::Text || column.kind == Kind::Memo) {
        if (m_source.isJet3())
            text += m_source.decoded(stored);
        else
            appendText(text, stored);
        return Cell::Text;
    }
    const bool isValue = column.isCalculated ? appendCalculated(text, column.kind, stored)
                                             : appendNumber(text, column.kind, stored, column.scale);
    return isValue ? Cell::Text : Cell::Unreadable;
}

/// A long text lies in its record, in one piece on another page, or in a chain of pieces.
TableWalk::Cell TableWalk::longText(const Column& column, Bytes field, std::string& text) const
{
    constexpr std::size_t headSize = 12;  // length and flags, place of the first piece, 4 bytes unused
    constexpr std::uint32_t inRecord = 0x80000000;
    constexpr std::uint32_t inOnePiece = 0x40000000;
    constexpr std::uint32_t lengthMask = 0x3FFFFFFF;
    if (field.size() < headSize)
        return Cell::Unreadable;
    const std::uint32_t head = number32(field, 0);
    const std::size_t length = head & lengthMask;

    if ((head & inRecord) != 0) {
        if (length > field.size() - headSize)
            return Cell::Unreadable;
        return value(column, field.subspan(headSize, length), text);
    }

    std::vector<unsigned char> stored;
    std::uint32_t where = number32(field, 4);
    const std::size_t pieceHeader = (head & inOnePiece) != 0 ? 0 : 4;
    for (std::uint32_t pieces = 0; stored.size() < length && where != 0; ++pieces) {
        if (pieces > m_source.pages())
            throw ReadError{Refusal::Damaged};  // more pieces than pages: the chain goes in a circle
        std::uint32_t next = 0;
        if (!appendPiece(where, stored, pieceHeader, next))
            return Cell::Unreadable;
        where = next;
    }
    if (stored.size() < length)
        return Cell::Unreadable;
    return value(column, Bytes(stored).first(length), text);
}

/// Appends the piece at `where` without its header, which tells where the next one is. The record in hand stays.
bool TableWalk::appendPiece(std::uint32_t where, std::vector<unsigned char>& stored, std::size_t header,
                            std::uint32_t& next) const
{
    const Bytes page = m_source.otherPage(where >> 8);
    const std::optional<Place> place = m_source.place(page, where & 0xFF);
    if (!place || place->end - place->begin < header)
        return false;
    const Bytes piece = page.subspan(place->begin, place->end - place->begin);
    if (header != 0)
        next = number32(piece, 0);
    stored.insert(stored.end(), piece.begin() + static_cast<std::ptrdiff_t>(header), piece.end());
    return true;
}

}  // namespace store
