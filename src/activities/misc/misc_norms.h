#pragma once
#include <span>

namespace misc {

/// Mandays that one man gives in a year: turns posts and gangs into mandays, and the division's mandays into men.
inline constexpr int MandaysPerMan = 294;

/// The miscellaneous activities 'M', yearly.
// clang-format off
inline constexpr int   DaysPerYear            = 365;  ///< M.5, M.8  a gate or a store is manned [day/year]
inline constexpr float HotWeatherPerKm        = 30;   ///< M.2  per km of long welded rail [manday/km]
inline constexpr float ColdWeatherPerKm       = 12;   ///< M.3  per km of long welded rail [manday/km]
inline constexpr int   RestDaysPerKeyman      = DaysPerYear - MandaysPerMan;  ///< M.6  per keyman beat [manday/beat]
inline constexpr int   ShiftsPerStore         = 3;    ///< M.8  round the clock [shift/day]
inline constexpr int   MaxStoreLocations     = 2;    ///< M.8  besides the headquarters
// clang-format on

// All functions throw RunTimeError (overflow; with the row counted from 0 where they take rows).

/// One beat length of M.1.
struct BeatLength {
    double days = 0.0;    ///< of patrolling [day/year]
    double shifts = 0.0;  ///< [shift/day]
    double beats = 0.0;   ///< [beat]
    double men = 0.0;     ///< per shift and beat; rounded to a whole number of 16 bits, half to even
};

/// One vulnerable location of M.4, watched by one man per shift.
struct VulnerableLocation {
    double days = 0.0;    ///< of watching [day/year]
    double shifts = 0.0;  ///< [shift/day]
};

/// Crossings manned in the same number of shifts, M.5.
struct LevelCrossings {
    double crossings = 0.0;  ///< [count]
    double shifts = 0.0;     ///< [shift/day]; rounded to a whole number of 16 bits, half to even
};

/// M.1 monsoon patrolling: `mandays` with the beat lengths added [manday/year].
double addMonsoonPatrolling(double mandays, std::span<const BeatLength> beatLengths);

/// M.2 [manday/year], in single precision. `lwrKm`: long welded rail on single line basis [km].
float hotWeatherPatrolling(float lwrKm);

/// M.3 [manday/year], in single precision. `lwrKm`: long welded rail on single line basis [km].
float coldWeatherPatrolling(float lwrKm);

/// M.4 watching vulnerable locations: `mandays` with the locations added [manday/year]. Single precision: rounded
/// after each location.
float addVulnerableLocations(float mandays, std::span<const VulnerableLocation> locations);

/// M.1 to M.4 [manday/year], added as doubles in this order, the sum rounded to single.
float firstTotal(double monsoon, float hotWeather, float coldWeather, float vulnerableLocations);

/// M.5 gate keeping [manday/year], less what the gatemen's posts already sanctioned give; may be negative.
double gateKeeping(std::span<const LevelCrossings> crossings, double sanctionedPosts);

/// M.6 rest giving for keymen [manday/year].
double keymanRest(double keymanBeats);

/// M.7 waterman duty, one man a gang [manday/year].
double watermanDuty(double gangs);

/// M.8 store watchman duty [manday/year], rounded to single. More than MaxStoreLocations count as that many.
float storeWatchmanDuty(double storeLocations);

/// All of 'M' [manday/year], added as doubles in this order, the sum rounded to single. `first`: the total of M.1 to
/// M.4.
float miscTotal(double gates, double keymen, double watermen, float stores, float first);

}  // namespace misc
