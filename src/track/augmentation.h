#pragma once
#include <span>
#include <vector>

namespace track {

/// What makes a segment's track harder to keep than straight track on good ground.
/// | term | for        | weight                                                                     |
/// |------|------------|----------------------------------------------------------------------------|
/// | A    | formation  | per km of shrinkable and of unstable formation, turnouts counted as length |
/// | B    | alignment  | per km of curve, by the three curve columns                                |
/// | C    | rainfall   | grows from the lower to the upper rainfall and stays at its most beyond    |
struct AugmentationNorm {
    double shrinkablePerKm;  ///< A
    double unstablePerKm;    ///< A
    double curvePerKm;       ///< B
    double rainfallFromCm;   ///< C is 0 below [cm a year]
    double rainfallSpanCm;   ///< from there to where C is at its most [cm a year]
    double rainfallMost;     ///< C
};
// clang-format off
inline constexpr AugmentationNorm AugmentationNorms = {
    //  A shrinkable  A unstable  B curve   C from   C span   C most
             0.2,        0.1,      0.25,    150.0,   150.0,     0.2};
// clang-format on

/// One segment's ground. Turnouts, the third curve column and rainfall are singles: the rainfall limits are met by
/// the single (299.999999 cm is 300).
struct SegmentGround {
    double eqLengthKm = 0.0;          ///< [km]
    double shrinkableKm = 0.0;        ///< on shrinkable formation [km]
    float shrinkableTurnouts = 0.0F;  ///< [count]
    double unstableKm = 0.0;          ///< on unstable formation [km]
    float unstableTurnouts = 0.0F;    ///< [count]
    double curve1To2Deg = 0.0;        ///< column "1-2 Deg" [km]
    double curveOver2Deg = 0.0;       ///< column ">2 Deg": enters as a factor diminished by one
    float curveEqDeg = 0.0F;          ///< column "Eq Deg" [km]
    float rainfallCm = 0.0F;          ///< annual [cm]
};

/// Pure numbers in double precision, not rounded; B may be negative.
struct Augmentation {
    double formation = 0.0;  ///< A
    double alignment = 0.0;  ///< B
    double rainfall = 0.0;   ///< C
    double factor = 1.0;     ///< 1+A+B+C, multiplies the segment's 'T' norm
};

/// One result a segment, in order. Throws RunTimeError: division by zero naming the segment (counted from 1 in the
/// text, from 0 in row()) whose equivalent length is 0; overflow.
std::vector<Augmentation> augmentations(std::span<const SegmentGround> segments);

}  // namespace track
