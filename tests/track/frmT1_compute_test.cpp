#include "track/track_screen.h"

namespace {

class TrackCompute : public TrackScreen {
protected:
    void expectRevise()
    {
        dialogs.expectCritical("Revise Values of 'Km from' and 'Km to'",
                               "'Kilometer to' can not be less than 'Km from'");
    }

    bool red(const std::string& box) { return find(box).palette().color(QPalette::Text) == QColor(255, 0, 0); }

    /// After a Compute that did not end well.
    void expectStillToCompute()
    {
        EXPECT_TRUE(enabled("cmdCompute"));
        EXPECT_FALSE(enabled("cmdNext"));
        EXPECT_FALSE(enabled("cmdPrint"));
    }
};

struct Row {
    const char* name;
    const char* from;
    const char* to;
    const char* extra;
    const char* turnouts;
    const char* total;
    const char* equivalent;
};

class SegmentLengths : public TrackCompute, public testing::WithParamInterface<Row> {};

TEST_P(SegmentLengths, AreShownThroughTheirPictures)  // slow
{
    openRows(1);
    limits(0, GetParam().from, GetParam().to);
    type("txtKm1(0)", GetParam().extra);
    type("txtTout(0)", GetParam().turnouts);
    click("cmdCompute");
    EXPECT_EQ(text("txtTkm(0)"), GetParam().total);
    EXPECT_EQ(text("txtEqtkm(0)"), GetParam().equivalent);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Typed, SegmentLengths, testing::Values(
    //  name             from      to        extra    t/outs   total    equivalent
    Row{"Worked",        "10",     "25",     "1.5",   "12",    "16.5",  "17.7"},    // 15 + 1.5; 12 x .1 + 16.5
    Row{"EqualLimits",   "25",     "25",     "",      "",      ".",     "."},       // 0; 0
    Row{"BelowOne",      "7",      "7.25",   "0",     "0",     ".25",   ".25"},     // no leading zero
    Row{"Whole",         "3",      "10",     "",      "10",    "7.",    "8."},      // 7; 10 x .1 + 7
    Row{"Rounded",       "0",      "1.005",  "",      "",      "1.01",  "1.01"},    // half away from zero
    Row{"Lenient",       "10km",   " 25 x",  "1.5e0", "12 no", "16.5",  "17.7"},    // the numbers at the start
    Row{"NoNumbers",     "abc",    "-",      "?",     "",      ".",     "."},       // all count as 0
    Row{"NegativeExtra", "10",     "12",     "-3",    "5",     "-1.",   "-.5"},     // 2 - 3; 5 x .1 - 1
    Row{"OnlyTurnouts",  "",       "",       "",      "3",     ".",     ".3"}),     // 0; 3 x .1
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST_F(TrackCompute, EndedWellOpensNextAndPrintLocksTheCountAndIsDoneForGood)
{
    const frmT1& t1 = openRows(1);
    limits(0, "10", "25");
    click("cmdCompute");
    EXPECT_EQ(t1.ComputeError, 0);
    EXPECT_TRUE(enabled("cmdNext"));
    EXPECT_TRUE(enabled("cmdPrint"));
    EXPECT_TRUE(locked("txtNSeg"));
    EXPECT_FALSE(enabled("cmdCompute"));
    EXPECT_EQ(focus(), "cmdPrint");
    type("txtKmt(0)", "30");
    EXPECT_FALSE(enabled("cmdCompute"));
    EXPECT_EQ(text("txtTkm(0)"), "15.");
}

TEST_F(TrackCompute, KeepsEveryRowForLaterScreens)
{
    frmT1& t1 = openRows(2);
    type("cboLn(0)", "UP");
    type("cboLn(1)", "branch");
    limits(0, "10", "25");
    limits(1, "25", "40.7");
    type("txtSS(1)", " 2.5 ");
    type("txtKm1(0)", "1.5");
    type("txtTout(0)", "12");
    type("txtLWR(0)", "0.1");
    chain.get<frmStart>().txtT1(4).setText("4");
    click("cmdCompute");
    EXPECT_EQ(t1.segments[0].SegNo, 1.0F);
    EXPECT_EQ(t1.segments[1].SegNo, 2.5F);
    EXPECT_EQ(t1.segments[0].SegLine.toStdString(), "UP");
    EXPECT_EQ(t1.segments[1].SegLine.toStdString(), "branch");
    EXPECT_EQ(t1.segments[0].KmFrom, 10.0);
    EXPECT_EQ(t1.segments[1].KmTo, 40.7);
    EXPECT_EQ(t1.segments[0].KmExtra, 1.5);
    EXPECT_EQ(t1.segments[0].LwrKm, 0.1F);
    EXPECT_EQ(t1.segments[0].Turnouts, 12.0);
    EXPECT_EQ(t1.segments[0].TotalKm, 16.5);          // 25 - 10 + 1.5
    EXPECT_DOUBLE_EQ(t1.segments[0].EqLength, 17.7);  // 12 x .1 + 16.5
    EXPECT_DOUBLE_EQ(t1.segments[1].TotalKm, 15.7);   // 40.7 - 25, not rounded
    EXPECT_EQ(t1.SrSeIndexAtCompute, 4.0) << "as it stands on the start screen at Compute";
    EXPECT_EQ(text("txtT1(4)"), "1") << "as it stood when this screen was loaded";
}

TEST_F(TrackCompute, LeavesTheRowsBehindTheCountAlone)
{
    frmT1& t1 = openRows(1);
    t1.txtKmf(1).setText("10");
    t1.txtKmt(1).setText("25");
    t1.txtSS(1).setText("no number");
    t1.txtLWR(1).setText("5");
    click("cmdCompute");
    EXPECT_EQ(t1.txtTkm(1).text(), "");
    EXPECT_EQ(t1.segments[1].TotalKm, 0.0);
    EXPECT_EQ(t1.LwrTotal, 0.0F);
}

TEST_F(TrackCompute, OfNoRowsEndsWell)
{
    openRows(0);
    click("cmdCompute");
    EXPECT_TRUE(enabled("cmdNext"));
    EXPECT_FALSE(enabled("cmdCompute"));
}

// Limits the wrong way round

TEST_F(TrackCompute, ARowTheWrongWayRoundTurnsRedIsToldOnceAndTheOthersAreComputed)
{
    const frmT1& t1 = openRows(3);
    limits(0, "10", "25");
    limits(1, "25", "10");
    limits(2, "0", "8.7");
    expectRevise();
    click("cmdCompute");
    EXPECT_EQ(dialogs.open(), 0U);
    EXPECT_EQ(t1.ComputeError, 1);
    EXPECT_TRUE(red("txtKmf(1)") && red("txtKmt(1)"));
    EXPECT_FALSE(red("txtKmf(0)") || red("txtKmt(0)") || red("txtKmf(2)") || red("txtKmt(2)"));
    EXPECT_EQ(texts("txtTkm", 0, 2), "15.||8.7");
    EXPECT_EQ(texts("txtEqtkm", 0, 2), "15.||8.7");
    expectStillToCompute();
    EXPECT_EQ(focus(), "txtKmf(1)") << "where there is something to revise";
}

TEST_F(TrackCompute, TwoRowsTheWrongWayRoundAreToldTwice)
{
    openRows(3);
    limits(0, "25", "10");
    limits(1, "10", "25");
    limits(2, "1", "0");
    expectRevise();
    expectRevise();
    click("cmdCompute");
    EXPECT_EQ(dialogs.open(), 0U);
    EXPECT_TRUE(red("txtKmf(0)") && red("txtKmt(2)"));
    EXPECT_EQ(texts("txtTkm", 0, 2), "|15.|");
    EXPECT_EQ(focus(), "txtKmf(0)");
}

TEST_F(TrackCompute, RevisedLimitsTurnBlackAndTheComputeEndsWell)
{
    const frmT1& t1 = openRows(1);
    const QColor black = find("txtKmf(0)").palette().color(QPalette::Text);
    limits(0, "25", "10");
    expectRevise();
    click("cmdCompute");
    type("txtKmt(0)", "30");
    EXPECT_TRUE(red("txtKmt(0)")) << "until the next Compute";
    click("cmdCompute");
    EXPECT_EQ(find("txtKmf(0)").palette().color(QPalette::Text), black);
    EXPECT_EQ(find("txtKmt(0)").palette().color(QPalette::Text), black);
    EXPECT_EQ(t1.ComputeError, 0);
    EXPECT_EQ(text("txtTkm(0)"), "5.");
    EXPECT_TRUE(enabled("cmdNext") && enabled("cmdPrint"));
    EXPECT_FALSE(enabled("cmdCompute"));
}

TEST_F(TrackCompute, ARowThatIsSkippedKeepsItsFormerFigures)
{
    const frmT1& t1 = openRows(2);
    limits(0, "10", "25");
    type("txtKm1(0)", "1");
    type("txtTout(0)", "10");
    type("txtLWR(0)", "3");
    limits(1, "25", "10");
    expectRevise();
    click("cmdCompute");
    EXPECT_EQ(text("txtTkm(0)"), "16.");    // 15 + 1
    EXPECT_EQ(text("txtEqtkm(0)"), "17.");  // 10 x .1 + 16

    limits(0, "30", "20");
    type("txtKm1(0)", "2");
    type("txtTout(0)", "20");
    type("txtLWR(0)", "4");
    expectRevise();
    expectRevise();
    click("cmdCompute");
    EXPECT_EQ(t1.segments[0].KmFrom, 30.0);
    EXPECT_EQ(t1.segments[0].KmTo, 20.0);
    EXPECT_EQ(t1.segments[0].KmExtra, 1.0);
    EXPECT_EQ(t1.segments[0].LwrKm, 3.0F);
    EXPECT_EQ(t1.segments[0].Turnouts, 10.0);
    EXPECT_EQ(t1.segments[0].TotalKm, 16.0);
    EXPECT_EQ(t1.segments[0].EqLength, 17.0);
    EXPECT_EQ(text("txtTkm(0)"), "16.");
    EXPECT_EQ(text("txtEqtkm(0)"), "17.");
    EXPECT_EQ(t1.LwrTotal, 3.0F) << "its rail is not added";
}

// Long welded rail

TEST_F(TrackCompute, AddsUpTheWeldedRail)
{
    const frmT1& t1 = openRows(2);
    limits(0, "10", "25");
    limits(1, "25", "40");
    type("txtLWR(0)", "3");
    type("txtLWR(1)", "4");
    click("cmdCompute");
    EXPECT_EQ(t1.LwrTotal, 7.0F);
}

TEST_F(TrackCompute, ASecondComputeAddsTheRailOfTheRowsThatPassedOnceMore)
{
    const frmT1& t1 = openRows(2);
    limits(0, "10", "25");
    limits(1, "40", "25");
    type("txtLWR(0)", "3");
    type("txtLWR(1)", "4");
    expectRevise();
    click("cmdCompute");
    EXPECT_EQ(t1.LwrTotal, 3.0F);
    limits(1, "25", "40");
    click("cmdCompute");
    EXPECT_EQ(t1.LwrTotal, 10.0F);  // 3 + 3 + 4
}

TEST_F(TrackCompute, TheRailIsARunningSingle)
{
    const frmT1& t1 = openRows(3);
    type("txtLWR(0)", "16777216");
    type("txtLWR(1)", "1");
    type("txtLWR(2)", "1");
    click("cmdCompute");
    EXPECT_EQ(t1.LwrTotal, 16777216.0F);  // 2^24 + 1 is no single, twice; a double would give 2^24 + 2
}

// Errors

TEST_F(TrackCompute, ASegmentNumberThatIsNoneEndsTheComputeAtItsRow)
{
    const frmT1& t1 = openRows(3);
    for (int i = 0; i < 3; ++i)
        limits(i, "10", "25");
    for (const char* number : {"2a", "", "1,5", "two"}) {
        type("txtSS(1)", number);
        dialogs.expectCriticalWith(Title, "Type mismatch: the number of segment 2 is not a number");
        click("cmdCompute");
        EXPECT_EQ(dialogs.open(), 0U) << number;
        EXPECT_EQ(texts("txtTkm", 0, 2), "15.||") << "rows are computed and shown one by one";
        EXPECT_EQ(t1.segments[1].KmFrom + t1.segments[1].KmTo, 0.0) << "the number is read before the limits";
        expectStillToCompute();
        EXPECT_EQ(focus(), "txtSS(1)");
    }
    type("txtSS(1)", "2");
    click("cmdCompute");
    EXPECT_EQ(texts("txtTkm", 0, 2), "15.|15.|15.");
    EXPECT_TRUE(enabled("cmdNext"));
}

TEST_F(TrackCompute, RailBeyondASingleIsAnOverflow)
{
    const frmT1& t1 = openRows(1);
    type("txtLWR(0)", "1e39");
    dialogs.expectCriticalWith(Title, "Overflow: the welded rail of segment 1");
    click("cmdCompute");
    expectStillToCompute();
    EXPECT_EQ(t1.LwrTotal, 0.0F);
}

TEST_F(TrackCompute, RailWhoseSumLeavesTheRangeIsAFloatingPointError)
{
    const frmT1& t1 = openRows(2);
    type("txtLWR(0)", "3e38");
    type("txtLWR(1)", "3e38");  // the largest single is 3.4e38
    dialogs.expectCriticalWith(Title, "loating-point error: the total of long welded rail");
    click("cmdCompute");
    expectStillToCompute();
    EXPECT_EQ(t1.LwrTotal, 3e38F);
    EXPECT_EQ(texts("txtTkm", 0, 1), ".|.") << "the row's lengths are shown before its rail is added";
    EXPECT_EQ(focus(), "txtLWR(1)");
}

TEST_F(TrackCompute, AFigureTooLargeForAnyNumberEndsTheCompute)
{
    openRows(1);
    limits(0, "1e400", "25");
    dialogs.expectCriticalWith(Title, "Overflow: ");
    click("cmdCompute");
    expectStillToCompute();
}

}  // namespace
