#include "activities/misc/gate_screen.h"
#include "activities/site/frmS1.h"
#include "support/lock_tip.h"
#include "track/frmT1.h"

namespace {

const std::string Title = "Data Entry for Miscelleneous Activities  (continued).....";

// What the screen shows

TEST_F(GateScreen, CaptionsStandToTheLetter)
{
    const auto& form = open();

    EXPECT_EQ(form.windowTitle().toStdString(), Title);
    for (const char* caption :
         {"Data Entry for Miscelleneous Activities  (continued).....", "Sr S.E. with index-", "Gauge",
          "     Date (mm-dd-yyyy)", "M.5- Gate Keeping of level Crossings-",
          "Number of Gatemen's posts sanctioned (excludin LR)-", "No . of Shifts--",
          "Corresponding Number of Level Crossings-", "M.6- Rest giving for Keyman-", "Number of Keyman beats-",
          "M.7- Waterman duty-", "Number of Gangs-", "M.8- Store Watchman Duty-",
          "Number of Store Locations -        (in addition to Sr S.E.'s              H.Q.   (not to exceed 2)",
          "Calculated Mandays - ", "Total Number of Calculated Mandays for Miscelleneous Activities - ", "M2 Data"})
        EXPECT_TRUE(says(caption)) << caption;
    EXPECT_EQ(text("cmdData"), "&Data from File");
    EXPECT_EQ(text("cmdCompute"), "&Compute");
    EXPECT_EQ(text("cmdPrint"), "&Print");
    EXPECT_EQ(text("cmdNext"), "&Next");
    for (const char* button : {"cmdPrint", "cmdNext"})
        EXPECT_EQ(toolTip(button), LockTip) << button;
}

TEST_F(GateScreen, OnlyTheImportAndTheEntriesAreOpenAtFirst)
{
    const auto& form = open();

    EXPECT_TRUE(enabled("cmdData"));
    for (const char* button : {"cmdCompute", "cmdPrint", "cmdNext"})
        EXPECT_FALSE(enabled(button)) << button;
    EXPECT_EQ(figures(), "||||||");
    EXPECT_EQ(results(), "||||");
    EXPECT_EQ(form.TotalMandays, 0.0F);
    EXPECT_EQ(focus(), "txtNLC");
}

TEST_F(GateScreen, TakesTheHeaderFromTheTrackScreen)
{
    auto& t1 = chain.get<frmT1>();
    t1.txtT1(0).setText("Section");
    t1.txtT1(1).setText("Sr SE Ambapur");
    t1.txtT1(2).setText("Km 0 to 100");
    t1.txtT1(3).setText("MG");
    open();

    EXPECT_EQ(texts("txtT1", 0, 2), "Section|Sr SE Ambapur|Km 0 to 100");
    EXPECT_TRUE(says("MG"));
    EXPECT_NE(text("txtRly(2)"), "");
}

TEST_F(GateScreen, TheShiftsAreFixed)
{
    open();
    EXPECT_EQ(texts("txtLCS", 0, 2), "1|2|3");
    for (const char* box : {"txtLCS(0)", "txtLCS(1)", "txtLCS(2)"}) {
        EXPECT_TRUE(locked(box)) << box;
        EXPECT_TRUE(pale(box)) << box;
    }
}

TEST_F(GateScreen, WhatIsTakenOrComputedIsLockedAndPale)
{
    open();

    for (const char* box :
         {"txtT1(0)", "txtT1(1)", "txtT1(2)", "txtRly(2)", "txtman5", "txtMan6", "txtMan7", "txtMan8", "txtMan9"}) {
        EXPECT_TRUE(locked(box)) << box;
        EXPECT_TRUE(pale(box)) << box;
    }
    for (const std::string& box : Entered) {
        EXPECT_FALSE(locked(box)) << box;
        EXPECT_FALSE(pale(box)) << box;
    }
}

TEST_F(GateScreen, EveryBoxIsNamedAfterItsCaption)
{
    auto& form = open();

    EXPECT_EQ(form.txtLCN(1).accessibleName(), "Corresponding Number of Level Crossings-, shifts 2");
    EXPECT_EQ(form.txtSL.accessibleName(),
              "Number of Store Locations - (in addition to Sr S.E.'s H.Q. (not to exceed 2)");
    EXPECT_EQ(form.txtMan7.accessibleName(), "Calculated Mandays -, M.7- Waterman duty-");
}

TEST_F(GateScreen, TheTypingGoesSectionBySection)
{
    open();
    std::string way = focus();
    for (int i = 0; i < 6; ++i) {
        key(focus(), Qt::Key_Return);
        way += " " + focus();
    }
    EXPECT_EQ(way, "txtNLC txtLCN(0) txtLCN(1) txtLCN(2) txtKbeats txtNG txtSL");
}

// Import

TEST_F(GateScreen, ImportTakesTheCellsByPlace)
{
    open();
    putRecords("GridM2", places());
    click("cmdData");

    EXPECT_EQ(figures(), "b2|c3|c4|c5|e2|g2|i2");
    EXPECT_EQ(texts("txtLCS", 0, 2), "1|2|3");  // the shifts are not imported
    EXPECT_TRUE(enabled("cmdCompute"));
    EXPECT_FALSE(enabled("cmdPrint"));
    EXPECT_EQ(focus(), "cmdCompute");
}

TEST_F(GateScreen, CellsAreCopiedUnchangedAndWriteOverWhatWasTyped)
{
    open();
    auto records = places();
    records[1][1] = " 12.0 ";
    records[4][1] = "";
    records[8][1] = "5";  // cut by Compute, not by the import
    putRecords("GridM2", records);
    typeFigures({"1", "1", "1", "1", "1", "1", "1"});
    click("cmdData");

    EXPECT_EQ(figures(), " 12.0 |c3|c4|c5||g2|5");
}

TEST_F(GateScreen, AMissingRowEndsTheImportThere)
{
    open();
    auto records = places();
    records.resize(6);
    putRecords("GridM2", records);
    dialogs.expectCritical(Title, "Subscript out of range: row 7 of table TABLE is missing. Type the figures, or "
                                  "choose a data file that holds it.");
    click("cmdData");

    EXPECT_EQ(figures(), "b2|c3|c4|c5|e2||");
    EXPECT_FALSE(enabled("cmdCompute"));
}

TEST_F(GateScreen, WithoutADataFileTheFiguresAreTyped)
{
    open();
    EXPECT_TRUE(says("No data file chosen"));
    EXPECT_FALSE(shown("GridM2"));
    for (const std::string& box : Entered) {
        open();
        EXPECT_FALSE(enabled("cmdCompute")) << box;
        type(box, "1");
        EXPECT_TRUE(enabled("cmdCompute")) << box;
        chain.unload<frmM2>();
    }
}

// Print and Next

TEST_F(GateScreen, NextAsksUntilTheFormIsPrinted)
{
    auto& form = open();
    type("txtNG", "1");
    click("cmdCompute");

    expectPrintQuestion(true);
    click("cmdNext");
    EXPECT_FALSE(chain.isLoaded<frmS1>());

    const std::string pdf = testing::TempDir() + "frmM2.pdf";
    dialogs.expectPrint({.firstPage = 1, .lastPage = 1, .copies = 2}, pdf);
    click("cmdPrint");
    EXPECT_EQ(form.Printed, 1);
    EXPECT_EQ(pagesOf(pdf), 2);
    click("cmdNext");
    nowOn<frmS1>();
}

}  // namespace
