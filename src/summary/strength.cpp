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

TableRow withStrength(TableRow row, int srSe)
{
    row.RowTMan = requireFinite(row.RowTR + row.RowM + row.RowS, numbered("the total of mandays of Sr SE", srSe), srSe);

    const std::string what = numbered("the calculated strength of Sr SE", srSe);
    const float men =
        toSingle((row.RowTMan + LeaveReserve * (row.RowTMan + row.RowKey)) / misc::MandaysPerMan, what, srSe);
    row.RowCS = std::floor(toSingle(men + RoundUpFromTenth, what, srSe));

    row.RowEx = requireFinite((row.RowSDC + row.RowSS) - row.RowCS, numbered("the excess of Sr SE", srSe), srSe);
    return row;
}

TableTotals addRows(const TableTotals& totals, std::span<const TableRow> rows)
{
    TableTotals sum = totals;
    for (int row = 0; const TableRow& entry : rows) {
        const std::string what = numbered("the column total at row", row);
        sum.TotKm = requireFinite(sum.TotKm + entry.RowKm, what, row);
        sum.TotTR = requireFinite(sum.TotTR + entry.RowTR, what, row);
        sum.TotM = requireFinite(sum.TotM + entry.RowM, what, row);
        sum.TotS = requireFinite(sum.TotS + entry.RowS, what, row);
        sum.TotTMan = requireFinite(sum.TotTMan + entry.RowTMan, what, row);
        sum.TotCS = toSingle(sum.TotCS + entry.RowCS, what, row);
        sum.TotKey = requireFinite(sum.TotKey + entry.RowKey, what, row);
        sum.TotLR = requireFinite(sum.TotLR + entry.RowLR, what, row);
        sum.TotSS = requireFinite(sum.TotSS + entry.RowSS, what, row);
        sum.TotSDC = toInt16(sum.TotSDC + entry.RowSDC, numbered("the total of decasualised posts at row", row), row);
        sum.TotEx = requireFinite(sum.TotEx + entry.RowEx, what, row);
        ++row;
    }
    return sum;
}

}  // namespace summary
