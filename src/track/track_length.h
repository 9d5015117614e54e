#pragma once

namespace track {

/// Track that one equivalent turnout counts for [km], wherever turnouts are turned into length: on the main line,
/// on bad formation, on concrete sleepers and in yards.
inline constexpr double KmPerTurnout = 0.1;

/// The length norms of one main-line segment. Equal limits are a segment of no length of its own.
struct SegmentLimits {
    double kmFrom = 0.0;    ///< [km]
    double kmTo = 0.0;      ///< [km], the screen has checked kmTo >= kmFrom
    double kmExtra = 0.0;   ///< loops and sidings counted with the segment [km]
    double turnouts = 0.0;  ///< equivalent turnouts [count]
};

struct SegmentLength {
    double totalKm = 0.0;     ///< [km], not rounded
    double eqLengthKm = 0.0;  ///< total length with the turnouts turned into length [km], not rounded
};

/// Throws RunTimeError (overflow, with `row`, the segment counted from 0).
SegmentLength segmentLength(const SegmentLimits& segment, int row);

/// `totalKm` of long welded rail with one segment's added [km]. Single precision: the total is a running single,
/// rounded at every segment. Throws RunTimeError (floating-point error, with `row`) when the sum leaves its range.
float addWeldedRail(float totalKm, float segmentKm, int row);

}  // namespace track
