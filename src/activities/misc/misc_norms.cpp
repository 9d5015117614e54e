#include "activities/misc/misc_norms.h"

#include "figures/conversions.h"
#include "figures/run_time_error.h"

#include <algorithm>

namespace misc {

using figures::numbered;
using figures::requireFinite;
using figures::toInt16;
using figures::toSingle;

double addMonsoonPatrolling(double mandays, std::span<const BeatLength> beatLengths)
{
    for (int row = 0; const BeatLength& beat : beatLengths) {
        const int men = toInt16(beat.men, numbered("the number of men of beat length", row), row);
        mandays = requireFinite(mandays + beat.days * beat.shifts * beat.beats * men,
                                numbered("the number of M.1 mandays at beat length", row), row);
        ++row;
    }
    return mandays;
}

float hotWeatherPatrolling(float lwrKm)
{
    return toSingle(lwrKm * HotWeatherPerKm, "the number of M.2 mandays");
}

float coldWeatherPatrolling(float lwrKm)
{
    return toSingle(lwrKm * ColdWeatherPerKm, "the number of M.3 mandays");
}

float addVulnerableLocations(float mandays, std::span<const VulnerableLocation> locations)
{
    for (int row = 0; const VulnerableLocation& location : locations) {
        mandays = toSingle(mandays + location.days * location.shifts,
                           numbered("the number of M.4 mandays at location", row), row);
        ++row;
    }
    return mandays;
}

float firstTotal(double monsoon, float hotWeather, float coldWeather, float vulnerableLocations)
{
    return toSingle(monsoon + hotWeather + coldWeather + vulnerableLocations, "the total of M.1 to M.4");
}

double gateKeeping(std::span<const LevelCrossings> crossings, double sanctionedPosts)
{
    double mandays = 0.0;
    for (int row = 0; const LevelCrossings& group : crossings) {
        const int shifts = toInt16(group.shifts, numbered("the number of shifts of level crossings", row), row);
        mandays = requireFinite(mandays + group.crossings * DaysPerYear * shifts,
                                numbered("the number of M.5 mandays at level crossings", row), row);
        ++row;
    }
    return requireFinite(mandays - MandaysPerMan * sanctionedPosts, "the number of M.5 mandays");
}

double keymanRest(double keymanBeats)
{
    return requireFinite(RestDaysPerKeyman * keymanBeats, "the number of M.6 mandays");
}

double watermanDuty(double gangs)
{
    return requireFinite(MandaysPerMan * gangs, "the number of M.7 mandays");
}

float storeWatchmanDuty(double storeLocations)
{
    return toSingle(std::min<double>(storeLocations, MaxStoreLocations) * ShiftsPerStore * DaysPerYear,
                    "the number of M.8 mandays");
}

float miscTotal(double gates, double keymen, double watermen, float stores, float first)
{
    return toSingle(gates + keymen + watermen + stores + first, "the total of 'M' mandays");
}

}  // namespace misc
