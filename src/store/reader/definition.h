#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "store/reader/cell_text.h"

namespace store {

struct Source;

struct Column {
    std::string name;
    Kind kind = Kind::Text;
    bool isReadable = true;     ///< a kind of value that has a text; its cells are empty if not
    bool isCalculated = false;  ///< from other columns; its values are stored in a form of their own
    bool isFixed = false;       ///< its values lie at the same place of every record
    unsigned number = 0;        ///< bit of the record's mask that tells whether the record has a value here
    unsigned place = 0;         ///< [byte] behind the record's first number if fixed, else among the variable columns
    unsigned length = 0;        ///< [byte] of a fixed column
    int scale = 0;              ///< decimals of a Decimal

    /// The bit of the record's mask is itself the value.
    bool isInMask() const { return kind == Kind::YesNo && !isCalculated; }
};

/// What a table's definition says, checked: numbers and places within the maxima, each taken once, fixed columns that
/// do not overlap.
struct Definition {
    std::vector<Column> columns;      ///< in the order in which Access shows them
    std::uint32_t recordsSaid = 0;    ///< number of records; 0: not known
    unsigned maxColumns = 0;          ///< that a record can have, with columns deleted since
    unsigned maxVariableColumns = 0;  ///< of these
    std::uint32_t pageMap = 0;        ///< where the map of the table's pages is: page << 8 | slot
    bool isJet3 = false;              ///< records are those of Access 97
};

/// The definition that starts on `page`. Throws ReadError if it is incomplete or makes no sense.
Definition readDefinition(const Source& source, std::uint32_t page);

}  // namespace store
