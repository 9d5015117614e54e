#include "yards/yard_screen.h"

namespace {

const std::string Title = "Entering Yard Data";

struct Yard {
    const char* name;
    const char* gauge;
    std::vector<std::string> figures;  ///< of one yard, as the screen shows them
    const char* totals;
    const char* mandays;
};

class YardMandays : public YardScreen, public testing::WithParamInterface<Yard> {};

TEST_P(YardMandays, AreShownUnderTheColumnTotals)  // slow
{
    open(GetParam().gauge);
    type("txtNYd", "1");
    typeRow(0, GetParam().figures);
    click("cmdCOMPUTE");

    EXPECT_EQ(totals(), GetParam().totals);
    EXPECT_EQ(text("txtYd4"), GetParam().mandays);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Gauges, YardMandays, testing::Values(
    //   name          gauge          km on lines         turnouts on           totals                   mandays
    //                                mach. man.  non-r.  mach. man. non-r.
    // a = 2 + .1 x 10 = 3, b = 1 + .1 x 5 = 1.5, c = 3; b + 2 x c / 3 = 3.5
    Yard{"Broad",      "BG",   {"A",  "2",  "1",  "3",    "10", "5", "0"},     "2.|1.|3.|10.|5.|.",     "1570.5"},  // 177 x 3 + 297 x 3.5
    Yard{"Metre",      "MG",   {"A",  "2",  "1",  "3",    "10", "5", "0"},     "2.|1.|3.|10.|5.|.",     "798."},    // 228 x 3.5
    Yard{"Narrow",     "NG",   {"A",  "2",  "1",  "3",    "10", "5", "0"},     "2.|1.|3.|10.|5.|.",     "535.5"},   // 153 x 3.5
    // any other gauge is narrow, to the letter
    Yard{"LowerCase",  "bg",   {"A",  "2",  "1",  "3",    "10", "5", "0"},     "2.|1.|3.|10.|5.|.",     "535.5"},
    Yard{"NoGauge",    "",     {"A",  "2",  "1",  "3",    "10", "5", "0"},     "2.|1.|3.|10.|5.|.",     "535.5"},
    // machine-packed columns are totalled for every gauge, and bring mandays on broad gauge alone
    Yard{"MachineBG",  "BG",   {"A",  "4",  "",   "",     "20"},               "4.|.|.|20.|.|.",        "1062."},   // 177 x 6
    Yard{"MachineMG",  "MG",   {"A",  "4",  "",   "",     "20"},               "4.|.|.|20.|.|.",        "."},
    Yard{"MachineNG",  "NG",   {"A",  "4",  "",   "",     "20"},               "4.|.|.|20.|.|.",        "."},
    // non-running lines count two thirds
    Yard{"NonRunning", "BG",   {"A",  "",   "",   "2",    "",   "", "10"},     ".|.|2.|.|.|10.",        "594."},    // 297 x 2 x 3 / 3
    // what is no number counts as 0, what starts with one as that
    Yard{"Texts",      "BG",   {"A",  "x",  "1km","-",    "n/a",".", "?"},     ".|1.|.|.|.|.",          "297."},
    // the total rounds half away from zero; 297 x 1.005 = 298.485 is 9780756.48 / 2^15, as single 9780756 / 2^15 = 298.484985
    Yard{"Rounded",    "BG",   {"A",  "",   "1.005"},                          ".|1.01|.|.|.|.",        "298.48"},
    // from 2^27 to 2^28 singles are 16 apart: 177 x 1000000.01 = 177000001.77 becomes 177000000
    Yard{"Single",     "BG",   {"A",  "1000000.01"},                           "1000000.01|.|.|.|.|.",  "177000000."},
    Yard{"Nothing",    "BG",   {"A"},                                          ".|.|.|.|.|.",           "."}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST_F(YardScreen, NoYardsTakeNoMandays)
{
    open();
    type("txtNYd", "0");
    click("cmdCOMPUTE");

    EXPECT_EQ(totals(), ".|.|.|.|.|.");
    EXPECT_EQ(text("txtYd4"), ".");
}

// From 2^24 on singles are even: of two turnouts more, one at a time, none is left. The other columns are doubles.
TEST_F(YardScreen, TurnoutsOnNonRunningLinesAreSummedAsSingles)
{
    const auto& form = open();
    type("txtNYd", "3");
    typeRow(0, {"A", "16777216", "", "", "", "16777216", "16777216"});
    typeRow(1, {"B", "1", "", "", "", "1", "1"});
    typeRow(2, {"C", "1", "", "", "", "1", "1"});
    click("cmdCOMPUTE");

    EXPECT_EQ(totals(), "16777218.|.|.|.|16777218.|16777216.");
    EXPECT_EQ(form.sums.Sum6, 16777216.0F);
    EXPECT_EQ(form.sums.Sum5, 16777218.0);
}

TEST_F(YardScreen, ComputeOpensNextAndPrintAndClosesItself)
{
    const auto& form = open();
    type("txtNYd", "1");
    typeRow(0, {"A", "", "1"});
    click("cmdCOMPUTE");

    EXPECT_TRUE(enabled("cmdNext"));
    EXPECT_TRUE(enabled("cmdPrint"));
    EXPECT_FALSE(enabled("cmdCOMPUTE"));
    EXPECT_EQ(focus(), "cmdPrint");
    EXPECT_TRUE(locked("txtNYd"));
    EXPECT_TRUE(pale("txtNYd"));
    EXPECT_FALSE(locked("txtM2(0)"));
    EXPECT_EQ(form.YdMan, 297.0F);
}

TEST_F(YardScreen, TheFirstKeystrokeInAnyEntryBoxOpensCompute)
{
    for (const std::string& column : Columns) {
        auto& form = open();
        form.txtNYd.setText("2");
        EXPECT_FALSE(enabled("cmdCOMPUTE")) << column;
        type(column + "(1)", "5");
        EXPECT_TRUE(enabled("cmdCOMPUTE")) << column;
        chain.unload<frmY>();
    }
}

TEST_F(YardScreen, TypingBehindComputeDoesNotOpenItAgain)
{
    open();
    putRecords("YdGrid", {{"", "1", "A", "0", "1", "0", "0", "0", "0"}});
    click("cmdYdata");
    click("cmdCOMPUTE");
    typeRow(0, {"B", "7"});  // the first keystroke, but the figures have been computed

    EXPECT_FALSE(enabled("cmdCOMPUTE"));
    EXPECT_EQ(text("txtYd4"), "297.");
}

TEST_F(YardScreen, YardsImportedBehindComputeAreAddedToThoseBefore)
{
    open();
    putRecords("YdGrid", {{"", "1", "A", "1", "2", "3", "4", "5", "6"}});
    click("cmdYdata");
    click("cmdCOMPUTE");
    EXPECT_EQ(totals(), "1.|2.|3.|4.|5.|6.");
    EXPECT_EQ(text("txtYd4"), "1703.1");  // a 1.4, b 2.5, c 3.6: 177 x 1.4 + 297 x 4.9 = 247.8 + 1455.3

    click("cmdYdata");
    click("cmdCOMPUTE");
    EXPECT_EQ(totals(), "2.|4.|6.|8.|10.|12.");
    EXPECT_EQ(text("txtYd4"), "3406.2");
    EXPECT_FALSE(enabled("cmdCOMPUTE"));
}

TEST_F(YardScreen, AnOverflowNamesItsYardAndShowsNothing)
{
    open();
    type("txtNYd", "2");
    typeRow(0, {"A", "1"});
    typeRow(1, {"B", "", "", "", "", "", "1e39"});
    dialogs.expectCritical(Title, "Overflow: the number of turnouts on non-running lines of yard 2 is 1e+39, too large "
                                  "to compute with.");
    click("cmdCOMPUTE");

    EXPECT_EQ(totals(), "|||||");
    EXPECT_EQ(text("txtYd4"), "");
    EXPECT_EQ(focus(), "txtStn(1)");
    EXPECT_TRUE(enabled("cmdCOMPUTE"));
    EXPECT_FALSE(enabled("cmdNext"));
    EXPECT_FALSE(locked("txtNYd"));

    // Nothing of the failed Compute is in the sums.
    type("txtM6(1)", "0");
    click("cmdCOMPUTE");
    EXPECT_EQ(totals(), "1.|.|.|.|.|.");
}

struct SampleYards {
    const char* name;
    const char* file;
    const char* gauge;
    const char* totals;
    const char* mandays;
};

class YardsOfSample : public YardScreen, public testing::WithParamInterface<SampleYards> {};

TEST_P(YardsOfSample, AreImportedAndComputed)  // slow
{
    openSample(GetParam().file, GetParam().gauge);
    click("cmdYdata");
    click("cmdCOMPUTE");

    EXPECT_EQ(totals(), GetParam().totals);
    EXPECT_EQ(text("txtYd4"), GetParam().mandays);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Samples, YardsOfSample, testing::Values(
    //          name         file                    gauge  totals                          mandays
    // a 10.7 + 5.7 = 16.4, b 4.8 + 2.2 = 7, c 13 + 3.9 = 16.9: 177 x 16.4 + 297 x (7 + 33.8 / 3) = 2902.8 + 5425.2
    SampleYards{"Ambapur",   "1-ambapur.mdb",        "BG",  "10.7|4.8|13.|57.|22.|39.",     "8328."},
    // a .9 + .4 = 1.3, b 10.1 + 3.8 = 13.9, c 9.3 + 2.2 = 11.5: 177 x 1.3 + 297 x (13.9 + 23 / 3) = 230.1 + 6405.3
    SampleYards{"Eklahra",   "2-eklahra.mdb",        "BG",  ".9|10.1|9.3|4.|38.|22.",       "6635.4"},
    // a 12 + 6.8 = 18.8, b 0, c 5.6 + 1.6 = 7.2: 177 x 18.8 + 297 x 4.8 = 3327.6 + 1425.6
    SampleYards{"Jamunia",   "3-jamunia.mdb",        "BG",  "12.|.|5.6|68.|.|16.",          "4753.2"},
    // b 5.1 + 1.9 = 7, c 2.5 + .7 = 3.2: 228 x (7 + 6.4 / 3)
    SampleYards{"Mandar",    "4-mandar-hill.mdb",    "MG",  ".|5.1|2.5|.|19.|7.",           "2082.4"},
    // b 1.9 + .6 = 2.5, c .6 + .1 = .7: 153 x (2.5 + 1.4 / 3)
    SampleYards{"Parasnath", "5-parasnath-ghat.mdb", "NG",  ".|1.9|.6|.|6.|1.",             "453.9"}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

}  // namespace
