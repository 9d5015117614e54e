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

TEST_F(TrackImport, TheFileIsReadOnceWhenTheScreenLoads)
{
    const frmT1& t1 = open(sample("1-ambapur.mdb"));
    chain.get<frmStart>().txtT1(1).setText(QString::fromStdString(sample("2-eklahra.mdb")));
    import();
    EXPECT_EQ(record(0), "1|UP|212.4|248.9|1.2|35.6|14|22|42.6|33.5|Machine Packed");
    EXPECT_EQ(t1.DataFilePath.toStdString(), sample("1-ambapur.mdb"));
}

}  // namespace
