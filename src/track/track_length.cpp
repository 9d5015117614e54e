#include "track/track_length.h"

#include "figures/conversions.h"
#include "figures/run_time_error.h"

#include <cmath>

namespace track {

using figures::numbered;
using figures::requireFinite;

SegmentLength segmentLength(const SegmentLimits& segment, int row)
{
    SegmentLength length;
    length.totalKm =
        requireFinite((segment.kmTo - segment.kmFrom) + segment.kmExtra, numbered("the total km of segment", row), row);
    length.eqLengthKm = requireFinite(segment.turnouts * KmPerTurnout + length.totalKm,
                                      numbered("the equivalent length of segment", row), row);
    return length;
}

float addWeldedRail(float totalKm, float segmentKm, int row)
{
    const float sum = totalKm + segmentKm;
    if (!std::isfinite(sum))
        throw figures::RunTimeError(
            figures::ErrorKind::FloatingPoint,
            numbered("the total of long welded rail is too large to compute with at segment", row), row);
    return sum;
}

}  // namespace track
