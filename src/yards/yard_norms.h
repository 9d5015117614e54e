#pragma once
#include <optional>
#include <span>
#include <string_view>

namespace yards {

/// Station yards, yearly: mandays per km of running line, turnouts counted as length.
/// Machine packing has a norm on broad gauge alone; elsewhere machine-packed lines bring no mandays.
struct YardNorm {
    std::optional<double> machinePackedPerKm;  ///< [manday/km]
    double manuallyPackedPerKm;                ///< [manday/km]
};
// clang-format off
//                                       machine  manual
inline constexpr YardNorm BgYards = {      177.0,  297.0};
inline constexpr YardNorm MgYards = {std::nullopt, 228.0};
inline constexpr YardNorm NgYards = {std::nullopt, 153.0};
/// A km of non-running line counts as 2/3 of a km of running line.
inline constexpr double NonRunningTimes = 2.0, NonRunningOver = 3.0;
// clang-format on

/// One yard, or the column sums of all. Turnouts on non-running lines are a single, their sum too.
struct YardLines {
    double machineKm = 0.0;           ///< machine-packed running lines [km]
    double manualKm = 0.0;            ///< manually packed running lines [km]
    double nonRunningKm = 0.0;        ///< manually packed non-running lines [km]
    double machineTurnouts = 0.0;     ///< on machine-packed running lines [count]
    double manualTurnouts = 0.0;      ///< on manually packed running lines [count]
    float nonRunningTurnouts = 0.0F;  ///< on non-running lines [count]
};

/// `sums` with the yards added column by column; the turnouts on non-running lines are rounded to single after each
/// yard. Throws RunTimeError (overflow, with the yard counted from 0).
YardLines addYards(const YardLines& sums, std::span<const YardLines> yards);

/// Yearly work in the yards [manday/year], rounded to single. `gauge` is compared to the letter: "BG", "MG", any other
/// is narrow gauge. Throws RunTimeError (overflow).
float yardMandays(const YardLines& sums, std::string_view gauge);

}  // namespace yards
