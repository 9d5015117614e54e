// Data files that the user has a say in: one that can only be read unconfined, and one that was written to meanwhile.

#include <filesystem>
#include <string>

#include <QTemporaryDir>

#include "start/frmStart.h"
#include "support/screen_test.h"
#include "track/frmT1.h"
#include "track/frmT2.h"

namespace {

const std::string Question =
    "This system cannot confine the program that reads data files: a file made to do harm could do whatever you can "
    "do. Read data files all the same, until Crewmark ends?";
const std::string NotRead =
    "\"unconfined.mdb\" is not read: this system cannot confine the program that reads data files. Type the figures, "
    "or start Crewmark again and allow it.";

/// The screens with a stand-in for the reader, which goes by the name of the file.
class DataFileQuestion : public ScreenTest {
protected:
    DataFileQuestion() { chain.dataFile() = store::DataFile(CREWMARK_STAND_IN); }

    void openTrackScreen(const std::string& path)
    {
        on<frmStart>().txtT1(1).setText(QString::fromStdString(path));
        on<frmT1>();
    }
};

TEST_F(DataFileQuestion, IsAskedOnceAndAllowedForAllScreens)
{
    dialogs.expectYesNo("Tr Data", Question, true);
    openTrackScreen("/folder/unconfined.mdb");
    EXPECT_TRUE(shown("TrGrid"));
    EXPECT_FALSE(says(NotRead));
    click("optBG");
    click("cmdCopy");
    EXPECT_EQ(texts("txtKmt", 0, 0), "25");

    on<frmT2>();  // asks nothing
    EXPECT_TRUE(shown("SoilGrid"));
}

TEST_F(DataFileQuestion, AnsweredNoNothingIsReadAndNothingAskedAgain)
{
    dialogs.expectYesNo("Tr Data", Question, false);
    openTrackScreen("/folder/unconfined.mdb");
    EXPECT_FALSE(shown("TrGrid"));
    EXPECT_TRUE(says(NotRead));

    dialogs.expectCritical("Soil Data", NotRead);
    on<frmT2>();
    EXPECT_TRUE(says(NotRead));
}

TEST_F(DataFileQuestion, AnImportReadsAFileThatWasWrittenToAgain)
{
    const QTemporaryDir folder;
    openTrackScreen(folder.filePath("saved.mdb").toStdString());
    const std::string notice = "The file was written to while it was read: import again.";
    EXPECT_TRUE(says(notice));
    click("optBG");
    click("cmdCopy");
    EXPECT_EQ(texts("txtKmt", 0, 0), "25") << "not the 999 of the first reading";
    EXPECT_FALSE(says(notice));
}

}  // namespace
