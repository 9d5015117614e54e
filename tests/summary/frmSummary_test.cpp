#include "summary/frmSummary.h"

#include <QScrollArea>
#include <QScrollBar>

#include "summary/summary_screen.h"
#include "support/lock_tip.h"
#include "track/frmT1.h"

namespace {

// What the screen shows

TEST_F(SummaryScreen, CaptionsStandToTheLetter)
{
    const auto& form = open("5");
    EXPECT_EQ(form.windowTitle().toStdString(), Title);
    for (const char* caption :
         {"Manpower Requirement Summary for the Division", "   S.No     (Index)", "    Sr       S.E.",
          "    Total    Km", "  Mandays          for            ('T'+ 'R')  ",
          "  Mandays            for                 ('M')  ", "  Mandays            for                  ('S')  ",
          "   Total             Mandays       (T+R+M+S)", "  No of        Mates       Keymen",
          "Leave      Res-       erve", " Calcu      lated Strength", "Sanctd. Strength",
          "  Sanctd            Decasua-    - lized  posts", "Excess(+) Shortage(-)", "Railway-", "Division-",
          "     Date (mm-dd-yyyy)", "No.of Sr S.E's on the Division-"})
        EXPECT_TRUE(says(caption)) << caption;
    EXPECT_EQ(text("LblRailway"), "Engineering Department");
    EXPECT_EQ(text("cmdTransfer"), "&Transfer");
    EXPECT_EQ(text("cmdCompute"), "&Compute");
    EXPECT_EQ(text("cmdTotal"), "&Grand Total");
    EXPECT_EQ(text("cmdPrint"), "&Print");
    EXPECT_EQ(text("cmdExit"), "&Exit");
    EXPECT_EQ(toolTip("cmdTransfer"), LockTip);
    EXPECT_EQ(toolTip("cmdPrint"), LockTip);
}

TEST_F(SummaryScreen, TakesTheDivisionFromTheStartScreen)
{
    const frmSummary& form = open("5");
    EXPECT_EQ(text("txtRly(0)"), "Sample Railway");
    EXPECT_EQ(text("txtRly(1)"), "Sample Division");
    EXPECT_EQ(text("txtSSN"), "5");
    EXPECT_EQ(form.NumSrSE, 5.0);
    EXPECT_NE(text("txtRly(2)"), "");
    for (const char* box : {"txtRly(0)", "txtRly(1)", "txtRly(2)"})
        EXPECT_TRUE(locked(box) && pale(box)) << box;
}

TEST_F(SummaryScreen, OnlyTransferIsOpenAtFirst)
{
    open("5");
    EXPECT_TRUE(enabled("cmdTransfer"));
    EXPECT_EQ(focus(), "cmdTransfer");
    for (const char* button : {"cmdCompute", "cmdTotal", "cmdPrint"}) {
        EXPECT_FALSE(enabled(button)) << button;
        EXPECT_TRUE(shown(button)) << button;
    }
    EXPECT_FALSE(shown("cmdExit"));
}

TEST_F(SummaryScreen, TheTableIsOpenForTypingButForItsTotals)
{
    open("15");
    for (const char* column : Columns) {
        for (int r = 0; r < 15; ++r)
            EXPECT_FALSE(locked(cell(column, r)) || pale(cell(column, r))) << column << r;
        EXPECT_TRUE(locked(cell(column, 15)) && pale(cell(column, 15))) << column;
    }
    EXPECT_EQ(row(0), "||||||||||||");
    EXPECT_EQ(row(15), "Total||||||||||||");
}

TEST_F(SummaryScreen, ColumnsStandInTheirOrderAndBoxesAreNamed)
{
    open("15");
    int left = -1;
    for (const char* column : Columns) {
        const int x = find(cell(column, 0)).x();
        EXPECT_GT(x, left) << column;
        left = x;
    }
    EXPECT_EQ(find("txtTkm(2)").accessibleName().toStdString(), "Total Km, Sr SE 3");
    EXPECT_EQ(find("txtSDC(15)").accessibleName().toStdString(), "Sanctd Decasua- - lized posts, total");
}

TEST_F(SummaryScreen, FifteenSrSesFitALaptopScreen)
{
    frmSummary& form = open("15");
    form.resize(flow::OpeningSize);
    for (int i = 0; i < 3; ++i)
        settle();
    const auto* rows = form.findChild<QScrollArea*>("rows");
    EXPECT_EQ(rows->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(rows->horizontalScrollBar()->maximum(), 0);
}

// The number of Sr SEs

struct NumberCase {
    const char* text;
    double number;
    const char* shown;  ///< rows 0 to 14
    int top;            ///< of the total row [twips]
};

// clang-format off
const NumberCase NumberCases[] = {
    // text      number  shown              top
    {"1",        1,      "100000000000000", 2520},  // 2160 + 360 x 1
    {"2",        2,      "110000000000000", 2880},  // 2160 + 360 x 2
    {"5",        5,      "111110000000000", 3960},
    {"15",      15,      "111111111111111", 7560},  // 2160 + 360 x 15
    {"20",      15,      "111111111111111", 7560},  // 15 at most
    {"1e999",   15,      "111111111111111", 7560},
    {"3 here",   3,      "111000000000000", 3240},
    {"2.5",      2.5,    "110000000000000", 3060},  // 2160 + 360 x 2.5
    {"none",     0,      "100000000000000", 2160},
    {"-2",      -2,      "100000000000000", 1440},
};
// clang-format on

TEST_F(SummaryScreen, TheNumberOfSrSesShowsRowsAndPutsTheTotalsUnderThem)
{
    for (const NumberCase& one : NumberCases) {
        frmSummary& form = open("");
        form.txtSSN.setText(one.text);
        EXPECT_EQ(form.NumSrSE, one.number) << one.text;
        EXPECT_EQ(text("txtSSN"), one.text);  // the box is not corrected
        for (const char* column : Columns) {
            EXPECT_EQ(shownOf(column, 0, 14), one.shown) << one.text << " " << column;
            EXPECT_TRUE(shown(cell(column, 15))) << column;
            EXPECT_EQ(find(cell(column, 15)).property("Top").toInt(), one.top) << one.text << " " << column;
        }
        chain.unload<frmSummary>();
        settle();
    }
}

TEST_F(SummaryScreen, TheTotalsAreDrawnUnderTheLastSrSe)
{
    open("4");
    const int pitch = find("txtTR(1)").y() - find("txtTR(0)").y();
    for (const char* column : Columns)
        EXPECT_EQ(find(cell(column, 15)).y() - find(cell(column, 3)).y(), pitch) << column;
    type("txtSSN", "9");
    for (const char* column : Columns)
        EXPECT_EQ(find(cell(column, 15)).y() - find(cell(column, 8)).y(), pitch) << column;
}

TEST_F(SummaryScreen, RowsOnceShownAreNotHiddenAgain)
{
    open("6");
    type("txtSSN", "2");
    EXPECT_EQ(shownOf("txtTkm", 0, 14), "111111000000000");
    EXPECT_EQ(find("txtTkm(15)").property("Top").toInt(), 2880);
    type("txtSSN", "7");
    EXPECT_EQ(shownOf("txtTkm", 0, 14), "111111100000000");
    EXPECT_EQ(find("txtTkm(15)").property("Top").toInt(), 4680);
}

TEST_F(SummaryScreen, WithoutANumberTheTotalsAndTransferWaitForIt)
{
    open("");
    EXPECT_FALSE(enabled("cmdTransfer"));
    EXPECT_EQ(focus(), "txtSSN");
    for (const char* column : Columns) {
        EXPECT_EQ(shownOf(column, 0, 14), "100000000000000");
        EXPECT_FALSE(shown(cell(column, 15)));
    }
    type("txtSSN", "3");
    EXPECT_TRUE(enabled("cmdTransfer"));
    EXPECT_TRUE(shown("txtSN(15)"));
}

// Transfer

TEST_F(SummaryScreen, TransferTakesEachFigureFromItsScreen)
{
    const frmSummary& form = open("5");
    auto& start = chain.get<frmStart>();
    start.txtT1(0).setText("Sr SE Jamunia");
    start.txtT1(4).setText("3");
    auto& t1 = chain.get<frmT1>();
    for (int i = 0; i < 16; ++i)
        t1.txtTkm(i).setText(QString("%1.5").arg(i));
    // What the track screen has taken counts, not what the start screen says since.
    start.txtT1(0).setText("Sr SE Mandar Hill");
    work("3", {"70986.99", "14837", " 4900 "}, {"19", "27 men", "", "14"});
    click("cmdTransfer");

    EXPECT_EQ(form.SrSEIndex, 3.0);
    // Texts as they stand; the km are those of the segment of the row's own number.
    EXPECT_EQ(row(2), "3|Sr SE Jamunia|2.5|70986.99|14837| 4900 ||19|27 men|||14|");
    for (const int other : {0, 1, 3, 4})
        EXPECT_EQ(row(other), "||||||||||||") << other;
    EXPECT_TRUE(enabled("cmdCompute"));
    EXPECT_EQ(focus(), "cmdCompute");
    EXPECT_FALSE(enabled("cmdTotal") || enabled("cmdPrint"));
}

TEST_F(SummaryScreen, ASecondTransferOverwrites)
{
    open("5");
    work("2", {"100", "10", "1"}, {"7", "8", "9", "6"});
    click("cmdTransfer");
    work("2", {"200", "20", "2"}, {"5", "4", "3", "2"});
    click("cmdTransfer");
    EXPECT_EQ(row(1), "2|Sr SE Ambapur||200|20|2||5|4||3|2|");
}

TEST_F(SummaryScreen, TransferKeepsWhatIsNotItsOwn)
{
    open("5");
    typeInto("txtTMan", 0, "1");
    typeInto("txtCS", 0, "2");
    typeInto("txtEx", 0, "3");
    work("1", {"200", "20", "2"}, {"5", "4", "3", "2"});
    click("cmdTransfer");
    EXPECT_EQ(row(0), "1|Sr SE Ambapur||200|20|2|1|5|4|2|3|2|3");
}

TEST_F(SummaryScreen, AnIndexBesideTheTableIsASubscriptError)
{
    for (const auto& [index, shownIndex] : {std::pair{"0", "0"}, {"17", "17"}, {"99999", "99999"}, {"x", "0"}}) {
        open("5");
        work(index, {"1", "2", "3"}, {"4", "5", "6", "7"});
        dialogs.expectCritical(Title, std::string("Subscript out of range: the table has no row for the index ") +
                                          shownIndex + ".");
        click("cmdTransfer");
        for (int r = 0; r < 15; ++r)
            EXPECT_EQ(row(r), "||||||||||||") << index;
        EXPECT_FALSE(enabled("cmdCompute"));
        chain.unload<frmSummary>();
        settle();
    }
}

// A Transfer before it has opened Compute.
TEST_F(SummaryScreen, AnIndexBesideTheTableStopsComputeToo)
{
    const frmSummary& form = open("5");
    work("1", {"10000", "2000", "1000"}, {"10", "3", "40", "5"});
    click("cmdTransfer");
    chain.get<frmStart>().txtT1(4).setText("17");
    const std::string refused = "Subscript out of range: the table has no row for the index 17.";
    dialogs.expectCritical(Title, refused);
    click("cmdTransfer");
    dialogs.expectCritical(Title, refused);
    click("cmdCompute");
    EXPECT_EQ(form.MsgAnswer, 0);
    EXPECT_EQ(row(0), "1|Sr SE Ambapur||10000|2000|1000||10|3||40|5|");
    EXPECT_TRUE(chain.isLoaded<frmT1>());
}

TEST_F(SummaryScreen, TheIndex16IsTheTotalRow)
{
    open("5");
    work("16", {"1", "2", "3"}, {"4", "5", "6", "7"});
    click("cmdTransfer");
    EXPECT_EQ(row(15), "16|Sr SE Ambapur||1|2|3||4|5||6|7|");
}

// Without a data file the four establishment figures are nowhere: Transfer stops there, and they can be typed.
TEST_F(SummaryScreen, WithoutADataFileTheEstablishmentIsTyped)
{
    open("1");
    chain.get<frmT4>().txtMan3(16).setText("10000");
    dialogs.expectCritical(
        Title,
        "Subscript out of range: row 2 of table S2 is missing. Type the figures, or choose a data file that holds it.");
    click("cmdTransfer");
    EXPECT_EQ(text("txtTR(0)"), "10000");
    EXPECT_FALSE(enabled("cmdCompute"));
    EXPECT_EQ(focus(), "txtKey(0)");

    type("txtLR(0)", "3");
    EXPECT_TRUE(enabled("cmdCompute"));
    type("txtKey(0)", "10");
    dialogs.expectMessage("Calculations for all Sr SSE's are over", "Now Total up the figures");
    click("cmdCompute");
    EXPECT_EQ(text("txtCS(0)"), "39");  // (10000 + .125 x 10010) / 294 = 38.27, a man more

    type("txtLR(0)", "4");
    EXPECT_FALSE(enabled("cmdCompute"));
}

TEST_F(SummaryScreen, TypingOpensComputeOnlyInTheRowThatWaits)
{
    open("3");
    type("txtKey(0)", "1");
    EXPECT_FALSE(enabled("cmdCompute"));
    dialogs.expectCriticalWith(Title, "row 2");
    click("cmdTransfer");
    type("txtKey(1)", "1");
    type("txtTR(0)", "1");
    EXPECT_FALSE(enabled("cmdCompute"));
    type("txtSDC(0)", "1");
    EXPECT_TRUE(enabled("cmdCompute"));
}

// Print and Exit

TEST_F(SummaryScreen, ExitAsksUntilPrintedAndYesLeavesEverythingOpen)
{
    open("1");
    work("1", {"1", "2", "3"}, {"4", "5", "6", "7"});
    transferAndComputeLast();
    click("cmdTotal");
    expectPrintQuestion(true);
    click("cmdExit");
    EXPECT_TRUE(chain.isLoaded<frmStart>());
    EXPECT_TRUE(chain.isLoaded<frmT1>());
    EXPECT_TRUE(chain.isLoaded<frmSummary>());
    EXPECT_TRUE(chain.get<frmSummary>().isVisible());
}

TEST_F(SummaryScreen, ExitUnloadsTheTenScreensInTheirOrder)
{
    open("1");
    work("1", {"1", "2", "3"}, {"4", "5", "6", "7"});
    transferAndComputeLast();
    click("cmdTotal");
    watchDepartures();
    expectPrintQuestion(false);
    click("cmdExit");
    EXPECT_EQ(departed, "frmStart frmT1 frmT2 frmT4 frmY frmM1 frmM2 frmS1 frmS2 frmSummary ");
    EXPECT_FALSE(chain.isLoaded<frmStart>());
    EXPECT_FALSE(chain.isLoaded<frmSummary>());
}

TEST_F(SummaryScreen, PrintedItEndsAtOnce)
{
    frmSummary& form = open("1");
    work("1", {"1", "2", "3"}, {"4", "5", "6", "7"});
    transferAndComputeLast();
    click("cmdTotal");
    const std::string pdf = testing::TempDir() + "frmSummary.pdf";
    dialogs.expectPrint({1, 1, 1}, pdf);
    click("cmdPrint");
    EXPECT_EQ(form.Printed, 1);
    EXPECT_EQ(pagesOf(pdf), 1);
    click("cmdExit");
    EXPECT_FALSE(chain.isLoaded<frmSummary>());
}

}  // namespace
