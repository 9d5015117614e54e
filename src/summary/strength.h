#pragma once
#include <cstdint>
#include <span>

namespace summary {

/// Leave reserve: a share of mandays plus mates and keymen. One man gives misc::MandaysPerMan mandays a year.
inline constexpr double LeaveReserve = 0.125;
/// Added before a strength is cut to whole men: a tenth of a man or more makes one man.
inline constexpr double RoundUpFromTenth = 0.9;

/// One Sr SE's row of the division's table.
struct TableRow {
    double RowKm = 0.0;    ///< total km
    double RowTR = 0.0;    ///< 'T'+'R' [manday/year]
    double RowM = 0.0;     ///< 'M' [manday/year]
    double RowS = 0.0;     ///< 'S' [manday/year]
    double RowTMan = 0.0;  ///< all of these [manday/year]
    float RowCS = 0.0F;    ///< calculated strength [men]
    double RowKey = 0.0;   ///< mates and keymen [men]
    double RowLR = 0.0;    ///< leave reserve [men]
    double RowSS = 0.0;    ///< sanctioned strength [men]
    double RowSDC = 0.0;   ///< sanctioned decasualised posts [men]
    double RowEx = 0.0;    ///< excess of posts [men]; negative is a shortage
};

/// Works out RowTMan, not rounded, RowCS, whole men, and RowEx from the row's other figures; the mates and keymen are
/// added to mandays as they stand. Single precision: the strength is rounded to single, and again with the 0.9 added,
/// so that 7.1 men are 8 and 7.09 are 7. Throws RunTimeError (overflow, with `srSe`, counted from 0).
TableRow withStrength(TableRow row, int srSe);

/// Column totals.
struct TableTotals {
    double TotKm = 0.0;
    double TotTR = 0.0;
    double TotM = 0.0;
    double TotS = 0.0;
    double TotTMan = 0.0;
    float TotCS = 0.0F;
    double TotKey = 0.0;
    double TotLR = 0.0;
    double TotSS = 0.0;
    std::int16_t TotSDC = 0;
    double TotEx = 0.0;
};

/// `totals` with the rows added. Single precision: the calculated strength after each row. The decasualised posts are
/// rounded to a whole number of 16 bits, half to even, after each row. Throws RunTimeError (overflow, with the row
/// counted from 0).
TableTotals addRows(const TableTotals& totals, std::span<const TableRow> rows);

}  // namespace summary
