#include "figures/conversions.h"

#include "figures/error_of.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

using figures::ErrorKind;
using figures::requireFinite;
using figures::RunTimeError;
using figures::toInt16;
using figures::toSingle;
using figures::wholeRows;

namespace {

constexpr double Infinite = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr float LargestSingle = std::numeric_limits<float>::max();

struct Whole {
    double value;
    int whole;
};

// clang-format off
constexpr Whole Wholes[] = {
    {     0.0,      0},
    {     0.4,      0},
    {     0.5,      0},   // half to even
    {     0.6,      1},
    {     1.5,      2},
    {     2.5,      2},
    {     3.5,      4},
    {    -0.5,      0},
    {    -1.5,     -2},
    {    -2.5,     -2},
    { 32767.0,  32767},
    { 32767.4,  32767},
    { 32766.5,  32766},
    {-32768.0, -32768},
    {-32768.5, -32768},   // half to even stays inside
};

constexpr double Beyond16Bits[] = {32767.5, 32768.0, -32768.6, -32769.0, 40000.0, 1e300, Infinite, -Infinite, NotANumber};
// clang-format on

TEST(ToInt16, RoundsHalfToEven)
{
    for (const auto& [value, whole] : Wholes)
        EXPECT_EQ(toInt16(value, "it"), whole) << "value " << value;
}

TEST(ToInt16, OverflowsBeyond16Bits)
{
    for (const double value : Beyond16Bits) {
        SCOPED_TRACE(value);
        const auto error = errorOf([&] { toInt16(value, "the number of men", 4); });
        EXPECT_EQ(error.kind(), ErrorKind::Overflow);
        EXPECT_EQ(error.row(), 4);
    }
    EXPECT_STREQ(errorOf([] { toInt16(40000.0, "the number of men"); }).what(),
                 "Overflow: the number of men is 40000, beyond -32768 to 32767.");
}

TEST(ToSingle, RoundsToTheNearestSingle)
{
    EXPECT_EQ(toSingle(0.0, "it"), 0.0F);
    EXPECT_EQ(toSingle(12.5, "it"), 12.5F);
    EXPECT_EQ(toSingle(0.1, "it"), 0.1F);
    EXPECT_EQ(toSingle(16777217.0, "it"), 16777216.0F);  // 2^24 + 1, half to even
    EXPECT_EQ(toSingle(16777219.0, "it"), 16777220.0F);  // 2^24 + 3, half to even
    EXPECT_EQ(toSingle(1e-60, "it"), 0.0F);
    EXPECT_EQ(toSingle(LargestSingle, "it"), LargestSingle);
    EXPECT_EQ(toSingle(-LargestSingle, "it"), -LargestSingle);
}

TEST(ToSingle, OverflowsBeyondASingle)
{
    for (const double value : {3.5e38, -3.5e38, 1e300, Infinite, -Infinite, NotANumber}) {
        SCOPED_TRACE(value);
        const auto error = errorOf([&] { toSingle(value, "the total", 1); });
        EXPECT_EQ(error.kind(), ErrorKind::Overflow);
        EXPECT_EQ(error.row(), 1);
    }
    EXPECT_STREQ(errorOf([] { toSingle(4e40, "the total"); }).what(),
                 "Overflow: the total is 4e+40, too large to compute with.");
}

TEST(ToDouble, PassesWhatIsFinite)
{
    for (const double value : {0.0, -1.5, 1e308, -1e308, 5e-324})
        EXPECT_EQ(requireFinite(value, "it"), value);
}

TEST(ToDouble, OverflowsWhenNotFinite)
{
    for (const double value : {Infinite, -Infinite, NotANumber}) {
        const auto error = errorOf([&] { requireFinite(value, "the sum", 7); });
        EXPECT_EQ(error.kind(), ErrorKind::Overflow);
        EXPECT_EQ(error.row(), 7);
        EXPECT_STREQ(error.what(), "Overflow: the sum is too large to compute with.");
    }
}

TEST(WholeRows, CountsWholeRowsOnly)
{
    EXPECT_EQ(wholeRows(0.0), 0);
    EXPECT_EQ(wholeRows(0.9), 0);
    EXPECT_EQ(wholeRows(1.0), 1);
    EXPECT_EQ(wholeRows(2.5), 2);
    EXPECT_EQ(wholeRows(15.9), 15);
    EXPECT_EQ(wholeRows(-1.0), 0);
    EXPECT_EQ(wholeRows(-1e300), 0);
    EXPECT_EQ(wholeRows(1e300), std::numeric_limits<int>::max());
}

TEST(RunTimeError, SaysKindDetailAndRow)
{
    const RunTimeError error(ErrorKind::DivisionByZero, "the equivalent length of segment 3 is 0", 2);
    EXPECT_STREQ(error.what(), "Division by zero: the equivalent length of segment 3 is 0.");
    EXPECT_EQ(error.kind(), ErrorKind::DivisionByZero);
    EXPECT_EQ(error.row(), 2);

    EXPECT_STREQ(RunTimeError(ErrorKind::TypeMismatch, "a").what(), "Type mismatch: a.");
    EXPECT_STREQ(RunTimeError(ErrorKind::SubscriptOutOfRange, "a").what(), "Subscript out of range: a.");
    EXPECT_STREQ(RunTimeError(ErrorKind::Overflow, "a").what(), "Overflow: a.");
    EXPECT_STREQ(RunTimeError(ErrorKind::FloatingPoint, "a").what(), "Floating-point error: a.");
    EXPECT_EQ(RunTimeError(ErrorKind::Overflow, "a").row(), RunTimeError::NoRow);
}

TEST(Numbered, CountsAsTheScreenDoes)
{
    EXPECT_EQ(figures::numbered("the length of gang", 0), "the length of gang 1");
    EXPECT_EQ(figures::numbered("the length of gang", 8), "the length of gang 9");
}

}  // namespace
