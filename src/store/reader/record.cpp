#include "store/reader/record.h"

#include <algorithm>

namespace store {

bool Record::take(Bytes record, const Definition& table)
{
    m_bytes = record;
    m_columns = 0;
    m_places.clear();
    m_countSize = table.isJet3 ? 1 : 2;
    if (record.size() < m_countSize)
        return false;
    const auto columns = static_cast<unsigned>(lowByteFirst(record, 0, m_countSize));
    const std::size_t maskSize = (columns + 7) / 8;
    if (columns == 0 || columns > table.maxColumns || maskSize > record.size() - m_countSize)
        return false;
    const std::size_t maskBegin = record.size() - maskSize;
    m_mask = record.subspan(maskBegin);
    if (table.maxVariableColumns > 0 && !takeVariablePlaces(maskBegin, table))
        return false;

    m_columns = columns;
    const std::size_t fixedEnd = m_places.empty() ? maskBegin : m_places.front();
    const bool isSound = std::all_of(table.columns.begin(), table.columns.end(), [&](const Column& column) {
        if (column.isInMask())
            return true;
        if (column.isFixed)
            return column.number >= columns || m_countSize + column.place + column.length <= fixedEnd;
        const bool hasPlace = column.place + std::size_t{1} < m_places.size();
        return isNull(column) ? !hasPlace || m_places[column.place] == m_places[column.place + 1] : hasPlace;
    });
    if (!isSound)
        m_columns = 0;
    return isSound;
}

/// The places stand before the mask, last one first, and behind them their number. In a record of Access 97 a place is
/// one byte; each of the bytes between places and number tells from which column on 256 more are meant.
bool Record::takeVariablePlaces(std::size_t maskBegin, const Definition& table)
{
    const std::size_t size = table.isJet3 ? 1 : 2;
    const std::size_t jumps = table.isJet3 ? (m_bytes.size() - 1) / 256 : 0;
    if (maskBegin < 2 * m_countSize + jumps + size)
        return false;
    const std::size_t numberAt = maskBegin - m_countSize;
    const std::size_t number = lowByteFirst(m_bytes, numberAt, m_countSize);
    const std::size_t firstAt = numberAt - jumps - size;
    if (number > table.maxVariableColumns || firstAt < m_countSize + number * size)
        return false;
    const std::size_t valuesEnd = firstAt - number * size;

    // A record whose places all end before the last multiple of 256 has one byte too many, of no meaning.
    const std::size_t jumpsMeant = jumps > 0 && valuesEnd / 256 < jumps ? jumps - 1 : jumps;
    std::size_t jumped = 0;
    for (std::size_t i = 0; i <= number; ++i) {
        while (jumped < jumpsMeant && m_bytes[numberAt - 1 - jumped] == i)
            ++jumped;
        m_places.push_back(lowByteFirst(m_bytes, firstAt - i * size, size) + 256 * jumped);
    }
    return std::is_sorted(m_places.begin(), m_places.end()) && m_places.front() >= m_countSize &&
           m_places.back() <= valuesEnd;
}

bool Record::isNull(const Column& column) const
{
    return column.number >= m_columns || (m_mask[column.number / 8] >> column.number % 8 & 1) == 0;
}

Bytes Record::value(const Column& column) const
{
    if (isNull(column) || column.isInMask())
        return {};
    if (column.isFixed)
        return m_bytes.subspan(m_countSize + column.place, column.length);
    return m_bytes.subspan(m_places[column.place], m_places[column.place + 1] - m_places[column.place]);
}

}  // namespace store
