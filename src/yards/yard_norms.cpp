#include "yards/yard_norms.h"

#include "figures/conversions.h"
#include "figures/run_time_error.h"
#include "track/track_length.h"

namespace yards {

namespace {

using figures::numbered;
using figures::requireFinite;
using figures::toSingle;

const YardNorm& normOf(std::string_view gauge)
{
    if (gauge == "BG")
        return BgYards;
    return gauge == "MG" ? MgYards : NgYards;
}

}  // namespace

YardLines addYards(const YardLines& sums, std::span<const YardLines> yards)
{
    YardLines total = sums;
    for (int row = 0; const YardLines& yard : yards) {
        const std::string what = numbered("the column total at yard", row);
        total.machineKm = requireFinite(total.machineKm + yard.machineKm, what, row);
        total.manualKm = requireFinite(total.manualKm + yard.manualKm, what, row);
        total.nonRunningKm = requireFinite(total.nonRunningKm + yard.nonRunningKm, what, row);
        total.machineTurnouts = requireFinite(total.machineTurnouts + yard.machineTurnouts, what, row);
        total.manualTurnouts = requireFinite(total.manualTurnouts + yard.manualTurnouts, what, row);
        total.nonRunningTurnouts = toSingle(total.nonRunningTurnouts + yard.nonRunningTurnouts, what, row);
        ++row;
    }
    return total;
}

float yardMandays(const YardLines& sums, std::string_view gauge)
{
    const YardNorm& norm = normOf(gauge);
    const double machineKm = sums.machineKm + track::KmPerTurnout * sums.machineTurnouts;
    const double manualKm = sums.manualKm + track::KmPerTurnout * sums.manualTurnouts;
    const double nonRunningKm = sums.nonRunningKm + track::KmPerTurnout * sums.nonRunningTurnouts;

    const double manual = norm.manuallyPackedPerKm * (manualKm + NonRunningTimes * nonRunningKm / NonRunningOver);
    return toSingle(norm.machinePackedPerKm ? *norm.machinePackedPerKm * machineKm + manual : manual,
                    "the number of mandays for yards");
}

}  // namespace yards
