#include "track/mandays_screen.h"

namespace {

// The mandays of one segment

struct Mandays {
    const char* name;
    const char* gauge;
    bool suburban;
    Segment segment;
    const char* shown;  ///< 'T'|'R'|'T'+'R'
};

class MandaysRow : public MandaysScreen, public testing::WithParamInterface<Mandays> {};

TEST_P(MandaysRow, Shows)  // slow
{
    open(GetParam().gauge, {GetParam().segment}, GetParam().suburban);
    click("cmdCompute");
    EXPECT_EQ(mandays(0), GetParam().shown);
}

// clang-format off
constexpr const char* Hand = "Manually Packed";
constexpr const char* Machine = "Machine Packed";

INSTANTIATE_TEST_SUITE_P(BroadGauge, MandaysRow, testing::Values(
    //       name             gauge  suburban  eq km  GMT   factor  method             conc1 conc2      'T'|'R'|'T'+'R'
    Mandays{"Suburban",       "BG",  true,   { "5",   "10", "1.1",  Machine                         }, "759.|1990.|2749."},      // (115 + 23) x 1.1 x 5;       398 x 5
    Mandays{"SuburbanByHand", "BG",  true,   { "5",   "10", "1.1",  Hand,              "4",  "10"   }, "759.|1990.|2749."},      // neither method nor sleepers play a part
    Mandays{"ByHand",         "BG",  false,  {"10",   "10", "1.",   Hand,              "4",  "10"   }, "3054.|1820.|4874."},     // (223 + 82.4) x 10;          L 5: 168 x 5 + 196 x 5
    Mandays{"ByMachine",      "BG",  false,  {"10",   "10", "1.",   Machine,           "4",  "10"   }, "1030.|1730.|2760."},     // (80 + 23) x 10;             L 5: 159 x 5 + 187 x 5
    Mandays{"OtherCase",      "BG",  false,  {"10",   "10", "1.",   "Machine packed",  "4",  "10"   }, "1030.|1730.|2760."},     // kept letter for letter, machine rates
    Mandays{"ByHandOtherCase","BG",  false,  {"10",   "10", "1.",   "manually packed", "4",  "10"   }, "1030.|1730.|2760."},     // not to the letter: machine rates
    Mandays{"ByHandAndBlank", "BG",  false,  {"10",   "10", "1.",   "Manually Packed ","4",  "10"   }, "1030.|1730.|2760."},
    Mandays{"NoMethod",       "BG",  false,  {"10",   "10", "1.",   "",                "4",  "10"   }, "1030.|1730.|2760."},
    Mandays{"NotChosen",      "BG",  false,  {"10",   "10", "1.",   "Method of Maintenance", "4", "10"}, "1030.|1730.|2760."},
    Mandays{"MoreConcrete",   "BG",  false,  { "1",   "0",  "1.",   Machine,           "3",  ""     }, "80.|243.|323."},         // 159 x -2 + 187 x 3 = -318 + 561
    Mandays{"AllTurnouts",    "BG",  false,  { "2",   "0",  "1.",   Hand,              "",   "20"   }, "446.|392.|838."},        // 223 x 2;                    L 2: 196 x 2
    Mandays{"NegativeFactor", "BG",  false,  {"10",   "0",  "-.5",  Machine                         }, "-400.|1590.|1190."},     // 80 x -.5 x 10;              159 x 10
    Mandays{"NoNumbers",      "BG",  false,  {"10",   "x",  "1.",   Machine,           "none", "-"  }, "800.|1590.|2390."},      // text counts as 0
    Mandays{"NoFactor",       "BG",  false,  {"10",   "10", "",     Machine                         }, ".|1590.|1590."}),
    [](const auto& tested) { return tested.param.name; });

INSTANTIATE_TEST_SUITE_P(MetreGauge, MandaysRow, testing::Values(
    //       name             gauge  suburban  eq km  GMT   factor  method             conc1 conc2      'T'|'R'|'T'+'R'
    Mandays{"ByHand",         "MG",  false,  {"10",   "2",  "1.",   Hand                            }, "1871.2|1280.|3151.2"},   // (160 + 27.12) x 10;         128 x 10
    Mandays{"ByMachine",      "MG",  false,  {"10",   "2",  "1.",   Machine,           "4",  "10"   }, "1871.2|1280.|3151.2"},   // neither method nor sleepers play a part
    Mandays{"SuburbanBox",    "MG",  true,   {"10",   "2",  "1.",   Machine                         }, "1871.2|1280.|3151.2"},   // nor does the box
    // 1.1 as a single is 1.10000002384: 160 x 1.10000002384 x 10000 = 1760000.0381; a double would show 1760000.
    Mandays{"FactorIsSingle", "MG",  false,  {"10000","0",  "1.1",  Hand                            }, "1760000.04|1280000.|3040000.04"}),
    [](const auto& tested) { return tested.param.name; });

INSTANTIATE_TEST_SUITE_P(NarrowGauge, MandaysRow, testing::Values(
    //       name             gauge  suburban  eq km  GMT   factor  method             conc1 conc2      'T'|'R'|'T'+'R'
    Mandays{"BelowTheCap",    "NG",  false,  {"10",   ".3", "1.",   Hand                            }, "1614.|910.|2524."},      // 105 + 56.4 = 161.4;         91 x 10
    Mandays{"JustCapped",     "NG",  false,  {"10",   ".4", "1.",   Hand                            }, "1800.|910.|2710."},      // 105 + 75.2 = 180.2, capped to 180
    Mandays{"Capped",         "NG",  false,  {"10",   ".5", "1.",   Hand                            }, "1800.|910.|2710."},      // 105 + 94 = 199
    Mandays{"NoTraffic",      "NG",  false,  {"10",   "",   "1.5",  Hand                            }, "1575.|910.|2485."},      // 105 x 1.5 x 10
    Mandays{"SuburbanBox",    "NG",  true,   {"10",   ".3", "1.",   Machine,           "4",  "10"   }, "1614.|910.|2524."},
    // 161.4 as a single is 161.399993896; a double would show 1614000.
    Mandays{"RateIsSingle",   "NG",  false,  {"10000",".3", "1.",   Hand                            }, "1613999.94|910000.|2523999.94"},
    // 1.05 as a single is 1.04999995232; x 180 = 188.99999142, the nearest single is 188.99998474; x 1000.
    // The product as a double would show 188999.99.
    Mandays{"ProductIsSingle","NG",  false,  {"1000", "1",  "1.05", Hand                            }, "188999.98|91000.|279999.98"}),
    [](const auto& tested) { return tested.param.name; });

INSTANTIATE_TEST_SUITE_P(NoGauge, MandaysRow, testing::Values(
    Mandays{"SmallLetters",   "bg",  false,  {"10",   "10", "1."}, ".|.|."},
    Mandays{"BlankBefore",    " BG", false,  {"10",   "10", "1."}, ".|.|."},
    Mandays{"BlankBehind",    "MG ", false,  {"10",   "10", "1."}, ".|.|."},
    Mandays{"OtherGauge",     "XG",  false,  {"10",   "10", "1."}, ".|.|."},
    Mandays{"Empty",          "",    true,   {"10",   "10", "1."}, ".|.|."}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST_F(MandaysScreen, WithoutAGaugeTheTotalIsALonePoint)
{
    open("bg", {{"10", "10"}, {"20", "10"}});
    click("cmdCompute");

    EXPECT_EQ(mandays(1), ".|.|.");
    EXPECT_EQ(text("txtMan3(16)"), ".");
    EXPECT_TRUE(enabled("cmdNext"));
}

TEST_F(MandaysScreen, WithoutSegmentsTheTotalIsALonePoint)
{
    open("BG", {});
    EXPECT_EQ(shownOf("txtMan3", 0, 15), "0000000000000000");
    click("cmdCompute");

    EXPECT_EQ(text("txtMan3(16)"), ".");
    EXPECT_EQ(mandays(0), "||");
    EXPECT_TRUE(enabled("cmdNext"));
}

TEST_F(MandaysScreen, KeepsWhatItComputedUnrounded)
{
    auto& form = open("NG", {{"3", ".3", "1.05", "Manually Packed", "4", "12"}});
    click("cmdCompute");

    EXPECT_EQ(form.Gauge, "NG");
    EXPECT_EQ(form.segments[0].Eqtkm, 3.0);
    EXPECT_EQ(form.segments[0].Gmt, 0.3);
    EXPECT_EQ(form.segments[0].Factor, 1.05F);
    EXPECT_EQ(form.segments[0].Conc1, 4.0);
    EXPECT_EQ(form.segments[0].Conc2, 12.0);
    EXPECT_DOUBLE_EQ(form.segments[0].ConcKm, 5.2);  // 4 + .1 x 12
    EXPECT_EQ(form.segments[0].NgNorm, 161.4F);
    EXPECT_EQ(form.segments[0].ManR, 273.0);  // 91 x 3
    EXPECT_EQ(form.segments[0].ManTR, form.segments[0].ManT + 273.0);
    EXPECT_NEAR(form.segments[0].ManT, 508.41, 1e-4);  // 161.4 x 1.05 x 3
}

// The total

TEST_F(MandaysScreen, TheTotalAddsUpTheSegments)
{
    open("BG", {{"10", "10", "1.", "Manually Packed", "4", "10"}, {"5", "10", "1.1"}, {"1", "0", "1.", "", "3"}});
    click("cmdCompute");

    EXPECT_EQ(mandays(0), "3054.|1820.|4874.");
    EXPECT_EQ(mandays(1), "566.5|795.|1361.5");
    EXPECT_EQ(mandays(2), "80.|243.|323.");
    EXPECT_EQ(text("txtMan3(16)"), "6558.5");  // 4874 + 1361.5 + 323
}

// 'R' alone, 128 x km: 131072 km are 2^24 mandays, .0078125 km are 1. As singles 2^24 + 1 is 2^24 again, at each of
// the three; added as doubles and rounded once, the total would be 16777220.
TEST_F(MandaysScreen, TheTotalIsASingleAtEveryStep)
{
    auto& form = open("MG", {{"131072", "", ""}, {".0078125", "", ""}, {".0078125", "", ""}, {".0078125", "", ""}});
    click("cmdCompute");

    EXPECT_EQ(text("txtMan3(0)"), "16777216.");
    EXPECT_EQ(text("txtMan3(1)"), "1.");
    EXPECT_EQ(text("txtMan3(16)"), "16777216.");
    EXPECT_EQ(form.TotMan, 16777216.0F);
}

TEST_F(MandaysScreen, TheTotalGrowsWithEveryCompute)
{
    auto& form = open("BG", {{"10"}});
    click("cmdCompute");
    EXPECT_EQ(text("txtMan3(16)"), "2390.");  // 800 + 1590

    form.cmdCompute.setEnabled(true);
    click("cmdCompute");
    EXPECT_EQ(text("txtMan3(0)"), "2390.");
    EXPECT_EQ(text("txtMan3(16)"), "4780.");
}

TEST_F(MandaysScreen, ANewSrSeStartsFromZero)
{
    open("BG", {{"10"}});
    click("cmdCompute");
    chain.unload<frmT4>();
    settle();

    auto& form = open("BG", {{"10"}});
    EXPECT_EQ(form.TotMan, 0.0F);
    EXPECT_EQ(text("txtMan3(16)"), "");
    click("cmdCompute");
    EXPECT_EQ(text("txtMan3(16)"), "2390.");
}

}  // namespace
