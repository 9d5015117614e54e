#include "track/augmentation.h"

#include "figures/conversions.h"
#include "figures/run_time_error.h"
#include "track/track_length.h"

namespace track {

namespace {

using figures::numbered;
using figures::requireFinite;

constexpr AugmentationNorm Norm = AugmentationNorms;

double formationTerm(const SegmentGround& ground)
{
    const double shrinkableKm = ground.shrinkableKm + KmPerTurnout * ground.shrinkableTurnouts;
    const double unstableKm = ground.unstableKm + KmPerTurnout * ground.unstableTurnouts;
    return (Norm.shrinkablePerKm * shrinkableKm + Norm.unstablePerKm * unstableKm) / ground.eqLengthKm;
}

/// The pairing of columns is the norm's: the ">2 Deg" column diminished by one multiplies the "1-2 Deg" column.
double alignmentTerm(const SegmentGround& ground)
{
    return (Norm.curvePerKm * ground.curve1To2Deg * (ground.curveOver2Deg - 1) + Norm.curvePerKm * ground.curveEqDeg) /
           ground.eqLengthKm;
}

double rainfallTerm(float rainfallCm)
{
    if (rainfallCm < Norm.rainfallFromCm)
        return 0.0;
    if (rainfallCm < Norm.rainfallFromCm + Norm.rainfallSpanCm)
        return Norm.rainfallMost * (rainfallCm - Norm.rainfallFromCm) / Norm.rainfallSpanCm;
    return Norm.rainfallMost;
}

Augmentation augmentation(const SegmentGround& ground, int row)
{
    if (ground.eqLengthKm == 0)
        throw figures::RunTimeError(figures::ErrorKind::DivisionByZero,
                                    numbered("the equivalent length of segment", row) + " is 0", row);

    Augmentation terms;
    terms.formation = requireFinite(formationTerm(ground), numbered("the term A of segment", row), row);
    terms.alignment = requireFinite(alignmentTerm(ground), numbered("the term B of segment", row), row);
    terms.rainfall = rainfallTerm(ground.rainfallCm);
    terms.factor = requireFinite(1 + terms.formation + terms.alignment + terms.rainfall,
                                 numbered("the augmentation factor of segment", row), row);
    return terms;
}

}  // namespace

std::vector<Augmentation> augmentations(std::span<const SegmentGround> segments)
{
    std::vector<Augmentation> results;
    results.reserve(segments.size());
    for (const SegmentGround& ground : segments)
        results.push_back(augmentation(ground, static_cast<int>(results.size())));
    return results;
}

}  // namespace track
