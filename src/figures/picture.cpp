#include "figures/picture.h"

#include "figures/conversions.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

namespace figures {

namespace {

/// A positive number as 0.d1d2d3... x 10^whole: `whole` digits stand before the point.
struct Decimal {
    char digits[17];  ///< what the longest shortest decimal of a double needs
    int count = 0;
    int whole = 0;
};

Decimal shortestDecimal(double value)
{
    char text[32];  // d.ddddddddddddddddde-ddd
    const char* const end = std::to_chars(std::begin(text), std::end(text), value, std::chars_format::scientific).ptr;

    Decimal decimal;
    const char* c = text;
    for (; *c != 'e'; ++c)
        if (*c != '.')
            decimal.digits[decimal.count++] = *c;
    ++c;  // the 'e'
    std::from_chars(*c == '+' ? c + 1 : c, end, decimal.whole);
    ++decimal.whole;  // scientific has one digit before the point
    return decimal;
}

/// Half up; the number is positive, so that is half away from zero.
void roundTo(int decimals, Decimal& number)
{
    const int kept = number.whole + decimals;
    if (kept >= number.count)
        return;
    if (kept < 0) {
        number.count = 0;
        return;
    }
    number.count = kept;
    if (number.digits[kept] < '5')
        return;
    while (number.count > 0 && number.digits[number.count - 1] == '9')
        --number.count;
    if (number.count > 0) {
        ++number.digits[number.count - 1];
    } else {
        number.digits[number.count++] = '1';  // 9.99 has become 10
        ++number.whole;
    }
}

}  // namespace

std::string picture(double value, std::string_view places)
{
    requireFinite(value, "the figure to show");

    const std::size_t point = places.find('.');
    const bool hasPoint = point != std::string_view::npos;
    const int decimals = hasPoint ? static_cast<int>(places.size() - point - 1) : 0;

    Decimal number = shortestDecimal(std::abs(value));
    roundTo(decimals, number);
    while (number.count > 0 && number.digits[number.count - 1] == '0')
        --number.count;

    std::string text;
    if (number.count > 0) {
        const int before = std::clamp(number.whole, 0, number.count);
        if (value < 0)
            text += '-';
        text.append(number.digits, static_cast<std::size_t>(before));
        text.append(static_cast<std::size_t>(std::max(number.whole - number.count, 0)), '0');
        if (hasPoint) {
            text += '.';
            text.append(static_cast<std::size_t>(std::max(-number.whole, 0)), '0');
            text.append(number.digits + before, static_cast<std::size_t>(number.count - before));
        }
    } else if (hasPoint) {
        text += '.';
    }
    return text;
}

}  // namespace figures
