#include "activities/misc/frmM1.h"
#include "support/lock_tip.h"
#include "yards/yard_screen.h"

namespace {

const std::string Title = "Entering Yard Data";

const char* const SubHeading =
    "    Machine          Manually        Manually             Machine      Manually        Manually"
    "           Packed            Packed           Packed              Packed        Packed         "
    "Packed                RYL                 RYL               NRYL"
    "               on RYL         on RYL        on NYRL";

// What the screen shows

TEST_F(YardScreen, CaptionsStandToTheLetter)
{
    const auto& form = open();

    EXPECT_EQ(form.windowTitle().toStdString(), Title);
    for (const char* caption :
         {"Entering Yard Data", "Running and Non Running Yard Lines and Turnouts on the section of Sr S.E...-",
          "Sr S.E. with index-", "Gauge", "No of Station Yards", "     Date (mm-dd-yyyy)",
          " Station         Length of Lines(km)                         No of Turnouts", SubHeading, "Total",
          "  Total Numer of Mandays for Yard      maintenance", "Yard Data"})
        EXPECT_TRUE(says(caption)) << caption;
    EXPECT_EQ(text("cmdYdata"), "&Data from a file");
    EXPECT_EQ(text("cmdCOMPUTE"), "&Compute");
    EXPECT_EQ(text("cmdPrint"), "&Print");
    EXPECT_EQ(text("cmdNext"), "&Next");
}

TEST_F(YardScreen, ToolTipsStandToTheLetter)
{
    open();

    EXPECT_EQ(toolTip("txtNYd"), "Data for a maximum of 12 yards can be given");
    for (const char* button : {"cmdCOMPUTE", "cmdPrint", "cmdNext"})
        EXPECT_EQ(toolTip(button), LockTip) << button;
}

TEST_F(YardScreen, OnlyTheImportAndTheCountAreOpenAtFirst)
{
    const auto& form = open();

    EXPECT_TRUE(enabled("cmdYdata"));
    for (const char* button : {"cmdCOMPUTE", "cmdPrint", "cmdNext"})
        EXPECT_FALSE(enabled(button)) << button;
    EXPECT_EQ(rowsShown(), "0000000000000");
    EXPECT_EQ(text("txtNYd"), "");
    EXPECT_EQ(text("txtYd4"), "");
    EXPECT_EQ(form.YdMan, 0.0F);
    EXPECT_EQ(focus(), "txtNYd");
}

TEST_F(YardScreen, TakesSrSeGaugeAndIndexFromTheTrackScreen)
{
    auto& t1 = chain.get<frmT1>();
    t1.txtT1(0).setText("Section");
    t1.txtT1(1).setText("Sr SE Ambapur");
    t1.txtT1(4).setText("7");
    open("MG");

    EXPECT_EQ(text("txtT1(1)"), "Sr SE Ambapur");
    EXPECT_EQ(text("txtT1(3)"), "MG");
    EXPECT_EQ(text("txtT1(4)"), "7");
    EXPECT_NE(text("txtRly(2)"), "");
}

TEST_F(YardScreen, WhatIsTakenOrComputedIsLockedAndPale)
{
    open();

    for (const char* box : {"txtT1(1)", "txtT1(3)", "txtT1(4)", "txtRly(2)", "txtYd4", "txtM1(12)", "txtM2(12)",
                            "TXTM3(12)", "TXTM4(12)", "txtM5(12)", "txtM6(12)"}) {
        EXPECT_TRUE(locked(box)) << box;
        EXPECT_TRUE(pale(box)) << box;
    }
    for (const std::string& column : Columns) {
        EXPECT_FALSE(locked(column + "(11)")) << column;
        EXPECT_FALSE(pale(column + "(11)")) << column;
    }
    EXPECT_FALSE(locked("txtNYd"));
}

TEST_F(YardScreen, HeadingsAndTotalStandClearOfEachOther)
{
    auto& form = open();
    type("txtNYd", "2");
    const auto placeOf = [&](const QString& start) {
        for (const QLabel* label : form.findChildren<QLabel*>())
            if (label->text().startsWith(start) && label->isVisible())
                return QRect(label->mapTo(&form, QPoint(0, 0)), label->size());
        ADD_FAILURE() << "no label shown that starts with " << start.toStdString();
        return QRect();
    };
    const auto boxAt = [&](const QWidget& box) { return QRect(box.mapTo(&form, QPoint(0, 0)), box.size()); };

    EXPECT_LT(placeOf(" Station").bottom(), placeOf("    Machine").top());
    EXPECT_LT(placeOf("    Machine").bottom(), boxAt(form.txtM1(0)).top());
    EXPECT_LT(boxAt(form.txtM1(1)).bottom(), boxAt(form.txtM1(12)).top());
    // "Total" stands before the totals, in their row.
    const QRect total = placeOf("Total");
    EXPECT_EQ(total.top(), boxAt(form.txtM1(12)).top());
    EXPECT_LT(total.right(), boxAt(form.txtM1(12)).left());
}

TEST_F(YardScreen, EveryBoxIsNamedAfterItsColumnAndYard)
{
    auto& form = open();

    EXPECT_EQ(form.txtStn(2).accessibleName(), "Station, yard 3");
    EXPECT_EQ(form.txtM1(0).accessibleName(), "Machine Packed RYL, length, yard 1");
    EXPECT_EQ(form.TXTM3(0).accessibleName(), "Manually Packed NRYL, length, yard 1");
    EXPECT_EQ(form.TXTM4(11).accessibleName(), "Machine Packed on RYL, turnouts, yard 12");
    EXPECT_EQ(form.txtM6(12).accessibleName(), "Manually Packed on NYRL, turnouts, total");
}

TEST_F(YardScreen, TheTypingGoesRowByRow)
{
    open();
    type("txtNYd", "2");
    std::string way;
    for (int i = 0; i < 14; ++i) {
        key(focus(), Qt::Key_Return);
        way += focus() + " ";
    }
    EXPECT_EQ(way, "txtStn(0) txtM1(0) txtM2(0) TXTM3(0) TXTM4(0) txtM5(0) txtM6(0) "
                   "txtStn(1) txtM1(1) txtM2(1) TXTM3(1) TXTM4(1) txtM5(1) txtM6(1) ");
}

// The number of yards

struct Count {
    const char* name;
    const char* typed;
    const char* stands;
    const char* shown;  ///< yards 1 to 12, total row
    int yards;
};

class YardCount : public YardScreen, public testing::WithParamInterface<Count> {};

TEST_P(YardCount, ShowsAsManyRowsAndTheTotals)  // slow
{
    const auto& form = open();
    type("txtNYd", "5");
    type("txtNYd", GetParam().typed);

    EXPECT_EQ(text("txtNYd"), GetParam().stands);
    EXPECT_EQ(rowsShown(), GetParam().shown);
    EXPECT_EQ(form.NYd, GetParam().yards);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Typed, YardCount, testing::Values(
    //    name           typed    stands   shown            yards
    Count{"Three",       "3",     "3",     "1110000000001",  3},
    Count{"Twelve",      "12",    "12",    "1111111111111", 12},
    Count{"Thirteen",    "13",    "12",    "1111111111111", 12},  // 12 at most
    Count{"Fifteen",     "15",    "12",    "1111111111111", 12},
    Count{"None",        "0",     "0",     "0000000000001",  0},
    Count{"Negative",    "-2",    "-2",    "0000000000001",  0},
    Count{"Blank",       "",      "",      "0000000000001",  0},
    Count{"Words",       "two",   "two",   "0000000000001",  0},  // no number at the start: 0
    Count{"WithAUnit",   "2 yds", "2 yds", "1100000000001",  2},
    Count{"Fraction",    "2.5",   "2.5",   "1100000000001",  2}), // its whole part
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST_F(YardScreen, HiddenYardsKeepTheirTextsAndCountForNothing)
{
    open();
    type("txtNYd", "3");
    typeRow(0, {"Ambapur", "1"});
    typeRow(2, {"Chandil", "5"});
    type("txtNYd", "1");
    EXPECT_EQ(text("txtM1(2)"), "5");

    click("cmdCOMPUTE");
    EXPECT_EQ(totals(), "1.|.|.|.|.|.");
}

// Import

const std::vector<std::vector<std::string>> ThreeRecords = {
    {"a", "2", "c", "d", "e", "f", "g", "h", "i", "j"},
    {"a", "9", " Belgarh ", "4.80", "1,5", "", "x", "9 ", "1e1", "j"},
    {"a", "", "C", "D", "E", "F", "G", "H", "I", "J"},
};

TEST_F(YardScreen, ImportTakesTheCellsByPlaceAndUnchanged)
{
    open();
    putRecords("YdGrid", ThreeRecords);
    click("cmdYdata");

    EXPECT_EQ(text("txtNYd"), "2");
    EXPECT_EQ(row(0), "c|d|e|f|g|h|i");
    EXPECT_EQ(row(1), " Belgarh |4.80|1,5||x|9 |1e1");
    EXPECT_EQ(row(2), "||||||");  // the first record says two yards
    EXPECT_EQ(rowsShown(), "1100000000001");
    EXPECT_TRUE(enabled("cmdCOMPUTE"));
    EXPECT_FALSE(enabled("cmdPrint"));
    EXPECT_EQ(focus(), "cmdCOMPUTE");
}

TEST_F(YardScreen, ImportWritesOverWhatWasTypedAndAgainTheSame)
{
    open();
    putRecords("YdGrid", ThreeRecords);
    type("txtNYd", "4");
    typeRow(0, {"Typed", "99"});
    typeRow(3, {"Kept", "7"});
    click("cmdYdata");
    EXPECT_EQ(row(0), "c|d|e|f|g|h|i");
    EXPECT_EQ(row(3), "Kept|7|||||");  // beyond the yards imported
    click("cmdYdata");
    EXPECT_EQ(row(0), "c|d|e|f|g|h|i");
}

TEST_F(YardScreen, ImportOfMoreThanTwelveYardsTakesTwelve)
{
    open();
    std::vector<std::vector<std::string>> records(14, {"", "14", "S", "1", "2", "3", "4", "5", "6"});
    putRecords("YdGrid", records);
    click("cmdYdata");

    EXPECT_EQ(text("txtNYd"), "12");
    EXPECT_EQ(row(11), "S|1|2|3|4|5|6");
    EXPECT_EQ(rowsShown(), "1111111111111");
}

TEST_F(YardScreen, ImportFromAShorterTableEndsAtTheMissingRow)
{
    open();
    putRecords("YdGrid", {{"", "3", "A", "1", "2", "3", "4", "5", "6"}, {"", "", "B", "1", "2", "3", "4", "5", "6"}});
    dialogs.expectCritical(Title, "Subscript out of range: row 3 of table TABLE is missing. Type the figures, or "
                                  "choose a data file that holds it.");
    click("cmdYdata");

    EXPECT_EQ(row(1), "B|1|2|3|4|5|6");  // what was copied stays
    EXPECT_EQ(row(2), "||||||");
    EXPECT_FALSE(enabled("cmdCOMPUTE"));
}

TEST_F(YardScreen, ImportOfANarrowTableEndsAtTheMissingColumn)
{
    open();
    putRecords("YdGrid", {{"", "1", "A", "1", "2"}});
    dialogs.expectCritical(Title, "Subscript out of range: column 6 of table TABLE is missing. Type the figures, or "
                                  "choose a data file that holds it.");
    click("cmdYdata");

    EXPECT_EQ(row(0), "A|1|2||||");
}

TEST_F(YardScreen, ImportOfABlankCountTakesNoYardAndOpensCompute)
{
    open();
    putRecords("YdGrid", {{"", "", "A", "1", "2", "3", "4", "5", "6"}});
    click("cmdYdata");
    EXPECT_EQ(row(0), "||||||");

    click("cmdCOMPUTE");
    EXPECT_EQ(rowsShown(), "0000000000001");
    EXPECT_EQ(totals(), ".|.|.|.|.|.");
    EXPECT_EQ(text("txtYd4"), ".");
}

TEST_F(YardScreen, AnEmptyTableIsMissingItsFirstRow)
{
    openSample("blank.mdb", "BG");
    dialogs.expectCritical(
        Title,
        "Subscript out of range: row 1 of table YD is missing. Type the figures, or choose a data file that holds it.");
    click("cmdYdata");
}

TEST_F(YardScreen, WithoutADataFileTheYardsAreTyped)
{
    open();
    EXPECT_TRUE(says("No data file chosen"));
    EXPECT_FALSE(shown("YdGrid"));
    type("txtNYd", "1");
    EXPECT_TRUE(enabled("cmdCOMPUTE"));
}

// Print and Next

TEST_F(YardScreen, NextAsksUntilTheFormIsPrinted)
{
    open();
    type("txtNYd", "0");
    click("cmdCOMPUTE");

    expectPrintQuestion(true);
    click("cmdNext");
    EXPECT_FALSE(chain.isLoaded<frmM1>());

    expectPrintQuestion(false);
    click("cmdNext");
    nowOn<frmM1>();
}

TEST_F(YardScreen, APrintedFormMovesOnAtOnceAndKeepsItsContents)
{
    auto& form = open();
    type("txtNYd", "1");
    typeRow(0, {"Ambapur", "", "1"});
    click("cmdCOMPUTE");
    const std::string pdf = testing::TempDir() + "frmY.pdf";
    dialogs.expectPrint({.firstPage = 1, .lastPage = 1, .copies = 1}, pdf);
    click("cmdPrint");
    EXPECT_EQ(form.Printed, 1);
    EXPECT_EQ(pagesOf(pdf), 1);

    click("cmdNext");
    nowOn<frmM1>();
    on<frmY>();
    EXPECT_EQ(row(0), "Ambapur||1||||");
    EXPECT_EQ(text("txtYd4"), "297.");
}

}  // namespace
