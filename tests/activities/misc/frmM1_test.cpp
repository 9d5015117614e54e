#include "activities/misc/frmM2.h"
#include "activities/misc/patrolling_screen.h"
#include "support/lock_tip.h"

namespace {

const std::string Title = "Data Entry for - For Miscelleneous Activities";

// What the screen shows

TEST_F(PatrollingScreen, CaptionsStandToTheLetter)
{
    const auto& form = open();

    EXPECT_EQ(form.windowTitle().toStdString(), Title);
    for (const char* caption : {"Data Entry for - For Miscelleneous Activities",
                                "Sr S.E. with index-",
                                "     Date (mm-dd-yyyy)",
                                "M.1- Monsoon Patrollong :--",
                                "Total Number of Beat Lengths ?",
                                "Data for a maximum of 12 beat lengths can be entered",
                                "Beat Length Number- ",
                                "     Number of days needing                  Patrolling in the beat length",
                                "No of Beats in the beat length",
                                "No of Shifts inthe beat length",
                                "Number of men in each Shift",
                                "M.2-Hot Weather Patrolling- Monsoon Patrollong :--",
                                "Length of LWR track on single line basis(km) ?",
                                "M.3-Cold Weather Patrolling-",
                                "M.4-Watching Vulnerable Locations-",
                                "No. of vulnerable Locations-",
                                "Data for a max of 12 vulnerable locations can be entered",
                                "Vulnerable  Location Number- ",
                                "No of Days Watching required at the Location-",
                                "No of Duty Shifts at  each   location-",
                                "Calculated Mandays - ",
                                "Mandays Calculated-",
                                "M1 Data"})
        EXPECT_TRUE(says(caption)) << caption;
    EXPECT_EQ(text("cmdData"), "&Data from File");
    EXPECT_EQ(text("cmdCompute"), "&Compute");
    EXPECT_EQ(text("cmdPrint"), "&Print");
    EXPECT_EQ(text("cmdNext"), "&Next");
    for (const char* button : {"cmdPrint", "cmdNext"})
        EXPECT_EQ(toolTip(button), LockTip) << button;
}

TEST_F(PatrollingScreen, OnlyTheImportAndTheCountsAreOpenAtFirst)
{
    const auto& form = open();

    EXPECT_TRUE(enabled("cmdData"));
    for (const char* button : {"cmdCompute", "cmdPrint", "cmdNext"})
        EXPECT_FALSE(enabled(button)) << button;
    EXPECT_EQ(beatLengthsShown(), "000000000000");
    EXPECT_EQ(locationsShown(), "000000000000");
    EXPECT_EQ(text("txtNB") + text("txtVL"), "");
    EXPECT_EQ(results(), "|||");
    EXPECT_EQ(form.TotalMandays, 0.0F);
    EXPECT_EQ(focus(), "txtNB");
}

TEST_F(PatrollingScreen, TakesTheHeaderFromTheTrackScreen)
{
    auto& t1 = chain.get<frmT1>();
    t1.txtT1(0).setText("Section");
    t1.txtT1(1).setText("Sr SE Ambapur");
    t1.txtT1(2).setText("Km 0 to 100");
    open();

    EXPECT_EQ(texts("txtT1", 0, 2), "Section|Sr SE Ambapur|Km 0 to 100");
    EXPECT_NE(text("txtRly(2)"), "");
}

TEST_F(PatrollingScreen, WhatIsTakenOrComputedIsLockedAndPale)
{
    open();

    for (const char* box : {"txtT1(0)", "txtT1(1)", "txtT1(2)", "txtRly(2)", "txtTB(0)", "txtNVL(11)", "txtHLWR",
                            "txtCLWR", "txtman1", "txtMan2", "txtMan3", "txtMan4"}) {
        EXPECT_TRUE(locked(box)) << box;
        EXPECT_TRUE(pale(box)) << box;
    }
    for (const char* box :
         {"txtNB", "txtVL", "txtND(0)", "txtBL(0)", "txtNS(0)", "txtNM(11)", "txtDV(0)", "txtDS(11)"}) {
        EXPECT_FALSE(locked(box)) << box;
        EXPECT_FALSE(pale(box)) << box;
    }
}

TEST_F(PatrollingScreen, EveryBoxIsNamedAfterItsHeadingAndRow)
{
    auto& form = open();

    EXPECT_EQ(form.txtND(0).accessibleName(), "Number of days needing Patrolling in the beat length, beat length 1");
    EXPECT_EQ(form.txtDS(2).accessibleName(), "No of Duty Shifts at each location-, location 3");
    EXPECT_EQ(form.txtman1.accessibleName(), "Calculated Mandays -, M.1- Monsoon Patrollong :--");
}

TEST_F(PatrollingScreen, TheTypingGoesSectionBySection)
{
    open();
    type("txtVL", "1");
    type("txtNB", "2");
    std::string way;
    for (int i = 0; i < 11; ++i) {
        key(focus(), Qt::Key_Return);
        way += focus() + " ";
    }
    EXPECT_EQ(way, "txtND(0) txtBL(0) txtNS(0) txtNM(0) txtND(1) txtBL(1) txtNS(1) txtNM(1) "
                   "txtVL txtDV(0) txtDS(0) ");
}

struct Length {
    const char* name;
    float lwrKm;
    const char* shown;
};

class WeldedRail : public PatrollingScreen, public testing::WithParamInterface<Length> {};

TEST_P(WeldedRail, IsShownAsASingleReads)  // slow
{
    open(GetParam().lwrKm);
    EXPECT_EQ(text("txtHLWR"), GetParam().shown);
    EXPECT_EQ(text("txtCLWR"), GetParam().shown);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Lengths, WeldedRail, testing::Values(
    Length{"None",     0.0F,         "0"},
    Length{"Whole",    40.0F,        "40"},
    Length{"Short",    23.7F,        "23.7"},       // the single is 23.700000762...
    Length{"Less",     0.5F,         "0.5"},
    Length{"SevenAll", 1234.567F,    "1234.567"}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

// The counts

struct Count {
    const char* name;
    const char* typed;
    const char* stands;
    const char* shown;  ///< rows 1 to 12
};

class PatrollingCount : public PatrollingScreen, public testing::WithParamInterface<Count> {};

TEST_P(PatrollingCount, ShowsAsManyBeatLengths)  // slow
{
    open();
    type("txtNB", "5");
    type("txtNB", GetParam().typed);
    EXPECT_EQ(text("txtNB"), GetParam().stands);
    EXPECT_EQ(beatLengthsShown(), GetParam().shown);
    EXPECT_EQ(locationsShown(), "000000000000");
}

TEST_P(PatrollingCount, ShowsAsManyLocations)  // slow
{
    open();
    type("txtVL", "5");
    type("txtVL", GetParam().typed);
    EXPECT_EQ(text("txtVL"), GetParam().stands);
    EXPECT_EQ(locationsShown(), GetParam().shown);
    EXPECT_EQ(beatLengthsShown(), "000000000000");
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Typed, PatrollingCount, testing::Values(
    Count{"Three",     "3",   "3",   "111000000000"},
    Count{"Twelve",    "12",  "12",  "111111111111"},
    Count{"Thirteen",  "13",  "12",  "111111111111"},   // 12 at most
    Count{"None",      "0",   "0",   "000000000000"},
    Count{"Negative",  "-4",  "-4",  "000000000000"},
    Count{"Blank",     "",    "",    "000000000000"},
    Count{"Words",     "x",   "x",   "000000000000"},
    Count{"Fraction",  "2.9", "2.9", "110000000000"}),  // its whole part
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST_F(PatrollingScreen, ShownRowsAreNumbered)
{
    open();
    type("txtNB", "12");
    type("txtVL", "2");
    EXPECT_EQ(texts("txtTB", 0, 11), "1|2|3|4|5|6|7|8|9|10|11|12");
    EXPECT_EQ(texts("txtNVL", 0, 2), "1|2|");
}

TEST_F(PatrollingScreen, HiddenRowsKeepTheirTextsAndCountForNothing)
{
    open();
    type("txtNB", "2");
    typeBeatLength(0, {"10", "1", "1", "1"});
    typeBeatLength(1, {"20", "1", "1", "1"});
    type("txtVL", "2");
    typeLocation(1, {"30", "2"});
    type("txtNB", "1");
    type("txtVL", "1");
    EXPECT_EQ(beatLength(1), "20|1|1|1");
    EXPECT_EQ(location(1), "30|2");

    click("cmdCompute");
    EXPECT_EQ(results(), "10|||");
}

// Import

/// A table of `beatLengths` columns of beats and locations, filled with texts that tell their place: row letter and
/// number.
std::vector<std::vector<std::string>> tableOf(const std::string& beats, const std::string& locations, int columns)
{
    std::vector<std::vector<std::string>> records;
    for (char row = 'a'; row <= 'j'; ++row) {  // grid rows 1 to 10
        std::vector<std::string> record = {std::string(1, row), ""};
        for (int i = 0; i < columns; ++i)
            record.push_back(row + std::to_string(i));
        records.push_back(record);
    }
    records[1][1] = beats;
    records[7][1] = locations;
    return records;
}

TEST_F(PatrollingScreen, ImportTakesAQuantityARowAndABeatOrLocationAColumn)
{
    open();
    putRecords("GridM1", tableOf("2", "3", 12));
    click("cmdData");

    EXPECT_EQ(text("txtNB"), "2");
    EXPECT_EQ(text("txtVL"), "3");
    EXPECT_EQ(beatLength(0), "c0|d0|e0|f0");
    EXPECT_EQ(beatLength(1), "c1|d1|e1|f1");
    EXPECT_EQ(beatLength(2), "|||");
    EXPECT_EQ(location(0), "i0|j0");
    EXPECT_EQ(location(2), "i2|j2");
    EXPECT_EQ(location(3), "|");
    EXPECT_EQ(beatLengthsShown(), "110000000000");
    EXPECT_EQ(locationsShown(), "111000000000");
    EXPECT_TRUE(enabled("cmdCompute"));
    EXPECT_FALSE(enabled("cmdPrint"));
    EXPECT_EQ(focus(), "cmdCompute");
}

TEST_F(PatrollingScreen, ImportTakesTwelveOfEachAtMost)
{
    open();
    putRecords("GridM1", tableOf("13", "20", 12));
    click("cmdData");

    EXPECT_EQ(text("txtNB"), "12");
    EXPECT_EQ(text("txtVL"), "12");
    EXPECT_EQ(beatLength(11), "c11|d11|e11|f11");
    EXPECT_EQ(location(11), "i11|j11");
}

TEST_F(PatrollingScreen, AnEmptyCountBecomesNoneAndFillsNothing)
{
    open();
    type("txtNB", "3");
    putRecords("GridM1", tableOf("", "", 12));
    click("cmdData");

    EXPECT_EQ(text("txtNB"), "0");
    EXPECT_EQ(text("txtVL"), "0");
    EXPECT_EQ(beatLengthsShown(), "000000000000");
    EXPECT_EQ(beatLength(0), "|||");
    EXPECT_EQ(location(0), "|");
    EXPECT_TRUE(enabled("cmdCompute"));
}

TEST_F(PatrollingScreen, OneEmptyCountLeavesTheOther)
{
    open();
    putRecords("GridM1", tableOf("", "1", 12));
    click("cmdData");

    EXPECT_EQ(text("txtNB"), "0");
    EXPECT_EQ(location(0), "i0|j0");
}

TEST_F(PatrollingScreen, CellsAreCopiedUnchangedAndEmptyOnesEmpty)
{
    open();
    auto records = tableOf("1", "1", 1);
    records[2][2] = " 92.0 ";
    records[3][2] = "";
    records[8][2] = "1,5";
    putRecords("GridM1", records);
    type("txtNB", "1");
    typeBeatLength(0, {"7", "7", "7", "7"});
    click("cmdData");

    EXPECT_EQ(beatLength(0), " 92.0 ||e0|f0");
    EXPECT_EQ(location(0), "1,5|j0");
}

TEST_F(PatrollingScreen, AMissingColumnEndsTheImportBehindTheBeatsBeforeIt)
{
    open();
    putRecords("GridM1", tableOf("3", "1", 2));
    dialogs.expectCritical(Title, "Subscript out of range: column 5 of table TABLE is missing. Type the figures, or "
                                  "choose a data file that holds it.");
    click("cmdData");

    EXPECT_EQ(beatLength(1), "c1|d1|e1|f1");  // beat length by beat length
    EXPECT_EQ(beatLength(2), "|||");
    EXPECT_EQ(location(0), "|");
    EXPECT_EQ(text("txtVL"), "1");  // the counts come first
    EXPECT_FALSE(enabled("cmdCompute"));
}

TEST_F(PatrollingScreen, AMissingRowEndsTheImportBehindTheFirstCount)
{
    open();
    auto records = tableOf("2", "1", 12);
    records.resize(7);
    putRecords("GridM1", records);
    dialogs.expectCritical(Title, "Subscript out of range: row 8 of table TABLE is missing. Type the figures, or "
                                  "choose a data file that holds it.");
    click("cmdData");

    EXPECT_EQ(text("txtNB"), "2");
    EXPECT_EQ(beatLengthsShown(), "110000000000");
    EXPECT_EQ(beatLength(0), "|||");
    EXPECT_EQ(text("txtVL"), "");
}

TEST_F(PatrollingScreen, WithoutADataFileTheRowsAreTyped)
{
    open();
    EXPECT_TRUE(says("No data file chosen"));
    dialogs.expectCritical(
        Title,
        "Subscript out of range: row 2 of table M1 is missing. Type the figures, or choose a data file that holds it.");
    click("cmdData");
    EXPECT_FALSE(enabled("cmdCompute"));

    type("txtNB", "1");
    EXPECT_TRUE(enabled("cmdCompute"));
}

// Print and Next

TEST_F(PatrollingScreen, NextAsksUntilTheFormIsPrinted)
{
    auto& form = open();
    type("txtNB", "0");
    click("cmdCompute");

    expectPrintQuestion(true);
    click("cmdNext");
    EXPECT_FALSE(chain.isLoaded<frmM2>());

    const std::string pdf = testing::TempDir() + "frmM1.pdf";
    dialogs.expectPrint({.firstPage = 1, .lastPage = 1, .copies = 1}, pdf);
    click("cmdPrint");
    EXPECT_EQ(form.Printed, 1);
    EXPECT_EQ(pagesOf(pdf), 1);
    click("cmdNext");
    nowOn<frmM2>();
}

}  // namespace
