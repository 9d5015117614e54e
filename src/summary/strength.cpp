#include "summary/strength.h"

#include "activities/misc/misc_norms.h"
#include "figures/conversions.h"
#include "figures/run_time_error.h"

#include <cmath>

namespace summary {

using figures::numbered;
using figures::requireFinite;
using figures::toInt16;
using figures::toSingle;

Strength strengthOf(const SrSeFigures& srSe, int row)
{
    Strength result;
    result.mandays = requireFinite(srSe.trMandays + srSe.mMandays + srSe.sMandays,
                                   numbered("the total of mandays of Sr SE", row), row);

    const std::string what = numbered("the calculated strength of Sr SE", row);
    const float men = toSingle(
        (result.mandays + LeaveReserve * (result.mandays + srSe.matesAndKeymen)) / misc::MandaysPerMan, what, row);
    result.calculated = toSingle(std::floor(men + RoundUpFromTenth), what, row);

    result.excess = requireFinite((srSe.decasualisedPosts + srSe.sanctioned) - result.calculated,
                                  numbered("the excess of Sr SE", row), row);
    return result;
}

TableTotals addRows(const TableTotals& totals, std::span<const TableRow> rows)
{
    TableTotals sum = totals;
    for (int row = 0; const TableRow& entry : rows) {
        const std::string what = numbered("the column total at row", row);
        sum.km = requireFinite(sum.km + entry.km, what, row);
        sum.trMandays = requireFinite(sum.trMandays + entry.trMandays, what, row);
        sum.mMandays = requireFinite(sum.mMandays + entry.mMandays, what, row);
        sum.sMandays = requireFinite(sum.sMandays + entry.sMandays, what, row);
        sum.mandays = requireFinite(sum.mandays + entry.mandays, what, row);
        sum.calculated = toSingle(sum.calculated + entry.calculated, what, row);
        sum.matesAndKeymen = requireFinite(sum.matesAndKeymen + entry.matesAndKeymen, what, row);
        sum.leaveReserve = requireFinite(sum.leaveReserve + entry.leaveReserve, what, row);
        sum.sanctioned = requireFinite(sum.sanctioned + entry.sanctioned, what, row);
        sum.decasualisedPosts = toInt16(sum.decasualisedPosts + entry.decasualisedPosts,
                                        numbered("the total of decasualised posts at row", row), row);
        sum.excess = requireFinite(sum.excess + entry.excess, what, row);
        ++row;
    }
    return sum;
}

}  // namespace summary
