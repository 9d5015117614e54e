#include "figures/numeric_text.h"

#include "figures/error_of.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <string>

using namespace std::string_literals;
using figures::countUpTo;
using figures::ErrorKind;
using figures::read;
using figures::strictSingle;
using figures::TextKind;
using figures::textOf;
using figures::valueOf;

namespace {

constexpr double LargestDouble = std::numeric_limits<double>::max();
const std::string Zeros(400, '0');

struct LenientCase {
    std::string text;
    double value;
};

// clang-format off
const LenientCase Readings[] = {
    // plain numbers
    {"12.5",                          12.5},
    {"0",                              0.0},
    {"007",                            7.0},
    {"5.",                             5.0},
    {".5",                             0.5},
    {"0.1",                            0.1},
    {"123456789012345678",             123456789012345678.0},
    {"2.2250738585072014e-308",        std::numeric_limits<double>::min()},
    {"1.7976931348623157e308",         LargestDouble},
    {"4.9e-324",                       std::numeric_limits<double>::denorm_min()},

    // signs
    {"-3",                            -3.0},
    {"+7",                             7.0},
    {"-.5",                           -0.5},
    {"+-7",                            0.0},
    {"--7",                            0.0},
    {"- 7",                            0.0},    // a blank ends the number before it began
    {"-",                              0.0},
    {"+",                              0.0},

    // blanks in front count for nothing; other white space is no blank
    {"  12.5km",                      12.5},
    {"  -4",                          -4.0},
    {"                  ",             0.0},    // 18 blanks
    {"\t5",                            0.0},
    {"\n5",                            0.0},
    {"\u00a0" "5",                     0.0},    // no-break space

    // the longest start that is a number
    {"12.5km",                        12.5},
    {"1,234",                          1.0},    // no thousands separators
    {"1 234",                          1.0},
    {"1.2.3",                          1.2},
    {"15%",                           15.0},
    {"7-8",                            7.0},
    {"3/4",                            3.0},
    {"0x1F",                           0.0},    // no hexadecimal
    {"&H1F",                           0.0},
    {"1d3",                            1.0},    // the exponent is e or E
    {"8\0" "9"s,                       8.0},    // a zero byte is no digit

    // exponents
    {"1e2",                          100.0},
    {"1E2",                          100.0},
    {"1e+2",                         100.0},
    {"1e-2",                           0.01},
    {"1.e2",                         100.0},
    {"-.5e2x",                       -50.0},
    {"12e",                           12.0},    // an exponent without digits is none
    {"12e+",                          12.0},
    {"12e-x",                         12.0},
    {"12ee3",                         12.0},
    {"1e2.5",                        100.0},
    {"1e2e3",                        100.0},
    {"e5",                             0.0},
    {".e5",                            0.0},

    // no number at all
    {"",                               0.0},
    {"abc",                            0.0},
    {".",                              0.0},
    {"-.",                             0.0},
    {"..5",                            0.0},
    {"km 12.5",                        0.0},
    {"inf",                            0.0},
    {"-infinity",                      0.0},
    {"nan",                            0.0},
    {"\u0663",                         0.0},    // Arabic-Indic three
    {"\xff\xfe",                       0.0},    // no UTF-8

    // too small is 0, and so is 0 with any exponent
    {"1e-400",                         0.0},
    {"-1e-400",                        0.0},
    {"10e-400",                        0.0},
    {"2e-324",                         0.0},    // below half of the smallest double, 4.94e-324
    {"1e-99999999999999999999",        0.0},
    {"0." + Zeros + "1",               0.0},
    {"0e999",                          0.0},
    {"0.00e99999999999999999999",      0.0},

    // long digits and large exponents that cancel
    {"1" + Zeros + "e-400",            1.0},
    {"0." + Zeros + "1e401",           1.0},
    {"1.5" + Zeros,                    1.5},
};

const std::string TooLarge[] = {
    "1e400", "-1e400", "1e309", "1.7976931348623159e308", "  1e400 km", ".1e310", ".0001e+400", "1e99999999999999999999",
    "1e+99999999999999999999", "1" + Zeros, "1" + Zeros + ".5", "0." + Zeros + "1e800",
};
// clang-format on

TEST(ValueOf, ReadsTheNumberAtTheStart)
{
    for (const auto& [text, value] : Readings)
        EXPECT_EQ(valueOf(text), value) << "text \"" << text << '"';
}

TEST(ValueOf, MinusZeroIsZero)
{
    EXPECT_FALSE(std::signbit(valueOf("-0")));
    EXPECT_FALSE(std::signbit(valueOf("-1e-400")));
}

TEST(ValueOf, OverflowsBeyondADouble)
{
    for (const std::string& text : TooLarge) {
        SCOPED_TRACE(text);
        EXPECT_EQ(errorOf([&] { valueOf(text); }).kind(), ErrorKind::Overflow);
    }
}

TEST(ValueOf, OverflowNamesTheNumberOnly)
{
    EXPECT_STREQ(errorOf([] { valueOf("  -1e400 km"); }).what(),
                 "Overflow: the number \"-1e400\" is too large to compute with.");
    EXPECT_STREQ(errorOf([] { valueOf("1" + Zeros); }).what(),
                 ("Overflow: the number \"1" + std::string(39, '0') + "...\" is too large to compute with.").c_str());
}

TEST(ValueOf, ReadsAPointWhateverTheLocale)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    const bool commaLocale = std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
    EXPECT_EQ(valueOf("12.5"), 12.5);
    EXPECT_EQ(valueOf("12,5"), 12.0);
    EXPECT_EQ(textOf(12.5), "12.5");
    std::setlocale(LC_ALL, before.c_str());
    if (!commaLocale)
        GTEST_SKIP() << "no locale with a decimal comma is installed: tried in the C locale only";
}

// ---- what a text is taken for -------------------------------------------------------------------------------------

struct TakenFor {
    std::string text;
    TextKind kind;
    double value;
};

// clang-format off
const TakenFor TakenFors[] = {
    {"",                  TextKind::Blank,        0.0},
    {"   ",               TextKind::Blank,        0.0},
    {"12.5",              TextKind::Number,      12.5},
    {" 12 ",              TextKind::Number,      12.0},
    {"+7",                TextKind::Number,       7.0},
    {"-.5",               TextKind::Number,      -0.5},
    {"5.",                TextKind::Number,       5.0},
    {".",                 TextKind::Number,       0.0},   // as pictures print 0
    {"1e39",              TextKind::Number,      1e39},   // beyond a single, not beyond a double
    {"1e-400",            TextKind::Number,       0.0},
    {"12km",              TextKind::NotANumber,  12.0},
    {"1,234",             TextKind::NotANumber,   1.0},
    {"12 13",             TextKind::NotANumber,  12.0},
    {"-.5x",              TextKind::NotANumber,  -0.5},
    {"12e",               TextKind::NotANumber,  12.0},
    {"0x10",              TextKind::NotANumber,   0.0},
    {"abc",               TextKind::NotANumber,   0.0},
    {"-",                 TextKind::NotANumber,   0.0},
    {" .",                TextKind::NotANumber,   0.0},   // no picture prints a blank before its point
    {"\t5",               TextKind::NotANumber,   0.0},
    {"inf",               TextKind::NotANumber,   0.0},
    {"1e400",             TextKind::TooLarge,     0.0},
    {"-1e400",            TextKind::TooLarge,     0.0},
    {"1" + Zeros + " km", TextKind::TooLarge,     0.0},
};
// clang-format on

TEST(Read, TellsANumberFromATextThatOnlyCountsAsOne)
{
    for (const auto& [text, kind, value] : TakenFors) {
        SCOPED_TRACE(text);
        EXPECT_EQ(read(text).kind, kind);
        EXPECT_EQ(read(text).value, value);
    }
}

// ---- the strict reading --------------------------------------------------------------------------------------------

struct StrictReading {
    const char* text;
    float value;
};

// clang-format off
constexpr StrictReading StrictReadings[] = {
    {"12",         12.0F},
    {"  12",       12.0F},
    {"12  ",       12.0F},
    {" -3.5 ",     -3.5F},
    {"+4",          4.0F},
    {".5",          0.5F},
    {"5.",          5.0F},
    {"1e2",       100.0F},
    {"0.1",         0.1F},
    {"1e-400",      0.0F},
    {"16777217", 16777216.0F},  // 2^24 + 1 has no single of its own; half to even
};

constexpr const char* NoNumbers[] = {
    "", " ", "abc", "12x", "x12", "12 13", "1,2", "12e", ".", "-.", "-", "- 5", "inf", "nan", "0x10", "12\t",
};
// clang-format on

TEST(StrictSingle, ReadsAWholeNumber)
{
    for (const auto& [text, value] : StrictReadings)
        EXPECT_EQ(strictSingle(text, "the number of segment 1", 0), value) << "text \"" << text << '"';
}

TEST(StrictSingle, AnyOtherTextIsATypeMismatch)
{
    for (const char* text : NoNumbers) {
        SCOPED_TRACE(text);
        const auto error = errorOf([&] { strictSingle(text, "the number of segment 3", 2); });
        EXPECT_EQ(error.kind(), ErrorKind::TypeMismatch);
        EXPECT_EQ(error.row(), 2);
        EXPECT_EQ(error.what(), "Type mismatch: the number of segment 3 is not a number: \""s + text + "\".");
    }
}

TEST(StrictSingle, LongTextsAreCutBetweenCharacters)
{
    // 39 letters and then an e acute, whose two bytes straddle the limit of 40.
    const std::string letters(39, 'a');
    EXPECT_EQ(errorOf([&] { strictSingle(letters + "\u00e9t", "it", 0); }).what(),
              "Type mismatch: it is not a number: \"" + letters + "...\".");
}

TEST(StrictSingle, OverflowsBeyondASingle)
{
    for (const char* text : {"1e39", "-1e39", "3.5e38", "1e400"}) {
        SCOPED_TRACE(text);
        const auto error = errorOf([&] { strictSingle(text, "the number of segment 3", 2); });
        EXPECT_EQ(error.kind(), ErrorKind::Overflow);
        EXPECT_EQ(error.row(), 2);
    }
}

// ---- counts --------------------------------------------------------------------------------------------------------

struct Count {
    int limit;
    std::string text;
    double value;
};

// clang-format off
const Count Counts[] = {
    {16, "3",          3.0},
    {16, "16",        16.0},
    {16, "20",        16.0},
    {16, "16.5",      16.0},
    {16, "15.9",      15.9},
    {16, "2.5",        2.5},
    {16, "-3",        -3.0},
    {16, "",           0.0},
    {16, "many",       0.0},
    {16, " 4 gangs",   4.0},
    {15, "99999",     15.0},
    {15, "1e400",     15.0},   // cut before any conversion: never an overflow
    {15, "1" + Zeros, 15.0},
    {15, "-1e400",    -LargestDouble},
};
// clang-format on

TEST(CountUpTo, CutsToTheLimitAndNeverOverflows)
{
    for (const auto& [limit, text, value] : Counts)
        EXPECT_EQ(countUpTo(limit, text), value) << "text \"" << text << '"';
}

// ---- plain texts ---------------------------------------------------------------------------------------------------

TEST(TextOf, SinglesShowSevenDigits)
{
    EXPECT_EQ(textOf(23.7F), "23.7");  // the single is 23.7000007629...
    EXPECT_EQ(textOf(0.0F), "0");
    EXPECT_EQ(textOf(0.5F), "0.5");
    EXPECT_EQ(textOf(-12.0F), "-12");
    EXPECT_EQ(textOf(1234567.0F), "1234567");
    EXPECT_EQ(textOf(0.1F + 0.2F), "0.3");  // .300000012 in single
}

TEST(TextOf, DoublesShowFifteenDigits)
{
    EXPECT_EQ(textOf(23.7), "23.7");
    EXPECT_EQ(textOf(0.1 + 0.2), "0.3");  // .30000000000000004
    EXPECT_EQ(textOf(2.0), "2");
    EXPECT_EQ(textOf(123456789012345.0), "123456789012345");
}

}  // namespace
