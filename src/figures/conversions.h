#pragma once
#include <cstdint>
#include <string_view>

#include "figures/run_time_error.h"

namespace figures {

/// Whole number of 16 bits, half to even (2.5 is 2, 3.5 is 4).
/// Throws RunTimeError (overflow: "`what` is ..., beyond -32768 to 32767", with `row`).
std::int16_t toInt16(double value, std::string_view what, int row = RunTimeError::NoRow);

/// Rounded to single precision, half to even.
/// Throws RunTimeError (overflow: "`what` is ..., too large to compute with", with `row`) beyond a single's range.
float toSingle(double value, std::string_view what, int row = RunTimeError::NoRow);

/// `value` itself if it is finite. Throws RunTimeError (overflow: "`what` is too large to compute with", with `row`)
/// if not: a sum or product of doubles that left their range.
double requireFinite(double value, std::string_view what, int row = RunTimeError::NoRow);

/// The rows that a count asks for: its whole part (2.5 is 2), none for a negative count.
int wholeRows(double count);

}  // namespace figures
