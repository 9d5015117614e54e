#include "activities/site/site_norms.h"

#include "figures/error_of.h"
#include "figures/picture.h"

#include <gtest/gtest.h>

#include <array>
#include <type_traits>

using figures::ErrorKind;
using figures::picture;
using site::GangLength;
using site::Structures;
using site::WatchedWater;

namespace {

// ---- S.1 to S.4 ----------------------------------------------------------------------------------------------------

TEST(TrackMetres, AreTracksTimesLength)
{
    const std::array structures = {Structures{1, 100.0F}, Structures{2, 100.0F}, Structures{3, 10.5F},
                                   Structures{4, 0.0F}};
    const double once = site::addTrackMetres(0.0, structures);
    EXPECT_EQ(once, 331.5);  // 100 + 200 + 31.5
    EXPECT_EQ(site::addTrackMetres(once, structures), 663.0);
    EXPECT_EQ(site::addTrackMetres(0.0, {}), 0.0);
}

// Lengths are singles, their sum is a double: .1 as a single is .100000001490116, twice that on two tracks. From 2^24
// on singles would lose every odd metre.
TEST(TrackMetres, SumSinglesAsDoubles)
{
    static_assert(std::is_same_v<decltype(Structures::lengthM), float>);
    const std::array tenth = {Structures{2, 0.1F}};
    EXPECT_DOUBLE_EQ(site::addTrackMetres(0.0, tenth), 0.200000002980232239);
    const std::array metres = {Structures{1, 1.0F}, Structures{1, 1.0F}};
    EXPECT_EQ(site::addTrackMetres(16777216.0, metres), 16777218.0);
}

TEST(TrackMetres, OverflowNamesTheRow)
{
    const std::array structures = {Structures{1, 1.0F}, Structures{1e300, 1e20F}};
    const auto error = errorOf([&] { site::addTrackMetres(0.0, structures); });
    EXPECT_EQ(error.kind(), ErrorKind::Overflow);
    EXPECT_EQ(error.row(), 1);
}

TEST(Structures, HaveARateATrackMetre)
{
    EXPECT_DOUBLE_EQ(site::tunnelMandays(300), 104.4);  // .348 x (100 m of one track + 100 m of two)
    EXPECT_EQ(picture(site::tunnelMandays(300), "#####"), "104");
    EXPECT_DOUBLE_EQ(site::bridgeMandays(200), 63.8);       // .319 x 200
    EXPECT_DOUBLE_EQ(site::longGirderMandays(200), 128.0);  // .64 x 200
    EXPECT_EQ(site::tunnelMandays(0), 0.0);
    EXPECT_EQ(site::bridgeMandays(0), 0.0);
    EXPECT_EQ(site::longGirderMandays(0), 0.0);
}

// One metre of one track: below half a manday the picture shows nothing.
TEST(Structures, OneMetreShowsTheRate)
{
    EXPECT_EQ(site::tunnelMandays(1), 0.348);
    EXPECT_EQ(site::bridgeMandays(1), 0.319);
    EXPECT_EQ(site::longGirderMandays(1), 0.64);
    EXPECT_EQ(picture(site::tunnelMandays(1), "#####"), "");
    EXPECT_EQ(picture(site::longGirderMandays(1), "#####"), "1");
}

TEST(SharpCurves, AreAMansYearAKm)
{
    EXPECT_EQ(site::sharpCurveMandays(0.5F), 147.0F);
    EXPECT_EQ(site::sharpCurveMandays(2.0F), 588.0F);
    EXPECT_EQ(site::sharpCurveMandays(0.0F), 0.0F);
}

// The single .1 is .100000001490116; in doubles .1 km would give 29.4000004380941, the single is 29.3999996185303.
TEST(SharpCurves, AreSinglePrecision)
{
    static_assert(std::is_same_v<decltype(site::sharpCurveMandays(0.0F)), float>);
    EXPECT_EQ(site::sharpCurveMandays(0.1F), 29.4F);
    EXPECT_EQ(errorOf([] { site::sharpCurveMandays(3e38F); }).kind(), ErrorKind::Overflow);
}

// ---- S.5 -----------------------------------------------------------------------------------------------------------

TEST(BadFormations, HaveARateAMetre)
{
    const std::array lengths = {100.0F, 50.0F, 0.5F};
    EXPECT_DOUBLE_EQ(site::badFormationMandays(lengths), 90.3);  // .6 x 150.5
    EXPECT_EQ(site::badFormationMandays({}), 0.0);
}

// Singles summed as doubles: 16777216 + 1 + 1 is 16777218, times .6.
TEST(BadFormations, SumSinglesAsDoubles)
{
    const std::array lengths = {16777216.0F, 1.0F, 1.0F};
    EXPECT_DOUBLE_EQ(site::badFormationMandays(lengths), 10066330.8);
}

// ---- S.6 -----------------------------------------------------------------------------------------------------------

TEST(LookOut, IsAMansYearAGangInProportion)
{
    const std::array one = {GangLength{2.0F, 8.0F}};
    EXPECT_DOUBLE_EQ(site::lookOutMandays(one), 73.5);  // 294 x .25
    EXPECT_EQ(picture(site::lookOutMandays(one), "####"), "74");

    const std::array three = {GangLength{2.0F, 8.0F}, GangLength{0.0F, 6.0F}, GangLength{3.0F, 6.0F}};
    EXPECT_DOUBLE_EQ(site::lookOutMandays(three), 220.5);  // 294 x (.25 + 0 + .5)
    EXPECT_EQ(site::lookOutMandays({}), 0.0);
}

// The single nearest to 1/3 is 11184811 / 2^25 = .3333333432674408; in doubles one such gang would give 98.
// Three of them: the shares add up as doubles to 1.0000000298023224, which no single is.
TEST(LookOut, SharesAreSinglesAndTheirSumADouble)
{
    const std::array gangs = {GangLength{1.0F, 3.0F}, GangLength{1.0F, 3.0F}, GangLength{1.0F, 3.0F}};
    EXPECT_DOUBLE_EQ(site::lookOutMandays({gangs.data(), 1}), 98.00000292062759);
    EXPECT_DOUBLE_EQ(site::lookOutMandays(gangs), 294.00000876188278);
}

TEST(LookOut, NoGangLengthIsAFloatingPointError)
{
    const std::array infinite = {GangLength{2.0F, 8.0F}, GangLength{2.0F, 0.0F}};
    const auto error = errorOf([&] { site::lookOutMandays(infinite); });
    EXPECT_EQ(error.kind(), ErrorKind::FloatingPoint);
    EXPECT_EQ(error.row(), 1);
    EXPECT_STREQ(error.what(), "Floating-point error: the length of gang 2 is 0.");

    const std::array undefined = {GangLength{0.0F, 0.0F}};
    EXPECT_STREQ(errorOf([&] { site::lookOutMandays(undefined); }).what(),
                 "Floating-point error: the length of gang 1 is 0.");

    const std::array tiny = {GangLength{1e20F, 1e-30F}};
    EXPECT_STREQ(errorOf([&] { site::lookOutMandays(tiny); }).what(),
                 "Floating-point error: the share of poor visibility of gang 1 is too large to compute with.");
}

// ---- S.7, S.9 ------------------------------------------------------------------------------------------------------

TEST(PastYears, AreAveraged)
{
    EXPECT_EQ(site::averageMandays({300.0F, 330.0F, 360.0F}), 330.0F);
    EXPECT_EQ(site::averageMandays({0.0F, 0.0F, 0.0F}), 0.0F);
    EXPECT_EQ(site::averageMandays({1.0F, 0.0F, 0.0F}), 1.0F / 3.0F);
}

// Single after every operation: 16777216 + 1 + 1 stays 16777216, whose third is 5592405.333..., as a single
// 5592405.5. In doubles 16777218 / 3 is 5592406.
TEST(PastYears, AreSinglePrecisionAtEveryStep)
{
    static_assert(std::is_same_v<decltype(site::averageMandays({})), float>);
    EXPECT_EQ(site::averageMandays({16777216.0F, 1.0F, 1.0F}), 5592405.5F);
}

// The sum leaves the range of a single although the average would not.
TEST(PastYears, SumBeyondASingleOverflows)
{
    EXPECT_EQ(errorOf([] { site::averageMandays({2e38F, 2e38F, 0.0F}); }).kind(), ErrorKind::Overflow);
    EXPECT_EQ(errorOf([] { site::averageMandays({3e38F, 3e38F, -3e38F}); }).kind(), ErrorKind::Overflow);
}

// ---- S.8, S.10 -----------------------------------------------------------------------------------------------------

TEST(FilthRemoval, IsAManAGang)
{
    EXPECT_EQ(site::filthRemovalMandays(1), 294.0);
    EXPECT_EQ(site::filthRemovalMandays(2.5), 735.0);        // 294 x 2.5: no whole gangs asked for
    EXPECT_DOUBLE_EQ(site::filthRemovalMandays(0.1), 29.4);  // no single
    EXPECT_EQ(site::filthRemovalMandays(0), 0.0);
    EXPECT_EQ(errorOf([] { site::filthRemovalMandays(1e307); }).kind(), ErrorKind::Overflow);
}

TEST(WaterLevels, AreShiftsTimesDays)
{
    const std::array locations = {WatchedWater{3.0F, 60.0F}, WatchedWater{2.0F, 10.5F}};
    EXPECT_EQ(site::waterLevelMandays(locations), 201.0);  // 180 + 21
    EXPECT_EQ(site::waterLevelMandays({}), 0.0);
}

// 4097 x 4097 = 16785409 lies halfway between two singles: 16785408. The sum of two such is exact as a double; 1 more
// is not lost, as it would be in singles.
TEST(WaterLevels, ProductsAreSinglesAndTheirSumADouble)
{
    const std::array one = {WatchedWater{4097.0F, 4097.0F}};
    EXPECT_EQ(site::waterLevelMandays(one), 16785408.0);
    const std::array three = {WatchedWater{4097.0F, 4097.0F}, WatchedWater{4097.0F, 4097.0F}, WatchedWater{1.0F, 1.0F}};
    EXPECT_EQ(site::waterLevelMandays(three), 33570817.0);
}

TEST(WaterLevels, OverflowNamesTheLocation)
{
    const std::array locations = {WatchedWater{1.0F, 1.0F}, WatchedWater{1e20F, 1e20F}};
    const auto error = errorOf([&] { site::waterLevelMandays(locations); });
    EXPECT_EQ(error.kind(), ErrorKind::Overflow);
    EXPECT_EQ(error.row(), 1);
    EXPECT_STREQ(error.what(), "Overflow: the number of S.10 mandays of location 2 is too large to compute with.");
}

// ---- the 'S' total -------------------------------------------------------------------------------------------------

// Ten different powers of two: a term left out or taken twice shows.
TEST(SiteTotal, AddsAllTen)
{
    EXPECT_EQ(site::siteTotal({.tunnels = 1,
                               .bridges = 2,
                               .longGirders = 4,
                               .sharpCurves = 8.0F,
                               .badFormations = 16,
                               .lookOut = 32,
                               .fogSignal = 64.0F,
                               .filthRemoval = 128,
                               .securityPatrolling = 256.0F,
                               .waterLevels = 512}),
              1023.0F);
    EXPECT_EQ(site::siteTotal({}), 0.0F);
}

// 16777219 is rounded once, half to even; after each term it would stay at 16777216.
TEST(SiteTotal, IsRoundedToSingleOnce)
{
    static_assert(std::is_same_v<decltype(site::siteTotal({})), float>);
    EXPECT_EQ(
        site::siteTotal({.sharpCurves = 1.0F, .fogSignal = 1.0F, .securityPatrolling = 1.0F, .waterLevels = 16777216}),
        16777220.0F);
}

// The order of adding shows where a huge figure swallows a small one: from 2^53 on doubles are even. S.10 first takes
// S.9 and S.8 (each lost), then S.6 cancels it, and what follows is kept.
TEST(SiteTotal, AddsFromS10DownAndThenS1ToS4)
{
    const double huge = 9007199254740992.0;
    EXPECT_EQ(site::siteTotal({.tunnels = 16,
                               .sharpCurves = 32.0F,
                               .badFormations = 8,
                               .lookOut = -huge,
                               .fogSignal = 1.0F,
                               .filthRemoval = 1,
                               .securityPatrolling = 1.0F,
                               .waterLevels = huge}),
              56.0F);
    // S.4 comes last: what it cancels has swallowed S.3.
    EXPECT_EQ(site::siteTotal({.longGirders = 1, .sharpCurves = -9007199254740992.0F, .waterLevels = huge}), 0.0F);
}

TEST(SiteTotal, OverflowsBeyondASingle)
{
    EXPECT_STREQ(errorOf([] { site::siteTotal({.tunnels = 4e38}); }).what(),
                 "Overflow: the total of 'S' mandays is 4e+38, too large to compute with.");
}

}  // namespace
