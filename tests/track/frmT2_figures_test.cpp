#include "track/ground_screen.h"

namespace {

const std::string Title = "Entering Data on Formation , Rainfall and Curves";

struct Ground {
    const char* name;
    const char* eqLength;
    std::vector<std::string> typed;  ///< shrinkable km, turnouts, unstable km, turnouts, three curve columns, rain
    const char* factors;             ///< A|B|C|1+A+B+C
};

class GroundRow : public GroundScreen, public testing::WithParamInterface<Ground> {};

TEST_P(GroundRow, Shows)  // slow
{
    open({GetParam().eqLength});
    typeRow(0, GetParam().typed);
    click("cmdCompute");
    EXPECT_EQ(factors(0), GetParam().factors);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Formation, GroundRow, testing::Values(
    //      name              eq km    soil1  t/outs  soil2 t/outs             A|B|C|1+A+B+C
    Ground{"BothKinds",       "10",  { "2",   "5",    "1",   "0"},            ".06|.|.|1.06"},          // (.2 x 2.5 + .1 x 1) / 10
    Ground{"UnstableTurnouts","10",  { "0",   "0",    "1",   "5"},            ".015|.|.|1.015"},        // .1 x 1.5 / 10
    Ground{"TurnoutsAlone",   "10",  { "",    "10",   "",    "10"},           ".03|.|.|1.03"},          // (.2 x 1 + .1 x 1) / 10
    Ground{"SixDecimals",     "3",   { "1",   "0",    "0",   "0"},            ".066667|.|.|1.066667"},  // .2 / 3
    Ground{"PlainText",       "10",  {"2km",  "x5",   "1,9", "none"},         ".05|.|.|1.05"},          // (.2 x 2 + .1 x 1) / 10
    Ground{"LengthOfItsOwn",  ".5",  { "0.5", "0",    "0",   "0"},            ".2|.|.|1.2"},            // .2 x .5 / .5
    Ground{"AllZero",         "10",  { "0",   "0",    "0",   "0", "0", "0", "0", "0"}, ".|.|.|1."}),    // 1 + 0 + 0 + 0
    [](const auto& tested) { return tested.param.name; });

INSTANTIATE_TEST_SUITE_P(Curves, GroundRow, testing::Values(
    //      name              eq km                    1-2    >2     Eq
    Ground{"ThreeColumns",    "5",   { "0", "", "", "", "2",  "1.5", "0.4"},  ".|.07|.|1.07"},    // (.25 x 2 x .5 + .25 x .4) / 5 = (.25 + .1) / 5
    Ground{"NotClipped",      "5",   { "0", "", "", "", "2",  "0",   "0.4"},  ".|-.08|.|.92"},    // (.25 x 2 x -1 + .1) / 5 = -.4 / 5
    Ground{"SecondBlank",     "5",   { "0", "", "", "", "2",  "",    ""},     ".|-.1|.|.9"},      // .25 x 2 x -1 / 5
    Ground{"SecondIsOne",     "5",   { "0", "", "", "", "2",  "1",   ""},     ".|.|.|1."},        // .25 x 2 x 0 / 5
    Ground{"SecondAlone",     "5",   { "0", "", "", "", "",   "9",   ""},     ".|.|.|1."},        // .25 x 0 x 8 / 5
    Ground{"ThirdAlone",      "5",   { "0", "", "", "", "",   "",    "4"},    ".|.2|.|1.2"}),     // .25 x 4 / 5
    [](const auto& tested) { return tested.param.name; });

INSTANTIATE_TEST_SUITE_P(Rainfall, GroundRow, testing::Values(
    //      name              eq km                                rain
    Ground{"BelowTheFirst",   "10",  { "", "", "", "", "", "", "", "149.9"},  ".|.|.|1."},
    Ground{"AtTheFirst",      "10",  { "", "", "", "", "", "", "", "150"},    ".|.|.|1."},                // .2 x 0 / 150
    Ground{"HalfWay",         "10",  { "", "", "", "", "", "", "", "225"},    ".|.|.1|1.1"},              // .2 x 75 / 150
    Ground{"BelowTheSecond",  "10",  { "", "", "", "", "", "", "", "299.9"},  ".|.|.199867|1.199867"},    // .2 x 149.9 / 150
    Ground{"AtTheSecond",     "10",  { "", "", "", "", "", "", "", "300"},    ".|.|.2|1.2"},
    Ground{"BeyondTheSecond", "10",  { "", "", "", "", "", "", "", "1500"},   ".|.|.2|1.2"}),
    [](const auto& tested) { return tested.param.name; });

// 16777217 = 2^24 + 1 is a double but no single, which would be 16777216.
INSTANTIATE_TEST_SUITE_P(Precision, GroundRow, testing::Values(
    //      name                eq km          soil1       t/outs      soil2       t/outs      1-2         >2          Eq
    Ground{"ShrinkableDouble",  "1",        {"16777217"},                                                                            "3355443.4|.|.|3355444.4"},      // .2 x 16777217
    Ground{"TurnoutsSingle",    "1",        { "0",        "16777217"},                                                               "335544.32|.|.|335545.32"},      // .2 x .1 x 16777216
    Ground{"UnstableDouble",    "1",        { "0",        "",         "16777217"},                                                   "1677721.7|.|.|1677722.7"},      // .1 x 16777217
    Ground{"MoreOutsSingle",    "1",        { "0",        "",         "",         "16777217"},                                       "167772.16|.|.|167773.16"},      // .1 x .1 x 16777216
    Ground{"FirstCurveDouble",  "1",        { "0",        "",         "",         "",         "16777217", "2"},                      ".|4194304.25|.|4194305.25"},    // .25 x 16777217 x 1
    Ground{"SecondCurveDouble", "1",        { "0",        "",         "",         "",         "1",        "16777217"},               ".|4194304.|.|4194305."},        // .25 x 1 x 16777216
    Ground{"ThirdCurveSingle",  "1",        { "0",        "",         "",         "",         "",         "",         "16777217"},   ".|4194304.|.|4194305."},        // .25 x 16777216
    Ground{"LengthDouble",      "16777217", {"83886085000000"},                                                                      "1000000.|.|.|1000001."}),       // .2 x 5 x 16777217 x 1e6 / 16777217
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST_F(GroundScreen, RainfallIsComparedAsASingle)
{
    auto& form = open({"10", "10"});
    typeRow(0, {"", "", "", "", "", "", "", "299.999999"});  // as a single 300; as a double .2 x 149.999999 / 150
    typeRow(1, {"", "", "", "", "", "", "", "149.999999"});  // as a single 150
    click("cmdCompute");

    EXPECT_EQ(form.grounds[0].Rain, 300.0F);
    EXPECT_EQ(form.grounds[0].FacC, 0.2);
    EXPECT_EQ(form.grounds[1].Rain, 150.0F);
    EXPECT_EQ(form.grounds[1].FacC, 0.0);
}

TEST_F(GroundScreen, KeepsWhatItComputedUnrounded)
{
    auto& form = open({"3"});
    typeRow(0, {"1", "2", "4", "5", "6", "7", "8", "225"});
    click("cmdCompute");

    EXPECT_EQ(form.grounds[0].Eqtkm, 3.0);
    EXPECT_EQ(form.grounds[0].Soil1, 1.0);
    EXPECT_EQ(form.grounds[0].Tout1, 2.0F);
    EXPECT_EQ(form.grounds[0].Soil2, 4.0);
    EXPECT_EQ(form.grounds[0].Tout2, 5.0F);
    EXPECT_EQ(form.grounds[0].Cur1, 6.0);
    EXPECT_EQ(form.grounds[0].Cur2, 7.0);
    EXPECT_EQ(form.grounds[0].Cur3, 8.0F);
    EXPECT_EQ(form.grounds[0].Rain, 225.0F);
    EXPECT_DOUBLE_EQ(form.grounds[0].FacA, 0.69 / 3);  // (.2 x 1.2 + .1 x 4.5) / 3
    EXPECT_DOUBLE_EQ(form.grounds[0].FacB, 11.0 / 3);  // (.25 x 6 x 6 + .25 x 8) / 3
    EXPECT_DOUBLE_EQ(form.grounds[0].FacC, 0.1);       // .2 x 75 / 150
    EXPECT_EQ(factors(0), ".23|3.666667|.1|4.996667");
}

// 1 + .0000004 + .0000004 = 1.0000008: added unrounded, the sum of the shown texts would be 1.
TEST_F(GroundScreen, TheFactorAddsUnroundedTerms)
{
    open({"1000000"});
    typeRow(0, {"2", "", "", "", "", "", "1.6"});  // A .2 x 2 / 1e6, B .25 x 1.6 / 1e6
    click("cmdCompute");
    EXPECT_EQ(factors(0), ".|.|.|1.000001");
}

TEST_F(GroundScreen, ComputesEveryShownRowFromItsOwnBoxes)
{
    open({"10", "5", "20"});
    typeRow(0, {"2", "5", "1"});
    typeRow(1, {"", "", "", "", "2", "1.5", "0.4"});
    typeRow(2, {"", "", "", "", "", "", "", "225"});
    click("cmdCompute");

    EXPECT_EQ(factors(0), ".06|.|.|1.06");
    EXPECT_EQ(factors(1), ".|.07|.|1.07");
    EXPECT_EQ(factors(2), ".|.|.1|1.1");
    EXPECT_EQ(factors(3), "|||");
}

TEST_F(GroundScreen, NoSegmentsNothingToCompute)
{
    open({});
    EXPECT_EQ(shownOf("txtSS", 0, 16), "00000000000000000");
    chain.get<frmT2>().cmdCompute.setEnabled(true);
    click("cmdCompute");
    EXPECT_EQ(factors(0), "|||");
    EXPECT_TRUE(enabled("cmdNext"));
}

TEST_F(GroundScreen, ALengthOfZeroIsADivisionByZeroAndNothingIsShown)
{
    open({"10", "."});  // as frmT1 shows 0
    typeRow(0, {"2"});
    dialogs.expectCritical(Title, "Division by zero: the equivalent length of segment 2 is 0.");
    click("cmdCompute");

    EXPECT_EQ(factors(0), "|||");  // not the good row either
    EXPECT_EQ(factors(1), "|||");
    EXPECT_TRUE(enabled("cmdCompute"));
    EXPECT_FALSE(enabled("cmdNext"));
    EXPECT_FALSE(enabled("cmdPrint"));
    EXPECT_EQ(focus(), "txtEqtkm(1)");
}

TEST_F(GroundScreen, ABlankLengthIsADivisionByZero)
{
    open({""});
    typeRow(0, {"2"});
    dialogs.expectCritical(Title, "Division by zero: the equivalent length of segment 1 is 0.");
    click("cmdCompute");
    EXPECT_EQ(factors(0), "|||");
}

TEST_F(GroundScreen, ALengthOfZeroCanBeMendedSoThatTheWayGoesOn)
{
    open({"10", "."});
    EXPECT_TRUE(locked("txtEqtkm(0)"));
    EXPECT_FALSE(locked("txtEqtkm(1)"));
    EXPECT_FALSE(pale("txtEqtkm(1)"));

    typeRow(1, {"1"});
    type("txtEqtkm(1)", "4");
    click("cmdCompute");
    EXPECT_EQ(factors(1), ".05|.|.|1.05");  // .2 x 1 / 4
    EXPECT_TRUE(enabled("cmdNext"));
}

// A segment on good ground, straight and dry has nothing else to be typed.
TEST_F(GroundScreen, ALengthThatIsTypedOpensComputeAsAnyFigure)
{
    open({"."});
    EXPECT_FALSE(enabled("cmdCompute"));
    type("txtEqtkm(0)", "4");
    EXPECT_TRUE(enabled("cmdCompute"));
    click("cmdCompute");
    EXPECT_EQ(factors(0), ".|.|.|1.");
}

TEST_F(GroundScreen, AFigureBeyondASingleIsAnOverflow)
{
    open({"10", "10"});
    typeRow(1, {"", "1e39"});
    dialogs.expectCritical(
        Title,
        "Overflow: the number of turnouts on shrinkable formation of segment 2 is 1e+39, too large to compute with.");
    click("cmdCompute");

    EXPECT_EQ(factors(0), "|||");
    EXPECT_TRUE(enabled("cmdCompute"));
    EXPECT_EQ(focus(), "txtSoil1(1)");
}

}  // namespace
