#include "store/reader/cell_text.h"
#include "store/reader/utf16_text.h"

#include <bit>
#include <cstdint>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

namespace store {
namespace {

using Stored = std::vector<unsigned char>;

/// `value` as the file holds it: `count` bytes, low byte first.
Stored low(std::uint64_t value, int count)
{
    Stored bytes;
    for (int i = 0; i < count; ++i)
        bytes.push_back(static_cast<unsigned char>(value >> (8 * i)));
    return bytes;
}

Stored single(float value)
{
    return low(std::bit_cast<std::uint32_t>(value), 4);
}

Stored real(double value)
{
    return low(std::bit_cast<std::uint64_t>(value), 8);
}

/// Sign, then four groups of 4 bytes, the highest group first.
Stored decimal(bool negative, std::uint32_t a, std::uint32_t b, std::uint32_t c, std::uint32_t d)
{
    Stored bytes{static_cast<unsigned char>(negative ? 0x80 : 0)};
    for (const std::uint32_t group : {a, b, c, d})
        for (const unsigned char byte : low(group, 4))
            bytes.push_back(byte);
    return bytes;
}

Stored ascii(const std::string& text)
{
    Stored bytes(text.begin(), text.end());
    bytes.push_back(0);
    return bytes;
}

constexpr const char* NoValue = "(no value)";

struct Number {
    const char* name;
    Kind kind;
    Stored stored;
    int scale;
    const char* text;
};

class NumberText : public testing::TestWithParam<Number> {};

TEST_P(NumberText, IsWhatTheUserSeesInTheFile)
{
    const Number& tested = GetParam();
    std::string text = "before|";
    const bool isValue = appendNumber(text, tested.kind, tested.stored, tested.scale);
    EXPECT_EQ(isValue ? text : text + NoValue, std::string("before|") + tested.text);
}

// clang-format off
// 2008-03-31: 1900-01-01 is day 2; + 108 years x 365 + 26 leap days (1904 to 2004) is day 39448, 2008-01-01;
// + 31 in January + 29 in February + 30 in March
constexpr double Day = 39538;

INSTANTIATE_TEST_SUITE_P(Whole, NumberText, testing::Values(
    //     name             kind            stored                        scale  text
    Number{"ByteZero",      Kind::Byte,     low(0, 1),                        0, "0"},
    Number{"ByteMost",      Kind::Byte,     low(255, 1),                      0, "255"},
    Number{"IntegerLeast",  Kind::Integer,  low(0x8000, 2),                   0, "-32768"},
    Number{"IntegerMost",   Kind::Integer,  low(0x7FFF, 2),                   0, "32767"},
    Number{"MinusOne",      Kind::Integer,  low(0xFFFF, 2),                   0, "-1"},
    Number{"LongLeast",     Kind::Long,     low(0x80000000, 4),               0, "-2147483648"},
    Number{"LongMost",      Kind::Long,     low(0x7FFFFFFF, 4),               0, "2147483647"},
    Number{"IntegerShort",  Kind::Integer,  low(1, 1),                        0, NoValue},
    Number{"IntegerLong",   Kind::Integer,  low(1, 4),                        0, NoValue},
    Number{"LongEmpty",     Kind::Long,     {},                               0, NoValue}),
    [](const auto& tested) { return tested.param.name; });

INSTANTIATE_TEST_SUITE_P(Real, NumberText, testing::Values(
    Number{"SingleAsTyped", Kind::Single,   single(23.7F),                    0, "23.7"},   // not 23.700001
    Number{"SingleSeven",   Kind::Single,   single(0.1234567F),               0, "0.1234567"},
    Number{"SingleWhole",   Kind::Single,   single(1234567.0F),               0, "1234567"},
    Number{"SingleEight",   Kind::Single,   single(16777216.0F),              0, "1.677722e+07"},
    Number{"SingleNegative", Kind::Single,  single(-0.3F),                    0, "-0.3"},
    Number{"SingleMost",    Kind::Single,   single(3.4028235e38F),            0, "3.402823e+38"},
    Number{"SingleMinusZero", Kind::Single, single(-0.0F),                    0, "0"},
    Number{"SingleInfinite", Kind::Single,  low(0x7F800000, 4),               0, NoValue},
    Number{"DoubleTenth",   Kind::Double,   real(0.1),                        0, "0.1"},
    Number{"DoubleThird",   Kind::Double,   real(1.0 / 3.0),                  0, "0.333333333333333"},
    Number{"DoubleSum",     Kind::Double,   real(0.1 + 0.2),                  0, "0.3"},    // 0.30000000000000004
    Number{"DoubleSixteen", Kind::Double,   real(123456789012345678.0),       0, "1.23456789012346e+17"},
    Number{"DoubleSmall",   Kind::Double,   real(0.0001),                     0, "0.0001"},
    Number{"DoubleSmaller", Kind::Double,   real(0.00001),                    0, "1e-05"},
    Number{"DoubleMinusZero", Kind::Double, real(-0.0),                       0, "0"},
    Number{"DoubleNoNumber", Kind::Double,  real(std::numeric_limits<double>::quiet_NaN()), 0, NoValue},
    Number{"DoubleShort",   Kind::Double,   low(0, 7),                        0, NoValue}),
    [](const auto& tested) { return tested.param.name; });

INSTANTIATE_TEST_SUITE_P(Exact, NumberText, testing::Values(
    Number{"CurrencyZero",  Kind::Currency, low(0, 8),                        0, "0"},
    Number{"CurrencyWhole", Kind::Currency, low(1'000'000, 8),                0, "100"},
    Number{"CurrencyHalf",  Kind::Currency, low(125'000, 8),                  0, "12.5"},
    Number{"CurrencyLeast", Kind::Currency, low(~std::uint64_t{0}, 8),        0, "-0.0001"},
    Number{"CurrencyMost",  Kind::Currency, low(0x7FFFFFFFFFFFFFFF, 8),       0, "922337203685477.5807"},
    Number{"CurrencyLowest", Kind::Currency, low(0x8000000000000000, 8),      0, "-922337203685477.5808"},
    Number{"DecimalZero",   Kind::Decimal,  decimal(false, 0, 0, 0, 0),       3, "0"},
    Number{"DecimalMinusZero", Kind::Decimal, decimal(true, 0, 0, 0, 0),      3, "0"},
    Number{"DecimalWhole",  Kind::Decimal,  decimal(false, 0, 0, 0, 1200),    0, "1200"},
    Number{"DecimalTrailing", Kind::Decimal, decimal(false, 0, 0, 0, 12500),  4, "1.25"},
    Number{"DecimalToWhole", Kind::Decimal, decimal(false, 0, 0, 0, 5000),    3, "5"},
    Number{"DecimalBelowOne", Kind::Decimal, decimal(true, 0, 0, 0, 25),      3, "-0.025"},
    Number{"DecimalGroups", Kind::Decimal,  decimal(false, 0, 0, 1, 0),       0, "4294967296"},                    // 2^32
    Number{"DecimalHighest", Kind::Decimal, decimal(false, 1, 0, 0, 0),       0, "79228162514264337593543950336"}, // 2^96
    Number{"DecimalMostScale", Kind::Decimal, decimal(false, 0, 0, 0, 1),    28, "0.0000000000000000000000000001"},
    Number{"DecimalBadScale", Kind::Decimal, decimal(false, 0, 0, 0, 1),     29, NoValue},
    Number{"DecimalShort",  Kind::Decimal,  Stored(16),                       0, NoValue}),
    [](const auto& tested) { return tested.param.name; });

INSTANTIATE_TEST_SUITE_P(Date, NumberText, testing::Values(
    Number{"Date",          Kind::DateTime, real(Day),                        0, "2008-03-31"},
    Number{"DateAndTime",   Kind::DateTime, real(Day + 50709.0 / 86400),      0, "2008-03-31 14:05:09"},  // 14 h 5 min 9 s
    Number{"TimeAlone",     Kind::DateTime, real(0.25),                       0, "06:00:00"},
    Number{"MidnightAlone", Kind::DateTime, real(0.0),                        0, "00:00:00"},
    Number{"NearlyNextDay", Kind::DateTime, real(Day - 1e-9),                 0, "2008-03-31"},  // no second is lost
    Number{"LeapDay",       Kind::DateTime, real(Day - 31),                   0, "2008-02-29"},
    Number{"DayOne",        Kind::DateTime, real(1.0),                        0, "1899-12-31"},
    Number{"BeforeDayZero", Kind::DateTime, real(-1.25),                      0, "1899-12-29 06:00:00"},
    Number{"First",         Kind::DateTime, real(-657434.0),                  0, "0100-01-01"},
    Number{"Last",          Kind::DateTime, real(2958465.0),                  0, "9999-12-31"},
    Number{"BeforeFirst",   Kind::DateTime, real(-657435.0),                  0, NoValue},
    Number{"AfterLast",     Kind::DateTime, real(2958466.0),                  0, NoValue},
    Number{"FarAway",       Kind::DateTime, real(1e300),                      0, NoValue},
    Number{"NoNumber",      Kind::DateTime, real(std::numeric_limits<double>::quiet_NaN()), 0, NoValue}),
    [](const auto& tested) { return tested.param.name; });

INSTANTIATE_TEST_SUITE_P(Big, NumberText, testing::Values(
    Number{"BigMinusOne",   Kind::BigInteger, low(~std::uint64_t{0}, 8),      0, "-1"},
    Number{"BigMost",       Kind::BigInteger, low(0x7FFFFFFFFFFFFFFF, 8),     0, "9223372036854775807"},
    Number{"BigLeast",      Kind::BigInteger, low(0x8000000000000000, 8),     0, "-9223372036854775808"},
    Number{"BigShort",      Kind::BigInteger, low(1, 4),                      0, NoValue}),
    [](const auto& tested) { return tested.param.name; });

// 2008-03-31: 2007 years x 365 + 501 leap days (2004 / 4) - 20 + 5 of whole centuries is day 733041, 2008-01-01;
// + 31 in January + 29 in February + 30 in March. A second has 10,000,000 parts.
INSTANTIATE_TEST_SUITE_P(Extended, NumberText, testing::Values(
    Number{"ExtendedDate",  Kind::ExtendedDateTime, ascii("0000000000000733131:0000000000000000000:7"), 0, "2008-03-31"},
    Number{"ExtendedTime",  Kind::ExtendedDateTime, ascii("0000000000000733131:0000000507090000000:7"), 0, "2008-03-31 14:05:09"},
    Number{"ExtendedPart",  Kind::ExtendedDateTime, ascii("0000000000000733131:0000000507090000001:7"), 0, "2008-03-31 14:05:09.0000001"},
    Number{"ExtendedHalf",  Kind::ExtendedDateTime, ascii("0000000000000733131:0000000000005000000:7"), 0, "2008-03-31 00:00:00.5"},
    Number{"ExtendedFirst", Kind::ExtendedDateTime, ascii("0000000000000000000:0000000000000000000:7"), 0, "0001-01-01"},
    Number{"ExtendedLast",  Kind::ExtendedDateTime, ascii("0000000000003652058:0000000863999999999:7"), 0, "9999-12-31 23:59:59.9999999"},
    Number{"ExtendedAfter", Kind::ExtendedDateTime, ascii("0000000000003652059:0000000000000000000:7"), 0, NoValue},
    Number{"ExtendedNight", Kind::ExtendedDateTime, ascii("0000000000000733131:0000000864000000000:7"), 0, NoValue},
    Number{"ExtendedHuge",  Kind::ExtendedDateTime, ascii("9999999999999999999:0000000000000000000:7"), 0, NoValue},
    Number{"ExtendedMinus", Kind::ExtendedDateTime, ascii("-000000000000000001:0000000000000000000:7"), 0, NoValue},
    Number{"ExtendedColon", Kind::ExtendedDateTime, ascii("0000000000000733131;0000000000000000000:7"), 0, NoValue},
    Number{"ExtendedDigits", Kind::ExtendedDateTime, ascii("0000000000000733131:00000000000000000 0:7"), 0, NoValue},
    Number{"ExtendedSix",   Kind::ExtendedDateTime, ascii("0000000000000733131:0000000000000000000:6"), 0, NoValue},
    Number{"ExtendedShort", Kind::ExtendedDateTime, ascii("0000000000000733131"),                       0, NoValue}),
    [](const auto& tested) { return tested.param.name; });

INSTANTIATE_TEST_SUITE_P(NoNumbers, NumberText, testing::Values(
    Number{"Text",          Kind::Text,     {},                               0, NoValue},
    Number{"Memo",          Kind::Memo,     {},                               0, NoValue},
    Number{"YesNo",         Kind::YesNo,    {},                               0, NoValue}),
    [](const auto& tested) { return tested.param.name; });

/// A calculated value as it is stored: 16 bytes of no meaning here, its length, itself, 3 bytes more.
Stored calculated(const Stored& value)
{
    Stored bytes(16, 0xAA);
    for (const unsigned char byte : low(value.size(), 4))
        bytes.push_back(byte);
    bytes.insert(bytes.end(), value.begin(), value.end());
    bytes.insert(bytes.end(), 3, 0);
    return bytes;
}

struct Result {
    const char* name;
    Kind kind;
    Stored stored;
    const char* text;
};

class CalculatedText : public testing::TestWithParam<Result> {};

TEST_P(CalculatedText, IsThatOfTheValueInside)
{
    const Result& tested = GetParam();
    std::string text = "before|";
    const std::optional<Bytes> value = calculatedValue(tested.stored);
    const bool isValue = value && appendCalculated(text, tested.kind, *value);
    EXPECT_EQ(isValue ? text : text + NoValue, std::string("before|") + tested.text);
}

// Of a Decimal: length, decimals, sign, then digits by fours of bytes, the highest ones first; of a pair of fours the
// lower one comes first.
INSTANTIATE_TEST_SUITE_P(Values, CalculatedText, testing::Values(
    Result{"Double",       Kind::Double,   calculated(real(12.5)),            "12.5"},
    Result{"Long",         Kind::Long,     calculated(low(0xFFFFFFFF, 4)),    "-1"},
    Result{"Currency",     Kind::Currency, calculated(low(125'000, 8)),       "12.5"},
    Result{"Date",         Kind::DateTime, calculated(real(Day)),             "2008-03-31"},
    Result{"Byte",         Kind::Byte,     calculated({255}),                 "255"},
    Result{"Yes",          Kind::YesNo,    calculated({0xFF}),                "True"},
    Result{"No",           Kind::YesNo,    calculated({0}),                   "False"},
    Result{"YesAsInteger", Kind::Integer,  calculated({0xFF}),                "True"},
    Result{"YesTooLong",   Kind::YesNo,    calculated({0xFF, 0xFF}),          NoValue},
    Result{"DoubleShort",  Kind::Double,   calculated(low(0, 7)),             NoValue},
    Result{"Decimal1",     Kind::Decimal,  calculated({6, 0,  2, 0,  125, 0, 0, 0}),                                   "1.25"},
    Result{"DecimalMinus", Kind::Decimal,  calculated({6, 0,  2, 1,  125, 0, 0, 0}),                                   "-1.25"},
    Result{"Decimal2",     Kind::Decimal,  calculated({10, 0, 0, 0,  5, 0, 0, 0, 1, 0, 0, 0}),                         "4294967301"},  // 2^32 + 5
    Result{"Decimal3",     Kind::Decimal,  calculated({14, 0, 0, 0,  0, 0, 0, 0, 5, 0, 0, 0, 1, 0, 0, 0}),             "4294967301"},
    Result{"Decimal3High", Kind::Decimal,  calculated({14, 0, 0, 0,  1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}),             "18446744073709551616"},  // 2^64
    Result{"Decimal4",     Kind::Decimal,  calculated({18, 0, 0, 0,  0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}), "79228162514264337593543950336"},  // 2^96
    Result{"DecimalScale", Kind::Decimal,  calculated({6, 0, 29, 0,  125, 0, 0, 0}),                                   NoValue},
    Result{"DecimalShort", Kind::Decimal,  calculated({6, 0,  2, 0}),         NoValue},
    Result{"NoLength",     Kind::Double,   Stored(19),                        NoValue},
    Result{"TooLong",      Kind::Double,   Stored(40, 0xAA),                  NoValue}),
    [](const auto& tested) { return tested.param.name; });

struct Words {
    const char* name;
    Stored stored;
    std::string text;
};

class StoredText : public testing::TestWithParam<Words> {};

TEST_P(StoredText, ComesWholeAndUnchanged)
{
    std::string text = "before|";
    appendText(text, GetParam().stored);
    EXPECT_EQ(text, "before|" + GetParam().text);
}

using namespace std::string_literals;

INSTANTIATE_TEST_SUITE_P(Words, StoredText, testing::Values(
    //    name               stored                                                      text
    Words{"Empty",           {},                                                         ""},
    Words{"Plain",           {'U', 0, 'P', 0},                                           "UP"},
    Words{"TwoBytes",        {0xE9, 0},                                                  "é"},
    Words{"Devanagari",      {0x15, 0x09, 0x47, 0x09},                                   "के"},
    Words{"Rupee",           {0xB9, 0x20},                                               "₹"},
    Words{"BeyondTwoBytes",  {0x3D, 0xD8, 0x82, 0xDE},                                   "🚂"},   // U+1F682
    Words{"ZeroCharacter",   {'a', 0, 0, 0, 'b', 0},                                     "a\0b"s},
    Words{"LineBreaks",      {'\r', 0, '\n', 0, '\t', 0},                                "\r\n\t"},
    Words{"FirstHalfAlone",  {0x3D, 0xD8, 'a', 0},                                       "\uFFFDa"},
    Words{"FirstHalfAtEnd",  {0x3D, 0xD8},                                               "\uFFFD"},
    Words{"SecondHalfAlone", {0x82, 0xDE, 'a', 0},                                       "\uFFFDa"},
    Words{"TwoFirstHalves",  {0x3D, 0xD8, 0x3D, 0xD8, 0x82, 0xDE},                       "\uFFFD🚂"},
    Words{"OddByte",         {'a', 0, 'b'},                                              "a\uFFFD"},
    Words{"OnlyOneByte",     {'a'},                                                      "\uFFFD"},
    Words{"Compressed",      {0xFF, 0xFE, 'U', 'P', 0xE9},                               "UPé"},
    Words{"CompressedEmpty", {0xFF, 0xFE},                                               ""},
    Words{"SwitchesOver",    {0xFF, 0xFE, 'a', ' ', 0, 0x15, 0x09},                      "a क"},
    Words{"SwitchesBack",    {0xFF, 0xFE, 0, 0x15, 0x09, 0, 'b'},                        "कb"},
    Words{"SwitchAtEnd",     {0xFF, 0xFE, 'a', 0},                                       "a"},
    Words{"CompressedOdd",   {0xFF, 0xFE, 0, 0x15},                                      "\uFFFD"}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

}  // namespace
}  // namespace store
