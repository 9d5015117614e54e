#include "support/tsv.h"
#include "track/track_import.h"

namespace {

TEST_F(TrackImport, ShowsTheTableWithHeadingsAndMargin)
{
    open(sample("1-ambapur.mdb"));
    EXPECT_TRUE(shown("TrGrid"));
    const auto& grid = dynamic_cast<const controls::DataGrid&>(find("TrGrid"));
    int row = 0;
    for (const auto& line : readTsv(std::string(CREWMARK_EXPECTED) + "/cells/1-ambapur.TR.tsv")) {
        EXPECT_EQ(grid.TextMatrix(row, 0), "");
        ASSERT_EQ(line.size(), 13U) << "fields";
        for (int column = 1; column <= 13; ++column)
            EXPECT_EQ(grid.TextMatrix(row, column).toStdString(), line[static_cast<std::size_t>(column) - 1])
                << "row " << row << ", column " << column;
        ++row;
    }
    EXPECT_EQ(row, 6) << "the headings and 5 records";
    EXPECT_EQ(grid.editTriggers(), QAbstractItemView::NoEditTriggers);
}

TEST_F(TrackImport, CopiesTheCountAndEveryFieldOfItsRows)
{
    const frmT1& t1 = open(sample("1-ambapur.mdb"));
    import();
    EXPECT_EQ(text("txtNSeg"), "5");
    EXPECT_EQ(t1.SegCount, 5);
    EXPECT_EQ(shownOf("txtKmf", 0, 15), "1111100000000000");
    EXPECT_EQ(record(0), "1|UP|212.4|248.9|1.2|35.6|14|22|42.6|33.5|Machine Packed");
    EXPECT_EQ(record(1), "2|DN|212.4|248.9|0.8|35.2|14|20|39.8|33.1|Machine Packed");
    EXPECT_EQ(record(2), "3|UP|248.9|271.3|0|22.4|6|9|42.6|21.8|Machine Packed");
    EXPECT_EQ(record(3), "4|DN|248.9|271.3|0|22.4|6|8|39.8|21.8|Machine Packed");
    EXPECT_EQ(record(4), "5|SL|0|8.7|0.4|6.2|2|5|6.5|4.2|Manually Packed");
    for (int i = 5; i < 16; ++i)
        EXPECT_EQ(record(i), preset(i));
    EXPECT_EQ(texts("txtTkm", 0, 4) + texts("txtEqtkm", 0, 4), "||||||||") << "Compute is a step of its own";
    EXPECT_TRUE(enabled("cmdCompute"));
    EXPECT_FALSE(enabled("cmdNext") || enabled("cmdPrint"));
    EXPECT_EQ(focus(), "cmdCompute");
}

TEST_F(TrackImport, LeavesTheOtherRowsAsTheyWere)
{
    frmT1& t1 = open(fixture("count-below-records.mdb"));
    t1.txtKmf(2).setText("99");
    t1.cboLn(15).setText("DN");
    import();
    EXPECT_EQ(text("txtKmf(2)"), "99");
    EXPECT_EQ(text("cboLn(15)"), "DN");
}

TEST_F(TrackImport, OfMoreRecordsThanSegmentsCopiesTheFirstOnes)
{
    open(fixture("count-below-records.mdb"));  // says 2, holds 6
    import();
    EXPECT_EQ(text("txtNSeg"), "2");
    EXPECT_EQ(shownOf("txtSS", 0, 15), "1100000000000000");
    EXPECT_EQ(record(0), madeUp(0));
    EXPECT_EQ(record(1), madeUp(1));
    EXPECT_EQ(record(2), preset(2));
}

TEST_F(TrackImport, OfFewerRecordsThanSegmentsKeepsWhatWasCopiedAndNamesTheMissingRow)
{
    open(fixture("count-above-records.mdb"));  // says 5, holds 3
    dialogs.expectCritical(
        Title,
        "Subscript out of range: row 4 of table TR is missing. Type the figures, or choose a data file that holds it.");
    import();
    EXPECT_EQ(text("txtNSeg"), "5");
    EXPECT_EQ(shownOf("txtSS", 0, 15), "1111100000000000");
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(record(i), madeUp(i));
    EXPECT_EQ(record(3), preset(3));
    EXPECT_TRUE(enabled("cmdCompute")) << "the missing rows may be typed";
    type("txtKmf(3)", "40.7");
    EXPECT_EQ(text("txtKmf(3)"), "40.7");
}

TEST_F(TrackImport, CutsACountAboveSixteenBeforeAnyRowIsCopied)
{
    const frmT1& t1 = open(fixture("count-above-16.mdb"));  // says 20, holds 18
    import();
    EXPECT_EQ(text("txtNSeg"), "16");
    EXPECT_EQ(t1.SegCount, 16);
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(record(i), madeUp(i));
}

TEST_F(TrackImport, ACountOfZeroCopiesNoRow)
{
    const frmT1& t1 = open(fixture("count-zero.mdb"));
    import();
    EXPECT_EQ(text("txtNSeg"), "0");
    EXPECT_EQ(t1.SegCount, 0);
    EXPECT_EQ(shownOf("txtSS", 0, 15), "0000000000000000");
    EXPECT_EQ(record(0), preset(0));
    EXPECT_TRUE(enabled("cmdCompute"));
}

TEST_F(TrackImport, TwiceCopiesTheSameAgain)
{
    open(sample("1-ambapur.mdb"));
    import();
    const std::string first = record(0);
    type("txtKmf(0)", "1");
    type("cboMtc(0)", "Manually Packed");
    click("cmdCopy");
    EXPECT_EQ(record(0), first);
    EXPECT_EQ(text("txtNSeg"), "5");
}

TEST_F(TrackImport, WritesTheMethodsOverWhatTheGaugeHadForced)
{
    open(sample("1-ambapur.mdb"));
    click("optMG");
    import();
    EXPECT_EQ(texts("cboMtc", 0, 4), "Machine Packed|Machine Packed|Machine Packed|Machine Packed|Manually Packed");
    EXPECT_FALSE(locked("cboMtc(0)")) << "the new count released it";
    click("optMG");
    click("cmdCopy");
    EXPECT_EQ(text("cboMtc(0)"), "Machine Packed");
    EXPECT_TRUE(locked("cboMtc(0)")) << "the same count again is no change";
}

TEST_F(TrackImport, WritesTheMethodsOverWhatTheSuburbanBoxHadForced)
{
    open(sample("1-ambapur.mdb"));
    click("chkSub");
    import();
    EXPECT_EQ(text("cboMtc(4)"), "Manually Packed");
    EXPECT_TRUE(locked("cboMtc(4)"));
}

TEST_F(TrackImport, OfAnEmptyTableNamesItsFirstRow)
{
    open(fixture("empty-tables.mdb"));
    EXPECT_TRUE(shown("TrGrid"));
    dialogs.expectCritical(
        Title,
        "Subscript out of range: row 1 of table TR is missing. Type the figures, or choose a data file that holds it.");
    import();
    EXPECT_EQ(text("txtNSeg"), "");
    EXPECT_FALSE(enabled("cmdCompute"));
}

TEST_F(TrackImport, OfANarrowTableKeepsWhatWasCopiedAndNamesTheMissingColumn)
{
    open(fixture("narrow-tables.mdb"));  // six columns: up to "kilometre to"
    dialogs.expectCritical(Title, "Subscript out of range: column 7 of table TR is missing. Type the figures, or "
                                  "choose a data file that holds it.");
    import();
    EXPECT_EQ(text("txtNSeg"), "1");
    EXPECT_EQ(record(0), "1|UP|10|25|||||||Method of Maintenance");
}

// A table of so many columns ends the import where the next cell is missing: what stands left of it has been copied,
// what stands right of it has not.
TEST_F(TrackImport, TakesTheCellsOfARowInTheirOrder)  // slow
{
    // clang-format off
    const std::vector<std::string> untouched = {"",  "",  "1", "Line", "",   "",   "",    "",     "",  "",   "",     "",  "Method of Maintenance"};
    const std::vector<std::string> whole =     {"a", "1", "7", "UP",   "10", "25", "1.5", "12.3", "4", "12", "23.7", "3", "Machine Packed"};
    // clang-format on
    for (std::size_t columns = 2; columns < whole.size(); ++columns) {
        chain.unload<frmT1>();
        open();
        putRecords("TrGrid", {std::vector<std::string>(whole.begin(), whole.begin() + static_cast<int>(columns))});
        dialogs.expectCritical(
            Title, "Subscript out of range: column " + std::to_string(columns + 1) +
                       " of table TABLE is missing. Type the figures, or choose a data file that holds it.");
        import();
        std::string expected;
        for (std::size_t field = 2; field < whole.size(); ++field)
            expected += (field > 2 ? "|" : "") + (field < columns ? whole : untouched)[field];
        EXPECT_EQ(record(0), expected) << columns << " columns";
    }
}

}  // namespace
