#include "summary/strength.h"

#include "figures/error_of.h"

#include <gtest/gtest.h>

#include <array>
#include <type_traits>

using figures::ErrorKind;
using summary::TableRow;
using summary::TableTotals;
using summary::withStrength;

namespace {

struct StrengthCase {
    const char* name;
    double tr;
    double m;
    double s;
    double keymen;
    double sanctioned;
    double decasualised;
    double mandays;
    float strength;
    double excess;
};

class StrengthOf : public testing::TestWithParam<StrengthCase> {};

TEST_P(StrengthOf, SetsPostsAgainstMandays)
{
    const StrengthCase& srSe = GetParam();
    const TableRow row = withStrength({.RowTR = srSe.tr,
                                       .RowM = srSe.m,
                                       .RowS = srSe.s,
                                       .RowKey = srSe.keymen,
                                       .RowSS = srSe.sanctioned,
                                       .RowSDC = srSe.decasualised},
                                      0);
    EXPECT_DOUBLE_EQ(row.RowTMan, srSe.mandays);
    EXPECT_EQ(row.RowCS, srSe.strength);
    EXPECT_DOUBLE_EQ(row.RowEx, srSe.excess);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(SrSe, StrengthOf, testing::Values(
    //            name              T+R      M       S     keymen  sanct. decas.  mandays  strength  excess
    // (13000 + .125 x 13010) / 294 = 49.749
    StrengthCase{"Shortage",      10000.0, 2000.0, 1000.0,    10.0,  40.0,  5.0,  13000.0,   50.0F,   -5.0},
    StrengthCase{"Excess",        10000.0, 2000.0, 1000.0,    10.0,  50.0,  5.5,  13000.0,   50.0F,    5.5},
    StrengthCase{"Nothing",           0.0,    0.0,    0.0,     0.0,   0.0,  0.0,      0.0,    0.0F,    0.0},
    StrengthCase{"PostsAlone",        0.0,    0.0,    0.0,     0.0,  12.0,  3.0,      0.0,    0.0F,   15.0},
    // 2352 x 1.125 / 294 = 9 exactly
    StrengthCase{"WholeMen",       2352.0,    0.0,    0.0,     0.0,   9.0,  0.0,   2352.0,    9.0F,    0.0},
    // (1854.8 + .125 x 1860.8) / 294 = (1854.8 + 232.6) / 294 = 2087.4 / 294 = 7.1
    StrengthCase{"SevenAndATenth", 1854.8,    0.0,    0.0,     6.0,   0.0,  0.0,   1854.8,    8.0F,   -8.0},
    // 0 mandays: .125 x keymen / 294 is the strength before it is rounded up
    StrengthCase{"BelowSeven",        0.0,    0.0,    0.0, 16675.68,  0.0,  0.0,      0.0,    7.0F,   -7.0},   // 7.09
    StrengthCase{"Tenth",             0.0,    0.0,    0.0, 35515.2,   0.0,  0.0,      0.0,   16.0F,  -16.0},   // 15.1
    StrengthCase{"BelowATenth",       0.0,    0.0,    0.0, 35491.68,  0.0,  0.0,      0.0,   15.0F,  -15.0},   // 15.09
    StrengthCase{"Twentieth",         0.0,    0.0,    0.0, 35397.6,   0.0,  0.0,      0.0,   15.0F,  -15.0},   // 15.05
    // (-588 + .125 x -588) / 294 = -2.25; the floor of -1.35
    StrengthCase{"Negative",       -588.0,    0.0,    0.0,     0.0,   0.0,  0.0,   -588.0,   -2.0F,    2.0}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

// .125 x keymen / 294 is the strength: keymen = men x 2352. Below 8 the single nearest to 7.1 is 7.0999999046..., and
// .9 more is 7.9999999046... as a double, 8 as a single. Singles stand 4.8e-7 apart there, 1.5e-5 apart below 256, and
// a tenth raises the strength whatever the whole part.
TEST(Strength, ATenthRaisesItWhateverTheWholePart)
{
    for (int men = 0; men < 2000; ++men) {
        EXPECT_EQ(withStrength({.RowKey = (men + 0.1) * 2352}, 0).RowCS, static_cast<float>(men + 1));
        EXPECT_EQ(withStrength({.RowKey = (men + 0.09) * 2352}, 0).RowCS, static_cast<float>(men));
    }
}

TEST(Strength, OverflowNamesTheSrSe)
{
    const auto mandays = errorOf([] { withStrength({.RowTR = 1e308, .RowM = 1e308}, 4); });
    EXPECT_STREQ(mandays.what(), "Overflow: the total of mandays of Sr SE 5 is too large to compute with.");
    EXPECT_EQ(mandays.row(), 4);

    const auto strength = errorOf([] { withStrength({.RowTR = 2.94e42}, 0); });
    EXPECT_EQ(strength.kind(), ErrorKind::Overflow);
    EXPECT_STREQ(strength.what(),
                 "Overflow: the calculated strength of Sr SE 1 is 1.125e+40, too large to compute with.");

    EXPECT_EQ(errorOf([] { withStrength({.RowSS = 1e308, .RowSDC = 1e308}, 0); }).kind(), ErrorKind::Overflow);
}

// ---- grand totals --------------------------------------------------------------------------------------------------

// Each column its own power of two: a column left out or taken for another shows.
TEST(GrandTotal, AddsColumnByColumn)
{
    const TableRow row = {.RowKm = 1,
                          .RowTR = 2,
                          .RowM = 4,
                          .RowS = 8,
                          .RowTMan = 16,
                          .RowCS = 32.0F,
                          .RowKey = 64,
                          .RowLR = 128,
                          .RowSS = 256,
                          .RowSDC = 512,
                          .RowEx = 1024};
    const std::array rows = {row, row, row};
    const TableTotals totals = addRows({}, rows);
    EXPECT_EQ(totals.TotKm, 3.0);
    EXPECT_EQ(totals.TotTR, 6.0);
    EXPECT_EQ(totals.TotM, 12.0);
    EXPECT_EQ(totals.TotS, 24.0);
    EXPECT_EQ(totals.TotTMan, 48.0);
    EXPECT_EQ(totals.TotCS, 96.0F);
    EXPECT_EQ(totals.TotKey, 192.0);
    EXPECT_EQ(totals.TotLR, 384.0);
    EXPECT_EQ(totals.TotSS, 768.0);
    EXPECT_EQ(totals.TotSDC, 1536);
    EXPECT_EQ(totals.TotEx, 3072.0);

    // The totals go on where they stood.
    EXPECT_EQ(addRows(totals, rows).TotEx, 6144.0);
    EXPECT_EQ(addRows(totals, {}).TotKm, 3.0);
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
        rows[i].RowSDC = GetParam().posts[i];
    EXPECT_EQ(addRows({}, rows).TotSDC, GetParam().total);
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
    rows[0].RowSDC = 32767;
    rows[1].RowSDC = 1;
    const auto error = errorOf([&] { addRows({}, rows); });
    EXPECT_EQ(error.kind(), ErrorKind::Overflow);
    EXPECT_EQ(error.row(), 1);
    EXPECT_STREQ(error.what(), "Overflow: the total of decasualised posts at row 2 is 32768, beyond -32768 to 32767.");
}

// From 2^24 on singles are even: each man is lost, where doubles would count two. The mandays are doubles.
TEST(GrandTotal, CalculatedStrengthIsSinglePrecision)
{
    static_assert(std::is_same_v<decltype(TableTotals::TotCS), float>);
    static_assert(std::is_same_v<decltype(TableRow::RowCS), float>);
    const TableRow one = {.RowTMan = 1, .RowCS = 1.0F};
    const std::array rows = {one, one};
    const TableTotals totals = addRows({.TotTMan = 16777216, .TotCS = 16777216.0F}, rows);
    EXPECT_EQ(totals.TotCS, 16777216.0F);
    EXPECT_EQ(totals.TotTMan, 16777218.0);
}

TEST(GrandTotal, OverflowNamesTheRow)
{
    const std::array rows = {TableRow{.RowTR = 1e308}, TableRow{.RowTR = 1e308}};
    const auto error = errorOf([&] { addRows({}, rows); });
    EXPECT_STREQ(error.what(), "Overflow: the column total at row 2 is too large to compute with.");
    EXPECT_EQ(error.row(), 1);
}

}  // namespace
