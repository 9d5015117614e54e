#include "summary/frmSummary.h"

#include "activities/misc/frmM1.h"
#include "activities/site/frmS1.h"
#include "summary/summary_screen.h"
#include "track/frmT1.h"
#include "track/frmT2.h"

namespace {

// One Sr SE's strength

struct StrengthCase {
    std::vector<std::string> mandays;        ///< 'T'+'R', 'M', 'S'
    std::vector<std::string> establishment;  ///< mates and keymen, leave reserve, sanctioned, decasualised
    const char* results;                     ///< total mandays | strength | excess
};

// clang-format off
const StrengthCase StrengthCases[] = {
    //  mandays                        establishment               results
    {{"10000", "2000", "1000"},      {"10", "3", "40", "5"},     "13000.|50|-5"      },  // (13000 + .125 x 13010) / 294 = 49.75
    {{"10000", "2000", "1000"},      {"10", "3", "40", "10"},    "13000.|50|"        },  // as many as are needed
    {{"10000", "2000", "1000"},      {"10", "3", "50", "7"},     "13000.|50|7"       },
    {{"10000", "2000", "1000"},      {"10", "999", "40", "5"},   "13000.|50|-5"      },  // the leave reserve takes no part
    {{"", "", ""},                   {"0", "", "", ""},          ".||"               },  // .9 is cut to 0
    {{".", "", ""},                  {"0", "", "12", "3"},       ".||15"             },
    {{"0", "0", "0"},                {"35515.2", "", "", ""},    ".|16|-16"          },  // .125 x 35515.2 / 294 = 15.1
    {{"0", "0", "0"},                {"35397.6", "", "", ""},    ".|15|-15"          },  // .125 x 35397.6 / 294 = 15.05
    {{"0", "0", "0"},                {"35491.68", "", "", ""},   ".|15|-15"          },  // .125 x 35491.68 / 294 = 15.09
    {{"1.25", "2.5", ".125"},        {"0", "", "", ""},          "3.88||"            },  // 3.875; 3.875 x 1.125 / 294 = .015
    {{"50464.38", "19911", "2966"},  {"23", "31", "246", "18"},  "73341.38|281|-17"  },  // (73341.38 + .125 x 73364.38) / 294 = 280.65
    {{"100 a", "x", "-50"},          {"two", "", "7.5", ".5"},   "50.|1|7"           },  // 50 x 1.125 / 294 = .19
    {{"-2940", "", ""},              {"0", "", "", ""},          "-2940.|-11|11"     },  // -3307.5 / 294 + .9 = -10.35, floored
    {{"10000", "2000", "1000"},      {"10", "", "40.4", "5"},    "13000.|50|-5"      },  // -4.6 men
};
// clang-format on

TEST_F(SummaryScreen, StrengthIsSetAgainstTheSanctionedPosts)
{
    for (const StrengthCase& one : StrengthCases) {
        open("1");
        work("1", one.mandays, one.establishment);
        transferAndComputeLast();
        EXPECT_EQ(text("txtTMan(0)") + "|" + text("txtCS(0)") + "|" + text("txtEx(0)"), one.results);
        chain.unload<frmSummary>();
        settle();
    }
}

TEST_F(SummaryScreen, ComputeKeepsItsFiguresRowByRow)
{
    const frmSummary& form = open("2");
    chain.get<frmT1>().txtTkm(1).setText("46.85");
    work("2", {"10000", "2000", "1000"}, {"10", "3", "40", "5"});
    transferAndComputeLast();
    EXPECT_EQ(form.rows[1].RowKm, 46.85);
    EXPECT_EQ(form.rows[1].RowTR, 10000.0);
    EXPECT_EQ(form.rows[1].RowM, 2000.0);
    EXPECT_EQ(form.rows[1].RowS, 1000.0);
    EXPECT_EQ(form.rows[1].RowTMan, 13000.0);
    EXPECT_EQ(form.rows[1].RowKey, 10.0);
    EXPECT_EQ(form.rows[1].RowLR, 10.0);  // the mates and keymen, not the leave reserve
    EXPECT_EQ(form.rows[1].RowCS, 50.0F);
    EXPECT_EQ(form.rows[1].RowSS, 40.0);
    EXPECT_EQ(form.rows[1].RowSDC, 5.0);
    EXPECT_EQ(form.rows[1].RowEx, -5.0);
    EXPECT_EQ(form.rows[0].RowTR, 0.0);
    EXPECT_EQ(form.MsgAnswer, 1);
}

TEST_F(SummaryScreen, ComputeTakesWhatWasTypedOverTheTransferredFigures)
{
    open("1");
    work("1", {"1", "2", "3"}, {"4", "5", "6", "7"});
    click("cmdTransfer");
    const char* typed[][2] = {{"txtTR", "10000"}, {"txtM", "2000"}, {"txtS", "1000"},
                              {"txtKey", "10"},   {"txtSS", "40"},  {"txtSDC", "5"}};
    for (const auto& [column, figure] : typed)
        typeInto(column, 0, figure);
    dialogs.expectMessage("Calculations for all Sr SSE's are over", "Now Total up the figures");
    click("cmdCompute");
    EXPECT_EQ(row(0), "1|Sr SE Ambapur||10000|2000|1000|13000.|10|5|50|40|5|-5");
}

// Its boxes are open for typing, and mark what is no number: what a picture shows for 0 is one.
TEST_F(SummaryScreen, ZeroesAreNotMarked)
{
    frmSummary& form = open("1");
    work("1", {".", "", ""}, {"0", "", "", ""});
    transferAndComputeLast();
    EXPECT_EQ(row(0), "1|Sr SE Ambapur||.|||.|0|||||");
    for (const char* column : Columns)
        EXPECT_EQ(static_cast<controls::TextBox&>(find(cell(column, 0))).remark().toStdString(), "") << column;
    form.txtM(0).setText("12 km");
    EXPECT_NE(form.txtM(0).remark().toStdString(), "");
}

TEST_F(SummaryScreen, AShortageIsRedAndBold)
{
    frmSummary& form = open("2");
    const auto marked = [&](int r) { return form.txtEx(r).isRed() && form.txtEx(r).font().bold(); };
    const auto unmarked = [&](int r) { return !form.txtEx(r).isRed() && !form.txtEx(r).font().bold(); };
    work("2", {"10000", "2000", "1000"}, {"10", "3", "40", "5"});
    transferAndComputeLast();
    EXPECT_TRUE(marked(1));
    EXPECT_TRUE(unmarked(0));
    typeInto("txtEx", 1, "5");
    EXPECT_TRUE(unmarked(1));
    typeInto("txtEx", 0, "-12");
    click("cmdTotal");
    EXPECT_EQ(text("txtEx(15)"), "-7");
    EXPECT_TRUE(marked(15));
}

TEST_F(SummaryScreen, AnOverflowNamesTheSrSeAndShowsNothing)
{
    open("2");
    work("2", {"1e308", "1e308", "1e308"}, {"10", "3", "40", "5"});
    click("cmdTransfer");
    dialogs.expectCriticalWith(Title, "of Sr SE 2 is too large to compute with.");
    click("cmdCompute");
    EXPECT_EQ(focus(), "txtTR(1)");
    EXPECT_EQ(text("txtTMan(1)") + text("txtCS(1)") + text("txtEx(1)"), "");
    EXPECT_TRUE(enabled("cmdCompute"));
    EXPECT_FALSE(enabled("cmdTotal"));
}

// From Sr SE to Sr SE

TEST_F(SummaryScreen, AfterAnSrSeThatIsNotTheLastTheStartScreenTakesTheNext)
{
    auto& start = on<frmStart>();
    start.txtT1(4).setText("3");
    const frmSummary& form = open("5");
    work("3", {"10000", "2000", "1000"}, {"10", "3", "40", "5"});
    watchDepartures();
    start.txtT1(1).setText("/data/3.mdb");
    click("cmdTransfer");
    dialogs.expectMessage("Proceed for Next Subordinate", "Continue for Next Sr SSE on the Division");
    click("cmdCompute");

    EXPECT_EQ(departed, "frmT1 frmT2 frmT4 frmY frmM1 frmM2 frmS1 frmS2 ");
    EXPECT_FALSE(chain.isLoaded<frmT1>() || chain.isLoaded<frmS2>());
    EXPECT_EQ(form.MsgAnswer, 1);
    EXPECT_FALSE(enabled("cmdCompute") || enabled("cmdTotal") || enabled("cmdPrint"));
    EXPECT_TRUE(enabled("cmdTransfer"));
    EXPECT_FALSE(shown("cmdExit"));
    EXPECT_EQ(row(2), "3|Sr SE Ambapur||10000|2000|1000|13000.|10|3|50|40|5|-5");  // its rows stay

    nowOn<frmStart>();
    EXPECT_EQ(text("txtT1(0)") + text("txtT1(1)"), "");
    EXPECT_EQ(text("txtT1(4)"), "4");
    EXPECT_EQ(text("txtT1(5)") + "|" + text("txtT1(2)") + "|" + text("txtT1(3)"), "Sample Railway|Sample Division|5");
    EXPECT_EQ(focus(), "txtT1(0)");
}

TEST_F(SummaryScreen, TheNextSrSeFindsEmptyScreens)
{
    open("2");
    auto& t1 = chain.get<frmT1>();
    t1.txtT1(0).setText("Section of the first");
    t1.txtTkm(0).setText("37.7");
    t1.LwrTotal = 114.4F;
    chain.get<frmS1>().mandays.tunnels = 292.0;
    chain.get<frmM1>().TotalMandays = 9214.0F;
    work("1", {"10000", "2000", "1000"}, {"10", "3", "40", "5"});
    click("cmdTransfer");
    dialogs.expectMessage("Proceed for Next Subordinate", "Continue for Next Sr SSE on the Division");
    click("cmdCompute");

    on<frmT1>();
    EXPECT_EQ(text("txtT1(0)") + text("txtT1(1)") + text("txtTkm(0)"), "");
    EXPECT_EQ(text("txtT1(4)"), "2");
    EXPECT_EQ(chain.get<frmT1>().LwrTotal, 0.0F);
    EXPECT_EQ(chain.get<frmS1>().mandays.tunnels, 0.0);
    EXPECT_EQ(chain.get<frmM1>().TotalMandays, 0.0F);
    EXPECT_EQ(chain.get<frmT4>().txtMan3(16).text().toStdString(), "");
    EXPECT_EQ(chain.get<frmS2>().txtMan20.text().toStdString(), "");
}

// The screens of 'T' and 'R' and of the formation take their rows as they are made: made before the track is entered,
// they would have none.
TEST_F(SummaryScreen, ATransferBeforeTheNextSrSeIsWorkedLeavesItsScreensToBeMade)
{
    open("2");
    work("1", {"10000", "2000", "1000"}, {"10", "3", "40", "5"});
    click("cmdTransfer");
    dialogs.expectMessage("Proceed for Next Subordinate", "Continue for Next Sr SSE on the Division");
    click("cmdCompute");
    on<frmSummary>();
    dialogs.expectCriticalWith(Title, "row 2");
    click("cmdTransfer");
    EXPECT_EQ(row(0), "1|Sr SE Ambapur||10000|2000|1000|13000.|10|3|50|40|5|-5");
    EXPECT_FALSE(chain.isLoaded<frmT1>() || chain.isLoaded<frmT2>() || chain.isLoaded<frmT4>() ||
                 chain.isLoaded<frmM2>() || chain.isLoaded<frmS2>());

    on<frmStart>();
    type("txtT1(0)", "Sr SE Bhimpur");
    on<frmT1>();
    EXPECT_EQ(text("txtT1(1)"), "Sr SE Bhimpur");
}

TEST_F(SummaryScreen, TheLastSrSeOpensGrandTotalAndKeepsTheScreens)
{
    const frmSummary& form = open("3");
    work("3", {"10000", "2000", "1000"}, {"10", "3", "40", "5"});
    transferAndComputeLast();
    EXPECT_EQ(form.MsgAnswer, 1);
    EXPECT_TRUE(enabled("cmdTotal"));
    EXPECT_EQ(focus(), "cmdTotal");
    EXPECT_FALSE(enabled("cmdCompute") || enabled("cmdPrint"));
    EXPECT_FALSE(shown("cmdExit"));
    EXPECT_TRUE(chain.isLoaded<frmT1>() && chain.isLoaded<frmS2>());
    EXPECT_EQ(chain.get<frmStart>().txtT1(4).text().toStdString(), "3");
}

TEST_F(SummaryScreen, AnSrSeBeyondTheNumberIsComputedAndNothingElse)
{
    const frmSummary& form = open("3");
    work("4", {"10000", "2000", "1000"}, {"10", "3", "40", "5"});
    click("cmdTransfer");
    click("cmdCompute");
    EXPECT_EQ(text("txtCS(3)"), "50");
    EXPECT_EQ(form.MsgAnswer, 0);
    EXPECT_TRUE(enabled("cmdCompute"));
    EXPECT_FALSE(enabled("cmdTotal"));
    EXPECT_TRUE(chain.isLoaded<frmT1>());
}

// Grand total

/// A division of three whose last Sr SE has been computed, and whose table then was typed over.
class GrandTotal : public SummaryScreen {  // slow
protected:
    GrandTotal()
    {
        open("3");
        work("3", {"0", "0", "0"}, {"0", "0", "0", "0"});
        transferAndComputeLast();
    }

    void typeRow(int r, const std::vector<std::string>& figures)
    {
        const char* columns[] = {"txtTkm", "txtTR", "txtM",  "txtS",   "txtTMan", "txtCS",
                                 "txtKey", "txtLR", "txtSS", "txtSDC", "txtEx"};
        for (std::size_t i = 0; i < figures.size(); ++i)
            typeInto(columns[i], r, figures[i]);
    }
};

TEST_F(GrandTotal, AddsUpEveryColumnAsItStandsInTheTable)
{
    //         Km       TR        M       S       TMan      CS     Key   LR   SS    SDC  Ex
    typeRow(0, {"37.7", "100.38", "10", "1.25", "1000.5", "10", "1", "20", "300", "4", "-17"});
    typeRow(1, {"46.85", "200", "20.5", "2", "2000", "20", "2", "30", "400", "5", "5"});
    typeRow(2, {"", "300", "30", "x", "3000", "30.", "3", "40", "500", "6", "1.6"});
    click("cmdTotal");
    EXPECT_EQ(row(15), "Total||84.55|600.38|60.5|3.25|6000.5|6|90|60.|1200|15|-10");  // -17 + 5 + 1.6 = -10.4
}

TEST_F(GrandTotal, OpensPrintAndExitAndIsDone)
{
    const QPoint place = find("cmdPrint").pos();
    click("cmdTotal");
    settle();
    EXPECT_EQ(find("cmdPrint").pos(), place) << "or one would press Exit for Print";
    EXPECT_EQ(row(15), "Total||.|.|.|.|.|||.|||");
    EXPECT_TRUE(enabled("cmdPrint"));
    EXPECT_EQ(focus(), "cmdPrint");
    EXPECT_TRUE(shown("cmdExit") && enabled("cmdExit"));
    EXPECT_FALSE(shown("cmdTotal"));
}

TEST_F(GrandTotal, CountsOnlyTheRowsOfTheDivision)
{
    typeRow(2, {"1", "10"});
    static_cast<controls::TextBox&>(find("txtTR(3)")).setText("1000");
    click("cmdTotal");
    EXPECT_EQ(text("txtTR(15)"), "10.");
}

TEST_F(GrandTotal, DecasualisedPostsAreRoundedAtEveryStep)
{
    typeInto("txtSDC", 0, "0.5");  // 0 + .5 is 0
    typeInto("txtSDC", 1, "1.5");  // 0 + 1.5 is 2
    typeInto("txtSDC", 2, "0");
    click("cmdTotal");
    EXPECT_EQ(text("txtSDC(15)"), "2");
    EXPECT_EQ(chain.get<frmSummary>().totals.TotSDC, 2);
}

TEST_F(GrandTotal, DecasualisedPostsBeyondSixteenBitsAreAnOverflow)
{
    typeInto("txtTR", 0, "100");
    typeInto("txtSDC", 0, "32767");
    typeInto("txtSDC", 1, "0");
    typeInto("txtSDC", 2, "1");
    dialogs.expectCriticalWith(Title, "Overflow: the total of decasualised posts at row 3 is 32768");
    click("cmdTotal");
    EXPECT_EQ(focus(), "txtSDC(2)");
    EXPECT_EQ(row(15), "Total||||||||||||");
    EXPECT_FALSE(enabled("cmdPrint"));
    EXPECT_TRUE(shown("cmdTotal"));

    typeInto("txtSDC", 2, "0");
    click("cmdTotal");
    EXPECT_EQ(text("txtSDC(15)"), "32767");
    EXPECT_EQ(text("txtTR(15)"), "100.");  // the failed one has left nothing
}

TEST_F(GrandTotal, CalculatedStrengthIsAddedInSinglePrecision)
{
    typeInto("txtCS", 0, "16777216");  // 2^24: singles beyond it are even
    typeInto("txtCS", 1, "1");
    typeInto("txtCS", 2, "1");
    click("cmdTotal");
    EXPECT_EQ(text("txtCS(15)"), "16777216.");
}

// The totals start with the screen: whoever computes the last Sr SE again has them added again.
TEST_F(GrandTotal, TotalsAreNeverReset)
{
    typeInto("txtTR", 0, "100");
    typeInto("txtSDC", 1, "7");
    click("cmdTotal");
    EXPECT_EQ(text("txtTR(15)") + "|" + text("txtSDC(15)"), "100.|7");
    chain.get<frmSummary>().cmdTotal.click();
    EXPECT_EQ(text("txtTR(15)") + "|" + text("txtSDC(15)"), "200.|14");
}

}  // namespace
