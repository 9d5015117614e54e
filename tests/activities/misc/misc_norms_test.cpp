#include "activities/misc/misc_norms.h"

#include "figures/error_of.h"

#include <gtest/gtest.h>

#include <array>
#include <type_traits>

using figures::ErrorKind;
using misc::BeatLength;
using misc::LevelCrossings;
using misc::VulnerableLocation;

namespace {

// ---- M.1 -----------------------------------------------------------------------------------------------------------

struct BeatCase {
    const char* name;
    BeatLength beat;
    double mandays;
};

class MonsoonPatrolling : public testing::TestWithParam<BeatCase> {};

TEST_P(MonsoonPatrolling, MultipliesDaysShiftsBeatsAndMen)
{
    EXPECT_DOUBLE_EQ(misc::addMonsoonPatrolling(0.0, {&GetParam().beat, 1}), GetParam().mandays);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(BeatLengths, MonsoonPatrolling, testing::Values(
    //        name              days   shifts  beats  men      mandays
    BeatCase{"Whole",         { 90.0,  2.0,    3.0,   2.0},    1080.0},   // 90 x 2 x 3 x 2
    BeatCase{"HalfADay",      { 90.5,  1.0,    1.0,   1.0},      90.5},
    BeatCase{"HalfMenToEven", { 10.0,  1.0,    1.0,   2.5},      20.0},   // 2.5 men are 2
    BeatCase{"HalfMenUp",     { 10.0,  1.0,    1.0,   3.5},      40.0},   // 3.5 men are 4
    BeatCase{"HalfAMan",      { 10.0,  1.0,    1.0,   0.5},       0.0},
    BeatCase{"HalfABeat",     { 10.0,  1.0,    1.5,   1.0},      15.0},   // only the men are whole
    BeatCase{"ADouble",       {  0.1,  3.0,    1.0,   1.0},       0.3},   // which no single is
    BeatCase{"MaxMen",       {  1.0,  1.0,    1.0, 32767.0}, 32767.0},
    BeatCase{"Empty",         {  0.0,  0.0,    0.0,   0.0},       0.0}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST(MonsoonPatrollingSum, GoesOnWhereItStood)
{
    const std::array beats = {BeatLength{10, 1, 1, 1}, BeatLength{20, 1, 1, 1}};
    const double once = misc::addMonsoonPatrolling(0.0, beats);
    EXPECT_EQ(once, 30.0);
    EXPECT_EQ(misc::addMonsoonPatrolling(once, beats), 60.0);
    EXPECT_EQ(misc::addMonsoonPatrolling(once, {}), 30.0);
}

TEST(MonsoonPatrollingSum, MenBeyond16BitsOverflow)
{
    const std::array beats = {BeatLength{1, 1, 1, 1}, BeatLength{1, 1, 1, 32768}};
    const auto error = errorOf([&] { misc::addMonsoonPatrolling(0.0, beats); });
    EXPECT_EQ(error.kind(), ErrorKind::Overflow);
    EXPECT_EQ(error.row(), 1);
    EXPECT_STREQ(error.what(), "Overflow: the number of men of beat length 2 is 32768, beyond -32768 to 32767.");
}

TEST(MonsoonPatrollingSum, OverflowNamesTheBeatLength)
{
    const std::array beats = {BeatLength{1e200, 1, 1e200, 1}};
    EXPECT_STREQ(errorOf([&] { misc::addMonsoonPatrolling(0.0, beats); }).what(),
                 "Overflow: the number of M.1 mandays at beat length 1 is too large to compute with.");
}

// ---- M.2, M.3 ------------------------------------------------------------------------------------------------------

TEST(WeatherPatrolling, GoesByLongWeldedRail)
{
    EXPECT_EQ(misc::hotWeatherPatrolling(7.0F), 210.0F);  // 30 x 7
    EXPECT_EQ(misc::coldWeatherPatrolling(7.0F), 84.0F);  // 12 x 7
    EXPECT_EQ(misc::hotWeatherPatrolling(0.0F), 0.0F);
    EXPECT_EQ(misc::coldWeatherPatrolling(0.0F), 0.0F);
}

// The single .1 is .100000001490116. In doubles .1 km would give 3.00000004470348 and 1.20000001788139.
TEST(WeatherPatrolling, IsSinglePrecision)
{
    static_assert(std::is_same_v<decltype(misc::hotWeatherPatrolling(0.0F)), float>);
    static_assert(std::is_same_v<decltype(misc::coldWeatherPatrolling(0.0F)), float>);
    EXPECT_EQ(misc::hotWeatherPatrolling(0.1F), 3.0F);
    EXPECT_EQ(misc::coldWeatherPatrolling(0.1F), 1.2F);
}

TEST(WeatherPatrolling, OverflowsBeyondASingle)
{
    EXPECT_STREQ(errorOf([] { misc::hotWeatherPatrolling(3e38F); }).what(),
                 "Overflow: the number of M.2 mandays is too large to compute with.");
    EXPECT_STREQ(errorOf([] { misc::coldWeatherPatrolling(3e38F); }).what(),
                 "Overflow: the number of M.3 mandays is too large to compute with.");
}

// ---- M.4 -----------------------------------------------------------------------------------------------------------

TEST(VulnerableLocations, NeedAManAShift)
{
    const std::array locations = {VulnerableLocation{30, 2}, VulnerableLocation{10.5, 3}};
    const float once = misc::addVulnerableLocations(0.0F, locations);
    EXPECT_EQ(once, 91.5F);  // 60 + 31.5
    EXPECT_EQ(misc::addVulnerableLocations(once, locations), 183.0F);
    EXPECT_EQ(misc::addVulnerableLocations(0.0F, {}), 0.0F);
}

// From 2^24 on singles are even: 16777216 + 1 falls back twice, where a double sum would end at 16777218.
TEST(VulnerableLocations, AreRoundedToSingleAtEachLocation)
{
    const std::array locations = {VulnerableLocation{1, 1}, VulnerableLocation{1, 1}};
    EXPECT_EQ(misc::addVulnerableLocations(16777216.0F, locations), 16777216.0F);
    // Days and shifts are doubles: 1.1 x 1.1 = 1.21, and the single sum with 16777216 is 16777218.
    EXPECT_EQ(misc::addVulnerableLocations(16777216.0F, std::array{VulnerableLocation{1.1, 1.1}}), 16777218.0F);
}

TEST(VulnerableLocations, OverflowNamesTheLocation)
{
    const std::array locations = {VulnerableLocation{1, 1}, VulnerableLocation{1e20, 1e20}};
    const auto error = errorOf([&] { misc::addVulnerableLocations(0.0F, locations); });
    EXPECT_STREQ(error.what(),
                 "Overflow: the number of M.4 mandays at location 2 is 1e+40, too large to compute with.");
    EXPECT_EQ(error.row(), 1);
}

// ---- M.1 to M.4 ----------------------------------------------------------------------------------------------------

TEST(FirstTotal, AddsAllFour)
{
    EXPECT_EQ(misc::firstTotal(1080.5, 210.0F, 84.0F, 91.5F), 1466.0F);
    EXPECT_EQ(misc::firstTotal(0.0, 0.0F, 0.0F, 0.0F), 0.0F);
}

// 16777216 + 1 + 1 + 1 is 16777219, halfway between two singles and rounded once, to the even 16777220. Rounded after
// each term it would stay at 16777216.
TEST(FirstTotal, IsRoundedToSingleOnce)
{
    EXPECT_EQ(misc::firstTotal(16777216.0, 1.0F, 1.0F, 1.0F), 16777220.0F);
    EXPECT_EQ(misc::firstTotal(0.1, 0.0F, 0.0F, 0.0F), 0.1F);
}

TEST(FirstTotal, OverflowsBeyondASingle)
{
    EXPECT_EQ(errorOf([] { misc::firstTotal(1e39, 0.0F, 0.0F, 0.0F); }).kind(), ErrorKind::Overflow);
}

// ---- M.5 -----------------------------------------------------------------------------------------------------------

struct GateCase {
    const char* name;
    std::array<LevelCrossings, 3> crossings;
    double sanctionedPosts;
    double mandays;
};

class GateKeeping : public testing::TestWithParam<GateCase> {};

TEST_P(GateKeeping, CreditsSanctionedPosts)
{
    EXPECT_DOUBLE_EQ(misc::gateKeeping(GetParam().crossings, GetParam().sanctionedPosts), GetParam().mandays);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Crossings, GateKeeping, testing::Values(
    //        name              crossings x shifts                    posts   mandays
    GateCase{"AllShifts",     {{{2.0, 1.0}, {1.0, 2.0}, {3.0, 3.0}}},   5.0,  3275.0},   // 365 x (2 + 2 + 9) - 294 x 5
    GateCase{"NoPosts",       {{{1.0, 1.0}, {1.0, 2.0}, {1.0, 3.0}}},   0.0,  2190.0},   // 365 x 6
    GateCase{"MorePosts",     {{{1.0, 1.0}, {0.0, 2.0}, {0.0, 3.0}}},   2.0,  -223.0},   // 365 - 588: no lower limit
    GateCase{"PostsAlone",    {{{0.0, 1.0}, {0.0, 2.0}, {0.0, 3.0}}},   1.0,  -294.0},
    GateCase{"HalfAPost",     {{{0.5, 1.0}, {0.0, 2.0}, {0.0, 3.0}}},   0.5,    35.5},   // 182.5 - 147
    // doubles, which no singles are
    GateCase{"CrossingsDouble",{{{0.01, 1.0},{0.0, 2.0}, {0.0, 3.0}}},  0.0,     3.65},  // 365 x .01
    GateCase{"PostsDouble",   {{{0.0, 1.0}, {0.0, 2.0}, {0.0, 3.0}}},   0.1,   -29.4},   // -294 x .1
    GateCase{"WholeShifts",   {{{1.0, 2.5}, {1.0, 3.5}, {0.0, 3.0}}},   0.0,  2190.0},   // shifts half to even: 2 + 4
    GateCase{"Nothing",       {{{0.0, 1.0}, {0.0, 2.0}, {0.0, 3.0}}},   0.0,     0.0}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST(GateKeepingErrors, OverflowNamesTheRow)
{
    const std::array shifts = {LevelCrossings{1, 1}, LevelCrossings{1, 40000}};
    const auto error = errorOf([&] { misc::gateKeeping(shifts, 0); });
    EXPECT_STREQ(error.what(), "Overflow: the number of shifts of level crossings 2 is 40000, beyond -32768 to 32767.");
    EXPECT_EQ(error.row(), 1);

    const std::array crossings = {LevelCrossings{1e308, 3}};
    EXPECT_EQ(errorOf([&] { misc::gateKeeping(crossings, 0); }).row(), 0);
    EXPECT_EQ(errorOf([] { misc::gateKeeping({}, 1e308); }).kind(), ErrorKind::Overflow);
}

// ---- M.6 to M.8 ----------------------------------------------------------------------------------------------------

TEST(KeymanRest, TakesTheDaysAManDoesNotWork)
{
    EXPECT_EQ(misc::keymanRest(1), 71.0);  // 365 - 294
    EXPECT_EQ(misc::keymanRest(4), 284.0);
    EXPECT_EQ(misc::keymanRest(0.5), 35.5);
    EXPECT_DOUBLE_EQ(misc::keymanRest(0.1), 7.1);  // no single
    EXPECT_EQ(misc::keymanRest(0), 0.0);
    EXPECT_EQ(errorOf([] { misc::keymanRest(1e307); }).kind(), ErrorKind::Overflow);
}

TEST(WatermanDuty, IsAManAGang)
{
    EXPECT_EQ(misc::watermanDuty(1), 294.0);
    EXPECT_EQ(misc::watermanDuty(3), 882.0);
    EXPECT_DOUBLE_EQ(misc::watermanDuty(0.1), 29.4);  // no single
    EXPECT_EQ(misc::watermanDuty(0), 0.0);
    EXPECT_EQ(errorOf([] { misc::watermanDuty(1e307); }).kind(), ErrorKind::Overflow);
}

TEST(StoreWatchmanDuty, IsRoundTheClockForTwoStoresAtMost)
{
    static_assert(std::is_same_v<decltype(misc::storeWatchmanDuty(0)), float>);
    EXPECT_EQ(misc::storeWatchmanDuty(0), 0.0F);
    EXPECT_EQ(misc::storeWatchmanDuty(0.5), 547.5F);
    EXPECT_EQ(misc::storeWatchmanDuty(1), 1095.0F);  // 3 x 365
    EXPECT_EQ(misc::storeWatchmanDuty(2), 2190.0F);
    EXPECT_EQ(misc::storeWatchmanDuty(2.5), 2190.0F);
    EXPECT_EQ(misc::storeWatchmanDuty(5), 2190.0F);
    EXPECT_EQ(misc::storeWatchmanDuty(-1), -1095.0F);  // no lower limit
    EXPECT_EQ(errorOf([] { misc::storeWatchmanDuty(-1e37); }).kind(), ErrorKind::Overflow);
}

// ---- the 'M' total -------------------------------------------------------------------------------------------------

TEST(MiscTotal, AddsTheFirstScreensTotal)
{
    EXPECT_EQ(misc::miscTotal(3275.0, 284.0, 882.0, 1095.0F, 1466.0F), 7002.0F);
    EXPECT_EQ(misc::miscTotal(-223.0, 0.0, 0.0, 0.0F, 100.0F), -123.0F);  // more posts than work lower the total
    EXPECT_EQ(misc::miscTotal(0.0, 0.0, 0.0, 0.0F, 1466.0F), 1466.0F);
}

// As in the total of M.1 to M.4: 16777219 is rounded once.
TEST(MiscTotal, IsRoundedToSingleOnce)
{
    EXPECT_EQ(misc::miscTotal(16777216.0, 1.0, 1.0, 1.0F, 0.0F), 16777220.0F);
    EXPECT_EQ(errorOf([] { misc::miscTotal(1e39, 0.0, 0.0, 0.0F, 0.0F); }).kind(), ErrorKind::Overflow);
}

}  // namespace
