#pragma once
#include <array>
#include <span>

namespace site {

/// The site-specific activities 'S', yearly. S.4, S.6 and S.8 cost one man's year (misc::MandaysPerMan) per km of
/// sharp curve, per gang's share of poor visibility and per gang.
// clang-format off
inline constexpr double TunnelPerMetre       = 0.348;  ///< S.1  per metre of tunnel and track [manday/m]
inline constexpr double BridgePerMetre       = 0.319;  ///< S.2  per metre of bridge and track [manday/m]
inline constexpr double LongGirderPerMetre   = 0.64;   ///< S.3  per metre of long bridge and track [manday/m]
inline constexpr double BadFormationPerMetre = 0.6;    ///< S.5  per metre of location [manday/m]
inline constexpr int    AveragedYears        = 3;      ///< S.7, S.9  years of mandays actually used
// clang-format on

// All functions throw RunTimeError (overflow; with the row counted from 0 where they take rows).

/// Tunnels or bridges with the same number of tracks.
struct Structures {
    double tracks = 0.0;   ///< [count]
    float lengthM = 0.0F;  ///< [m]
};

/// One gang of S.6.
struct GangLength {
    float poorVisibilityKm = 0.0F;  ///< [km]
    float lengthKm = 0.0F;          ///< [km], in the unit of poorVisibilityKm
};

/// One location of S.10.
struct WatchedWater {
    float shifts = 0.0F;  ///< [shift/day]
    float days = 0.0F;    ///< [day/year]
};

/// `trackMetres` with tracks times length of each row added [m of track].
double addTrackMetres(double trackMetres, std::span<const Structures> structures);

/// S.1, S.2, S.3 [manday/year], not rounded: the rate multiplies the sum of track metres once.
double tunnelMandays(double trackMetres);
double bridgeMandays(double trackMetres);
double longGirderMandays(double trackMetres);

/// S.4 [manday/year], in single precision. `curveKm`: curves sharper than 3 degrees on BG and 6 on MG [km].
float sharpCurveMandays(float curveKm);

/// S.5 [manday/year], not rounded: the rate multiplies the sum of the locations' lengths [m] once.
double badFormationMandays(std::span<const float> lengthsM);

/// S.6 look-out men [manday/year], not rounded. Single precision: each gang's share is rounded before it is added.
/// Throws RunTimeError: floating-point error naming the gang whose share is no finite single (a length of 0).
double lookOutMandays(std::span<const GangLength> gangs);

/// S.7 fog-signal men and S.9 security patrolling [manday/year]: the average of the mandays used in the past years,
/// in single precision after every operation.
float averageMandays(const std::array<float, AveragedYears>& mandays);

/// S.8 filth removal, one man a gang [manday/year].
double filthRemovalMandays(double gangs);

/// S.10 [manday/year], not rounded. Single precision: each location's product is rounded before it is added.
double waterLevelMandays(std::span<const WatchedWater> locations);

/// S.1 to S.10 [manday/year].
struct SiteMandays {
    double tunnels = 0.0;
    double bridges = 0.0;
    double longGirders = 0.0;
    float sharpCurves = 0.0F;
    double badFormations = 0.0;
    double lookOut = 0.0;
    float fogSignal = 0.0F;
    double filthRemoval = 0.0;
    float securityPatrolling = 0.0F;
    double waterLevels = 0.0;
};

/// All of 'S' [manday/year]: added as doubles from S.10 down to S.5, then S.1 to S.4, the sum rounded to single.
float siteTotal(const SiteMandays& mandays);

}  // namespace site
