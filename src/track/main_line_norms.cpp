#include "track/main_line_norms.h"

#include "figures/conversions.h"
#include "figures/run_time_error.h"
#include "track/track_length.h"

#include <cmath>

namespace track {

namespace {

using figures::numbered;
using figures::requireFinite;

double tPerKm(const MainLineNorm& norm, double gmt)
{
    return norm.tPerKm + norm.tPerKmAndGmt * gmt;
}

double tMandays(const MainLineNorm& norm, const MainLineSegment& segment, int row)
{
    return requireFinite(tPerKm(norm, segment.gmt) * segment.factor * segment.eqLengthKm,
                         numbered("the number of 'T' mandays of segment", row), row);
}

/// The concrete sleepers are not limited to the segment's length: beyond it the rest turns negative.
double rMandays(const MainLineNorm& norm, const MainLineSegment& segment, int row)
{
    const double mandays = norm.rPerKmOnConcrete ? norm.rPerKm * (segment.eqLengthKm - segment.concreteKm) +
                                                       *norm.rPerKmOnConcrete * segment.concreteKm
                                                 : norm.rPerKm * segment.eqLengthKm;
    return requireFinite(mandays, numbered("the number of 'R' mandays of segment", row), row);
}

const MainLineNorm& bgNorm(bool suburban, Method method)
{
    if (suburban)
        return BgSuburban;
    return method == Method::ManuallyPacked ? BgManual : BgMachine;
}

}  // namespace

Method methodOf(std::string_view text)
{
    return text == "Manually Packed" ? Method::ManuallyPacked : Method::MachinePacked;
}

double concreteKm(double lengthKm, double turnouts, int row)
{
    return requireFinite(lengthKm + KmPerTurnout * turnouts,
                         numbered("the length on concrete sleepers of segment", row), row);
}

MainLineMandays bgMandays(const MainLineSegment& segment, bool suburban, Method method, int row)
{
    const MainLineNorm& norm = bgNorm(suburban, method);
    return {tMandays(norm, segment, row), rMandays(norm, segment, row)};
}

MainLineMandays mgMandays(const MainLineSegment& segment, int row)
{
    return {tMandays(MetreGauge, segment, row), rMandays(MetreGauge, segment, row)};
}

MainLineMandays ngMandays(const MainLineSegment& segment, int row)
{
    const float perKm = ngTPerKm(segment.gmt, row);
    const float augmentedPerKm = segment.factor * perKm;  // single: the norm's own step
    if (!std::isfinite(augmentedPerKm))
        throw figures::RunTimeError(figures::ErrorKind::FloatingPoint,
                                    numbered("the augmented 'T' rate is too large to compute with on segment", row),
                                    row);
    return {
        requireFinite(segment.eqLengthKm * augmentedPerKm, numbered("the number of 'T' mandays of segment", row), row),
        rMandays(NarrowGauge, segment, row), perKm};
}

float ngTPerKm(double gmt, int row)
{
    const float rate = figures::toSingle(tPerKm(NarrowGauge, gmt), numbered("the 'T' rate of segment", row), row);
    return rate > NgMostTPerKm ? NgMostTPerKm : rate;
}

double trMandays(const MainLineMandays& mandays, int row)
{
    return requireFinite(mandays.t + mandays.r, numbered("the number of 'T'+'R' mandays of segment", row), row);
}

float addTrMandays(float total, double segmentTrMandays, int row)
{
    return figures::toSingle(total + segmentTrMandays, numbered("the total of 'T'+'R' mandays at segment", row), row);
}

}  // namespace track
