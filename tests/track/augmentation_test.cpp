#include "track/augmentation.h"

#include "figures/error_of.h"
#include "figures/picture.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <type_traits>

using figures::ErrorKind;
using figures::picture;
using track::Augmentation;
using track::SegmentGround;

namespace {

Augmentation augmentationOf(const SegmentGround& ground)
{
    return track::augmentations({&ground, 1}).front();
}

struct GroundCase {
    const char* name;
    SegmentGround ground;
    double a;
    double b;
    double c;
    double factor;
    const char* shownFactor;
};

class Ground : public testing::TestWithParam<GroundCase> {};

TEST_P(Ground, GivesTermsAndFactor)
{
    const GroundCase& expected = GetParam();
    const Augmentation terms = augmentationOf(expected.ground);
    EXPECT_DOUBLE_EQ(terms.formation, expected.a);
    EXPECT_DOUBLE_EQ(terms.alignment, expected.b);
    EXPECT_DOUBLE_EQ(terms.rainfall, expected.c);
    EXPECT_DOUBLE_EQ(terms.factor, expected.factor);
    EXPECT_EQ(picture(terms.factor, "#.######"), expected.shownFactor);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Segments, Ground, testing::Values(
    //                        eq.     shrinkable    unstable      curves             rain
    //          name          km      km    t/outs  km   t/outs   1-2   >2    eq     cm         A      B      C     factor  shown
    GroundCase{"Nothing",   {10.0,   0.0,  0.0F,   0.0,  0.0F,   0.0,  0.0,  0.0F,   0.0F},   0.0,   0.0,   0.0,   1.0,   "1."},
    // (.2 x (2 + .5) + .1 x 1) / 10
    GroundCase{"Formation", {10.0,   2.0,  5.0F,   1.0,  0.0F,   0.0,  0.0,  0.0F,   0.0F},   0.06,  0.0,   0.0,   1.06,  "1.06"},
    // (.1 x (2 + 1)) / 4
    GroundCase{"Unstable",  { 4.0,   0.0,  0.0F,   2.0, 10.0F,   0.0,  0.0,  0.0F,   0.0F},   0.075, 0.0,   0.0,   1.075, "1.075"},
    // (.25 x 2 x (1.5 - 1) + .25 x .5) / 5
    GroundCase{"Curves",    { 5.0,   0.0,  0.0F,   0.0,  0.0F,   2.0,  1.5,  0.5F,   0.0F},   0.0,   0.075, 0.0,   1.075, "1.075"},
    // .25 x 2 x (0 - 1) / 5: not clipped
    GroundCase{"NegativeB", { 5.0,   0.0,  0.0F,   0.0,  0.0F,   2.0,  0.0,  0.0F,   0.0F},   0.0,  -0.1,   0.0,   0.9,   ".9"},
    // the >2 Deg column alone has nothing to multiply
    GroundCase{"Over2Deg",  { 5.0,   0.0,  0.0F,   0.0,  0.0F,   0.0,  3.0,  0.0F,   0.0F},   0.0,   0.0,   0.0,   1.0,   "1."},
    // .2 x (225 - 150) / 150
    GroundCase{"Rain",      { 5.0,   0.0,  0.0F,   0.0,  0.0F,   0.0,  0.0,  0.0F, 225.0F},   0.0,   0.0,   0.1,   1.1,   "1.1"},
    // .06 + .075 x 5/10 + .2
    GroundCase{"All",       {10.0,   2.0,  5.0F,   1.0,  0.0F,   2.0,  1.5,  0.5F, 300.0F},   0.06,  0.0375,0.2,   1.2975,"1.2975"}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

// Curves of 2 km, 1.5 and .4 on 5 km: (.25 x 2 x .5 + .25 x .4) / 5 = .07 but for the single .4 = .4000000059604645.
TEST(Alignment, ThirdCurveColumnIsASingle)
{
    const auto terms = augmentationOf({.eqLengthKm = 5, .curve1To2Deg = 2, .curveOver2Deg = 1.5, .curveEqDeg = 0.4F});
    EXPECT_DOUBLE_EQ(terms.alignment, 0.070000000298023225);  // (.25 + .100000001490116125) / 5
    EXPECT_EQ(picture(terms.alignment, "#.######"), ".07");
}

struct RainCase {
    const char* name;
    double rainfallCm;  ///< as typed
    double c;
};

class Rainfall : public testing::TestWithParam<RainCase> {};

TEST_P(Rainfall, GivesTermC)
{
    const auto single = static_cast<float>(GetParam().rainfallCm);
    EXPECT_DOUBLE_EQ(augmentationOf({.eqLengthKm = 1, .rainfallCm = single}).rainfall, GetParam().c);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Typed, Rainfall, testing::Values(
    //        name             typed          C
    RainCase{"Dry",              0.0,         0.0},
    RainCase{"Negative",       -10.0,         0.0},
    RainCase{"JustBelow",      149.9,         0.0},
    RainCase{"AtTheStart",     150.0,         0.0},
    RainCase{"Quarter",        187.5,         0.05},                 // .2 x 37.5 / 150
    RainCase{"Half",           225.0,         0.1},                  // .2 x 75 / 150
    RainCase{"NearTheEnd",     299.9,         0.19986665852864583},  // the single is 299.899993896484375: .2 x 149.8999938... / 150
    RainCase{"SingleIs300",    299.999999,    0.2},                  // singles near 300 lie .00003 apart; as a double .19999999867
    RainCase{"AtTheEnd",       300.0,         0.2},
    RainCase{"JustBeyond",     301.0,         0.2},
    RainCase{"Beyond",        1200.0,         0.2}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

// Widened, the single .1 is .100000001490116: A = .2 x .1 x .100000001490116 and .1 x .1 x .100000001490116.
TEST(Formation, TurnoutsAreSingles)
{
    static_assert(std::is_same_v<decltype(SegmentGround::shrinkableTurnouts), float>);
    static_assert(std::is_same_v<decltype(SegmentGround::unstableTurnouts), float>);
    static_assert(std::is_same_v<decltype(SegmentGround::curveEqDeg), float>);
    static_assert(std::is_same_v<decltype(SegmentGround::rainfallCm), float>);
    EXPECT_DOUBLE_EQ(augmentationOf({.eqLengthKm = 1, .shrinkableTurnouts = 0.1F}).formation, 0.00200000002980232239);
    EXPECT_DOUBLE_EQ(augmentationOf({.eqLengthKm = 1, .unstableTurnouts = 0.1F}).formation, 0.00100000001490116119);
}

TEST(Augmentations, OneResultASegmentInOrder)
{
    const std::array<SegmentGround, 3> segments = {SegmentGround{.eqLengthKm = 1, .rainfallCm = 150.0F},
                                                   SegmentGround{.eqLengthKm = 1, .rainfallCm = 225.0F},
                                                   SegmentGround{.eqLengthKm = 1, .rainfallCm = 300.0F}};
    const auto results = track::augmentations(segments);
    ASSERT_EQ(results.size(), 3U);
    EXPECT_DOUBLE_EQ(results[0].factor, 1.0);
    EXPECT_DOUBLE_EQ(results[1].factor, 1.1);
    EXPECT_DOUBLE_EQ(results[2].factor, 1.2);
    EXPECT_TRUE(track::augmentations({}).empty());
}

TEST(Augmentations, NoEquivalentLengthIsADivisionByZero)
{
    std::array<SegmentGround, 4> segments;
    segments.fill({.eqLengthKm = 1});
    segments[2].eqLengthKm = 0;
    segments[3].eqLengthKm = 0;
    const auto error = errorOf([&] { track::augmentations(segments); });
    EXPECT_EQ(error.kind(), ErrorKind::DivisionByZero);
    EXPECT_EQ(error.row(), 2);
    EXPECT_STREQ(error.what(), "Division by zero: the equivalent length of segment 3 is 0.");
}

TEST(Augmentations, OverflowNamesTermAndSegment)
{
    const auto formation = errorOf([] { augmentationOf({.eqLengthKm = 1e-10, .shrinkableKm = 1e308}); });
    EXPECT_STREQ(formation.what(), "Overflow: the term A of segment 1 is too large to compute with.");
    EXPECT_EQ(formation.row(), 0);

    const auto alignment =
        errorOf([] { augmentationOf({.eqLengthKm = 1, .curve1To2Deg = 1e200, .curveOver2Deg = 1e200}); });
    EXPECT_STREQ(alignment.what(), "Overflow: the term B of segment 1 is too large to compute with.");

    // A and B are 1.2e308 and 1e308: each a double, their sum is not.
    const SegmentGround both = {
        .eqLengthKm = 0.1, .shrinkableKm = 0.6e308, .curve1To2Deg = 0.4e308, .curveOver2Deg = 2};
    EXPECT_STREQ(errorOf([&] { augmentationOf(both); }).what(),
                 "Overflow: the augmentation factor of segment 1 is too large to compute with.");
}

}  // namespace
