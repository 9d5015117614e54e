#include "activities/misc/patrolling_screen.h"

namespace {

const std::string Title = "Data Entry for - For Miscelleneous Activities";

struct Patrolled {
    const char* name;
    std::vector<std::string> figures;  ///< days, beats, shifts, men
    const char* mandays;
};

class MonsoonOnScreen : public PatrollingScreen, public testing::WithParamInterface<Patrolled> {};

TEST_P(MonsoonOnScreen, MultipliesWhatIsTyped)  // slow
{
    open();
    type("txtNB", "1");
    typeBeatLength(0, GetParam().figures);
    click("cmdCompute");
    EXPECT_EQ(results(), GetParam().mandays + std::string("|||"));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(BeatLengths, MonsoonOnScreen, testing::Values(
    //        name          days   beats  shifts men      mandays
    Patrolled{"Whole",     {"90",  "3",   "2",   "2"},    "1080"},   // 90 x 3 x 2 x 2
    Patrolled{"HalfADay",  {"2.5", "1",   "1",   "1"},    "3"},      // shown half away from zero
    Patrolled{"MenDown",   {"10",  "1",   "1",   "2.5"},  "20"},     // half to even: 2 men
    Patrolled{"MenUp",     {"10",  "1",   "1",   "3.5"},  "40"},     // 4 men
    Patrolled{"NoMan",     {"10",  "1",   "1",   "0.5"},  ""},
    Patrolled{"Negative",  {"-10", "1",   "1",   "1"},    "-10"},
    Patrolled{"Texts",     {"9d",  "x",   "1",   "1"},    ""},       // 9 x 0
    Patrolled{"Double",    {"16777217", "1", "1", "1"},   "16777217"},
    Patrolled{"Empty",     {},                            ""}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST_F(PatrollingScreen, BeatLengthsAndLocationsAreAdded)
{
    const auto& form = open(10.0F);
    type("txtNB", "2");
    typeBeatLength(0, {"90", "3", "2", "2"});  // 1080
    typeBeatLength(1, {"10", "1", "1", "1"});  //   10
    type("txtVL", "2");
    typeLocation(0, {"30", "2"});    // 60
    typeLocation(1, {"10.5", "3"});  // 31.5
    click("cmdCompute");

    EXPECT_EQ(results(), "1090|300|120|92");  // 30 x 10, 12 x 10, 91.5
    EXPECT_EQ(form.TotalMandays, 1601.5F);    // not of the texts: 91.5
}

TEST_F(PatrollingScreen, NoneOfAllIsNothing)
{
    const auto& form = open(0.0F);
    type("txtNB", "0");
    click("cmdCompute");

    EXPECT_EQ(results(), "|||");
    EXPECT_EQ(form.TotalMandays, 0.0F);
    EXPECT_TRUE(enabled("cmdNext"));
}

TEST_F(PatrollingScreen, ANegativeCountIsNone)
{
    open(0.0F);
    type("txtNB", "1");
    typeBeatLength(0, {"90", "3", "2", "2"});
    type("txtVL", "1");
    typeLocation(0, {"30", "2"});
    type("txtNB", "-1");
    type("txtVL", "-1");
    click("cmdCompute");

    EXPECT_EQ(results(), "|||");
    EXPECT_TRUE(enabled("cmdNext"));
}

// The boxes show what stood on the track screen when this one was loaded.
TEST_F(PatrollingScreen, WeldedRailIsReadAfreshFromTheTrackScreen)
{
    auto& form = open(10.0F);
    chain.get<frmT1>().LwrTotal = 20.5F;
    form.txtHLWR.setText("999");
    type("txtNB", "0");
    click("cmdCompute");

    EXPECT_EQ(results(), "|615|246|");  // 30 x 20.5, 12 x 20.5
    EXPECT_EQ(text("txtCLWR"), "10");
}

// Beyond 2^24 singles are 2 apart, beyond 2^25 4: doubles would show 30000015 and 36000003.
TEST_F(PatrollingScreen, WeatherPatrollingIsSinglePrecision)
{
    open(1000000.5F);
    type("txtNB", "0");
    click("cmdCompute");
    EXPECT_EQ(text("txtMan2"), "30000016");

    chain.unload<frmM1>();
    open(3000000.25F);
    type("txtNB", "0");
    click("cmdCompute");
    EXPECT_EQ(text("txtMan3"), "36000004");
}

// Of two mandays more, one at a time, a single of 2^24 keeps none.
TEST_F(PatrollingScreen, LocationsAreAddedAsSingles)
{
    open();
    type("txtVL", "3");
    typeLocation(0, {"16777216", "1"});
    typeLocation(1, {"1", "1"});
    typeLocation(2, {"1", "1"});
    click("cmdCompute");
    EXPECT_EQ(text("txtMan4"), "16777216");
}

TEST_F(PatrollingScreen, TheTotalIsASingle)
{
    const auto& form = open();
    type("txtNB", "1");
    typeBeatLength(0, {"16777217", "1", "1", "1"});
    click("cmdCompute");
    EXPECT_EQ(form.TotalMandays, 16777216.0F);  // half to even
}

TEST_F(PatrollingScreen, ComputeOpensNextAndPrintAndLocksTheCounts)
{
    open();
    type("txtNB", "1");
    type("txtVL", "1");
    click("cmdCompute");

    EXPECT_TRUE(enabled("cmdNext"));
    EXPECT_TRUE(enabled("cmdPrint"));
    EXPECT_FALSE(enabled("cmdCompute"));
    EXPECT_EQ(focus(), "cmdPrint");
    for (const char* count : {"txtNB", "txtVL"}) {
        EXPECT_TRUE(locked(count)) << count;
        EXPECT_TRUE(pale(count)) << count;
    }
    EXPECT_FALSE(locked("txtND(0)"));
}

TEST_F(PatrollingScreen, TheFirstKeystrokeInAnyEntryBoxOpensCompute)
{
    for (const char* box : {"txtNB", "txtVL", "txtND(1)", "txtBL(1)", "txtNS(1)", "txtNM(1)", "txtDV(1)", "txtDS(1)"}) {
        auto& form = open();
        form.txtNB.setText("2");
        form.txtVL.setText("2");
        EXPECT_FALSE(enabled("cmdCompute")) << box;
        type(box, "5");
        EXPECT_TRUE(enabled("cmdCompute")) << box;
        chain.unload<frmM1>();
    }
}

TEST_F(PatrollingScreen, ASecondImportGoesOnWithTheSumsOfTheFirst)
{
    const auto& form = openSample("4-mandar-hill.mdb", 1.0F);
    click("cmdData");
    click("cmdCompute");
    EXPECT_EQ(results(), "552|30|12|184");

    click("cmdData");
    click("cmdCompute");
    EXPECT_EQ(results(), "1104|30|12|368");  // welded rail is not summed
    EXPECT_EQ(form.TotalMandays, 1514.0F);
    EXPECT_FALSE(enabled("cmdCompute"));
}

TEST_F(PatrollingScreen, MenBeyond16BitsStopComputeAtTheirRow)
{
    const auto& form = open(1.0F);
    type("txtNB", "2");
    typeBeatLength(0, {"1", "1", "1", "1"});
    typeBeatLength(1, {"1", "1", "1", "32768"});
    dialogs.expectCritical(Title, "Overflow: the number of men of beat length 2 is 32768, beyond -32768 to 32767.");
    click("cmdCompute");

    EXPECT_EQ(results(), "|||");
    EXPECT_EQ(form.TotalMandays, 0.0F);
    EXPECT_EQ(focus(), "txtNM(1)");
    EXPECT_TRUE(enabled("cmdCompute"));
    EXPECT_FALSE(enabled("cmdNext"));
    EXPECT_FALSE(locked("txtNB"));

    // Nothing of the failed Compute is in the sums.
    type("txtNM(1)", "2");
    click("cmdCompute");
    EXPECT_EQ(results(), "3|30|12|");
}

TEST_F(PatrollingScreen, AnOverflowAtALocationStopsComputeThere)
{
    open();
    type("txtNB", "1");
    typeBeatLength(0, {"1", "1", "1", "1"});
    type("txtVL", "2");
    typeLocation(1, {"1e20", "1e20"});
    dialogs.expectCritical(Title,
                           "Overflow: the number of M.4 mandays at location 2 is 1e+40, too large to compute with.");
    click("cmdCompute");

    EXPECT_EQ(results(), "|||");
    EXPECT_EQ(focus(), "txtDV(1)");
    typeLocation(1, {"1", "1"});
    click("cmdCompute");
    EXPECT_EQ(results(), "1|||1");
}

struct SampleActivities {
    const char* name;
    const char* file;
    float lwrKm;
    const char* results;
    float total;
};

class PatrollingOfSample : public PatrollingScreen, public testing::WithParamInterface<SampleActivities> {};

TEST_P(PatrollingOfSample, IsImportedAndComputed)  // slow
{
    const auto& form = openSample(GetParam().file, GetParam().lwrKm);
    click("cmdData");
    click("cmdCompute");

    EXPECT_EQ(results(), GetParam().results);
    EXPECT_EQ(form.TotalMandays, GetParam().total);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Samples, PatrollingOfSample, testing::Values(
    //               name         file                    LWR km   M.1  M.2  M.3  M.4       total
    // 92x2x6x2 + 92x2x4x2 + 60x1x3x1 = 2208 + 1472 + 180; 114.4 x 12 = 1372.8; 92x3 + 61x3 + 45x2
    SampleActivities{"Ambapur",   "1-ambapur.mdb",        114.4F, "3860|3432|1373|549",     9213.8F},
    // 122x2x8x2 + 122x1x5x2 = 3904 + 1220; 2 x 122x3
    SampleActivities{"Eklahra",   "2-eklahra.mdb",         35.5F, "5124|1065|426|732",      7347.0F},
    // 122x3x5x2; 88.8 x 12 = 1065.6; 3 x 122x3 + 92x2 = 1098 + 184
    SampleActivities{"Jamunia",   "3-jamunia.mdb",         88.8F, "3660|2664|1066|1282",    8671.6F},
    // 92x1x6x1; 92x2
    SampleActivities{"Mandar",    "4-mandar-hill.mdb",      0.0F, "552|||184",               736.0F},
    // 150x1x4x2 + 150x1x3x2; 2 x 150x3
    SampleActivities{"Parasnath", "5-parasnath-ghat.mdb",   0.0F, "2100|||900",             3000.0F},
    // counts of 0
    SampleActivities{"Blank",     "blank.mdb",              0.0F, "|||",                       0.0F}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

}  // namespace
