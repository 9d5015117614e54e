#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "store/reader/definition.h"
#include "store/reader/page_map.h"
#include "store/reader/record.h"
#include "store/reader/source.h"

namespace store {

/// Walks through the records of one table in the order in which Access shows them, column by column in the order of
/// the table's definition.
///
/// The library's own row fetch gets both orders wrong: it meets a record that outgrew its place where it lies now,
/// not where it was entered, and it sorts the columns by their numbers, which say when a column was made, not where
/// it was moved to. It also takes what it finds for sound, and loses records without a word. So the definition, the map
/// of the table's pages, the places for records on them and the records are taken apart here, and nothing of them is
/// believed before it is checked.
class TableWalk {
public:
    enum class Cell { Empty, Text, Unreadable };

    /// The table whose definition starts on `page`. Throws ReadError if that is no definition that makes sense.
    TableWalk(const Source& source, std::uint32_t page);
    TableWalk(const TableWalk&) = delete;
    TableWalk& operator=(const TableWalk&) = delete;

    const std::vector<Column>& columns() const { return m_definition.columns; }
    std::uint32_t recordsSaid() const { return m_definition.recordsSaid; }  ///< by the table's header; 0: not known
    bool recordsLost() const { return m_recordsLost; }  ///< so far, a page or a place held no record

    /// Goes to the next record; false behind the last one.
    bool next();

    /// The record in hand breaks the rules of the format: all its cells are unreadable.
    bool isDamaged() const { return m_isDamaged; }

    /// Puts the text of the record's cell into `text`. Throws ReadError where a long text has no end.
    Cell cell(const Column& column, std::string& text);

private:
    bool nextPage();
    bool isOwnPage(Bytes page) const;
    bool loadRecord(unsigned slot);
    bool followPointer(Bytes& page, Place& place) const;
    Cell value(const Column& column, Bytes stored, std::string& text) const;
    Cell longText(const Column& column, Bytes field, std::string& text) const;
    bool appendPiece(std::uint32_t where, std::vector<unsigned char>& stored, std::size_t header,
                     std::uint32_t& next) const;

    const Source& m_source;
    std::uint32_t m_table;  // page of the definition
    Definition m_definition;
    PageMap m_map;
    Record m_record;

    std::size_t m_nextPage = 0;  // among those of the map
    std::uint32_t m_page = 0;
    unsigned m_slot = 0;
    unsigned m_slots = 0;
    bool m_recordsLost = false;
    bool m_isDamaged = false;
};

}  // namespace store
