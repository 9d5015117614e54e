#pragma once
#include <cstdint>
#include <span>

namespace summary {

/// Leave reserve: a share of mandays plus mates and keymen. One man gives misc::MandaysPerMan mandays a year.
inline constexpr double LeaveReserve = 0.125;
/// Added before a strength is cut to whole men: a tenth of a man or more makes one man.
inline constexpr double RoundUpFromTenth = 0.9;

/// One Sr SE's figures as transferred into the division's table.
struct SrSeFigures {
    double trMandays = 0.0;          ///< 'T'+'R' [manday/year]
    double mMandays = 0.0;           ///< 'M' [manday/year]
    double sMandays = 0.0;           ///< 'S' [manday/year]
    double matesAndKeymen = 0.0;     ///< [men], added to mandays as it stands
    double sanctioned = 0.0;         ///< sanctioned strength [men]
    double decasualisedPosts = 0.0;  ///< sanctioned [men]
};

struct Strength {
    double mandays = 0.0;     ///< 'T'+'R'+'M'+'S' [manday/year], not rounded
    float calculated = 0.0F;  ///< whole men
    double excess = 0.0;      ///< sanctioned posts less calculated strength [men]; negative is a shortage
};

/// Single precision: the strength is rounded to single before the tenths are judged (7.1 men, as a single below 7.1,
/// are 7), and again as whole men. Throws RunTimeError (overflow, with `row`, the Sr SE counted from 0).
Strength strengthOf(const SrSeFigures& srSe, int row);

/// One row of the division's table as it stands on the screen.
struct TableRow {
    double km = 0.0;
    double trMandays = 0.0;
    double mMandays = 0.0;
    double sMandays = 0.0;
    double mandays = 0.0;
    float calculated = 0.0F;
    double matesAndKeymen = 0.0;
    double leaveReserve = 0.0;
    double sanctioned = 0.0;
    double decasualisedPosts = 0.0;
    double excess = 0.0;
};

/// Column totals.
struct TableTotals {
    double km = 0.0;
    double trMandays = 0.0;
    double mMandays = 0.0;
    double sMandays = 0.0;
    double mandays = 0.0;
    float calculated = 0.0F;
    double matesAndKeymen = 0.0;
    double leaveReserve = 0.0;
    double sanctioned = 0.0;
    std::int16_t decasualisedPosts = 0;
    double excess = 0.0;
};

/// `totals` with the rows added. Single precision: the calculated strength after each row. The decasualised posts are
/// rounded to a whole number of 16 bits, half to even, after each row. Throws RunTimeError (overflow, with the row
/// counted from 0).
TableTotals addRows(const TableTotals& totals, std::span<const TableRow> rows);

}  // namespace summary
