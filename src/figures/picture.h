#pragma once
#include <string>
#include <string_view>

namespace figures {

/// The value as a digit-optional picture shows it. Each '#' is a place: those behind the point say how many
/// decimals are kept (half away from zero, on the shortest decimal that identifies the double), those before it
/// only that no leading zero is printed. .25 is ".25", 7 is "7." under "####.##" and "7" under "####", 0 is "."
/// and "". What rounds to zero shows as zero does, without a sign. Large values print all their digits.
/// Shown texts are read again by later screens: this rounding is part of the computation.
/// Throws RunTimeError (overflow) for what is not a finite number: no figure may look like one that it is not.
std::string picture(double value, std::string_view places);

}  // namespace figures
