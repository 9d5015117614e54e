#pragma once
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <sys/types.h>

// Before mdbtools.h, which includes it between its own extern "C" braces.
#include <glib.h>

#include <mdbtools.h>

#include "store/reader/cell_text.h"
#include "store/refusal.h"

namespace store {

/// Thrown when a table cannot be opened or read any further.
struct Refused {
    Refusal why;
};

/// The data file, open for reading. `size` [byte] is that of the moment when it was opened.
struct Source {
    MdbHandle* mdb = nullptr;
    off_t size = 0;
    bool hasSignature = false;  ///< starts as an Access file does

    off_t pageSize() const { return mdb->fmt->pg_size; }
    bool isJet3() const { return mdb->f->jet_version == MDB_VER_JET3; }  ///< of Access 97
};

/// Walks through the records of one table in the order in which Access shows them, column by column in the order of
/// the table's definition.
///
/// The library's own row fetch gets both orders wrong: it meets a record that outgrew its place where it lies now,
/// not where it was entered, and it sorts the columns by their numbers, which say when a column was made, not where
/// it was moved to. So the pages and the places for records on them are walked here, with the library's functions
/// for reading one page, one place and the fields of one record.
///
/// Of a damaged file nothing is trusted: every position that the library hands over is checked before it is used.
class TableWalk {
public:
    struct Column {
        std::string name;
        Kind kind = Kind::Text;
        bool isReadable = true;  ///< a kind of value that has a text; its cells are empty if not
        unsigned number = 0;     ///< bit of the record's mask that tells whether the record has a value here
        int scale = 0;           ///< decimals of a Decimal
        std::size_t field = 0;   ///< place among the library's sorted columns
    };
    enum class Cell { Empty, Text, Unreadable };

    /// The table whose definition starts on `page`. Throws Refused if that is no definition that makes sense.
    TableWalk(const Source& source, unsigned long page);
    TableWalk(const TableWalk&) = delete;
    TableWalk& operator=(const TableWalk&) = delete;

    const std::vector<Column>& columns() const { return m_columns; }
    std::uint32_t recordsSaid() const { return m_table->num_rows; }  ///< by the table's header; 0: not known
    bool recordsLost() const { return m_recordsLost; }  ///< so far, a place held no record that makes sense

    /// Goes to the next record; false behind the last one.
    bool next();

    /// Puts the text of the record's cell into `text`. Throws Refused where a long text has no end.
    Cell cell(const Column& column, std::string& text);

private:
    /// Where a record lies on the page in hand.
    struct Place {
        int begin = 0;
        int end = 0;
        bool isPointer = false;
        bool isDeleted = false;  ///< or moved here from elsewhere
    };

    std::vector<unsigned char> readDefinition(std::size_t count);
    void readColumns();
    bool nextPage();
    bool read(unsigned long page);
    bool find(unsigned slot, Place& place) const;
    bool reach(unsigned slot);
    bool followPointer(Place& place);
    Cell longText(Bytes field, std::string& text);
    bool appendPiece(std::uint32_t where, std::vector<unsigned char>& stored, std::size_t header, std::uint32_t& next);
    void appendStoredText(Bytes stored, std::string& text) const;
    int bytesOnPage(unsigned long page) const;

    Source m_source;
    MdbCatalogEntry m_entry;
    std::unique_ptr<MdbTableDef, void (*)(MdbTableDef*)> m_table;
    std::vector<Column> m_columns;

    std::vector<MdbField> m_fields;  // of the record in hand, in the library's order
    Place m_record;
    int m_fieldsPresent = 0;  // columns that there were when the record was written

    unsigned long m_page = 0;
    off_t m_pagesWalked = 0;
    unsigned m_slot = 0;
    unsigned m_slots = 0;
    bool m_recordsLost = false;
};

}  // namespace store
