#include <QLabel>
#include <QTableView>

#include "support/tsv.h"
#include "track/track_screen.h"

namespace {

class TrackImport : public TrackScreen {
protected:
    /// Row i as the table "TR" has it: number, line, from, to, extra, concrete (length, turnouts), turnouts, GMT, LWR,
    /// method.
    std::string record(int i)
    {
        std::string all;
        for (const char* array : {"txtSS", "cboLn", "txtKmf", "txtKmt", "txtKm1", "txtConc1", "txtConc2", "txtTout",
                                  "txtGmt", "txtLWR", "cboMtc"})
            all += (all.empty() ? "" : "|") + text(array + ("(" + std::to_string(i) + ")"));
        return all;
    }

    /// An untouched row.
    static std::string preset(int i) { return std::to_string(i + 1) + "|Line|||||||||Method of Maintenance"; }

    /// What stands in the grid's place, or beside its title.
    bool tells(const std::string& part)
    {
        for (const QLabel* label : find("TrGrid").parentWidget()->findChildren<QLabel*>())
            if (label->isVisible() && label->text().contains(QString::fromStdString(part)))
                return true;
        return false;
    }

    void import()
    {
        if (!enabled("cmdCopy"))
            click("optBG");
        click("cmdCopy");
    }
};

// The first three records of the made-up files, over and over with the segment's number counted on.
const char* const Up = "|UP|10|25|1.5|12.3|4|12|23.7|3|Machine Packed";
const char* const Down = "|DN|10|25|0.3|12.3|4|12|0.3|4|Machine Packed";
const char* const Single = "|SL|25|40.7|0|0|0|6|0.1|0|Manually Packed";

std::string madeUp(int i)
{
    return std::to_string(i + 1) + (i % 3 == 0 ? Up : i % 3 == 1 ? Down : Single);
}

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

// Files that do not open

struct Refused {
    const char* name;
    const char* file;
    const char* reason;
};

class RefusedFile : public TrackImport, public testing::WithParamInterface<Refused> {};

TEST_P(RefusedFile, IsToldOnceAndTheReasonStaysInTheGridsPlace)  // slow
{
    chain.get<frmStart>().txtT1(1).setText(QString::fromStdString(fixture(GetParam().file)));
    auto& t1 = chain.get<frmT1>();  // made, but not yet to be seen: no box
    settle();
    ASSERT_EQ(dialogs.open(), 0U);

    dialogs.expectCriticalWith("Tr Data", GetParam().reason);
    on<frmT1>();
    EXPECT_EQ(dialogs.open(), 0U) << "the box did not come";
    EXPECT_FALSE(shown("TrGrid"));
    EXPECT_TRUE(tells(GetParam().reason));
    EXPECT_TRUE(tells(QString(GetParam().file).section('/', -1).toStdString()));

    t1.hide();
    on<frmT1>();  // no second box

    type("txtT1(0)", "Sample Section");
    EXPECT_EQ(text("txtT1(0)"), "Sample Section");
    dialogs.expectCritical(
        Title,
        "Subscript out of range: row 1 of table TR is missing. Type the figures, or choose a data file that holds it.");
    import();
    t1.txtNSeg.setText("1");
    limits(0, "10", "25");
    click("cmdCompute");
    EXPECT_EQ(text("txtTkm(0)"), "15.") << "typed figures count as ever";
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Files, RefusedFile, testing::Values(
    Refused{"Missing",      "no-such-file.mdb",           "There is no file \"no-such-file.mdb\"."},
    Refused{"NoBytes",      "damaged-no-bytes.mdb",       "is not an Access data file"},
    Refused{"AText",        "damaged-text.mdb",           "is not an Access data file"},
    Refused{"HeaderOnly",   "damaged-header-only.mdb",    "is damaged: it ends after its header"},
    Refused{"NoTable",      "no-tables.mdb",              "holds no table \"TR\""},
    Refused{"KillsReader1", "damaged-kills-reader-1.mdb", "is damaged"},
    Refused{"KillsReader2", "damaged-kills-reader-2.mdb", "is damaged"}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST_F(TrackImport, AFileThatKeepsItsReaderBusyForEverIsGivenUp)
{
    dialogs.expectCriticalWith("Tr Data", "\"damaged-endless.mdb\"");
    open(fixture("damaged-endless.mdb"));
    EXPECT_FALSE(shown("TrGrid"));
    EXPECT_TRUE(tells("\"damaged-endless.mdb\""));
}

TEST_F(TrackImport, WhatIsMissingFromADamagedFileIsToldBesideTheGridWithoutABox)
{
    open(fixture("damaged-cut-between-pages.mdb"));
    EXPECT_TRUE(shown("TrGrid"));
    EXPECT_TRUE(tells("The file says 200 records, 105 could be read: it may be damaged."));
    import();  // what could be read is imported as ever
    EXPECT_EQ(text("txtNSeg"), "16");
    EXPECT_EQ(record(15), madeUp(15));
}

TEST_F(TrackImport, ADamagedFileWithoutRecordsLeftIsOpenAndEmpty)
{
    open(fixture("damaged-half.mdb"));
    EXPECT_TRUE(shown("TrGrid"));
    EXPECT_TRUE(tells("The file says 5 records, 0 could be read"));
    dialogs.expectCritical(
        Title,
        "Subscript out of range: row 1 of table TR is missing. Type the figures, or choose a data file that holds it.");
    import();
}

TEST_F(TrackImport, WithoutADataFileThereIsNoBoxAndTheGridsPlaceSaysSo)
{
    for (const char* path : {"", "                  "}) {
        chain.unload<frmT1>();
        open(path);
        EXPECT_FALSE(shown("TrGrid"));
        EXPECT_TRUE(tells("No data file chosen"));
        dialogs.expectCritical(Title, "Subscript out of range: row 1 of table TR is missing. Type the figures, or "
                                      "choose a data file that holds it.");
        import();
        EXPECT_FALSE(enabled("cmdCompute"));
    }
}

TEST_F(TrackImport, AnotherFileChosenSinceIsReadWhenTheScreenComesBack)
{
    const char* const mixed = "The figures in the boxes are from another data file.";
    open(sample("2-eklahra.mdb"));
    import();
    const std::string eklahra = record(0);
    open(sample("2-eklahra.mdb"));
    EXPECT_FALSE(tells(mixed));

    open(sample("1-ambapur.mdb"));
    EXPECT_EQ(record(0), eklahra) << "the boxes are the user's";
    EXPECT_TRUE(tells(mixed));
    click("cmdCopy");
    EXPECT_EQ(record(0), "1|UP|212.4|248.9|1.2|35.6|14|22|42.6|33.5|Machine Packed");
    EXPECT_FALSE(tells(mixed));

    open("");  // as the summary empties it for the next Sr SE
    EXPECT_TRUE(shown("TrGrid"));
    dialogs.expectCriticalWith("Tr Data", "There is no file");
    open(sample("none.mdb"));
    EXPECT_FALSE(shown("TrGrid"));
    EXPECT_TRUE(tells("There is no file"));
    EXPECT_TRUE(tells(mixed));
    dialogs.expectCriticalWith(Title, "row 1 of table TR is missing");
    click("cmdCopy");
    EXPECT_TRUE(tells(mixed)) << "nothing came from there";
    EXPECT_EQ(record(0), "1|UP|212.4|248.9|1.2|35.6|14|22|42.6|33.5|Machine Packed");
}

TEST_F(TrackImport, AFailedImportLeavesNoFiguresOfAnotherFile)
{
    dialogs.expectCriticalWith("Tr Data", "There is no file");
    open(sample("none.mdb"));
    dialogs.expectCriticalWith(Title, "row 1 of table TR is missing");
    import();
    open(sample("1-ambapur.mdb"));
    EXPECT_FALSE(tells("another data file"));
}

TEST_F(TrackImport, AComputedScreenKeepsItsTable)
{
    frmT1& t1 = open(sample("2-eklahra.mdb"));
    import();
    click("cmdCompute");
    ASSERT_TRUE(t1.cmdNext.isEnabled());
    const int rows = dynamic_cast<const controls::DataGrid&>(find("TrGrid")).model()->rowCount();
    open(sample("1-ambapur.mdb"));
    EXPECT_EQ(dynamic_cast<const controls::DataGrid&>(find("TrGrid")).model()->rowCount(), rows);
    EXPECT_NE(rows, 5) << "as many as Ambapur has";
    EXPECT_FALSE(tells("another data file"));
}

TEST_F(TrackImport, AFileChosenAtLastIsReadWhenTheScreenComesBack)
{
    open("");
    EXPECT_TRUE(tells("No data file chosen"));
    open(sample("1-ambapur.mdb"));
    EXPECT_TRUE(shown("TrGrid"));
    EXPECT_TRUE(tells("Choose the gauge: it opens the import."));
    import();
    EXPECT_EQ(text("txtNSeg"), "5");
}

TEST_F(TrackImport, ANameGivenAtLastIsTakenWhenTheScreenComesBack)
{
    frmT1& t1 = open("");
    EXPECT_EQ(text("txtT1(1)"), std::string(18, ' ')) << "as the start screen begins";
    chain.get<frmStart>().txtT1(0).setText("Sr SE Amlapur");
    open(sample("1-ambapur.mdb"));
    EXPECT_EQ(text("txtT1(1)"), "Sr SE Amlapur");
    EXPECT_EQ(t1.DataFilePath.toStdString(), sample("1-ambapur.mdb"));

    import();
    click("cmdCompute");
    ASSERT_TRUE(t1.cmdNext.isEnabled());
    chain.get<frmStart>().txtT1(0).setText("Sr SE Bhimpur");
    on<frmT1>();
    EXPECT_EQ(text("txtT1(1)"), "Sr SE Amlapur") << "the figures are computed under this name";
}

TEST_F(TrackImport, TheFileIsReadOnceWhenTheScreenLoads)
{
    const frmT1& t1 = open(sample("1-ambapur.mdb"));
    chain.get<frmStart>().txtT1(1).setText(QString::fromStdString(sample("2-eklahra.mdb")));
    import();
    EXPECT_EQ(record(0), "1|UP|212.4|248.9|1.2|35.6|14|22|42.6|33.5|Machine Packed");
    EXPECT_EQ(t1.DataFilePath.toStdString(), sample("1-ambapur.mdb"));
}

}  // namespace
