#include "figures/conversions.h"

#include "figures/numeric_text.h"
#include "figures/run_time_error.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <limits>
#include <string>

// The norms tell step by step what is single and what is double: a compiler that keeps more digits than the type
// has would give other mandays.
static_assert(FLT_EVAL_METHOD == 0 && std::numeric_limits<float>::is_iec559 && std::numeric_limits<double>::is_iec559);

namespace figures {

namespace {

[[noreturn]] void overflow(double value, std::string_view what, const char* reason, int row)
{
    const std::string number = std::isfinite(value) ? textOf(value) + ", " : "";
    throw RunTimeError(ErrorKind::Overflow, std::string(what) + " is " + number + reason, row);
}

constexpr const char* TooLarge = "too large to compute with";

}  // namespace

std::int16_t toInt16(double value, std::string_view what, int row)
{
    using Limits = std::numeric_limits<std::int16_t>;
    const double whole = std::nearbyint(value);  // half to even, the rounding that every program starts with
    if (!(whole >= Limits::min() && whole <= Limits::max()))
        overflow(value, what, "beyond -32768 to 32767", row);
    return static_cast<std::int16_t>(whole);
}

float toSingle(double value, std::string_view what, int row)
{
    const auto single = static_cast<float>(value);
    if (!std::isfinite(single))
        overflow(value, what, TooLarge, row);
    return single;
}

double requireFinite(double value, std::string_view what, int row)
{
    if (!std::isfinite(value))
        overflow(value, what, TooLarge, row);
    return value;
}

int wholeRows(double count)
{
    return static_cast<int>(std::clamp(count, 0.0, double(std::numeric_limits<int>::max())));
}

}  // namespace figures
