// The data file behind the track screen: one that does not open, is damaged, or is changed for another.
#include "track/track_import.h"

namespace {

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

TEST_F(TrackImport, AnotherFileChosenSinceIsReadWhileNothingHasBeenEntered)
{
    open(sample("2-eklahra.mdb"));
    dialogs.expectCriticalWith("Tr Data", "There is no file");
    open(sample("none.mdb"));
    EXPECT_FALSE(shown("TrGrid"));
    EXPECT_TRUE(tells("There is no file"));
    open("");
    EXPECT_TRUE(tells("No data file chosen"));
    const frmT1& t1 = open(sample("1-ambapur.mdb"));
    EXPECT_EQ(t1.DataFilePath.toStdString(), sample("1-ambapur.mdb"));
    import();
    EXPECT_EQ(text("txtKmf(0)") + "-" + text("txtKmt(0)"), "212.4-248.9");
}

// Figures of one file under the name of another, or half of each, would be wrong on every sheet of the Sr SE.
class TrackEntered : public TrackImport, public testing::WithParamInterface<const char*> {};

TEST_P(TrackEntered, KeepsItsNameAndItsFile)
{
    chain.get<frmStart>().txtT1(0).setText("Sr SE Eklahra");
    const frmT1& t1 = open(sample("2-eklahra.mdb"));
    const std::string how = GetParam();
    if (how == "ATypedSection")
        type("txtT1(0)", "Sample Section");
    else if (how == "AChosenGauge")
        click("optBG");
    else
        import();

    chain.get<frmStart>().txtT1(0).setText("Sr SE Ambapur");
    open(sample("1-ambapur.mdb"));
    EXPECT_EQ(text("txtT1(1)"), "Sr SE Eklahra");
    EXPECT_EQ(t1.DataFilePath.toStdString(), sample("2-eklahra.mdb"));
    import();
    EXPECT_EQ(text("txtNSeg"), "3") << "Ambapur has 5 segments";
}

INSTANTIATE_TEST_SUITE_P(By, TrackEntered, testing::Values("ATypedSection", "AChosenGauge", "AnImport"),
                         [](const auto& how) { return how.param; });

// Typed and taken back: nothing stands there.
TEST_F(TrackImport, AnEntryTakenBackIsNone)
{
    open(sample("2-eklahra.mdb"));
    type("txtT1(0)", "Sample Section");
    type("txtT1(0)", "");
    open(sample("1-ambapur.mdb"));
    import();
    EXPECT_EQ(text("txtNSeg"), "5");
}

// There is nothing yet that another file's figures could be taken for.
TEST_F(TrackImport, AScreenWithoutATableTakesAFileUpBesideWhatHasBeenEntered)
{
    const frmT1& t1 = open("");
    type("txtT1(0)", "Sample Section");
    open(sample("1-ambapur.mdb"));
    EXPECT_EQ(text("txtT1(0)"), "Sample Section");
    EXPECT_EQ(t1.DataFilePath.toStdString(), sample("1-ambapur.mdb"));
    open(sample("2-eklahra.mdb"));
    import();
    EXPECT_EQ(text("txtNSeg"), "5") << "this one it keeps";
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
