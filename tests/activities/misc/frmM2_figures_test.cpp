#include "activities/misc/gate_screen.h"

namespace {

const std::string Title = "Data Entry for Miscelleneous Activities  (continued).....";

struct Entry {
    const char* name;
    float first;                       ///< M.1 to M.4
    std::vector<std::string> figures;  ///< as typed
    const char* results;
    float total;
};

class GatesOnScreen : public GateScreen, public testing::WithParamInterface<Entry> {};

TEST_P(GatesOnScreen, GiveMandays)  // slow
{
    const auto& form = open(GetParam().first);
    type("txtNLC", "0");
    typeFigures(GetParam().figures);
    click("cmdCompute");

    EXPECT_EQ(results(), GetParam().results);
    EXPECT_EQ(form.TotalMandays, GetParam().total);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Activities, GatesOnScreen, testing::Values(
    //    name           first    posts   crossings x 1 2 3   beats  gangs  stores     M.5   M.6  M.7  M.8   total
    // 365 x (2 + 2 + 9) - 294 x 5 = 4745 - 1470
    Entry{"All",         100.0F, {"5",    "2", "1", "3",      "4",   "3",   "1"},    "3275|284|882|1095|5636",    5636.0F},
    Entry{"Crossings",     0.0F, {"",     "1", "1", "1"},                            "2190||||2190",              2190.0F},   // 365 x 6
    // more posts than the crossings need: no lower limit
    Entry{"MorePosts",  1000.0F, {"2",    "1"},                                      "-223||||777",                777.0F},   // 365 - 588
    Entry{"PostsAlone",    0.0F, {"1"},                                              "-294||||-294",              -294.0F},
    Entry{"Keymen",        0.0F, {"",     "",  "",  "",       "2"},                  "|142|||142",                 142.0F},   // 71 x 2
    Entry{"HalfABeat",     0.0F, {"",     "",  "",  "",       "0.5"},                "|36|||36",                    35.5F},   // 35.5
    Entry{"Gangs",         0.0F, {"",     "",  "",  "",       "",    "2"},           "||588||588",                 588.0F},   // 294 x 2
    Entry{"Stores",        0.0F, {"",     "",  "",  "",       "",    "",    "2"},    "|||2190|2190",              2190.0F},   // 1095 x 2
    Entry{"HalfAStore",    0.0F, {"",     "",  "",  "",       "",    "",    "1.5"},  "|||1643|1643",              1642.5F},   // 1642.5
    Entry{"FirstAlone", 9213.8F, {},                                                 "||||9214",                  9213.8F},
    Entry{"Nothing",       0.0F, {},                                                 "||||",                         0.0F},
    Entry{"Texts",         0.0F, {"x",    "1x"},                                     "365||||365",                 365.0F},
    // beyond 2^24 singles are 2 apart: 16777216 + 71 = 16777287 lies halfway and goes to the even 16777288
    Entry{"Single", 16777216.0F, {"",     "",  "",  "",       "1"},                  "|71|||16777288",        16777288.0F}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST_F(GateScreen, AllEntriesEmptyGivesTheFirstScreensTotal)
{
    const auto& form = open(736.0F);
    type("txtNLC", "1");
    type("txtNLC", "");
    click("cmdCompute");

    EXPECT_EQ(results(), "||||736");
    EXPECT_EQ(form.TotalMandays, 736.0F);
}

TEST_F(GateScreen, AFirstScreenThatWasNeverComputedCountsForNothing)
{
    on<frmM2>();
    type("txtKbeats", "1");
    click("cmdCompute");

    EXPECT_EQ(text("txtMan9"), "71");
    EXPECT_TRUE(chain.isLoaded<frmM1>());
    EXPECT_FALSE(chain.get<frmM1>().isVisible());
}

struct Stores {
    const char* name;
    const char* typed;
    const char* stands;  ///< behind Compute
    const char* mandays;
};

class StoreLocations : public GateScreen, public testing::WithParamInterface<Stores> {};

TEST_P(StoreLocations, AreCutToTwoByCompute)  // slow
{
    open();
    type("txtSL", GetParam().typed);
    EXPECT_EQ(text("txtSL"), GetParam().typed);
    click("cmdCompute");

    EXPECT_EQ(text("txtSL"), GetParam().stands);
    EXPECT_EQ(text("txtMan8"), GetParam().mandays);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Typed, StoreLocations, testing::Values(
    Stores{"Two",       "2",     "2",     "2190"},
    Stores{"TwoPoint",  "2.0",   "2.0",   "2190"},    // not more than 2: stands as typed
    Stores{"More",      "2.1",   "2",     "2190"},
    Stores{"Five",      "5",     "2",     "2190"},
    Stores{"Endless",   "1e999", "2",     "2190"},    // cut before it could overflow
    Stores{"One",       "1",     "1",     "1095"},
    Stores{"Negative",  "-1",    "-1",    "-1095"},
    Stores{"Words",     "two",   "two",   ""}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST_F(GateScreen, ComputeOpensNextAndPrintAndLocksWhatItRead)
{
    open();
    typeFigures({"1", "1", "1", "1", "1", "1", "1"});
    click("cmdCompute");

    EXPECT_TRUE(enabled("cmdNext"));
    EXPECT_TRUE(enabled("cmdPrint"));
    EXPECT_FALSE(enabled("cmdCompute"));
    EXPECT_EQ(focus(), "cmdPrint");
    for (const char* box : {"txtNLC", "txtKbeats", "txtNG", "txtSL"}) {
        EXPECT_TRUE(locked(box)) << box;
        EXPECT_TRUE(pale(box)) << box;
    }
    EXPECT_FALSE(locked("txtLCN(0)"));
}

TEST_F(GateScreen, AnImportBehindComputeIsComputedAnew)
{
    open();
    auto records = places();
    records[1][1] = "2";
    records[2] = {"", "", "1", "0", "0"};
    records[8][1] = "1";
    putRecords("GridM2", records);
    click("cmdData");
    click("cmdCompute");
    EXPECT_EQ(results(), "-223|||1095|872");

    click("cmdData");
    EXPECT_TRUE(enabled("cmdCompute"));
    click("cmdCompute");
    EXPECT_EQ(results(), "-223|||1095|872");
}

TEST_F(GateScreen, AnOverflowNamesItsCrossingsAndShowsNothing)
{
    const auto& form = open();
    typeFigures({"1", "1", "1e307", "1", "1", "1", "5"});
    dialogs.expectCritical(Title,
                           "Overflow: the number of M.5 mandays at level crossings 2 is too large to compute with.");
    click("cmdCompute");

    EXPECT_EQ(results(), "||||");
    EXPECT_EQ(form.TotalMandays, 0.0F);
    EXPECT_EQ(focus(), "txtLCN(1)");
    EXPECT_FALSE(enabled("cmdNext"));
    EXPECT_FALSE(locked("txtNLC"));
}

struct SampleActivities {
    const char* name;
    const char* file;
    float first;
    const char* results;
};

class GatesOfSample : public GateScreen, public testing::WithParamInterface<SampleActivities> {};

TEST_P(GatesOfSample, AreImportedAndComputed)  // slow
{
    chain.get<frmStart>().txtT1(1).setText(QString::fromStdString(sample(GetParam().file)));
    open(GetParam().first);
    click("cmdData");
    click("cmdCompute");
    EXPECT_EQ(results(), GetParam().results);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Samples, GatesOfSample, testing::Values(
    //               name         file                    M.1-M.4    M.5  M.6 M.7  M.8  total
    // 365 x (3 + 8 + 15) - 294 x 12 = 9490 - 3528; 71 x 14; 294 x 9; 1095; 10697 + 9213.8 = 19910.8
    SampleActivities{"Ambapur",   "1-ambapur.mdb",        9213.8F, "5962|994|2646|1095|19911"},
    // 365 x (8 + 10 + 6) - 294 x 21 = 8760 - 6174; 71 x 16; 294 x 11; 2190
    SampleActivities{"Eklahra",   "2-eklahra.mdb",        7347.0F, "2586|1136|3234|2190|16493"},
    // 365 x (0 + 2 + 21) - 294 x 18 = 8395 - 5292; 71 x 10; 294 x 8; 0; 6165 + 8671.6 = 14836.6
    SampleActivities{"Jamunia",   "3-jamunia.mdb",        8671.6F, "3103|710|2352||14837"},
    // 365 x (6 + 4) - 294 x 9 = 3650 - 2646; 71 x 11; 294 x 8; 1095
    SampleActivities{"Mandar",    "4-mandar-hill.mdb",     736.0F, "1004|781|2352|1095|5968"},
    // 365 x 5 - 294 x 4 = 1825 - 1176; 71 x 7; 294 x 5; 0
    SampleActivities{"Parasnath", "5-parasnath-ghat.mdb", 3000.0F, "649|497|1470||5616"},
    SampleActivities{"Blank",     "blank.mdb",               0.0F, "||||"}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

}  // namespace
