#include "track/track_length.h"

#include "figures/error_of.h"

#include <gtest/gtest.h>

#include <type_traits>

using figures::ErrorKind;
using track::addWeldedRail;
using track::segmentLength;

namespace {

struct LengthCase {
    const char* name;
    track::SegmentLimits segment;
    double totalKm;
    double eqLengthKm;
};

class SegmentLength : public testing::TestWithParam<LengthCase> {};

TEST_P(SegmentLength, AddsExtraKmAndTurnouts)
{
    const auto length = segmentLength(GetParam().segment, 0);
    EXPECT_DOUBLE_EQ(length.totalKm, GetParam().totalKm);
    EXPECT_DOUBLE_EQ(length.eqLengthKm, GetParam().eqLengthKm);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Segments, SegmentLength, testing::Values(
    //          name               kmFrom   kmTo    extra  turnouts   total  equivalent
    LengthCase{"Whole",           { 10.0,   25.0,   1.5,   12.0},     16.5,   17.7},   // 15 + 1.5; + 12 x .1
    LengthCase{"EqualLimits",     { 10.0,   10.0,   0.0,    0.0},      0.0,    0.0},
    LengthCase{"ExtraKmAlone",    { 10.0,   10.0,   2.25,   0.0},      2.25,   2.25},
    LengthCase{"TurnoutsAlone",   {  0.0,    0.0,   0.0,    3.0},      0.0,    0.3},   // 3 x .1
    LengthCase{"HalfATurnout",    {  5.0,    6.0,   0.0,    0.5},      1.0,    1.05},  // 1 + .5 x .1
    LengthCase{"NegativeLimits",  { -2.0,    3.0,   0.0,    0.0},      5.0,    5.0},
    LengthCase{"Empty",           {  0.0,    0.0,   0.0,    0.0},      0.0,    0.0}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST(SegmentLengthErrors, OverflowNamesTheSegment)
{
    const auto total = errorOf([] { segmentLength({.kmFrom = -1e308, .kmTo = 1e308}, 3); });
    EXPECT_STREQ(total.what(), "Overflow: the total km of segment 4 is too large to compute with.");
    EXPECT_EQ(total.row(), 3);

    const auto equivalent = errorOf([] { segmentLength({.kmTo = 1.7e308, .turnouts = 1.7e308}, 0); });
    EXPECT_STREQ(equivalent.what(), "Overflow: the equivalent length of segment 1 is too large to compute with.");
}

TEST(WeldedRail, AddsSegmentBySegment)
{
    float total = 0.0F;
    total = addWeldedRail(total, 3.0F, 0);
    total = addWeldedRail(total, 4.0F, 1);
    EXPECT_EQ(total, 7.0F);
}

// A Compute that stopped at segment 2 has added segment 1; the next one adds both: 3 + 3 + 4.
TEST(WeldedRail, TotalOutlivesAFailedCompute)
{
    float total = addWeldedRail(0.0F, 3.0F, 0);
    total = addWeldedRail(total, 3.0F, 0);
    total = addWeldedRail(total, 4.0F, 1);
    EXPECT_EQ(total, 10.0F);
}

// In doubles .1 + .2 as singles would be .300000004470348; the single is .300000011920929.
// From 2^24 on singles are even: each km is lost, where doubles would add two.
TEST(WeldedRail, IsSinglePrecision)
{
    static_assert(std::is_same_v<decltype(addWeldedRail(0.0F, 0.0F, 0)), float>);
    EXPECT_EQ(addWeldedRail(0.1F, 0.2F, 0), 0.3F);
    EXPECT_EQ(addWeldedRail(addWeldedRail(16777216.0F, 1.0F, 0), 1.0F, 1), 16777216.0F);
}

TEST(WeldedRail, BeyondASingleIsAFloatingPointError)
{
    const auto error = errorOf([] { addWeldedRail(3e38F, 3e38F, 1); });
    EXPECT_EQ(error.kind(), ErrorKind::FloatingPoint);
    EXPECT_EQ(error.row(), 1);
    EXPECT_STREQ(error.what(), "Floating-point error: the total of long welded rail is too large to compute with at "
                               "segment 2.");
}

}  // namespace
