#include "track/frmT1.h"

#include <QGroupBox>
#include <QScrollArea>
#include <QScrollBar>

#include "support/lock_tip.h"
#include "track/track_screen.h"

namespace {

// What the screen shows

TEST_F(TrackScreen, CaptionsStandToTheLetter)
{
    const frmT1& t1 = open();
    EXPECT_EQ(t1.windowTitle().toStdString(), Title);
    for (const char* caption :
         {"Section-", "Jurisdiction -", "Sr S.E. with index-", "Gauge", "No of Segments ?", "     Date (mm-dd-yyyy)",
          "Segment     No", " Line  dn/up", "Km From", "Km To", "  Extra      Kms      if  any", "GMT", "LWR (kms)",
          " Method   of    Maintenance", "Length and no  of Eq.t/outs on conc Sleepers", "Total no of Eq.    turnouts",
          "Total Km", "Eq. Length", "Tr Data"})
        EXPECT_TRUE(says(caption)) << caption;
    EXPECT_EQ(static_cast<QGroupBox&>(find("fraG")).title().toStdString(), "Gauge");
    EXPECT_EQ(static_cast<QGroupBox&>(find("fraSub")).title().toStdString(), "Subarban Section");
    EXPECT_EQ(text("chkSub"), "Subarban     Section");
    EXPECT_EQ(text("optBG") + text("optMG") + text("optNG"), "BGMGNG");
    EXPECT_EQ(text("cmdCopy"), "&Data from a  File");
    EXPECT_EQ(text("cmdCompute"), "&Compute");
    EXPECT_EQ(text("cmdNext"), "&Next");
    EXPECT_EQ(text("cmdPrint"), "&Print");
}

TEST_F(TrackScreen, ToolTipsStandToTheLetterWithTheirQuotes)
{
    open();
    EXPECT_EQ(toolTip("cmdNext"), LockTip);
    EXPECT_EQ(toolTip("cmdPrint"), LockTip);
    EXPECT_EQ(toolTip("cmdCompute"), "");
    EXPECT_EQ(toolTip("txtNSeg"), "Maximum number of segments is 16");
    EXPECT_EQ(toolTip("optBG"), "");
    EXPECT_EQ(toolTip("optMG"), "\"For MG sections  Maintenace has to be Manual\"");
    EXPECT_EQ(toolTip("optNG"), "\"For NG sections the Maintenace has to be Manual\"");
    EXPECT_EQ(toolTip("fraSub"), "\"For Subarban Sections the Maintenance has to be Mechanical\"");
    EXPECT_EQ(toolTip("chkSub"), toolTip("fraSub"));
}

TEST_F(TrackScreen, AdvisesToChooseTheGaugeUntilOneIsChosen)
{
    const char* const advice = "Choose the gauge: it opens the import.";
    for (const char* choice : {"optBG", "optMG", "optNG", "chkSub"}) {
        open(sample("1-ambapur.mdb"));
        EXPECT_TRUE(says(advice));
        EXPECT_FALSE(enabled("cmdCopy"));
        click(choice);
        EXPECT_FALSE(says(advice)) << choice;
        EXPECT_TRUE(enabled("cmdCopy")) << choice;
        chain.unload<frmT1>();
        settle();
    }
}

// What is to be said of the file goes first, and stays when the gauge is chosen.
TEST_F(TrackScreen, AdvisesNothingWhereTheFileIsSpokenOf)
{
    for (const auto& [file, notice] : {std::pair<std::string, const char*>{"", "No data file chosen"},
                                       {fixture("damaged-cut-between-pages.mdb"),
                                        "The file says 200 records, 105 could be read: it may be damaged."}}) {
        open(file);
        EXPECT_TRUE(says(notice)) << file;
        EXPECT_FALSE(says("Choose the gauge: it opens the import.")) << file;
        click("optBG");
        EXPECT_TRUE(says(notice)) << file;
        chain.unload<frmT1>();
        settle();
    }
}

TEST_F(TrackScreen, LoadsWithTheHeaderOfTheStartScreen)
{
    auto& start = chain.get<frmStart>();
    start.txtT1(0).setText("Sr SE Ambapur");
    start.txtT1(4).setText("3");
    const frmT1& t1 = open(sample("1-ambapur.mdb"));
    EXPECT_EQ(texts("txtT1", 0, 4), "|Sr SE Ambapur|||3");
    EXPECT_EQ(t1.DataFilePath.toStdString(), sample("1-ambapur.mdb"));
    EXPECT_EQ(t1.LwrTotal, 0.0F);
    EXPECT_EQ(focus(), "txtT1(0)");
    for (const char* taken : {"txtT1(1)", "txtT1(3)", "txtT1(4)", "txtNSeg", "txtRly(2)"})
        EXPECT_TRUE(locked(taken) && pale(taken)) << taken;
    for (const char* typed : {"txtT1(0)", "txtT1(2)"})
        EXPECT_FALSE(locked(typed) || pale(typed)) << typed;
}

TEST_F(TrackScreen, LoadsWithEveryRowHiddenAndPreset)
{
    const frmT1& t1 = open();
    EXPECT_EQ(text("txtNSeg"), "");
    EXPECT_EQ(t1.SegCount, 0);
    for (const char* array : RowArrays)
        EXPECT_EQ(shownOf(array, 0, 15), "0000000000000000") << array;
    EXPECT_EQ(texts("txtSS", 0, 15), "1|2|3|4|5|6|7|8|9|10|11|12|13|14|15|16");
    for (int i = 0; i < 16; ++i) {
        EXPECT_EQ(t1.cboLn(i).text(), "Line");
        EXPECT_EQ(t1.cboMtc(i).text(), "Method of Maintenance");
        EXPECT_FALSE(t1.cboMtc(i).isLocked());
        EXPECT_TRUE(t1.txtTkm(i).isLocked() && t1.txtEqtkm(i).isLocked());
        EXPECT_TRUE(t1.txtTkm(i).text().isEmpty() && t1.txtEqtkm(i).text().isEmpty());
    }
    EXPECT_TRUE(pale("txtTkm(0)") && pale("txtEqtkm(15)"));
    ASSERT_EQ(t1.cboLn(7).count(), 3);
    EXPECT_EQ((t1.cboLn(7).itemText(0) + t1.cboLn(7).itemText(1) + t1.cboLn(7).itemText(2)).toStdString(), "UPDNSL");
    ASSERT_EQ(t1.cboMtc(7).count(), 2);
    EXPECT_EQ(t1.cboMtc(7).itemText(0).toStdString(), "Machine Packed");
    EXPECT_EQ(t1.cboMtc(7).itemText(1).toStdString(), "Manually Packed");
}

TEST_F(TrackScreen, OnlyGaugeAndSuburbanBoxAreUsableAtFirst)
{
    const frmT1& t1 = open();
    for (const char* button : {"cmdCopy", "cmdCompute", "cmdNext", "cmdPrint"})
        EXPECT_FALSE(enabled(button)) << button;
    EXPECT_FALSE(t1.optBG.isChecked() || t1.optMG.isChecked() || t1.optNG.isChecked() || t1.chkSub.isChecked());
    EXPECT_TRUE(enabled("optBG") && enabled("optMG") && enabled("optNG") && enabled("chkSub"));
}

TEST_F(TrackScreen, ColumnsStandInTheirOrder)
{
    openRows(1);
    int left = -1;
    for (const char* array : RowArrays) {
        const int x = find(std::string(array) + "(0)").x();
        EXPECT_GT(x, left) << array;
        left = x;
    }
}

TEST_F(TrackScreen, SixteenSegmentsFitALaptopScreen)
{
    frmT1& t1 = openRows(16);
    t1.resize(flow::OpeningSize);
    for (int i = 0; i < 3; ++i)
        settle();
    auto* area = t1.findChild<QScrollArea*>("rows");
    EXPECT_EQ(area->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
}

TEST_F(TrackScreen, BoxesAreNamedAfterHeadingAndSegment)
{
    open();
    EXPECT_EQ(find("txtKmf(2)").accessibleName().toStdString(), "Km From, segment 3");
    EXPECT_EQ(find("txtConc2(0)").accessibleName().toStdString(),
              "Length and no of Eq.t/outs on conc Sleepers, turnouts, segment 1");
    EXPECT_EQ(find("cboMtc(15)").accessibleName().toStdString(), "Method of Maintenance, segment 16");
    EXPECT_EQ(find("txtT1(4)").accessibleName().toStdString(), "Sr S.E. index");
}

TEST_F(TrackScreen, EnterGoesThroughTheRowsInReadingOrderPastTheComputedBoxes)
{
    openRows(2);
    find("txtSS(0)").setFocus();
    std::string order;
    for (int i = 0; i < 12; ++i) {
        key(focus(), Qt::Key_Return);
        order += focus() + " ";
    }
    EXPECT_EQ(order, "cboLn(0) txtKmf(0) txtKmt(0) txtKm1(0) txtGmt(0) txtLWR(0) cboMtc(0) txtConc1(0) txtConc2(0) "
                     "txtTout(0) txtSS(1) cboLn(1) ");
}

// Gauge and suburban section

TEST_F(TrackScreen, BroadGaugeOpensTheImportAndLeavesTheMethodFree)
{
    openRows(2);
    type("cboMtc(0)", "Manually Packed");
    click("optBG");
    EXPECT_EQ(text("txtT1(3)"), "BG");
    EXPECT_TRUE(enabled("cmdCopy"));
    EXPECT_EQ(texts("cboMtc", 0, 1), "Manually Packed|Method of Maintenance");
    EXPECT_FALSE(locked("cboMtc(0)") || locked("cboMtc(1)"));
}

TEST_F(TrackScreen, AGaugeOpensTheImportBeforeThereIsACount)
{
    for (const char* gauge : {"optBG", "optMG", "optNG"}) {
        chain.unload<frmT1>();
        frmT1& t1 = open();
        click(gauge);
        EXPECT_TRUE(enabled("cmdCopy")) << gauge;
        EXPECT_FALSE(enabled("cmdCompute")) << gauge;
        EXPECT_FALSE(t1.cboMtc(0).isLocked()) << gauge << ": no row is shown yet";
    }
}

TEST_F(TrackScreen, MetreAndNarrowGaugeForceManualPackingOnEveryShownRow)
{
    openRows(3);
    for (const char* gauge : {"MG", "NG"}) {
        click(std::string("opt") + gauge);
        EXPECT_EQ(text("txtT1(3)"), gauge);
        EXPECT_TRUE(enabled("cmdCopy"));
        EXPECT_EQ(texts("cboMtc", 0, 3), "Manually Packed|Manually Packed|Manually Packed|Method of Maintenance");
        EXPECT_TRUE(locked("cboMtc(0)") && locked("cboMtc(2)"));
        EXPECT_FALSE(locked("cboMtc(3)"));
        click("optBG");
        EXPECT_TRUE(locked("cboMtc(0)")) << "broad gauge releases nothing";
    }
}

TEST_F(TrackScreen, ASuburbanSectionIsBroadGaugeAndMachinePacked)
{
    const frmT1& t1 = openRows(2);
    click("chkSub");
    EXPECT_TRUE(t1.chkSub.isChecked());
    EXPECT_TRUE(t1.optBG.isChecked());
    EXPECT_EQ(text("txtT1(3)"), "BG");
    EXPECT_TRUE(enabled("cmdCopy"));
    EXPECT_EQ(texts("cboMtc", 0, 2), "Machine Packed|Machine Packed|Method of Maintenance");
    EXPECT_TRUE(locked("cboMtc(0)") && locked("cboMtc(1)"));
    EXPECT_FALSE(locked("cboMtc(2)"));
}

TEST_F(TrackScreen, ClearingTheSuburbanBoxDoesAsTickingIt)
{
    frmT1& t1 = openRows(2);
    click("chkSub");
    t1.cboMtc(1).setText("Machine packed");
    click("chkSub");
    EXPECT_FALSE(t1.chkSub.isChecked());
    EXPECT_TRUE(t1.optBG.isChecked());
    EXPECT_EQ(texts("cboMtc", 0, 1), "Machine Packed|Machine Packed");
    EXPECT_TRUE(locked("cboMtc(0)") && locked("cboMtc(1)"));
}

TEST_F(TrackScreen, TheLastOfGaugeAndSuburbanBoxDecides)
{
    const frmT1& t1 = openRows(2);
    for (const char* gauge : {"MG", "NG", "MG"}) {
        click("chkSub");
        EXPECT_TRUE(t1.chkSub.isChecked());
        EXPECT_TRUE(t1.optBG.isChecked() && !t1.optMG.isChecked() && !t1.optNG.isChecked());
        EXPECT_EQ(text("txtT1(3)"), "BG");
        EXPECT_EQ(texts("cboMtc", 0, 1), "Machine Packed|Machine Packed");

        click(std::string("opt") + gauge);
        EXPECT_FALSE(t1.chkSub.isChecked());
        EXPECT_FALSE(t1.optBG.isChecked()) << "the box was cleared for the user: its own rule does not run";
        EXPECT_EQ(text("txtT1(3)"), gauge);
        EXPECT_EQ(texts("cboMtc", 0, 1), "Manually Packed|Manually Packed");
        EXPECT_TRUE(locked("cboMtc(0)") && locked("cboMtc(1)"));
    }
}

TEST_F(TrackScreen, ArrowKeysChooseTheGaugeToo)
{
    open();
    click("optBG");
    key("optBG", Qt::Key_Right);
    EXPECT_EQ(text("txtT1(3)"), "MG");
    key("optMG", Qt::Key_Right);
    EXPECT_EQ(text("txtT1(3)"), "NG");
}

// The count

struct Count {
    const char* name;
    const char* text;
    const char* left;
    int rows;
};

class SegmentCount : public TrackScreen, public testing::WithParamInterface<Count> {};

TEST_P(SegmentCount, ShowsItsRows)  // slow
{
    frmT1& t1 = open();
    t1.txtNSeg.setText(GetParam().text);
    EXPECT_EQ(text("txtNSeg"), GetParam().left);
    EXPECT_EQ(t1.SegCount, GetParam().rows);
    const std::string shown = std::string(static_cast<std::size_t>(GetParam().rows), '1') +
                              std::string(static_cast<std::size_t>(16 - GetParam().rows), '0');
    for (const char* array : RowArrays)
        EXPECT_EQ(shownOf(array, 0, 15), shown) << array;
    EXPECT_TRUE(enabled("cmdCompute"));
    EXPECT_TRUE(enabled("cmdCopy"));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Written, SegmentCount, testing::Values(
    //    name             text      left      rows
    Count{"One",           "1",      "1",       1},
    Count{"Sixteen",       "16",     "16",     16},
    Count{"Seventeen",     "17",     "16",     16},
    Count{"Twenty",        "20",     "16",     16},
    Count{"Huge",          "1e400",  "16",     16},
    Count{"Zero",          "0",      "0",       0},
    Count{"Negative",      "-2",     "-2",      0},
    Count{"NoNumber",      "abc",    "abc",     0},
    Count{"Fraction",      "2.5",    "2.5",     2},   // its whole part counts
    Count{"NumberAndText", "3 segs", "3 segs",  3}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST_F(TrackScreen, ASmallerCountHidesRowsAndKeepsWhatStandsInThem)
{
    frmT1& t1 = openRows(10);
    type("txtKmf(3)", "212.4");
    type("cboLn(9)", "DN");
    t1.txtNSeg.setText("3");
    for (const char* array : RowArrays)
        EXPECT_EQ(shownOf(array, 0, 15), "1110000000000000") << array;
    EXPECT_EQ(text("txtKmf(3)"), "212.4");
    t1.txtNSeg.setText("10");
    EXPECT_EQ(shownOf("txtKmf", 0, 15), "1111111111000000");
    EXPECT_EQ(text("txtKmf(3)"), "212.4");
    EXPECT_EQ(text("cboLn(9)"), "DN");
}

TEST_F(TrackScreen, ANewCountForcesMachinePackingOnASuburbanSection)
{
    frmT1& t1 = open();
    click("chkSub");
    EXPECT_FALSE(t1.cboMtc(0).isLocked()) << "no row was shown when the box was ticked";
    t1.txtNSeg.setText("3");
    EXPECT_EQ(texts("cboMtc", 0, 3), "Machine Packed|Machine Packed|Machine Packed|Method of Maintenance");
    EXPECT_TRUE(locked("cboMtc(0)") && locked("cboMtc(2)"));
    EXPECT_FALSE(locked("cboMtc(3)"));
}

TEST_F(TrackScreen, OnASuburbanSectionTheFirstRowIsForcedEvenIfNoneIsShown)
{
    frmT1& t1 = open();
    click("chkSub");
    t1.txtNSeg.setText("0");
    EXPECT_EQ(texts("cboMtc", 0, 1), "Machine Packed|Method of Maintenance");
    EXPECT_TRUE(t1.cboMtc(0).isLocked());
}

TEST_F(TrackScreen, ANewCountReleasesTheMethodsOfTheRowsItShows)
{
    frmT1& t1 = openRows(4);
    click("optMG");
    t1.txtNSeg.setText("2");
    EXPECT_EQ(texts("cboMtc", 0, 3), "Manually Packed|Manually Packed|Manually Packed|Manually Packed");
    EXPECT_FALSE(locked("cboMtc(0)") || locked("cboMtc(1)"));
    EXPECT_TRUE(locked("cboMtc(2)") && locked("cboMtc(3)")) << "hidden rows keep their lock";
}

TEST_F(TrackScreen, TheCountTakesTheHeaderAsItStands)
{
    frmT1& t1 = open();
    type("txtT1(0)", "Sample Section");
    t1.txtT1(1).setText("Sr SE Ambapur");
    t1.txtT1(4).setText("2");
    EXPECT_EQ(t1.SectionText, "") << "not before the count changes";
    t1.txtNSeg.setText("1");
    EXPECT_EQ(t1.SectionText.toStdString(), "Sample Section");
    EXPECT_EQ(t1.SrSeNameT1.toStdString(), "Sr SE Ambapur");
    EXPECT_EQ(t1.SrSeIndexT1, 2.0);
    type("txtT1(0)", "Another");
    t1.txtNSeg.setText("1");
    EXPECT_EQ(t1.SectionText.toStdString(), "Sample Section") << "the same text is no change";
}

TEST_F(TrackScreen, AMethodThatIsNotInTheListIsKeptToTheLetter)
{
    frmT1& t1 = openRows(2);
    t1.cboMtc(0).setText("Machine packed");
    for (int i = 0; i < 2; ++i) {
        find("cboMtc(0)").setFocus();
        key("cboMtc(0)", i == 0 ? Qt::Key_Tab : Qt::Key_Return);
        EXPECT_NE(focus(), "cboMtc(0)");
        EXPECT_EQ(text("cboMtc(0)"), "Machine packed");
    }
}

}  // namespace
