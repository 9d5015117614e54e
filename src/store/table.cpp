#include "store/table.h"

#include <cassert>
#include <utility>

#include "figures/run_time_error.h"

namespace store {

Table::Table(std::string name, const std::vector<std::string>& headings)
    : m_name(std::move(name)), m_fields(headings.size())
{
    append({headings.begin(), headings.end()});
}

void Table::reserve(std::size_t bytes, std::size_t cells)
{
    m_block.reserve(bytes);
    m_ends.reserve(cells);
}

void Table::append(const std::vector<std::string_view>& cells)
{
    assert(cells.size() == m_fields);
    for (const std::string_view cell : cells) {
        m_block += cell;
        m_ends.push_back(static_cast<std::uint32_t>(m_block.size()));
    }
}

int Table::rows() const
{
    return m_fields == 0 ? 0 : static_cast<int>(m_ends.size() / m_fields);
}

int Table::columns() const
{
    return m_fields == 0 ? 0 : static_cast<int>(m_fields) + 1;
}

std::string_view Table::text(int row, int column) const
{
    const auto missing = [this](const char* what, int number) {
        return figures::RunTimeError(figures::ErrorKind::SubscriptOutOfRange,
                                     what + std::to_string(number) + " of table " + m_name +
                                         " is missing. Type the figures, or choose a data file that holds it");
    };
    if (row < 0 || row >= rows())
        throw missing("row ", row);
    if (column < 0 || column >= columns())
        throw missing("column ", column);
    if (column == 0)
        return {};

    const std::size_t cell = static_cast<std::size_t>(row) * m_fields + static_cast<std::size_t>(column) - 1;
    const std::size_t begin = cell == 0 ? 0 : m_ends[cell - 1];
    return std::string_view(m_block).substr(begin, m_ends[cell] - begin);
}

}  // namespace store
