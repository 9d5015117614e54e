#pragma once
#include <string>
#include <string_view>

namespace figures {

/// The lenient reading: the number at the start of the text, behind any blanks; 0 where there is none.
/// "12.5km" is 12.5, "1,234" is 1, "abc" is 0, ".5" is .5, "-.5e2x" is -50. Decimal point whatever the locale.
/// Throws RunTimeError (overflow) beyond the range of a double.
double valueOf(std::string_view text);

/// What the text of a box that is read as a number looks like.
enum class TextKind {
    Blank,
    Number,      ///< one number and blanks, or the lone point that pictures print for 0
    NotANumber,  ///< counts as the number that it starts with, or as 0
    TooLarge,    ///< starts with a number beyond the range of a double
};
struct Reading {
    TextKind kind = TextKind::Blank;
    double value = 0.0;  ///< of the lenient reading; 0 where it overflows
};
/// Never throws.
Reading read(std::string_view text);

/// The strict reading: the whole text, blanks at its ends apart, must be one number; rounded to single.
/// Throws RunTimeError: type mismatch ("`what` is not a number: ...", with `row`), overflow beyond a single.
float strictSingle(std::string_view text, std::string_view what, int row);

/// The lenient reading of a count that may not exceed `limit`: a larger one, however large, gives `limit`.
/// Never an overflow; fractions and negative values pass unchanged.
double countUpTo(int limit, std::string_view text);

/// The plain text of a number, for a box that shows one without a picture: at most 7 significant digits of a single
/// (23.7 as a single is "23.7"), 15 of a double; 0 is "0", .5 is "0.5".
std::string textOf(float value);
std::string textOf(double value);

}  // namespace figures
