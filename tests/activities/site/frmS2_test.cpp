#include "activities/site/frmS2.h"

#include <QLabel>
#include <set>

#include "activities/site/site_screen.h"

namespace {

// What the screen shows

TEST_F(SecondSiteScreen, CaptionsStandToTheLetter)
{
    const auto& form = open<frmS2>();
    EXPECT_EQ(form.windowTitle().toStdString(), Title);
    for (const char* caption : {"Data Entry for Site Specefic Activities 'S' (Continued)",
                                "Sr S.E. with index-",
                                "Gauge",
                                "     Date (mm-dd-yyyy)",
                                "S.5- Maintenance of Extremely Bad Formations-",
                                "S.6-Look out man duty-",
                                "S.7-Fogsignal man duty-",
                                "S.8-Filth Removal from Track-",
                                "S.9-Security Patrolling-",
                                "S.10-Watching Waterlevels        in Subarban Sections-",
                                "Number of Locations-   ",
                                "(No of Locations needing more than 12 attentions in a year-less than 8 locations) ",
                                "Number of Gangs-   ",
                                "(Max no of Gangs considered as 9 in a Sr S.E.'s beat)",
                                "No. of Gangs having        this type of problem-",
                                "Number of locations-   ",
                                "(Max no of locations considered as 6 in a Sr S.E.'s beat)",
                                "     Length of Location in Metres-",
                                "Length of Track with poor     Visibility   in   the   gang--",
                                "Length of the gang length--",
                                "Total mandays actually utilised in     the past 3  years for this duty-",
                                "Total mandays actually utilised in    the past 3 years for this duty-",
                                "No of Shifts required-",
                                "No of days required at the location-",
                                "Calculated  Mandays -",
                                "Total Number of Calculated Mandays for 'S' Activities - ",
                                "S2 Data"})
        EXPECT_TRUE(says(caption)) << caption;
    EXPECT_EQ(text("cmdData"), "&Data from File");
    EXPECT_EQ(text("cmdCompute"), "&Compute");
    EXPECT_EQ(text("cmdPrint"), "&Print");
    EXPECT_EQ(text("cmdNext"), "&Next");
    EXPECT_EQ(toolTip("cmdPrint"), LockTip);
    EXPECT_EQ(toolTip("cmdNext"), LockTip);
}

TEST_F(SecondSiteScreen, TakesItsHeaderFromTheTrackScreen)
{
    open<frmS2>();
    EXPECT_EQ(texts("txtT1", 0, 2), "Sample Section|Sr SE Ambapur|Km 0 to 100");
    EXPECT_TRUE(says("MG"));
    for (const char* box : {"txtT1(0)", "txtT1(1)", "txtT1(2)", "txtRly(2)"})
        EXPECT_TRUE(locked(box) && pale(box)) << box;
}

TEST_F(SecondSiteScreen, LoadsWithTheRowsOfItsCountsHidden)
{
    const frmS2& form = open<frmS2>();
    EXPECT_EQ(shownOf("txtND", 0, 25), std::string(26, '0'));   // S.5, S.6
    EXPECT_EQ(shownOf("txtND", 26, 31), std::string(6, '1'));   // S.7, S.9: always three years
    EXPECT_EQ(shownOf("txtND", 32, 43), std::string(12, '0'));  // S.10
    EXPECT_EQ(texts("txtND", 0, 43), std::string(43, '|'));
    for (const char* count : {"txtTB1", "txtTB2", "txtTB3", "txtTB4"}) {
        EXPECT_EQ(text(count), "") << count;
        EXPECT_FALSE(locked(count) || pale(count)) << count;
    }
    EXPECT_EQ(results(), "||||||");
    for (int i = 14; i <= 20; ++i) {
        const std::string result = "txtMan" + std::to_string(i);
        EXPECT_TRUE(locked(result) && pale(result)) << result;
    }
    EXPECT_EQ(form.TotalMandays, 0.0F);
    EXPECT_EQ(focus(), "txtTB1");
    EXPECT_TRUE(enabled("cmdData"));
    for (const char* button : {"cmdCompute", "cmdPrint", "cmdNext"})
        EXPECT_FALSE(enabled(button)) << button;
}

TEST_F(SecondSiteScreen, BoxesAreNamedAfterActivityAndPlace)
{
    open<frmS2>();
    EXPECT_EQ(find("txtND(7)").accessibleName().toStdString(), "Length of Location in Metres-, location 8");
    EXPECT_EQ(find("txtND(8)").accessibleName().toStdString(),
              "Length of Track with poor Visibility in the gang--, gang 1");
    EXPECT_EQ(find("txtND(25)").accessibleName().toStdString(), "Length of the gang length--, gang 9");
    EXPECT_EQ(find("txtND(28)").accessibleName().toStdString(),
              "Total mandays actually utilised in the past 3 years for this duty-, year 3, S.7-Fogsignal man duty-");
    EXPECT_EQ(find("txtND(37)").accessibleName().toStdString(), "No of Shifts required-, location 6");
    EXPECT_EQ(find("txtND(38)").accessibleName().toStdString(), "No of days required at the location-, location 1");
    EXPECT_EQ(find("txtMan17").accessibleName().toStdString(), "Calculated Mandays -, S.8-Filth Removal from Track-");
}

TEST_F(SecondSiteScreen, TabGoesThroughTheActivitiesInTheirOrder)
{
    openSuburban();
    type("txtTB1", "1");
    type("txtTB2", "1");
    type("txtTB4", "1");
    const std::vector<std::string> order = {"txtTB1",    "txtND(0)",  "txtTB2",    "txtND(8)",  "txtND(17)",
                                            "txtND(26)", "txtND(27)", "txtND(28)", "txtTB3",    "txtND(29)",
                                            "txtND(30)", "txtND(31)", "txtTB4",    "txtND(32)", "txtND(38)"};
    find("txtTB1").setFocus();
    for (std::size_t i = 1; i < order.size(); ++i) {
        key(order[i - 1], Qt::Key_Tab);
        EXPECT_EQ(focus(), order[i]);
    }
}

TEST_F(SecondSiteScreen, FitsALaptopScreenWithEveryRowShown)
{
    frmS2& form = openSuburban(sample("3-jamunia.mdb"));
    type("txtTB1", "8");
    type("txtTB2", "9");
    type("txtTB4", "6");
    expectNoScrolling(form);
}

// Counts

struct CountCase {
    const char* typed;
    const char* text;
    const char* shown;
};

// clang-format off
const CountCase LocationCases[] = {  // S.5: eight boxes, and the first four of S.6
    // typed     text      shown of txtND(0) to txtND(11)
    {"1",       "1",      "100000000000"},
    {"7",       "7",      "111111100000"},
    {"8",       "8",      "111111110000"},
    {"9",       "8",      "111111110000"},
    {"10",      "8",      "111111110000"},
    {"99999",   "8",      "111111110000"},  // typed digit by digit: the first 9 becomes 8, then 89 becomes 8, ...
    {"0",       "0",      "000000000000"},
    {"-3",      "-3",     "000000000000"},
    {"2.9",     "2.9",    "110000000000"},  // whole part
    {"3 or 4",  "3 or 4", "111000000000"},
    {"none",    "none",   "000000000000"},
};
const CountCase GangCases[] = {  // S.6
    // typed     text      shown of txtND(8) to txtND(16), and of txtND(17) to txtND(25)
    {"1",       "1",      "100000000"},
    {"4",       "4",      "111100000"},
    {"9",       "9",      "111111111"},
    {"12",      "9",      "111111111"},
    {"0",       "0",      "000000000"},
    {"-1",      "-1",     "000000000"},
    {"x",       "x",      "000000000"},
};
const CountCase WaterCases[] = {  // S.10
    // typed     text      shown of txtND(32) to txtND(37), and of txtND(38) to txtND(43)
    {"1",       "1",      "100000"},
    {"5",       "5",      "111110"},
    {"6",       "6",      "111111"},
    {"7",       "6",      "111111"},
    {"0",       "0",      "000000"},
    {"-1",      "-1",     "000000"},
};
// clang-format on

TEST_F(SecondSiteScreen, NumberOfBadFormationsShowsSoManyLengths)
{
    open<frmS2>();
    for (const CountCase& one : LocationCases) {
        type("txtTB1", one.typed);
        EXPECT_EQ(text("txtTB1"), one.text);
        EXPECT_EQ(shownOf("txtND", 0, 11), one.shown) << one.typed;
    }
}

TEST_F(SecondSiteScreen, NumberOfLookOutGangsShowsSoManyPairs)
{
    open<frmS2>();
    for (const CountCase& one : GangCases) {
        type("txtTB2", one.typed);
        EXPECT_EQ(text("txtTB2"), one.text);
        EXPECT_EQ(shownOf("txtND", 8, 16), one.shown) << one.typed;
        EXPECT_EQ(shownOf("txtND", 17, 25), one.shown) << one.typed;
    }
    EXPECT_EQ(shownOf("txtND", 0, 7), "00000000");
    EXPECT_EQ(shownOf("txtND", 26, 31), "111111");
}

TEST_F(SecondSiteScreen, NumberOfWaterLocationsShowsSoManyPairs)
{
    openSuburban();
    for (const CountCase& one : WaterCases) {
        type("txtTB4", one.typed);
        EXPECT_EQ(text("txtTB4"), one.text);
        EXPECT_EQ(shownOf("txtND", 32, 37), one.shown) << one.typed;
        EXPECT_EQ(shownOf("txtND", 38, 43), one.shown) << one.typed;
    }
}

TEST_F(SecondSiteScreen, ACountSetInOneGoIsCutToo)
{
    frmS2& form = openSuburban();
    form.txtTB1.setText("99999");
    form.txtTB2.setText("99999");
    form.txtTB4.setText("1e999");
    EXPECT_EQ(text("txtTB1") + "|" + text("txtTB2") + "|" + text("txtTB4"), "8|9|6");
}

TEST_F(SecondSiteScreen, FilthRemovalHasNoLimit)
{
    open<frmS2>();
    type("txtTB3", "250");
    EXPECT_EQ(text("txtTB3"), "250");
}

// The boxes of S.5 are hidden up to the fourth visibility box of S.6.
TEST_F(SecondSiteScreen, BadFormationsHideTheFirstVisibilityBoxesUntilGangsAreEnteredAgain)
{
    open<frmS2>();
    type("txtTB2", "6");
    EXPECT_EQ(shownOf("txtND", 8, 16), "111111000");
    type("txtTB1", "2");
    EXPECT_EQ(shownOf("txtND", 0, 11), "110000000000");  // 2 to 11 hidden
    EXPECT_EQ(shownOf("txtND", 12, 16), "11000");        // the fifth and sixth gang's are left
    EXPECT_EQ(shownOf("txtND", 17, 25), "111111000");    // the gangs' lengths are not touched
    type("txtTB2", "5");
    EXPECT_EQ(shownOf("txtND", 8, 16), "111110000");
    EXPECT_EQ(shownOf("txtND", 0, 7), "11000000");
}

TEST_F(SecondSiteScreen, HiddenBoxesKeepTheirTexts)
{
    open<frmS2>();
    type("txtTB1", "3");
    type("txtND(2)", "75");
    type("txtTB1", "1");
    EXPECT_FALSE(shown("txtND(2)"));
    type("txtTB1", "3");
    EXPECT_EQ(text("txtND(2)"), "75");
}

// Suburban sections

TEST_F(SecondSiteScreen, WaterIsWatchedOnSuburbanSectionsAlone)
{
    std::vector<std::string> waters = {"txtTB4", "txtMan19"};
    for (int i = 32; i <= 43; ++i)
        waters.push_back("txtND(" + std::to_string(i) + ")");
    const std::multiset<std::string> labels = {
        "Number of locations-   ", "(Max no of locations considered as 6 in a Sr S.E.'s beat)",
        "No of Shifts required-", "No of days required at the location-", "Calculated  Mandays -"};

    for (const bool suburban : {false, true}) {
        const frmS2& form = suburban ? openSuburban() : open<frmS2>();
        for (const std::string& box : waters)
            EXPECT_EQ(enabled(box), suburban) << box;
        std::multiset<std::string> off;
        for (const QLabel* label : form.findChildren<QLabel*>())
            if (!label->isEnabled())
                off.insert(label->text().toStdString());
        EXPECT_EQ(off, suburban ? std::multiset<std::string>() : labels);
        for (const char* box : {"txtTB1", "txtTB2", "txtTB3", "txtND(26)", "txtND(31)", "txtMan18", "txtMan20"})
            EXPECT_TRUE(enabled(box)) << box;
        chain.unload<frmS2>();
        settle();
    }
}

TEST_F(SecondSiteScreen, AGreyedSuburbanBoxIsNotATickedOne)
{
    chain.get<frmT1>().chkSub.setCheckState(Qt::PartiallyChecked);
    open<frmS2>();
    EXPECT_FALSE(enabled("txtTB4"));
}

// Import

TEST_F(SecondSiteScreen, ImportTakesEveryValueFromItsPlace)
{
    open<frmS2>();
    putRecords("GridS2", places(17, 21));
    click("cmdData");
    EXPECT_EQ(text("txtTB1"), "2.02");
    EXPECT_EQ(text("txtTB2"), "5.02");
    EXPECT_EQ(text("txtTB3"), "11.02");
    EXPECT_EQ(text("txtTB4"), "6");  // (15, 2) is cut
    EXPECT_EQ(texts("txtND", 0, 7), "3.03|3.04|3.05|3.06|3.07|3.08|3.09|3.10");
    EXPECT_EQ(texts("txtND", 8, 16), "6.03|6.04|6.05|6.06|6.07|6.08|6.09|6.10|6.11");
    EXPECT_EQ(texts("txtND", 17, 25), "7.03|7.04|7.05|7.06|7.07|7.08|7.09|7.10|7.11");
    EXPECT_EQ(texts("txtND", 26, 28), "9.03|9.04|9.05");
    EXPECT_EQ(texts("txtND", 29, 31), "13.03|13.04|13.05");
    EXPECT_EQ(texts("txtND", 32, 37), "16.03|16.04|16.05|16.06|16.07|16.08");
    EXPECT_EQ(texts("txtND", 38, 43), "17.03|17.04|17.05|17.06|17.07|17.08");
    EXPECT_EQ(shownOf("txtND", 0, 16), "11000000"
                                       "111110000");
    EXPECT_EQ(shownOf("txtND", 17, 25), "111110000");
    EXPECT_TRUE(enabled("cmdCompute"));
    EXPECT_EQ(focus(), "cmdCompute");
    EXPECT_EQ(results(), "||||||");
}

TEST_F(SecondSiteScreen, ImportShowsTheRowsOfTheSample)
{
    open<frmS2>(sample("1-ambapur.mdb"));
    click("cmdData");
    EXPECT_EQ(text("txtTB1") + "|" + text("txtTB2") + "|" + text("txtTB3") + "|" + text("txtTB4"), "3|3|2|0");
    EXPECT_EQ(shownOf("txtND", 0, 7), "11100000");
    EXPECT_EQ(shownOf("txtND", 8, 16), "111000000");  // the number of gangs comes behind the number of locations
    EXPECT_EQ(shownOf("txtND", 17, 25), "111000000");
    EXPECT_EQ(shownOf("txtND", 32, 43), "000000000000");
    EXPECT_EQ(texts("txtND", 0, 16), "120|85|60||||||1.4|0.8|2.1||||||");
    EXPECT_EQ(texts("txtND", 17, 31), "6.5|6.2|7|||||||310|296|342|180|176|205");
}

// A number of gangs that does not change shows nothing again.
TEST_F(SecondSiteScreen, ASecondImportLeavesHiddenWhatBadFormationsHid)
{
    open<frmS2>(sample("1-ambapur.mdb"));
    click("cmdData");
    type("txtTB1", "2");
    click("cmdData");
    EXPECT_EQ(shownOf("txtND", 0, 16), "11100000"
                                       "000000000");
    EXPECT_EQ(texts("txtND", 8, 10), "1.4|0.8|2.1");
}

TEST_F(SecondSiteScreen, TheSummarysFourCellsStayInTheGrid)
{
    const frmS2& form = open<frmS2>(sample("1-ambapur.mdb"));
    click("cmdData");
    click("cmdCompute");
    std::string cells;
    for (int column = 18; column <= 21; ++column)
        cells += form.GridS2.TextMatrix(2, column).toStdString() + "|";
    EXPECT_EQ(cells, "23|31|246|18|");
    EXPECT_EQ(find("GridS2").objectName(), form.GridS2.objectName());
}

TEST_F(SecondSiteScreen, ImportFromAShortTableKeepsWhatCameAndSaysWhatIsMissing)
{
    open<frmS2>();
    putRecords("GridS2", places(15, 21));
    dialogs.expectCriticalWith(Title, "row 16");
    click("cmdData");
    EXPECT_EQ(text("txtTB4"), "6");
    EXPECT_EQ(texts("txtND", 29, 32), "13.03|13.04|13.05|");
    EXPECT_FALSE(enabled("cmdCompute"));
}

TEST_F(SecondSiteScreen, WithoutAFileOneTypes)
{
    open<frmS2>();
    EXPECT_TRUE(says("No data file chosen"));
    EXPECT_FALSE(shown("GridS2"));
    dialogs.expectCriticalWith(Title, "S2");
    click("cmdData");
    EXPECT_FALSE(enabled("cmdCompute"));
}

TEST_F(SecondSiteScreen, TheFirstKeystrokeOpensCompute)
{
    for (const char* box : {"txtTB1", "txtTB2", "txtTB3", "txtTB4", "txtND(26)", "txtND(31)"}) {
        openSuburban();
        EXPECT_FALSE(enabled("cmdCompute"));
        type(box, "1");
        EXPECT_TRUE(enabled("cmdCompute")) << box;
        chain.unload<frmS2>();
        settle();
    }
}

}  // namespace
