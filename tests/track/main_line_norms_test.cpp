#include "track/main_line_norms.h"

#include "figures/error_of.h"
#include "figures/picture.h"

#include <gtest/gtest.h>

#include <array>
#include <type_traits>

using figures::ErrorKind;
using track::MainLineMandays;
using track::MainLineSegment;
using track::Method;

namespace {

enum class Norm { BgSuburban, BgManual, BgMachine, Mg, Ng };

MainLineMandays mandaysOf(Norm norm, const MainLineSegment& segment)
{
    switch (norm) {
    case Norm::BgSuburban:
        return track::bgMandays(segment, true, Method::MachinePacked, 0);
    case Norm::BgManual:
        return track::bgMandays(segment, false, Method::ManuallyPacked, 0);
    case Norm::BgMachine:
        return track::bgMandays(segment, false, Method::MachinePacked, 0);
    case Norm::Mg:
        return track::mgMandays(segment, 0);
    case Norm::Ng:
        return track::ngMandays(segment, 0);
    }
    throw std::logic_error("no such norm");
}

struct NormCase {
    const char* name;
    Norm norm;
    MainLineSegment segment;
    double t;
    double r;
};

class MainLine : public testing::TestWithParam<NormCase> {};

TEST_P(MainLine, GivesMandays)
{
    const MainLineMandays mandays = mandaysOf(GetParam().norm, GetParam().segment);
    EXPECT_DOUBLE_EQ(mandays.t, GetParam().t);
    EXPECT_DOUBLE_EQ(mandays.r, GetParam().r);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Norms, MainLine, testing::Values(
    //        name                     norm               km     GMT   factor  concrete      T         R
    NormCase{"SuburbanNoTraffic",      Norm::BgSuburban, { 5.0,  0.0,  1.0F,   0.0},       575.0,   1990.0},  // 115 x 5; 398 x 5
    NormCase{"Suburban",               Norm::BgSuburban, { 5.0, 10.0,  1.5F,   0.0},      1035.0,   1990.0},  // (115 + 23) x 1.5 x 5
    NormCase{"SuburbanOnConcrete",     Norm::BgSuburban, { 5.0, 10.0,  1.0F,   3.0},       690.0,   1990.0},  // concrete plays no part
    NormCase{"ManualNoTraffic",        Norm::BgManual,   {10.0,  0.0,  1.0F,   0.0},      2230.0,   1680.0},  // 223 x 10; 168 x 10
    NormCase{"Manual",                 Norm::BgManual,   {10.0,  2.0,  1.0F,   5.0},      2394.8,   1820.0},  // (223 + 16.48) x 10; 168 x 5 + 196 x 5
    NormCase{"ManualAllOnConcrete",    Norm::BgManual,   {10.0,  0.0,  1.25F, 10.0},      2787.5,   1960.0},  // 223 x 1.25 x 10; 196 x 10
    NormCase{"MachineNoTraffic",       Norm::BgMachine,  {10.0,  0.0,  1.0F,   0.0},       800.0,   1590.0},  // 80 x 10; 159 x 10
    NormCase{"Machine",                Norm::BgMachine,  {10.0,  2.0,  1.0F,   5.0},       846.0,   1730.0},  // (80 + 4.6) x 10; 159 x 5 + 187 x 5
    NormCase{"ConcreteBeyondLength",   Norm::BgMachine,  { 2.0,  0.0,  1.0F,   5.0},       160.0,    458.0},  // 159 x (2 - 5) + 187 x 5
    NormCase{"MetreNoTraffic",         Norm::Mg,         {10.0,  0.0,  1.0F,   0.0},      1600.0,   1280.0},  // 160 x 10; 128 x 10
    NormCase{"Metre",                  Norm::Mg,         {10.0,  2.0,  1.0F,   5.0},      1871.2,   1280.0},  // (160 + 27.12) x 10
    NormCase{"NarrowNoTraffic",        Norm::Ng,         {10.0,  0.0,  1.0F,   0.0},      1050.0,    910.0},  // 105 x 10; 91 x 10
    NormCase{"NarrowBelowItsMost",     Norm::Ng,         {10.0,  0.25, 1.0F,   5.0},      1520.0,    910.0},  // (105 + 47) x 10
    NormCase{"NarrowAtItsMost",        Norm::Ng,         {10.0,  0.5,  1.25F,  0.0},      2250.0,    910.0},  // 105 + 94 is 180; 180 x 1.25 x 10
    NormCase{"TenthOfAKm",             Norm::BgMachine,  { 0.1,  0.0,  1.0F,   0.0},         8.0,     15.9},  // 80 x .1; 159 x .1, which no single is
    NormCase{"NoFactor",               Norm::BgManual,   {10.0,  5.0,  0.0F,   0.0},         0.0,   1680.0},  // the factor is T's alone
    NormCase{"NoLength",               Norm::BgMachine,  { 0.0,  5.0,  1.0F,   0.0},         0.0,      0.0}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

// 10 GMT, factor 1.1, 5 km: 138 x 1.1 x 5 = 759 on paper. The single 1.1 is 1.10000002384185791: 759.0000164508820.
TEST(MainLineFactor, IsASingle)
{
    static_assert(std::is_same_v<decltype(MainLineSegment::factor), float>);
    const auto mandays = mandaysOf(Norm::BgSuburban, {.eqLengthKm = 5, .gmt = 10, .factor = 1.1F});
    EXPECT_DOUBLE_EQ(mandays.t, 759.00001645088196);
    EXPECT_EQ(figures::picture(mandays.t, "####.##"), "759.");
    EXPECT_EQ(figures::picture(mandays.r, "####.##"), "1990.");
}

TEST(MethodOf, MatchesToTheLetter)
{
    EXPECT_EQ(track::methodOf("Manually Packed"), Method::ManuallyPacked);
    for (const char* text : {"Machine Packed", "Machine packed", "Manually packed", "manually packed",
                             " Manually Packed", "Manually Packed ", "Method of Maintenance", ""})
        EXPECT_EQ(track::methodOf(text), Method::MachinePacked) << '"' << text << '"';
}

TEST(ConcreteKm, CountsTurnoutsAsLength)
{
    EXPECT_DOUBLE_EQ(track::concreteKm(4, 10, 0), 5.0);  // 4 + 10 x .1
    EXPECT_DOUBLE_EQ(track::concreteKm(0, 3, 0), 0.3);
    EXPECT_DOUBLE_EQ(track::concreteKm(2.5, 0, 0), 2.5);
}

struct RateCase {
    const char* name;
    double gmt;
    float rate;
};

class NarrowGaugeRate : public testing::TestWithParam<RateCase> {};

TEST_P(NarrowGaugeRate, GrowsToItsMost)
{
    EXPECT_EQ(track::ngTPerKm(GetParam().gmt, 0), GetParam().rate);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Traffic, NarrowGaugeRate, testing::Values(
    //        name            GMT              rate
    RateCase{"None",          0.0,            105.0F},
    RateCase{"Some",          0.25,           152.0F},  // 105 + 47
    RateCase{"Tenths",        0.3,            161.4F},  // 105 + 56.4
    RateCase{"AtTheLimit",   75.0 / 188.0,    180.0F},
    RateCase{"JustAbove",     0.4,            180.0F},  // 105 + 75.2 would be 180.2
    RateCase{"Above",         0.5,            180.0F},  // 199
    RateCase{"Heavy",        20.0,            180.0F},
    RateCase{"Negative",     -1.0,            -83.0F}), // 105 - 188
    [](const auto& tested) { return tested.param.name; });
// clang-format on

// The single nearest to 161.4 is 161.39999389648438: 10 km give that ten times over, where doubles would give 1614.
TEST(NarrowGauge, RateIsRoundedToSingle)
{
    const auto mandays = mandaysOf(Norm::Ng, {.eqLengthKm = 10, .gmt = 0.3, .factor = 1.0F});
    EXPECT_DOUBLE_EQ(mandays.t, 1613.9999389648438);
}

// The single 1.1 is 1.10000002384185791. Its product with 180 is 198.0000042915344, and singles near 198 lie
// .0000153 apart: 198. In doubles 10 km would give 1980.000042915344.
TEST(NarrowGauge, AugmentedRateIsASingle)
{
    const auto mandays = mandaysOf(Norm::Ng, {.eqLengthKm = 10, .gmt = 1, .factor = 1.1F});
    EXPECT_EQ(mandays.t, 1980.0);
}

// ... but the length multiplies in double: the single nearest to 180 x .7 is 125.99999237...
TEST(NarrowGauge, LengthMultipliesInDouble)
{
    const auto mandays = mandaysOf(Norm::Ng, {.eqLengthKm = 0.7, .gmt = 1, .factor = 1.0F});
    EXPECT_DOUBLE_EQ(mandays.t, 126.0);
}

TEST(NarrowGauge, ProductBeyondASingleIsAFloatingPointError)
{
    const MainLineSegment segment = {.eqLengthKm = 1, .gmt = 1, .factor = 3e38F};
    const auto error = errorOf([&] { track::ngMandays(segment, 4); });
    EXPECT_EQ(error.kind(), ErrorKind::FloatingPoint);
    EXPECT_EQ(error.row(), 4);
    EXPECT_STREQ(error.what(),
                 "Floating-point error: the augmented 'T' rate is too large to compute with on segment 5.");
}

TEST(MainLineErrors, OverflowNamesTheSegment)
{
    const MainLineSegment heavy = {.eqLengthKm = 1, .gmt = 1e308, .factor = 100.0F};
    const auto t = errorOf([&] { track::bgMandays(heavy, false, Method::ManuallyPacked, 2); });
    EXPECT_STREQ(t.what(), "Overflow: the number of 'T' mandays of segment 3 is too large to compute with.");
    EXPECT_EQ(t.row(), 2);

    const MainLineSegment longOne = {.eqLengthKm = 1e307, .gmt = -50, .factor = 0.0F};
    const auto r = errorOf([&] { track::mgMandays(longOne, 0); });
    EXPECT_STREQ(r.what(), "Overflow: the number of 'R' mandays of segment 1 is too large to compute with.");

    // The rate of narrow gauge is stored as a single before anything is multiplied.
    EXPECT_EQ(errorOf([] { track::ngTPerKm(-1e38, 0); }).kind(), ErrorKind::Overflow);
    EXPECT_EQ(errorOf([] { track::concreteKm(1.7e308, 1.7e308, 0); }).kind(), ErrorKind::Overflow);
    EXPECT_EQ(errorOf([] { track::trMandays({.t = 1e308, .r = 1e308}, 0); }).kind(), ErrorKind::Overflow);
}

TEST(TrMandays, AddsTAndR)
{
    EXPECT_DOUBLE_EQ(track::trMandays({.t = 759.25, .r = 1990.5}, 0), 2749.75);
    EXPECT_DOUBLE_EQ(track::trMandays({.t = 0.1, .r = 0.2}, 0), 0.3);  // no single
}

float sum(float total, std::initializer_list<double> segments)
{
    for (int row = 0; const double mandays : segments)
        total = track::addTrMandays(total, mandays, row++);
    return total;
}

TEST(TrTotal, AddsInOrder)
{
    EXPECT_EQ(sum(0.0F, {2749.75, 100.5, -50.25}), 2800.0F);
    EXPECT_EQ(sum(1000.0F, {2749.75, 100.5, -50.25}), 3800.0F);
}

// From 2^24 on singles are even: 16777216 + 1 falls back twice, where a double sum would end at 16777218.
// And 16777216 + 1.5 is 16777218: each manday enters as a double, not as a sum of rounded ones.
TEST(TrTotal, IsRoundedToSingleAtEachSegment)
{
    EXPECT_EQ(sum(16777216.0F, {1.0, 1.0}), 16777216.0F);
    EXPECT_EQ(sum(16777216.0F, {1.5}), 16777218.0F);
}

TEST(TrTotal, OverflowNamesTheSegment)
{
    const auto error = errorOf([] { track::addTrMandays(1.0F, 1e39, 1); });
    EXPECT_EQ(error.kind(), ErrorKind::Overflow);
    EXPECT_EQ(error.row(), 1);
    EXPECT_STREQ(error.what(),
                 "Overflow: the total of 'T'+'R' mandays at segment 2 is 1e+39, too large to compute with.");
}

}  // namespace
