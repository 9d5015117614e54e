#include "activities/site/frmS1.h"

#include "activities/site/site_screen.h"

namespace {

const std::string Title = "Data Entry for Site Specefic Activiries 'S'";

class FirstSiteScreen : public SiteScreen {
protected:
    std::string results()
    {
        return text("txtman10") + "|" + text("txtMan11") + "|" + text("txtMan12") + "|" + text("txtMan13");
    }
};

// What the screen shows

TEST_F(FirstSiteScreen, CaptionsStandToTheLetter)
{
    const auto& form = open<frmS1>();
    EXPECT_EQ(form.windowTitle().toStdString(), Title);
    for (const char* caption :
         {"Data Entry for Site Specefic Activiries 'S'", "Sr S.E. with index-", "Gauge", "     Date (mm-dd-yyyy)",
          "S.1- Tunnel Maintenance -", "S.2- Bridge Substructure Maintenance-", "S.3- Long Girder Maintenance -",
          "S.4- Extra Maintenance due to Very Sharp Curves, Deep Cuttings, and Steep Gradients-", "Number of Tracks-",
          "     Length of Tunnel in Metres-", "     Length of Bridges in Metres-",
          "Length of Bridges in Metres- (Lineal Waterway more than 150 metres) ",
          ("Total Length of Curves in Kms sharper than 3 Degrees on BG                   "
           " and 6 Degrees on MG                                                    "
           "(NG Track does not need extra maintenance on this reason)"),
          "Calculated Mandays - ", "S1 Data"})
        EXPECT_TRUE(says(caption)) << caption;
    EXPECT_EQ(text("cmdData"), "&Data from File");
    EXPECT_EQ(text("cmdCompute"), "&Compute");
    EXPECT_EQ(text("cmdPrint"), "&Print");
    EXPECT_EQ(text("cmdNext"), "&Next");
    EXPECT_EQ(toolTip("cmdPrint"), LockTip);
    EXPECT_EQ(toolTip("cmdNext"), LockTip);
}

TEST_F(FirstSiteScreen, TakesItsHeaderFromTheTrackScreen)
{
    open<frmS1>();
    EXPECT_EQ(texts("txtT1", 0, 2), "Sample Section|Sr SE Ambapur|Km 0 to 100");
    EXPECT_TRUE(says("MG"));
    EXPECT_NE(text("txtRly(2)"), "");
    for (const char* box : {"txtT1(0)", "txtT1(1)", "txtT1(2)", "txtRly(2)"})
        EXPECT_TRUE(locked(box) && pale(box)) << box;
}

TEST_F(FirstSiteScreen, NumbersOfTracksAreFixed)
{
    open<frmS1>();
    EXPECT_EQ(texts("txtTB", 0, 11), "1|2|3|4|1|2|3|4|1|2|3|4");
    for (int i = 0; i < 12; ++i) {
        const std::string box = "txtTB(" + std::to_string(i) + ")";
        EXPECT_TRUE(locked(box) && pale(box)) << box;
    }
    type("txtTB(1)", "7");
    EXPECT_EQ(text("txtTB(1)"), "2");
}

TEST_F(FirstSiteScreen, LoadsWithEmptyLengthsAndResults)
{
    open<frmS1>();
    EXPECT_EQ(texts("txtND", 0, 12), "||||||||||||");
    EXPECT_EQ(shownOf("txtND", 0, 12), "1111111111111");
    for (int i = 0; i < 13; ++i) {
        const std::string box = "txtND(" + std::to_string(i) + ")";
        EXPECT_FALSE(locked(box) || pale(box)) << box;
    }
    EXPECT_EQ(results(), "|||");
    for (const char* result : {"txtman10", "txtMan11", "txtMan12", "txtMan13"})
        EXPECT_TRUE(locked(result) && pale(result)) << result;
    EXPECT_TRUE(enabled("cmdData"));
    for (const char* button : {"cmdCompute", "cmdPrint", "cmdNext"})
        EXPECT_FALSE(enabled(button)) << button;
}

TEST_F(FirstSiteScreen, BoxesAreNamedAfterActivityAndTracks)
{
    open<frmS1>();
    EXPECT_EQ(find("txtTB(5)").accessibleName().toStdString(),
              "Number of Tracks-, tracks 2, S.2- Bridge Substructure Maintenance-");
    EXPECT_EQ(find("txtND(1)").accessibleName().toStdString(),
              "Length of Tunnel in Metres-, tracks 2, S.1- Tunnel Maintenance -");
    EXPECT_EQ(find("txtND(7)").accessibleName().toStdString(),
              "Length of Bridges in Metres-, tracks 4, S.2- Bridge Substructure Maintenance-");
    EXPECT_EQ(find("txtMan12").accessibleName().toStdString(), "Calculated Mandays -, S.3- Long Girder Maintenance -");
    EXPECT_EQ(find("txtND(12)").accessibleName().toStdString(),
              "Total Length of Curves in Kms sharper than 3 Degrees on BG and 6 Degrees on MG (NG Track does not need "
              "extra maintenance on this reason)");
}

TEST_F(FirstSiteScreen, TabGoesFromLengthToLength)
{
    open<frmS1>();
    EXPECT_EQ(focus(), "txtND(0)");
    for (int i = 1; i < 13; ++i) {
        key("txtND(" + std::to_string(i - 1) + ")", Qt::Key_Tab);
        EXPECT_EQ(focus(), "txtND(" + std::to_string(i) + ")");
    }
}

TEST_F(FirstSiteScreen, FitsALaptopScreen)
{
    expectNoScrolling(open<frmS1>(sample("1-ambapur.mdb")));
}

// Import

TEST_F(FirstSiteScreen, ImportTakesEveryLengthFromItsPlace)
{
    open<frmS1>();
    putRecords("GridS1", places(9, 5));
    click("cmdData");
    EXPECT_EQ(texts("txtND", 0, 3), "3.02|3.03|3.04|3.05");
    EXPECT_EQ(texts("txtND", 4, 7), "5.02|5.03|5.04|5.05");
    EXPECT_EQ(texts("txtND", 8, 11), "7.02|7.03|7.04|7.05");
    EXPECT_EQ(text("txtND(12)"), "9.02");
    EXPECT_EQ(texts("txtTB", 0, 3), "1|2|3|4");
    EXPECT_EQ(results(), "|||");
    EXPECT_TRUE(enabled("cmdCompute"));
    EXPECT_EQ(focus(), "cmdCompute");
    EXPECT_FALSE(enabled("cmdNext") || enabled("cmdPrint"));
}

TEST_F(FirstSiteScreen, ImportTwiceTakesTheSameAgain)
{
    open<frmS1>(sample("1-ambapur.mdb"));
    click("cmdData");
    type("txtND(1)", "1");
    click("cmdData");
    EXPECT_EQ(texts("txtND", 0, 12), "0|420|0|0|180.5|612|0|0|0|304|0|0|1.35");
}

TEST_F(FirstSiteScreen, ImportFromAShortTableKeepsWhatCameAndSaysWhatIsMissing)
{
    open<frmS1>();
    putRecords("GridS1", places(6, 5));
    dialogs.expectCriticalWith(Title, "row 7");
    click("cmdData");
    EXPECT_EQ(texts("txtND", 4, 8), "5.02|5.03|5.04|5.05|");
    EXPECT_FALSE(enabled("cmdCompute"));
}

TEST_F(FirstSiteScreen, ImportFromATableWithoutRecordsSaysThatRowsAreMissing)
{
    open<frmS1>(fixture("empty-tables.mdb"));
    dialogs.expectCriticalWith(Title, "row 3");
    click("cmdData");
    EXPECT_EQ(texts("txtND", 0, 12), "||||||||||||");
}

TEST_F(FirstSiteScreen, WithoutAFileOneTypes)
{
    open<frmS1>();
    EXPECT_TRUE(says("No data file chosen"));
    EXPECT_FALSE(shown("GridS1"));
    dialogs.expectCriticalWith(Title, "S1");
    click("cmdData");
    type("txtND(0)", "1000");
    click("cmdCompute");
    EXPECT_EQ(results(), "348|||");  // .348 x 1000 m
}

TEST_F(FirstSiteScreen, AFileThatIsNotThereIsToldOnceTheScreenIsSeen)
{
    dialogs.expectCriticalWith("S1 Data", "nowhere.mdb");
    open<frmS1>("/nowhere.mdb");
    EXPECT_EQ(dialogs.open(), 0U);
}

// Typing

TEST_F(FirstSiteScreen, TheFirstKeystrokeOpensCompute)
{
    for (const char* box : {"txtND(0)", "txtND(7)", "txtND(12)"}) {
        open<frmS1>();
        EXPECT_FALSE(enabled("cmdCompute"));
        type(box, "5");
        EXPECT_TRUE(enabled("cmdCompute")) << box;
        chain.unload<frmS1>();
        settle();
    }
}

// Compute

struct LengthCase {
    const char* box;
    const char* typed;
    const char* results;
};

// clang-format off
const LengthCase LengthCases[] = {
    // box          typed      S.1 | S.2 | S.3 | S.4
    {"txtND(0)",   "1000",    "348|||"    },  //  .348 x 1 x 1000 m
    {"txtND(1)",   "1000",    "696|||"    },  //  .348 x 2 x 1000
    {"txtND(2)",   "1000",    "1044|||"   },  //  .348 x 3 x 1000
    {"txtND(3)",   "1000",    "1392|||"   },  //  .348 x 4 x 1000
    {"txtND(4)",   "1000",    "|319||"    },  //  .319 x 1 x 1000
    {"txtND(5)",   "1000",    "|638||"    },  //  .319 x 2 x 1000
    {"txtND(6)",   "1000",    "|957||"    },  //  .319 x 3 x 1000
    {"txtND(7)",   "1000",    "|1276||"   },  //  .319 x 4 x 1000
    {"txtND(8)",   "1000",    "||640|"    },  //  .64  x 1 x 1000
    {"txtND(9)",   "1000",    "||1280|"   },  //  .64  x 2 x 1000
    {"txtND(10)",  "1000",    "||1920|"   },  //  .64  x 3 x 1000
    {"txtND(11)",  "1000",    "||2560|"   },  //  .64  x 4 x 1000
    {"txtND(12)",  "0.5",     "|||147"    },  //  294 x .5 km
    {"txtND(12)",  "10",      "|||2940"   },  //  294 x 10 km
    {"txtND(0)",   "1",       "|||"       },  //  .348: below half a manday nothing is shown
    {"txtND(0)",   "2",       "1|||"      },  //  .696
    {"txtND(8)",   "1",       "||1|"      },  //  .64
    {"txtND(12)",  "0.0016",  "|||"       },  //  .4704
    {"txtND(0)",   "1000 m",  "348|||"    },  //  the number it begins with
    {"txtND(0)",   "long",    "|||"       },  //  no number: 0
    {"txtND(0)",   "-1000",   "-348|||"   },  //  no lower limit
    {"txtND(0)",   "1e6",     "348000|||" },  //  no upper limit either
};
// clang-format on

TEST_F(FirstSiteScreen, EveryLengthCountsByItsTracksAndRate)  // slow
{
    for (const LengthCase& one : LengthCases) {
        open<frmS1>();
        type(one.box, one.typed);
        click("cmdCompute");
        EXPECT_EQ(results(), one.results) << one.box << " " << one.typed;
        chain.unload<frmS1>();
        settle();
    }
}

TEST_F(FirstSiteScreen, TunnelsOfOneAndTwoTracksAreAddedUp)
{
    open<frmS1>();
    type("txtND(0)", "100");
    type("txtND(1)", "100");
    click("cmdCompute");
    EXPECT_EQ(text("txtman10"), "104");  // .348 x (1 x 100 + 2 x 100) = 104.4
}

TEST_F(FirstSiteScreen, PublishesItsResultsUnrounded)
{
    auto& form = open<frmS1>();
    EXPECT_EQ(form.mandays.tunnels + form.mandays.bridges + form.mandays.longGirders + form.mandays.sharpCurves, 0.0);
    // .1 is kept as the single .100000001490116; what is multiplied with it is a double, in S.4 a single.
    for (const char* box : {"txtND(0)", "txtND(4)", "txtND(8)", "txtND(12)"})
        type(box, "0.1");
    click("cmdCompute");
    EXPECT_DOUBLE_EQ(form.mandays.tunnels, 0.034800000518560412);      // .348 x .100000001490116
    EXPECT_DOUBLE_EQ(form.mandays.bridges, 0.031900000475347043);      // .319 x .100000001490116
    EXPECT_DOUBLE_EQ(form.mandays.longGirders, 0.064000000953674319);  // .64  x .100000001490116
    EXPECT_EQ(form.mandays.sharpCurves, 29.4F);                        // not 29.4000004380941
    EXPECT_EQ(results(), "|||29");
}

TEST_F(FirstSiteScreen, WorksOutTheSamples)
{
    open<frmS1>(sample("1-ambapur.mdb"));
    click("cmdData");
    click("cmdCompute");
    // .348 x 2 x 420 = 292.32, .319 x (180.5 + 2 x 612) = 448.04, .64 x 2 x 304 = 389.12, 294 x 1.35 = 396.9
    EXPECT_EQ(results(), "292|448|389|397");
}

TEST_F(FirstSiteScreen, ComputeRunsOnceAndOpensPrintAndNext)
{
    open<frmS1>();
    type("txtND(0)", "1000");
    click("cmdCompute");
    EXPECT_FALSE(enabled("cmdCompute"));
    EXPECT_TRUE(enabled("cmdPrint") && enabled("cmdNext"));
    EXPECT_EQ(focus(), "cmdPrint");
    EXPECT_FALSE(locked("txtND(0)"));
    type("txtND(0)", "2000");
    EXPECT_FALSE(enabled("cmdCompute"));  // not the first keystroke any more
    EXPECT_EQ(text("txtman10"), "348");
}

// The sums of track metres start with the screen, not with Compute: an import opens Compute once more.
TEST_F(FirstSiteScreen, AnotherImportAndComputeAddToTheSums)
{
    open<frmS1>(sample("1-ambapur.mdb"));
    for (int round = 0; round < 2; ++round) {
        click("cmdData");
        click("cmdCompute");
    }
    EXPECT_EQ(results(), "585|896|778|397");  // 2 x 292.32, 2 x 448.0355, 2 x 389.12; S.4 is no sum

    chain.unload<frmS1>();
    settle();
    open<frmS1>(sample("1-ambapur.mdb"));
    click("cmdData");
    click("cmdCompute");
    EXPECT_EQ(results(), "292|448|389|397");
}

TEST_F(FirstSiteScreen, ALengthBeyondASingleIsAnOverflowAndShowsNothing)
{
    auto& form = open<frmS1>();
    type("txtND(0)", "1000");
    type("txtND(6)", "1e39");  // the largest single is 3.4e38
    dialogs.expectCritical(Title,
                           "Overflow: the S.2 length for number of tracks 3 is 1e+39, too large to compute with.");
    click("cmdCompute");
    EXPECT_EQ(focus(), "txtND(6)");
    EXPECT_EQ(results(), "|||");
    EXPECT_EQ(form.mandays.tunnels, 0.0);
    EXPECT_TRUE(enabled("cmdCompute"));
    EXPECT_FALSE(enabled("cmdNext") || enabled("cmdPrint"));

    type("txtND(6)", "");
    click("cmdCompute");
    EXPECT_EQ(results(), "348|||");
}

TEST_F(FirstSiteScreen, AnOverflowNamesTheActivityAndTheNumberOfTracks)
{
    // clang-format off
    const std::pair<const char*, const char*> named[] = {
        {"txtND(0)",  "the S.1 length for number of tracks 1"},
        {"txtND(3)",  "the S.1 length for number of tracks 4"},
        {"txtND(4)",  "the S.2 length for number of tracks 1"},
        {"txtND(11)", "the S.3 length for number of tracks 4"},
        {"txtND(12)", "the S.4 length of curves"},
    };
    // clang-format on
    open<frmS1>();
    for (const auto& [box, name] : named) {
        type(box, "1e39");
        dialogs.expectCritical(Title, std::string("Overflow: ") + name + " is 1e+39, too large to compute with.");
        click("cmdCompute");
        EXPECT_EQ(focus(), box);
        type(box, "");
    }
}

TEST_F(FirstSiteScreen, AComputeThatFailsAtTheLastStepLeavesNothingBehind)
{
    open<frmS1>();
    type("txtND(0)", "1000");
    type("txtND(12)", "3e38");  // a single, but 294 times it is none
    dialogs.expectCriticalWith(Title, "Overflow");
    click("cmdCompute");
    EXPECT_EQ(results(), "|||");
    type("txtND(12)", "");
    click("cmdCompute");
    EXPECT_EQ(results(), "348|||");
}

// Print and Next

TEST_F(FirstSiteScreen, NextAsksUntilPrinted)
{
    auto& form = open<frmS1>();
    type("txtND(0)", "1000");
    click("cmdCompute");
    expectPrintQuestion(true);
    click("cmdNext");
    EXPECT_FALSE(chain.isLoaded<frmS2>());

    expectPrintQuestion(false);
    click("cmdNext");
    EXPECT_TRUE(chain.isLoaded<frmS2>());
    EXPECT_TRUE(chain.get<frmS2>().isVisible());
    EXPECT_TRUE(form.isVisible());
}

TEST_F(FirstSiteScreen, PrintedItGoesOnAtOnce)
{
    auto& form = open<frmS1>(sample("1-ambapur.mdb"));
    click("cmdData");
    click("cmdCompute");
    const std::string pdf = testing::TempDir() + "frmS1.pdf";
    dialogs.expectPrint({1, 1, 2}, pdf);
    click("cmdPrint");
    EXPECT_EQ(form.Printed, 1);
    EXPECT_EQ(pagesOf(pdf), 2);
    click("cmdNext");
    EXPECT_TRUE(chain.get<frmS2>().isVisible());
}

}  // namespace
