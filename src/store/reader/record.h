#pragma once
#include <cstddef>
#include <vector>

#include "store/reader/bytes.h"
#include "store/reader/definition.h"

namespace store {

/// The values of one record, none of which is believed before the whole record keeps the rules of the format: columns
/// at most those of the table, variable ones too, their places rising and between the fixed ones and the record's end,
/// no bytes where there is no value.
class Record {
public:
    /// False if the record breaks a rule: it has no values then. The bytes must stay as long as the values are used.
    bool take(Bytes record, const Definition& table);

    /// There is no value: none was entered, or the record was written before the column was added.
    bool isNull(const Column& column) const;
    /// The bytes of the value; none for a Yes/No, which is in isNull.
    Bytes value(const Column& column) const;

private:
    bool takeVariablePlaces(std::size_t maskBegin, const Definition& table);

    Bytes m_bytes;
    Bytes m_mask;  // a bit for each column: 1 if there is a value, or if it is Yes
    std::size_t m_countSize = 2;
    unsigned m_columns = 0;             // that there were when the record was written
    std::vector<std::size_t> m_places;  // of the variable columns, and the end of the last one
};

}  // namespace store
