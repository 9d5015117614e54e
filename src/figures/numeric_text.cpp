#include "figures/numeric_text.h"

#include "figures/conversions.h"
#include "figures/run_time_error.h"
#include "figures/utf8.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace figures {

namespace {

constexpr double Infinite = std::numeric_limits<double>::infinity();

struct Numeral {
    double value;            ///< infinite beyond the range of a double, 0 where there is no number
    std::size_t length = 0;  ///< of the number's text, 0 where there is none
};

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Whether an unsigned numeral that no double holds is too large rather than too small: by the power of ten of its
/// first digit other than 0.
bool isHuge(std::string_view numeral)
{
    const std::size_t mantissaEnd = std::min(numeral.find_first_of("eE"), numeral.size());
    const std::string_view mantissa = numeral.substr(0, mantissaEnd);
    const std::size_t digit = mantissa.find_first_of("123456789");  // there is one: a double holds 0
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());

    std::string_view exponentText = numeral.substr(mantissaEnd);
    if (!exponentText.empty())
        exponentText.remove_prefix(1);
    if (exponentText.starts_with('+'))
        exponentText.remove_prefix(1);
    long long exponent = 0;
    const auto result = std::from_chars(exponentText.data(), exponentText.data() + exponentText.size(), exponent);
    if (result.ec == std::errc::result_out_of_range)
        return !exponentText.starts_with('-');
    // Compared, not added: neither side can leave its range.
    return exponent > static_cast<long long>(digit) - static_cast<long long>(point);
}

/// The longest number that the text starts with. from_chars reads no leading '+', but would read "inf", "nan" and
/// the -5 of "+-5": so the sign and what follows it are looked at here.
Numeral numeralAtStart(std::string_view text)
{
    const char* const last = text.data() + text.size();
    const char* first = text.data();
    const bool negative = first != last && *first == '-';
    if (negative || (first != last && *first == '+'))
        ++first;
    if (first == last || !(isDigit(*first) || *first == '.'))
        return {0.0};

    double value = 0.0;
    const auto [end, error] = std::from_chars(first, last, value);
    if (error == std::errc::invalid_argument)  // a point without digits
        return {0.0};
    if (error == std::errc::result_out_of_range)
        value = isHuge({first, end}) ? Infinite : 0.0;
    // Subtracted from 0, so that "-0" is a plain 0.
    return {negative ? 0.0 - value : value, static_cast<std::size_t>(end - text.data())};
}

std::string_view withoutLeadingBlanks(std::string_view text)
{
    return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

/// Whether nothing but blanks follows the numeral that `text` starts with.
bool isWholeOf(std::string_view text, const Numeral& numeral)
{
    return numeral.length > 0 && text.find_first_not_of(' ', numeral.length) == std::string_view::npos;
}

/// A text as an error names it: in quotes and not too long for a box.
std::string quoted(std::string_view text)
{
    constexpr std::size_t maxBytes = 40;
    return "\"" + shortened(text, maxBytes) + "\"";
}

template <typename Real>
std::string shortText(Real value, int significantDigits)
{
    char text[32];
    const auto [end, error] =
        std::to_chars(std::begin(text), std::end(text), value, std::chars_format::general, significantDigits);
    return {text, end};
}

}  // namespace

double valueOf(std::string_view text)
{
    const std::string_view number = withoutLeadingBlanks(text);
    const Numeral numeral = numeralAtStart(number);
    if (std::isinf(numeral.value))
        throw RunTimeError(ErrorKind::Overflow,
                           "the number " + quoted(number.substr(0, numeral.length)) + " is too large to compute with");
    return numeral.value;
}

Reading read(std::string_view text)
{
    const std::string_view number = withoutLeadingBlanks(text);
    const Numeral numeral = numeralAtStart(number);
    if (number.empty())
        return {};
    if (std::isinf(numeral.value))
        return {TextKind::TooLarge, 0.0};
    const bool whole = text == "." || isWholeOf(number, numeral);
    return {whole ? TextKind::Number : TextKind::NotANumber, numeral.value};
}

float strictSingle(std::string_view text, std::string_view what, int row)
{
    const std::string_view number = withoutLeadingBlanks(text);
    const Numeral numeral = numeralAtStart(number);
    if (!isWholeOf(number, numeral))
        throw RunTimeError(ErrorKind::TypeMismatch, std::string(what) + " is not a number: " + quoted(text), row);
    return toSingle(numeral.value, what, row);
}

double countUpTo(int limit, std::string_view text)
{
    const Numeral numeral = numeralAtStart(withoutLeadingBlanks(text));
    return std::clamp(numeral.value, std::numeric_limits<double>::lowest(), double(limit));
}

std::string textOf(float value)
{
    return shortText(value, 7);
}

std::string textOf(double value)
{
    return shortText(value, 15);
}

}  // namespace figures
