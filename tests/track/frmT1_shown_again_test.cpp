// The track screen shown again after another name or data file has been given on the start screen.

#include <QAbstractItemModel>

#include "screens/controls/data_grid.h"
#include "track/track_import.h"

namespace {

class TrackShownAgain : public TrackImport {};

TEST_F(TrackShownAgain, AnotherFileChosenSinceIsReadWhileNothingHasBeenEntered)
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
class TrackEntered : public TrackShownAgain, public testing::WithParamInterface<const char*> {};

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

// Typed and taken back, or never filled: nothing stands there.
TEST_F(TrackShownAgain, AnEntryTakenBackIsNone)
{
    open("");
    type("txtT1(0)", "Sample Section");
    type("txtT1(0)", "");
    open(sample("1-ambapur.mdb"));
    EXPECT_TRUE(shown("TrGrid"));
}

TEST_F(TrackShownAgain, AComputedScreenKeepsItsTable)
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

TEST_F(TrackShownAgain, AFileChosenAtLastIsReadWhenTheScreenComesBack)
{
    open("");
    EXPECT_TRUE(tells("No data file chosen"));
    open(sample("1-ambapur.mdb"));
    EXPECT_TRUE(shown("TrGrid"));
    EXPECT_TRUE(tells("Choose the gauge: it opens the import."));
    import();
    EXPECT_EQ(text("txtNSeg"), "5");
}

TEST_F(TrackShownAgain, ANameGivenAtLastIsTakenWhenTheScreenComesBack)
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

}  // namespace
