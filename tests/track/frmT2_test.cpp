#include <QTemporaryDir>

#include "start/frmStart.h"
#include "support/lock_tip.h"
#include "track/frmT4.h"
#include "track/ground_screen.h"

namespace {

const std::string Title = "Entering Data on Formation , Rainfall and Curves";

// What the screen shows

TEST_F(GroundScreen, CaptionsStandToTheLetter)
{
    const auto& form = open({"10"});

    EXPECT_EQ(form.windowTitle().toStdString(), Title);
    for (const char* caption :
         {"Entering Data on Formation , Rainfall and Curves", "Sr S.E. with index-", "     Date (mm-dd-yyyy)",
          "Segment No", "Equivalent Length",
          "-------- Type of Formation ------  Shrinkable         unstable      km    T/outs     Km    T/outs    ",
          "    Length of Curves (kms)    1-2 Deg             >2 Deg                   Eq Deg", "Rainfall in cms",
          "------------   Augmention Factors  --------------      A             B              C        (1+A+B+C)",
          "Eq. Degree calculated for curves in 1 Deg to 2 Deg range", "A- Formation     B- Alignment    C- Rainfall",
          "Soil Data"})
        EXPECT_TRUE(says(caption)) << caption;
    EXPECT_EQ(text("cmdCopy"), "&Data from a File");
    EXPECT_EQ(text("cmdCompute"), "&Compute");
    EXPECT_EQ(text("cmdPrint"), "&Print");
    EXPECT_EQ(text("cmdNext"), "&Next");
}

TEST_F(GroundScreen, ToolTipsStandToTheLetter)
{
    open({"10", "20"});

    for (const char* button : {"cmdCompute", "cmdPrint", "cmdNext"})
        EXPECT_EQ(toolTip(button), LockTip) << button;
    EXPECT_EQ(toolTip("txtSS(0)"), "Max number of subsections is 12");
    EXPECT_EQ(toolTip("txtSS(16)"), "Max number of subsections is 12");
}

TEST_F(GroundScreen, OnlyTheImportIsOpenAtFirst)
{
    open({"10"});

    EXPECT_TRUE(enabled("cmdCopy"));
    for (const char* button : {"cmdCompute", "cmdPrint", "cmdNext"})
        EXPECT_FALSE(enabled(button)) << button;
    EXPECT_EQ(focus(), "txtSoil1(0)");
}

TEST_F(GroundScreen, TakesSrSeAndIndexFromTheTrackScreen)
{
    auto& t1 = chain.get<frmT1>();
    t1.txtT1(0).setText("Section");
    t1.txtT1(1).setText("Sr SE Ambapur");
    t1.txtT1(4).setText("7");
    open({"10"});

    EXPECT_EQ(text("txtT1(1)"), "Sr SE Ambapur");
    EXPECT_EQ(text("txtT1(4)"), "7");
    for (const char* box : {"txtT1(1)", "txtT1(4)", "txtRly(2)"}) {
        EXPECT_TRUE(locked(box)) << box;
        EXPECT_TRUE(pale(box)) << box;
    }
    EXPECT_NE(text("txtRly(2)"), "");
}

TEST_F(GroundScreen, TakesSegmentNumbersAndLengthsFromTheTrackScreen)
{
    chain.get<frmT1>().txtSS(1).setText("2.5");
    open({"10.5", "17.7", ".25"});

    EXPECT_EQ(texts("txtSS", 0, 3), "1|2.5|3|");
    EXPECT_EQ(texts("txtEqtkm", 0, 3), "10.5|17.7|.25|");
    EXPECT_EQ(entered(0), "||||||||");
    EXPECT_EQ(factors(0), "|||");
}

TEST_F(GroundScreen, ShowsOneRowASegment)
{
    open({"10", "20", "30"});

    for (const char* column : {"txtSS", "txtEqtkm", "txtSoil1", "txtTout1", "txtSoil2", "txtTout2", "txtCur1",
                               "txtcur2", "txtCur3", "txtRain", "txtA", "txtB", "txtC", "txtABC"})
        EXPECT_EQ(shownOf(column, 0, 16), "11100000000000000") << column;
}

TEST_F(GroundScreen, ShowsAllSixteenSegmentsAndNoMore)
{
    open(std::vector<std::string>(16, "10"));

    EXPECT_EQ(shownOf("txtSS", 0, 16), "11111111111111110");
    EXPECT_EQ(text("txtSS(15)"), "16");
    EXPECT_EQ(shownOf("txtABC", 0, 16), "11111111111111110");
}

TEST_F(GroundScreen, WhatIsTakenOrComputedIsLockedAndPale)
{
    open({"10"});

    for (const char* box : {"txtSS(0)", "txtEqtkm(0)", "txtA(0)", "txtB(0)", "txtC(0)", "txtABC(0)"}) {
        EXPECT_TRUE(locked(box)) << box;
        EXPECT_TRUE(pale(box)) << box;
    }
    for (const char* box : {"txtSoil1(0)", "txtTout1(0)", "txtSoil2(0)", "txtTout2(0)", "txtCur1(0)", "txtcur2(0)",
                            "txtCur3(0)", "txtRain(0)"}) {
        EXPECT_FALSE(locked(box)) << box;
        EXPECT_FALSE(pale(box)) << box;
    }
}

TEST_F(GroundScreen, TheTypingGoesRowByRow)
{
    open({"10", "20"});
    click("txtCur3(0)");
    key("txtCur3(0)", Qt::Key_Return);
    EXPECT_EQ(focus(), "txtRain(0)");
    key("txtRain(0)", Qt::Key_Return);  // over the computed boxes into the next row
    EXPECT_EQ(focus(), "txtSoil1(1)");
}

TEST_F(GroundScreen, BoxesAreNamedToPeopleWhoListen)
{
    open({"10", "20"});
    EXPECT_EQ(find("txtRain(1)").accessibleName(), "Rainfall in cms, segment 2");
    EXPECT_EQ(find("txtTout1(0)").accessibleName(),
              "-------- Type of Formation ------ Shrinkable T/outs, shrinkable, turnouts, segment 1");
    EXPECT_EQ(find("txtTout2(0)").accessibleName(),
              "-------- Type of Formation ------ unstable T/outs, unstable, turnouts, segment 1");
    EXPECT_TRUE(find("txtABC(0)").accessibleName().endsWith("1+A+B+C, segment 1"));
}

// The data file

TEST_F(GroundScreen, ShowsTheTableOfTheDataFile)
{
    openSample("2-eklahra.mdb", 3);
    const auto& grid = dynamic_cast<controls::DataGrid&>(find("SoilGrid"));

    EXPECT_FALSE(grid.isHidden());
    EXPECT_EQ(grid.TextMatrix(0, 2), "RAINFALL");
    EXPECT_EQ(grid.TextMatrix(1, 2), "182.5");
}

// 2-eklahra, CS: SEGNO  RAINFALL  SHRINKKM  SHRINKTOUT  UNSTABKM  UNSTABTOUT  CURVE1_2  CURVEGT2  EQDEG
TEST_F(GroundScreen, ImportCopiesTheCellsByTheirPlaces)
{
    openSample("2-eklahra.mdb", 3);
    click("cmdCopy");

    EXPECT_EQ(entered(0), "182.5|6.2|4|2.2|1|5.6|1.8|0.9|");
    EXPECT_EQ(entered(1), "214|9.4|3|0|0|3.2|2.25|0.45|");
    EXPECT_EQ(entered(2), "214|0|0|0|0|1.1|1.5|0.2|");
    EXPECT_EQ(text("txtSS(0)"), "1");  // column 1 is not read
    EXPECT_EQ(text("txtEqtkm(0)"), "50.3");
    EXPECT_EQ(factors(0), "|||");
}

TEST_F(GroundScreen, ImportOpensCompute)
{
    openSample("2-eklahra.mdb", 3);
    click("cmdCopy");

    EXPECT_TRUE(enabled("cmdCompute"));
    EXPECT_EQ(focus(), "cmdCompute");
    EXPECT_FALSE(enabled("cmdNext"));
    EXPECT_FALSE(enabled("cmdPrint"));
}

TEST_F(GroundScreen, ImportCopiesAsManyRowsAsThereAreSegments)
{
    openSample("2-eklahra.mdb", 2);
    click("cmdCopy");

    EXPECT_EQ(entered(1), "214|9.4|3|0|0|3.2|2.25|0.45|");
    EXPECT_EQ(entered(2), "||||||||");
}

TEST_F(GroundScreen, ImportWritesOverWhatWasTypedAndAgainTheSame)
{
    openSample("2-eklahra.mdb", 3);
    type("txtRain(0)", "99");
    click("cmdCopy");
    EXPECT_EQ(text("txtRain(0)"), "182.5");
    click("cmdCopy");
    EXPECT_EQ(entered(0), "182.5|6.2|4|2.2|1|5.6|1.8|0.9|");
}

TEST_F(GroundScreen, ImportFromAShorterTableEndsAtTheMissingRow)
{
    openSample("2-eklahra.mdb", 5);  // 3 records
    dialogs.expectCritical(
        Title,
        "Subscript out of range: row 4 of table CS is missing. Type the figures, or choose a data file that holds it.");
    click("cmdCopy");

    EXPECT_EQ(entered(2), "214|0|0|0|0|1.1|1.5|0.2|");  // what was copied stays
    EXPECT_EQ(entered(3), "||||||||");
    EXPECT_FALSE(enabled("cmdCompute"));
}

TEST_F(GroundScreen, WithoutADataFileTheRowsAreTyped)
{
    open({"10"});
    EXPECT_TRUE(says("No data file chosen"));
    dialogs.expectCritical(
        Title,
        "Subscript out of range: row 1 of table CS is missing. Type the figures, or choose a data file that holds it.");
    click("cmdCopy");
    EXPECT_FALSE(enabled("cmdCompute"));

    typeRow(0, {"2"});
    EXPECT_TRUE(enabled("cmdCompute"));
}

TEST_F(GroundScreen, AFileThatCannotBeReadIsToldOnceAndStaysToBeRead)
{
    chain.get<frmStart>().txtT1(1).setText(QString::fromStdString(sample("README.md")));
    dialogs.expectCriticalWith("Soil Data", "README.md");
    open({"10"});
    EXPECT_FALSE(shown("SoilGrid"));

    on<frmT2>();
    EXPECT_EQ(dialogs.open(), 0U);
}

// Enabling

TEST_F(GroundScreen, TheFirstKeystrokeInAnyEntryBoxOpensCompute)
{
    for (const char* box : {"txtSoil1(0)", "txtTout1(0)", "txtSoil2(0)", "txtTout2(0)", "txtCur1(1)", "txtcur2(1)",
                            "txtCur3(1)", "txtRain(1)"}) {
        open({"10", "20"});
        EXPECT_FALSE(enabled("cmdCompute")) << box;
        type(box, "5");
        EXPECT_TRUE(enabled("cmdCompute")) << box;
        chain.unload<frmT2>();
    }
}

TEST_F(GroundScreen, ComputeOpensNextAndPrintAndClosesItself)
{
    open({"10"});
    typeRow(0, {"2"});
    click("cmdCompute");

    EXPECT_TRUE(enabled("cmdNext"));
    EXPECT_TRUE(enabled("cmdPrint"));
    EXPECT_FALSE(enabled("cmdCompute"));
    EXPECT_EQ(focus(), "cmdPrint");
}

TEST_F(GroundScreen, TypingBehindComputeDoesNotOpenItAgain)
{
    open({"10"});
    typeRow(0, {"2"});
    click("cmdCompute");
    typeRow(0, {"3"});

    EXPECT_FALSE(enabled("cmdCompute"));
    EXPECT_EQ(text("txtA(0)"), ".04");  // .2 x 2 / 10, as computed
}

TEST_F(GroundScreen, AnImportBehindComputeOpensItAgain)
{
    openSample("2-eklahra.mdb", 1);
    typeRow(0, {"5.03"});
    click("cmdCompute");
    EXPECT_EQ(text("txtA(0)"), ".02");  // .2 x 5.03 / 50.3

    click("cmdCopy");
    EXPECT_TRUE(enabled("cmdCompute"));
    click("cmdCompute");
    EXPECT_EQ(text("txtA(0)"), ".030815");  // (.2 x 6.6 + .1 x 2.3) / 50.3 = 1.55 / 50.3
}

// Print and Next

TEST_F(GroundScreen, NextAsksUntilTheFormIsPrinted)
{
    open({"10"});
    typeRow(0, {"2"});
    click("cmdCompute");

    expectPrintQuestion(true);
    click("cmdNext");
    EXPECT_FALSE(chain.isLoaded<frmT4>());

    expectPrintQuestion(false);
    click("cmdNext");
    nowOn<frmT4>();
    EXPECT_EQ(text("txtABC(0)"), "1.04");
}

TEST_F(GroundScreen, APrintedFormMovesOnAtOnceAndKeepsItsContents)
{
    auto& form = open({"10"});
    typeRow(0, {"2"});
    click("cmdCompute");
    const QTemporaryDir prints;
    const std::string pdf = prints.filePath("frmT2").toStdString();
    dialogs.expectPrint({.firstPage = 1, .lastPage = 1, .copies = 2}, pdf);
    click("cmdPrint");

    EXPECT_EQ(form.Printed, 1);
    EXPECT_EQ(pagesOf(pdf), 2);
    click("cmdNext");
    nowOn<frmT4>();

    on<frmT2>();
    EXPECT_EQ(text("txtSoil1(0)"), "2");
    EXPECT_EQ(factors(0), ".04|.|.|1.04");
}

}  // namespace
