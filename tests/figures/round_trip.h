#pragma once
#include "figures/numeric_text.h"
#include "figures/picture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>

/// Every picture that a screen uses.
inline constexpr std::array<std::string_view, 6> Pictures = {"####",     "#####",     "####.##",
                                                             "#####.##", "######.##", "#.######"};

/// What is wrong with the way of a finite figure into a box and out again; empty when all is well.
inline std::string roundTripFault(double value, std::string_view places)
{
    const std::string shown = figures::picture(value, places);
    const auto fault = [&](const char* what) {
        return figures::textOf(value) + " under " + std::string(places) + " is \"" + shown + "\": " + what;
    };

    const std::string_view unsignedText = std::string_view(shown).substr(shown.starts_with('-') ? 1 : 0);
    const bool hasPoint = places.find('.') != std::string_view::npos;
    if (unsignedText.find_first_not_of("0123456789.") != std::string_view::npos)
        return fault("a sign that is no digit");
    if (std::count(shown.begin(), shown.end(), '.') != (hasPoint ? 1 : 0))
        return fault("the point");
    if (unsignedText.starts_with('0') || (hasPoint && shown.ends_with('0') && shown.back() != '.'))
        return fault("a 0 that stands for nothing");
    if (shown.starts_with('-') && unsignedText.find_first_of("123456789") == std::string_view::npos)
        return fault("a sign without a figure");

    const double read = figures::valueOf(shown);
    if (figures::picture(read, places) != shown)
        return fault("shows otherwise when it is read and shown again");

    // Reading and writing each miss the decimal by half a step of doubles at most; from 2^53 on doubles are whole.
    if (std::abs(value) >= 9007199254740992.0)
        return read == value ? "" : fault("a whole figure has changed");
    const double size = std::max(std::abs(value), std::abs(read));
    const double step = std::nextafter(size, std::numeric_limits<double>::infinity()) - size;
    const auto decimals = hasPoint ? places.size() - places.find('.') - 1 : 0;
    const long double half = 0.5L / std::pow(10.0L, static_cast<long double>(decimals));
    const long double missed = std::abs(static_cast<long double>(read) - static_cast<long double>(value));
    return missed <= half + static_cast<long double>(step) ? "" : fault("more than half a unit away");
}
