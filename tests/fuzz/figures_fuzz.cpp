// Whatever a box holds, reading it gives a finite figure or a run-time error, and whatever a figure is, its picture
// reads back as that figure to half a unit of its last place.

#include "figures/conversions.h"
#include "figures/numeric_text.h"
#include "figures/picture.h"
#include "figures/round_trip.h"
#include "figures/run_time_error.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>

namespace {

using figures::ErrorKind;
using figures::RunTimeError;

void hold(bool claim, const std::string& text, const std::string& what)
{
    if (claim)
        return;
    std::fprintf(stderr, "text \"%s\": %s\n", text.c_str(), what.c_str());
    std::abort();
}

/// What valueOf gives; nothing for an overflow.
std::optional<double> valueOrOverflow(const std::string& text)
{
    try {
        return figures::valueOf(text);
    } catch (const RunTimeError& error) {
        hold(error.kind() == ErrorKind::Overflow, text, "valueOf throws another error than overflow");
        return {};
    }
}

void tryReading(const std::string& text)
{
    const std::optional<double> value = valueOrOverflow(text);
    hold(!value || std::isfinite(*value), text, "valueOf is not finite");
    hold(valueOrOverflow("  " + text) == value, text, "blanks in front change the value");
    hold(valueOrOverflow(text + "x") == value, text, "a letter behind changes the value");

    const figures::Reading reading = figures::read(text);
    hold((reading.kind == figures::TextKind::TooLarge) == !value, text, "read and valueOf differ in what is too large");
    hold(reading.value == value.value_or(0.0), text, "read counts otherwise than valueOf");

    const double count = figures::countUpTo(16, text);
    hold(std::isfinite(count) && count <= 16, text, "countUpTo leaves its limit");
    hold(!value || count == std::min(*value, 16.0), text, "countUpTo is not the value up to its limit");

    try {
        const float single = figures::strictSingle(text, "it", 3);
        hold(value && single == static_cast<float>(*value), text, "strictSingle reads otherwise than valueOf");
        hold(text.find_first_not_of("0123456789.+-eE ") == std::string::npos, text, "strictSingle reads no number");
    } catch (const RunTimeError& error) {
        hold(error.row() == 3, text, "strictSingle loses the row");
        hold(error.kind() == ErrorKind::TypeMismatch || error.kind() == ErrorKind::Overflow, text,
             "strictSingle throws another error");
    }
}

void tryShowing(double value)
{
    for (const std::string_view places : Pictures) {
        if (std::isfinite(value)) {
            const std::string fault = roundTripFault(value, places);
            hold(fault.empty(), std::string(places), fault);
            continue;
        }
        try {
            hold(false, figures::picture(value, places), "a figure that is none is shown");
        } catch (const RunTimeError& error) {
            hold(error.kind() == ErrorKind::Overflow, std::string(places), "picture throws another error");
        }
    }
}

}  // namespace

// NOLINTNEXTLINE(readability-identifier-naming): the name that the fuzzer calls
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    tryReading(text);
    if (const std::optional<double> value = valueOrOverflow(text))
        tryShowing(*value);
    if (double bits = 0.0; size >= sizeof bits) {
        std::memcpy(&bits, data, sizeof bits);
        tryShowing(bits);
    }
    return 0;
}
