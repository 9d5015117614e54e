#include "yards/yard_norms.h"

#include "figures/error_of.h"

#include <gtest/gtest.h>

#include <array>
#include <type_traits>

using figures::ErrorKind;
using yards::addYards;
using yards::YardLines;
using yards::yardMandays;

namespace {

struct YardCase {
    const char* name;
    const char* gauge;
    YardLines lines;
    float mandays;
};

class Yards : public testing::TestWithParam<YardCase> {};

TEST_P(Yards, GiveMandays)
{
    EXPECT_FLOAT_EQ(yardMandays(GetParam().lines, GetParam().gauge), GetParam().mandays);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Norms, Yards, testing::Values(
    //                                      km on lines            turnouts on
    //                                      mach.  man.   non-r.   mach.  man.  non-r.   mandays
    // a = 2 + 1, b = 1 + .5, c = 3; b + 2 x c / 3 = 3.5
    YardCase{"BroadGauge",        "BG",   { 2.0,   1.0,   3.0,    10.0,  5.0,  0.0F},   1570.5F},  // 177 x 3 + 297 x 3.5
    YardCase{"MetreGauge",        "MG",   { 2.0,   1.0,   3.0,    10.0,  5.0,  0.0F},    798.0F},  // 228 x 3.5
    YardCase{"NarrowGauge",       "NG",   { 2.0,   1.0,   3.0,    10.0,  5.0,  0.0F},    535.5F},  // 153 x 3.5
    // any other text is narrow gauge, to the letter
    YardCase{"NoGauge",           "",     { 2.0,   1.0,   3.0,    10.0,  5.0,  0.0F},    535.5F},
    YardCase{"LowerCase",         "bg",   { 2.0,   1.0,   3.0,    10.0,  5.0,  0.0F},    535.5F},
    YardCase{"BlankInFront",      " BG",  { 2.0,   1.0,   3.0,    10.0,  5.0,  0.0F},    535.5F},
    YardCase{"BlankBehind",       "MG ",  { 2.0,   1.0,   3.0,    10.0,  5.0,  0.0F},    535.5F},
    // each column alone
    YardCase{"MachineKm",         "BG",   { 1.0,   0.0,   0.0,     0.0,  0.0,  0.0F},    177.0F},
    YardCase{"ManualKm",          "BG",   { 0.0,   1.0,   0.0,     0.0,  0.0,  0.0F},    297.0F},
    YardCase{"NonRunningKm",      "BG",   { 0.0,   0.0,   3.0,     0.0,  0.0,  0.0F},    594.0F},  // 297 x 2
    YardCase{"MachineTurnouts",   "BG",   { 0.0,   0.0,   0.0,    10.0,  0.0,  0.0F},    177.0F},  // 10 x .1 km
    YardCase{"ManualTurnouts",    "BG",   { 0.0,   0.0,   0.0,     0.0, 10.0,  0.0F},    297.0F},
    YardCase{"NonRunningTurnouts","BG",   { 0.0,   0.0,   0.0,     0.0,  0.0, 15.0F},    297.0F},  // 297 x 2 x 1.5 / 3
    YardCase{"MetreNonRunning",   "MG",   { 0.0,   0.0,   0.0,     0.0,  0.0, 15.0F},    228.0F},
    YardCase{"MetreMachineOnly",  "MG",   { 9.0,   0.0,   0.0,     9.0,  0.0,  0.0F},      0.0F},
    YardCase{"NarrowMachineOnly", "NG",   { 9.0,   0.0,   0.0,     9.0,  0.0,  0.0F},      0.0F},
    YardCase{"NoYards",           "BG",   { 0.0,   0.0,   0.0,     0.0,  0.0,  0.0F},      0.0F}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST(YardSums, AddColumnByColumn)
{
    const std::array yards = {YardLines{1, 2, 3, 4, 5, 6.0F}, YardLines{10, 20, 30, 40, 50, 60.0F}};
    const YardLines sums = addYards({}, yards);
    EXPECT_EQ(sums.machineKm, 11.0);
    EXPECT_EQ(sums.manualKm, 22.0);
    EXPECT_EQ(sums.nonRunningKm, 33.0);
    EXPECT_EQ(sums.machineTurnouts, 44.0);
    EXPECT_EQ(sums.manualTurnouts, 55.0);
    EXPECT_EQ(sums.nonRunningTurnouts, 66.0F);

    // The sums go on where they stood.
    EXPECT_EQ(addYards(sums, yards).machineKm, 22.0);
    EXPECT_EQ(addYards(sums, {}).nonRunningTurnouts, 66.0F);
}

// From 2^24 on singles are even: each turnout is lost, where doubles would count two. The other columns are doubles.
TEST(YardSums, NonRunningTurnoutsAloneAreSingle)
{
    static_assert(std::is_same_v<decltype(YardLines::nonRunningTurnouts), float>);
    const std::array yards = {YardLines{1, 1, 1, 1, 1, 1.0F}, YardLines{1, 1, 1, 1, 1, 1.0F}};
    const double many = 16777216.0;
    const YardLines sums = addYards({many, many, many, many, many, 16777216.0F}, yards);
    EXPECT_EQ(sums.nonRunningTurnouts, 16777216.0F);
    for (const double sum :
         {sums.machineKm, sums.manualKm, sums.nonRunningKm, sums.machineTurnouts, sums.manualTurnouts})
        EXPECT_EQ(sum, 16777218.0);
}

// 177 x .1 km = 17.7; the single is 17.7000007629394531.
TEST(YardMandays, AreRoundedToSingle)
{
    static_assert(std::is_same_v<decltype(yardMandays({}, "BG")), float>);
    EXPECT_EQ(yardMandays({.machineKm = 0.1}, "BG"), 17.7F);
}

TEST(YardMandays, MachineColumnsPlayNoPartElsewhere)
{
    EXPECT_EQ(yardMandays({.machineKm = 1.7e308, .manualKm = 1, .machineTurnouts = 1.7e308}, "MG"), 228.0F);
}

TEST(YardErrors, OverflowNamesTheYard)
{
    const std::array far = {YardLines{.manualKm = 1e308}, YardLines{.manualKm = 1e308}};
    const auto sum = errorOf([&] { addYards({}, far); });
    EXPECT_STREQ(sum.what(), "Overflow: the column total at yard 2 is too large to compute with.");
    EXPECT_EQ(sum.row(), 1);

    const std::array many = {YardLines{.nonRunningTurnouts = 3e38F}, YardLines{.nonRunningTurnouts = 3e38F}};
    EXPECT_EQ(errorOf([&] { addYards({}, many); }).row(), 1);

    const auto mandays = errorOf([] { yardMandays({.manualKm = 1e40}, "NG"); });
    EXPECT_EQ(mandays.kind(), ErrorKind::Overflow);
    EXPECT_STREQ(mandays.what(), "Overflow: the number of mandays for yards is 1.53e+42, too large to compute with.");
}

}  // namespace
