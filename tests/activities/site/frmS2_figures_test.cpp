#include "activities/site/frmS2.h"

#include "activities/site/site_screen.h"
#include "summary/frmSummary.h"

namespace {

// Compute

using Entries = std::vector<std::pair<const char*, const char*>>;
struct MandaysCase {
    Entries typed;
    const char* results;
};

// clang-format off
const MandaysCase MandaysCases[] = {
    //  typed                                                                      S.5|S.6|S.7|S.8|S.9|S.10|total
    {{{"txtTB1", "1"}, {"txtND(0)", "250"}},                                      "150||||||150"        },  // .6 x 250
    {{{"txtTB1", "8"}, {"txtND(0)", "100"}, {"txtND(7)", "50"}},                  "90||||||90"          },  // .6 x (100 + 50)
    {{{"txtTB1", "2"}, {"txtND(1)", "100"}, {"txtTB1", "1"}},                     "||||||"              },  // one location: the second does not count
    {{{"txtTB2", "1"}, {"txtND(8)", "2"}, {"txtND(17)", "8"}},                    "|74|||||74"          },  // 294 x 2 / 8 = 73.5
    {{{"txtTB2", "2"}, {"txtND(8)", "1"}, {"txtND(17)", "4"},
      {"txtND(9)", "3"}, {"txtND(18)", "6"}},                                     "|221|||||221"        },  // 294 x (.25 + .5) = 220.5
    {{{"txtND(26)", "300"}, {"txtND(27)", "330"}, {"txtND(28)", "360"}},          "||330||||330"        },  // 990 / 3
    {{{"txtND(26)", "1"}},                                                        "||||||"              },  // 1 / 3
    {{{"txtTB3", "2"}},                                                           "|||588|||588"        },  // 294 x 2
    {{{"txtTB3", "2.5"}},                                                         "|||735|||735"        },  // 294 x 2.5: not cut to whole gangs
    {{{"txtND(29)", "180"}, {"txtND(30)", "176"}, {"txtND(31)", "205"}},          "||||187||187"        },  // 561 / 3
    {{{"txtTB4", "2"}, {"txtND(32)", "3"}, {"txtND(38)", "122"},
      {"txtND(33)", "2"}, {"txtND(39)", "90"}},                                   "|||||546|546"        },  // 3 x 122 + 2 x 90
    {{{"txtTB1", "1"}, {"txtND(0)", "150 m"}, {"txtTB3", "one"}},                 "90||||||90"          },  // .6 x 150; no number is 0
    {{{"txtND(29)", "-3"}},                                                       "||||-1||-1"          },  // -3 / 3
    {{{"txtTB3", "100"}},                                                         "|||29400|||29400"    },  // 294 x 100: more digits than places
};
// clang-format on

TEST_F(SecondSiteScreen, EveryActivityCountsByItsNorm)  // slow
{
    for (const MandaysCase& one : MandaysCases) {
        openSuburban();
        for (const auto& [box, typed] : one.typed)
            type(box, typed);
        click("cmdCompute");
        EXPECT_EQ(results(), one.results);
        chain.unload<frmS2>();
        settle();
    }
}

TEST_F(SecondSiteScreen, TotalTakesInTheFirstScreen)
{
    open<frmS1>(sample("3-jamunia.mdb"));
    click("cmdData");
    click("cmdCompute");
    const frmS2& form = openSuburban(sample("3-jamunia.mdb"));
    click("cmdData");
    click("cmdCompute");
    // S.5  .6 x 90 = 54                                        S.6  294 x (.6/4.2 + .4/4 + .9/4.6 + 1.1/4.4) = 202.4217
    // S.7  184 / 3 = 61.33    S.8  294 x 5 = 1470              S.9  1343 / 3 = 447.67
    // S.10 3 x 122 + 3 x 122 + 2 x 92 = 916
    // S.1  .348 x 4 x 260 = 361.92                             S.2  .319 x (2 x 240 + 4 x 410) = 676.28
    // S.3  .64 x 4 x 180 = 460.8                               S.4  294 x .85 = 249.9
    EXPECT_EQ(results(), "54|202|61|1470|448|916|4900");
    EXPECT_FLOAT_EQ(form.TotalMandays, 4900.3217F);
}

TEST_F(SecondSiteScreen, TotalIsPublishedInSinglePrecision)
{
    auto& form = open<frmS2>();
    static_assert(std::is_same_v<decltype(form.TotalMandays), float>);
    type("txtTB3", "100000.1");  // 294 x 100000.1 = 29400029.4, as a single 29400030
    click("cmdCompute");
    EXPECT_EQ(form.TotalMandays, 29400030.0F);
    EXPECT_EQ(text("txtMan17"), "29400029");
    EXPECT_EQ(text("txtMan20"), "29400030");
}

TEST_F(SecondSiteScreen, WithoutTheFirstScreenItsMandaysAreNone)
{
    open<frmS2>(sample("1-ambapur.mdb"));
    click("cmdData");
    click("cmdCompute");
    EXPECT_EQ(results(), "159|189|316|588|187||1439");  // 159 + 189.46 + 316 + 588 + 187 = 1439.46
}

TEST_F(SecondSiteScreen, ANonSuburbanSectionAddsWhatStandsInTheWaterBoxes)
{
    auto& form = open<frmS2>();
    type("txtTB3", "1");
    form.txtTB4.setText("1");
    form.txtND(32).setText("3");
    form.txtND(38).setText("100");
    click("cmdCompute");
    EXPECT_EQ(results(), "|||294||300|594");
    EXPECT_FALSE(enabled("txtMan19"));
}

TEST_F(SecondSiteScreen, ANonSuburbanSectionWithEmptyWaterBoxesHasNone)
{
    open<frmS2>();
    type("txtTB3", "1");
    click("cmdCompute");
    EXPECT_EQ(results(), "|||294|||294");
}

TEST_F(SecondSiteScreen, ComputeRunsOnceAndLocksTheCounts)
{
    open<frmS2>();
    type("txtTB3", "1");
    click("cmdCompute");
    for (const char* count : {"txtTB1", "txtTB2", "txtTB3", "txtTB4"})
        EXPECT_TRUE(locked(count) && pale(count)) << count;
    EXPECT_FALSE(locked("txtND(26)"));
    EXPECT_FALSE(enabled("cmdCompute"));
    EXPECT_TRUE(enabled("cmdPrint") && enabled("cmdNext"));
    EXPECT_EQ(focus(), "cmdPrint");
    type("txtND(26)", "3");
    EXPECT_FALSE(enabled("cmdCompute"));
}

// Nothing is summed up over Computes here.
TEST_F(SecondSiteScreen, AnotherImportAndComputeGiveTheSame)
{
    open<frmS2>(sample("1-ambapur.mdb"));
    for (int round = 0; round < 2; ++round) {
        click("cmdData");
        click("cmdCompute");
        EXPECT_EQ(results(), "159|189|316|588|187||1439");
    }
}

// Failures

TEST_F(SecondSiteScreen, AGangWithoutLengthStopsCompute)
{
    for (const char* visibility : {"2", "0", ""}) {  // infinite, and twice undefined
        const frmS2& form = open<frmS2>();
        type("txtTB2", "3");
        type("txtTB3", "5");
        for (const char* box : {"txtND(17)", "txtND(18)"})
            type(box, "8");
        type("txtND(10)", visibility);
        dialogs.expectCritical(Title, "Floating-point error: the length of gang 3 is 0.");
        click("cmdCompute");
        EXPECT_EQ(focus(), "txtND(19)");
        EXPECT_EQ(results(), "||||||");
        EXPECT_EQ(form.TotalMandays, 0.0F);
        EXPECT_TRUE(enabled("cmdCompute"));
        EXPECT_FALSE(enabled("cmdPrint") || enabled("cmdNext"));
        EXPECT_FALSE(locked("txtTB1") || locked("txtTB2") || locked("txtTB3") || locked("txtTB4"));

        type("txtND(19)", "8");
        click("cmdCompute");
        EXPECT_EQ(text("txtMan17"), "1470");
        EXPECT_TRUE(enabled("cmdNext"));
        chain.unload<frmS2>();
        settle();
    }
}

TEST_F(SecondSiteScreen, AGangThatIsNotCountedNeedsNoLength)
{
    open<frmS2>();
    type("txtTB2", "2");
    type("txtND(9)", "1");
    type("txtND(17)", "8");
    type("txtTB2", "1");
    click("cmdCompute");
    EXPECT_EQ(results(), "||||||");
    EXPECT_TRUE(enabled("cmdNext"));
}

TEST_F(SecondSiteScreen, AValueBeyondASingleIsAnOverflowAndIsNamed)
{
    // clang-format off
    const std::pair<const char*, const char*> named[] = {
        {"txtND(0)",  "the S.5 length of location 1"},
        {"txtND(7)",  "the S.5 length of location 8"},
        {"txtND(8)",  "the length of poor visibility of gang 1"},
        {"txtND(16)", "the length of poor visibility of gang 9"},
        {"txtND(17)", "the length of gang 1"},
        {"txtND(26)", "the S.7 mandays of year 1"},
        {"txtND(30)", "the S.9 mandays of year 2"},
        {"txtND(37)", "the S.10 number of shifts of location 6"},
        {"txtND(38)", "the S.10 number of days of location 1"},
    };
    // clang-format on
    openSuburban();
    type("txtTB1", "8");
    type("txtTB2", "9");
    type("txtTB4", "6");
    for (const auto& [box, name] : named) {
        type(box, "1e39");  // the largest single is 3.4e38
        dialogs.expectCritical(Title, std::string("Overflow: ") + name + " is 1e+39, too large to compute with.");
        click("cmdCompute");
        EXPECT_EQ(focus(), box);
        EXPECT_EQ(results(), "||||||");
        type(box, "");
    }
}

TEST_F(SecondSiteScreen, AProductBeyondASingleIsAnOverflowOfItsLocation)
{
    openSuburban();
    type("txtTB4", "2");
    type("txtND(33)", "1e20");
    type("txtND(39)", "1e20");
    dialogs.expectCriticalWith(Title, "Overflow: the number of S.10 mandays of location 2");
    click("cmdCompute");
    EXPECT_EQ(focus(), "txtND(33)");
    EXPECT_EQ(results(), "||||||");
}

// Print and Next

TEST_F(SecondSiteScreen, NextAsksUntilPrinted)
{
    auto& form = open<frmS2>(sample("1-ambapur.mdb"));
    click("cmdData");
    click("cmdCompute");
    expectPrintQuestion(true);
    click("cmdNext");
    EXPECT_FALSE(chain.isLoaded<frmSummary>());

    const std::string pdf = testing::TempDir() + "frmS2.pdf";
    dialogs.expectPrint({1, 1, 1}, pdf);
    click("cmdPrint");
    EXPECT_EQ(form.Printed, 1);
    EXPECT_EQ(pagesOf(pdf), 1);
    click("cmdNext");
    EXPECT_TRUE(chain.get<frmSummary>().isVisible());
    EXPECT_TRUE(form.isVisible());
}

TEST_F(SecondSiteScreen, UnprintedItGoesOnWithNo)
{
    open<frmS2>();
    type("txtTB3", "1");
    click("cmdCompute");
    expectPrintQuestion(false);
    click("cmdNext");
    EXPECT_TRUE(chain.get<frmSummary>().isVisible());
}

}  // namespace
