#pragma once
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace store {

/// A table of a data file as text in UTF-8: row 0 holds the column headings, the records follow from row 1;
/// column 0 is the grid's left margin and always "", the table's first field is column 1.
/// Cells lie in one block of memory: 20,000 records cost little more than their text.
class Table {
public:
    Table() = default;

    /// A table without records; `name` is its name in the data file, used in messages. Without headings it is a
    /// table that was never opened, of which every row is missing.
    Table(std::string name, const std::vector<std::string>& headings);

    /// Makes room for so many bytes of text in so many cells, so that nothing is moved while records are added.
    void reserve(std::size_t bytes, std::size_t cells);

    /// Adds a record; `cells` holds one text a column, in the order of the headings.
    void append(const std::vector<std::string_view>& cells);

    const std::string& name() const { return m_name; }
    int rows() const;     ///< records + 1; 0 for a table that was never opened
    int columns() const;  ///< fields + 1; 0 for a table that was never opened

    /// Throws RunTimeError (subscript) that names the table and the row or column that is missing.
    std::string_view text(int row, int column) const;

private:
    std::string m_name;
    std::string m_block;
    std::vector<std::uint32_t> m_ends;  // end of each cell in m_block, row by row, margin left out
    std::size_t m_fields = 0;
};

}  // namespace store
