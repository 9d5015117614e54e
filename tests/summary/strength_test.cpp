#include "summary/strength.h"

#include "figures/error_of.h"

#include <gtest/gtest.h>

#include <array>
#include <type_traits>

using figures::ErrorKind;
using summary::SrSeFigures;
using summary::Strength;
using summary::strengthOf;
using summary::TableRow;
using summary::TableTotals;

namespace {

struct StrengthCase {
    const char* name;
    SrSeFigures figures;
    double mandays;
    float calculated;
    double excess;
};

class StrengthOf : public testing::TestWithParam<StrengthCase> {};

TEST_P(StrengthOf, SetsPostsAgainstMandays)
{
    const Strength strength = strengthOf(GetParam().figures, 0);
    EXPECT_DOUBLE_EQ(strength.mandays, GetParam().mandays);
    EXPECT_EQ(strength.calculated, GetParam().calculated);
    EXPECT_DOUBLE_EQ(strength.excess, GetParam().excess);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(SrSe, StrengthOf, testing::Values(
    //            name              T+R      M       S      keymen  sanct. decas.    mandays  strength  excess
    // (13000 + .125 x 13010) / 294 = 49.749
    StrengthCase{"Shortage",    {10000.0, 2000.0, 1000.0,    10.0,  40.0,  5.0},     13000.0,   50.0F,   -5.0},
    StrengthCase{"Excess",      {10000.0, 2000.0, 1000.0,    10.0,  50.0,  5.5},     13000.0,   50.0F,    5.5},
    StrengthCase{"Nothing",     {    0.0,    0.0,    0.0,     0.0,   0.0,  0.0},         0.0,    0.0F,    0.0},
    StrengthCase{"PostsAlone",  {    0.0,    0.0,    0.0,     0.0,  12.0,  3.0},         0.0,    0.0F,   15.0},
    // 2352 x 1.125 / 294 = 9 exactly
    StrengthCase{"WholeMen",    { 2352.0,    0.0,    0.0,     0.0,   9.0,  0.0},      2352.0,    9.0F,    0.0},
    // 0 mandays: .125 x keymen / 294 is the strength before it is rounded up
    StrengthCase{"Tenth",       {    0.0,    0.0,    0.0, 35515.2,   0.0,  0.0},         0.0,   16.0F,  -16.0},   // 15.1
    StrengthCase{"BelowATenth", {    0.0,    0.0,    0.0, 35491.68,  0.0,  0.0},         0.0,   15.0F,  -15.0},   // 15.09
    StrengthCase{"Twentieth",   {    0.0,    0.0,    0.0, 35397.6,   0.0,  0.0},         0.0,   15.0F,  -15.0},   // 15.05
    // (-588 + .125 x -588) / 294 = -2.25; the floor of -1.35
    StrengthCase{"Negative",    { -588.0,    0.0,    0.0,     0.0,   0.0,  0.0},      -588.0,   -2.0F,    2.0}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

// .125 x 16699.2 / 294 = 7.1. The single is 7.0999999046..., and .9 more is 7.9999999046...: 7 men. A strength kept as
// a double would give 8, and so would a sum rounded to single.
TEST(Strength, TenthsAreJudgedOnTheSingle)
{
    EXPECT_EQ(strengthOf({.matesAndKeymen = 16699.2}, 0).calculated, 7.0F);
}

TEST(Strength, OverflowNamesTheSrSe)
{
    const auto mandays = errorOf([] { strengthOf({.trMandays = 1e308, .mMandays = 1e308}, 4); });
    EXPECT_STREQ(mandays.what(), "Overflow: the total of mandays of Sr SE 5 is too large to compute with.");
    EXPECT_EQ(mandays.row(), 4);

    const auto strength = errorOf([] { strengthOf({.trMandays = 2.94e42}, 0); });
    EXPECT_EQ(strength.kind(), ErrorKind::Overflow);
    EXPECT_STREQ(strength.what(),
                 "Overflow: the calculated strength of Sr SE 1 is 1.125e+40, too large to compute with.");

    EXPECT_EQ(errorOf([] { strengthOf({.sanctioned = 1e308, .decasualisedPosts = 1e308}, 0); }).kind(),
              ErrorKind::Overflow);
}

// ---- grand totals --------------------------------------------------------------------------------------------------

// Each column its own power of two: a column left out or taken for another shows.
TEST(GrandTotal, AddsColumnByColumn)
{
    const TableRow row = {.km = 1,
                          .trMandays = 2,
                          .mMandays = 4,
                          .sMandays = 8,
                          .mandays = 16,
                          .calculated = 32.0F,
                          .matesAndKeymen = 64,
                          .leaveReserve = 128,
                          .sanctioned = 256,
                          .decasualisedPosts = 512,
                          .excess = 1024};
    const std::array rows = {row, row, row};
    const TableTotals totals = addRows({}, rows);
    EXPECT_EQ(totals.km, 3.0);
    EXPECT_EQ(totals.trMandays, 6.0);
    EXPECT_EQ(totals.mMandays, 12.0);
    EXPECT_EQ(totals.sMandays, 24.0);
    EXPECT_EQ(totals.mandays, 48.0);
    EXPECT_EQ(totals.calculated, 96.0F);
    EXPECT_EQ(totals.matesAndKeymen, 192.0);
    EXPECT_EQ(totals.leaveReserve, 384.0);
    EXPECT_EQ(totals.sanctioned, 768.0);
    EXPECT_EQ(totals.decasualisedPosts, 1536);
    EXPECT_EQ(totals.excess, 3072.0);

    // The totals go on where they stood.
    EXPECT_EQ(addRows(totals, rows).excess, 6144.0);
    EXPECT_EQ(addRows(totals, {}).km, 3.0);
}

struct PostsCase {
    const char* name;
    std::array<double, 3> posts;
    int total;
};

class DecasualisedPosts : public testing::TestWithParam<PostsCase> {};

TEST_P(DecasualisedPosts, AreRoundedAfterEachRow)
{
    std::array<TableRow, 3> rows;
    for (std::size_t i = 0; i < rows.size(); ++i)
        rows[i].decasualisedPosts = GetParam().posts[i];
    EXPECT_EQ(addRows({}, rows).decasualisedPosts, GetParam().total);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Rows, DecasualisedPosts, testing::Values(
    //         name            posts               total
    PostsCase{"Whole",       {  5.0, 3.0, 2.0},     10},
    PostsCase{"Halves",      {  0.5, 1.5, 0.0},      2},   // .5 is 0; 1.5 is 2
    PostsCase{"HalvesUp",    {  1.5, 0.5, 0.5},      2},   // 2; 2.5 is 2; 2.5 is 2
    PostsCase{"Parts",       {  0.4, 0.4, 0.4},      0},   // each is lost, where 1.2 would be 1
    PostsCase{"Most",        {32767.0, 0.4, 0.0}, 32767}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST(GrandTotal, DecasualisedPostsBeyond16BitsOverflow)
{
    std::array<TableRow, 2> rows;
    rows[0].decasualisedPosts = 32767;
    rows[1].decasualisedPosts = 1;
    const auto error = errorOf([&] { addRows({}, rows); });
    EXPECT_EQ(error.kind(), ErrorKind::Overflow);
    EXPECT_EQ(error.row(), 1);
    EXPECT_STREQ(error.what(), "Overflow: the total of decasualised posts at row 2 is 32768, beyond -32768 to 32767.");
}

// From 2^24 on singles are even: each man is lost, where doubles would count two. The mandays are doubles.
TEST(GrandTotal, CalculatedStrengthIsSinglePrecision)
{
    static_assert(std::is_same_v<decltype(TableTotals::calculated), float>);
    static_assert(std::is_same_v<decltype(TableRow::calculated), float>);
    const TableRow one = {.mandays = 1, .calculated = 1.0F};
    const std::array rows = {one, one};
    const TableTotals totals = addRows({.mandays = 16777216, .calculated = 16777216.0F}, rows);
    EXPECT_EQ(totals.calculated, 16777216.0F);
    EXPECT_EQ(totals.mandays, 16777218.0);
}

TEST(GrandTotal, OverflowNamesTheRow)
{
    const std::array rows = {TableRow{.trMandays = 1e308}, TableRow{.trMandays = 1e308}};
    const auto error = errorOf([&] { addRows({}, rows); });
    EXPECT_STREQ(error.what(), "Overflow: the column total at row 2 is too large to compute with.");
    EXPECT_EQ(error.row(), 1);
}

}  // namespace
