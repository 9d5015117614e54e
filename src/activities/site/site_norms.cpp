#include "activities/site/site_norms.h"

#include "activities/misc/misc_norms.h"
#include "figures/conversions.h"
#include "figures/run_time_error.h"

#include <cmath>

namespace site {

namespace {

using figures::numbered;
using figures::requireFinite;
using figures::toSingle;

[[noreturn]] void noShare(const GangLength& gang, int row)
{
    const std::string detail =
        gang.lengthKm == 0 ? numbered("the length of gang", row) + " is 0"
                           : numbered("the share of poor visibility of gang", row) + " is too large to compute with";
    throw figures::RunTimeError(figures::ErrorKind::FloatingPoint, detail, row);
}

}  // namespace

double addTrackMetres(double trackMetres, std::span<const Structures> structures)
{
    for (int row = 0; const Structures& structure : structures) {
        trackMetres = requireFinite(trackMetres + structure.tracks * structure.lengthM,
                                    numbered("the sum of track metres at row", row), row);
        ++row;
    }
    return trackMetres;
}

double tunnelMandays(double trackMetres)
{
    return requireFinite(TunnelPerMetre * trackMetres, "the number of S.1 mandays");
}

double bridgeMandays(double trackMetres)
{
    return requireFinite(BridgePerMetre * trackMetres, "the number of S.2 mandays");
}

double longGirderMandays(double trackMetres)
{
    return requireFinite(LongGirderPerMetre * trackMetres, "the number of S.3 mandays");
}

float sharpCurveMandays(float curveKm)
{
    return toSingle(misc::MandaysPerMan * curveKm, "the number of S.4 mandays");
}

double badFormationMandays(std::span<const float> lengthsM)
{
    double metres = 0.0;
    for (const float length : lengthsM)
        metres += length;  // singles: their sum stays far inside a double's range
    return BadFormationPerMetre * metres;
}

double lookOutMandays(std::span<const GangLength> gangs)
{
    double shares = 0.0;
    for (int row = 0; const GangLength& gang : gangs) {
        const float share = gang.poorVisibilityKm / gang.lengthKm;  // single: the norm's own step
        if (!std::isfinite(share))
            noShare(gang, row);
        shares += share;
        ++row;
    }
    return misc::MandaysPerMan * shares;
}

float averageMandays(const std::array<float, AveragedYears>& mandays)
{
    float sum = 0.0F;
    for (const float year : mandays)
        sum += year;  // single after every year
    return toSingle(sum / AveragedYears, "the average of the past years");
}

double filthRemovalMandays(double gangs)
{
    return requireFinite(misc::MandaysPerMan * gangs, "the number of S.8 mandays");
}

double waterLevelMandays(std::span<const WatchedWater> locations)
{
    double mandays = 0.0;
    for (int row = 0; const WatchedWater& location : locations) {
        mandays +=
            toSingle(location.shifts * location.days, numbered("the number of S.10 mandays of location", row), row);
        ++row;
    }
    return mandays;
}

float siteTotal(const SiteMandays& m)
{
    return toSingle(m.waterLevels + m.securityPatrolling + m.filthRemoval + m.fogSignal + m.lookOut + m.badFormations +
                        m.tunnels + m.bridges + m.longGirders + m.sharpCurves,
                    "the total of 'S' mandays");
}

}  // namespace site
