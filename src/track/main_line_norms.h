#pragma once
#include <optional>
#include <string_view>

namespace track {

/// Main line, yearly: mandays per km of equivalent length. 'T' grows with the traffic and is multiplied by the
/// augmentation factor; 'R' is fixed, with its own rate on concrete sleepers where the norm has one.
struct MainLineNorm {
    double tPerKm;                           ///< [manday/km]
    double tPerKmAndGmt;                     ///< [manday/km] for each GMT of traffic
    double rPerKm;                           ///< [manday/km]
    std::optional<double> rPerKmOnConcrete;  ///< [manday/km]
};
// clang-format off
//                                                     'T'             'R'
//                                              per km  per GMT   per km  on concrete
inline constexpr MainLineNorm BgSuburban     = { 115.0,   2.3,    398.0,  std::nullopt};
inline constexpr MainLineNorm BgMachine      = {  80.0,   2.3,    159.0,  187.0};
inline constexpr MainLineNorm BgManual       = { 223.0,   8.24,   168.0,  196.0};
inline constexpr MainLineNorm MetreGauge     = { 160.0,  13.56,   128.0,  std::nullopt};
inline constexpr MainLineNorm NarrowGauge    = { 105.0, 188.0,     91.0,  std::nullopt};
/// Narrow gauge: 'T' per km grows with the traffic up to this [manday/km].
inline constexpr float NgMostTPerKm          =   180.0F;
// clang-format on

enum class Method { MachinePacked, ManuallyPacked };

/// "Manually Packed" to the letter; any other text, the empty one too, is machine packed.
Method methodOf(std::string_view text);

struct MainLineSegment {
    double eqLengthKm = 0.0;  ///< [km]
    double gmt = 0.0;         ///< traffic [gross million tonnes]
    float factor = 0.0F;      ///< augmentation 1+A+B+C, a single as read from its box
    double concreteKm = 0.0;  ///< on concrete sleepers [km], may exceed eqLengthKm
};

/// Yearly work on one segment [manday/year], not rounded.
struct MainLineMandays {
    double t = 0.0;
    double r = 0.0;
    float ngTPerKm = 0.0F;  ///< narrow gauge: the 'T' rate that t comes from [manday/km]
};

// All throw RunTimeError (overflow, with the row: the segment counted from 0).

/// Length on concrete sleepers, turnouts counted as length [km].
double concreteKm(double lengthKm, double turnouts, int row);

/// Broad gauge. In a suburban section neither the method nor the concrete sleepers play a part.
MainLineMandays bgMandays(const MainLineSegment& segment, bool suburban, Method method, int row);

/// Metre gauge: concreteKm plays no part.
MainLineMandays mgMandays(const MainLineSegment& segment, int row);

/// Narrow gauge: concreteKm plays no part. Single precision in 'T': factor times ngTPerKm is a single, and only then
/// multiplied by the length; floating-point error when that single leaves its range.
MainLineMandays ngMandays(const MainLineSegment& segment, int row);

/// Narrow gauge 'T' rate [manday/km]. Single precision: rounded before it is compared with its limit.
float ngTPerKm(double gmt, int row);

/// 'T'+'R' of one segment [manday/year].
double trMandays(const MainLineMandays& mandays, int row);

/// `total` with one segment's 'T'+'R' added [manday/year]. Single precision: rounded after each segment, the division's
/// summary reads that single.
float addTrMandays(float total, double segmentTrMandays, int row);

}  // namespace track
