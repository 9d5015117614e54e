#include "start/frmStart.h"

#include <QFileInfo>
#include <QLabel>

#include "support/lock_tip.h"
#include "support/screen_test.h"
#include "track/frmT1.h"

namespace {

const char* const Blanks = "                  ";  // 18 of them

class StartScreen : public ScreenTest {
protected:
    /// What the box holds, whatever its change would make of it.
    void putUnseen(int i, const QString& text)
    {
        start.txtT1(i).blockSignals(true);
        start.txtT1(i).setText(text);
        start.txtT1(i).blockSignals(false);
    }

    frmStart& start = on<frmStart>();
};

TEST_F(StartScreen, BearsItsCaptionAndItsTexts)
{
    EXPECT_EQ(start.windowTitle().toStdString(), "Calculations of Crewmark Based on PLKTN Commitees's Report");
    EXPECT_EQ(text("LblRly"), "     Date (mm-dd-yyyy)");
    EXPECT_TRUE(says("Railway ?"));
    EXPECT_TRUE(says("Division ?"));
    EXPECT_TRUE(says("No of Sr SE's on the Division            (Not to excced 15)"));
    EXPECT_TRUE(says("Sr SE"));
    EXPECT_TRUE(says("Index"));
    EXPECT_TRUE(says(" Data File of the Sr S.E.      "));
    EXPECT_EQ(text("lblUpdate"), "Program updated on 31-03-2008");
    EXPECT_EQ(text("lblTitle(1)"), "Calculations of Crewmark\nBased on PLKTM Committee's Report");
    EXPECT_EQ(find("lblTitle(1)").font().family().toStdString(), "Times New Roman");
    EXPECT_EQ(text("cmdFile"), "Browse");
    EXPECT_EQ(text("cmdPrint"), "&Print");
    EXPECT_EQ(text("cmdProceed"), "&Proceed");
    EXPECT_TRUE(shown("Image1"));
}

TEST_F(StartScreen, IntroducesTheProgramAndKeepsTheTopicAndItemOfItsLink)
{
    const std::string introduction = text("lblTitle(0)");
    EXPECT_NE(introduction.find("interactive program"), std::string::npos) << introduction;
    EXPECT_NE(introduction.find("PLKTM Committee's report"), std::string::npos) << introduction;
    const QWidget& label = find("lblTitle(0)");
    EXPECT_EQ(label.property("LinkTopic").toString().toStdString(), "Excel|D:\\QVK\\[MANPOWER.xls]INSTRUCTIONS");
    EXPECT_EQ(label.property("LinkItem").toString().toStdString(), "R4C1:R13C9");
}

TEST_F(StartScreen, StartsWithBlankFactsAndIndexOne)
{
    struct Box {
        const char* name;
        const char* text;
        bool locked;
    };
    // clang-format off
    for (const Box& box : {
             Box{"txtT1(5)", "",     false},
             Box{"txtT1(2)", "",     false},
             Box{"txtT1(3)", "",     false},
             Box{"txtT1(0)", Blanks, false},
             Box{"txtT1(4)", "1",    true},
             Box{"txtT1(1)", Blanks, true}}) {
        // clang-format on
        EXPECT_EQ(text(box.name), box.text) << box.name;
        EXPECT_EQ(locked(box.name), box.locked) << box.name;
        EXPECT_EQ(pale(box.name), box.locked) << box.name << ": locked and pale go together";
    }
    EXPECT_TRUE(locked("txtRly(2)"));
    EXPECT_TRUE(pale("txtRly(2)"));
    EXPECT_FALSE(enabled("cmdProceed"));
    EXPECT_TRUE(enabled("cmdFile"));
    EXPECT_TRUE(enabled("cmdPrint"));
    EXPECT_EQ(focus(), "txtT1(5)");
    EXPECT_FALSE(start.txtRly.has(0) || start.txtRly.has(1)) << "the date box alone";
}

TEST_F(StartScreen, PrintAloneWarnsOfTheLock)
{
    EXPECT_EQ(toolTip("cmdPrint"), LockTip);
    EXPECT_EQ(toolTip("cmdProceed"), "");
    EXPECT_EQ(toolTip("cmdFile"), "");
}

TEST_F(StartScreen, FactsStandUnderOneAnotherAndTheDateAtTheTopRight)
{
    start.resize(flow::OpeningSize);
    settle();
    const auto place = [this](const char* name) {
        QWidget& box = find(name);
        return QRect(box.mapTo(&start, QPoint()), box.size());
    };
    const char* const down[] = {"txtRly(2)", "txtT1(5)", "txtT1(2)", "txtT1(3)", "txtT1(0)", "txtT1(1)"};
    for (std::size_t i = 1; i < std::size(down); ++i)
        EXPECT_GT(place(down[i]).top(), place(down[i - 1]).bottom()) << down[i];
    EXPECT_EQ(place("txtT1(1)").center().y(), place("txtT1(4)").center().y()) << "path and index share their row";
    EXPECT_GT(place("txtT1(4)").left(), place("txtT1(1)").right());
    EXPECT_GT(place("txtRly(2)").right(), start.width() - 30);
}

TEST_F(StartScreen, NoLabelWrapsNeedlessly)
{
    start.resize(flow::OpeningSize);
    settle();
    for (const QLabel* label : start.findChildren<QLabel*>())
        if (label->objectName() != "lblTitle(0)") {  // a paragraph
            EXPECT_GE(label->width(), label->sizeHint().width()) << label->text().toStdString();
        }
}

TEST_F(StartScreen, TabGoesDownTheFactsAndOnToTheButtons)
{
    std::string order = focus();
    for (int i = 0; i < 6; ++i) {
        key(focus(), Qt::Key_Tab);
        order += " " + focus();
    }
    EXPECT_EQ(order, "txtT1(5) txtT1(2) txtT1(3) txtT1(0) cmdFile cmdPrint txtT1(5)");
}

struct Count {
    const char* name;
    const char* typed;
    const char* left;
    int count;
};

class NumberOfSrSes : public StartScreen, public testing::WithParamInterface<Count> {};

TEST_P(NumberOfSrSes, IsKeptFromOneToFifteen)
{
    type("txtT1(3)", GetParam().typed);
    EXPECT_EQ(text("txtT1(3)"), GetParam().left);
    EXPECT_EQ(start.SrSeCount, GetParam().count);
    EXPECT_EQ(focus(), "txtT1(3)");
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Typed, NumberOfSrSes, testing::Values(
    //    name            typed     left    count
    Count{"One",          "1",      "1",     1},
    Count{"Fifteen",      "15",     "15",   15},
    Count{"Sixteen",      "16",     "15",   15},
    Count{"Twenty",       "20",     "15",   15},
    Count{"Zero",         "0",      "",      0},
    Count{"NoNumber",     "abc",    "",      0},
    Count{"Negative",     "-3",     "3",     3},   // "-" is no number and goes at once, the 3 remains
    Count{"PastInt16",    "99999",  "15",   15},   // 99 is cut to 15, 159 again, ...
    Count{"Fraction",     "7.9",    "7.9",   7}),  // its whole part counts
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST_F(StartScreen, CountsTooLargeForAnyNumberAreCutWithoutAnError)
{
    start.txtT1(3).setText("1e400");
    EXPECT_EQ(text("txtT1(3)"), "15");
    EXPECT_EQ(start.SrSeCount, 15);
    start.txtT1(3).setText("-1e400");
    EXPECT_EQ(text("txtT1(3)"), "");
    EXPECT_EQ(start.SrSeCount, 0);
}

TEST_F(StartScreen, AChangeOfAnyBoxChecksTheNumberOfSrSes)
{
    for (const int changed : {0, 1, 2, 4, 5}) {
        putUnseen(3, "20");
        start.txtT1(changed).setText("2");
        EXPECT_EQ(text("txtT1(3)"), "15") << "after a change of txtT1(" << changed << ")";
        EXPECT_EQ(start.SrSeCount, 15);
        putUnseen(3, "0");
        start.txtT1(changed).setText("3");
        EXPECT_EQ(text("txtT1(3)"), "") << "after a change of txtT1(" << changed << ")";
        EXPECT_EQ(start.SrSeCount, 0);
    }
}

TEST_F(StartScreen, TypingTheNameChecksTheNumberOfSrSesAndLeavesTheCursorWhereItIs)
{
    putUnseen(0, "Ambpur");
    putUnseen(3, "20");
    start.txtT1(0).setFocus();
    start.txtT1(0).setCursorPosition(3);
    key("txtT1(0)", Qt::Key_A);
    EXPECT_EQ(text("txtT1(0)"), "Ambapur");
    EXPECT_EQ(text("txtT1(3)"), "15");
    EXPECT_EQ(focus(), "txtT1(0)");
    EXPECT_EQ(start.txtT1(0).cursorPosition(), 4);
}

TEST_F(StartScreen, ACutCountLeavesTheCursorWhereTheUserTypes)
{
    type("txtT1(3)", "5");
    start.txtT1(3).setCursorPosition(0);
    key("txtT1(3)", Qt::Key_2);  // 2|5 is more than 15: 1|5
    EXPECT_EQ(text("txtT1(3)"), "15");
    EXPECT_EQ(start.txtT1(3).cursorPosition(), 1);
}

TEST_F(StartScreen, BrowseShowsThePathAndOpensProceed)
{
    dialogs.expectFile(sample("1-ambapur.mdb"));
    click("cmdFile");
    EXPECT_EQ(text("txtT1(1)"), sample("1-ambapur.mdb"));
    EXPECT_TRUE(locked("txtT1(1)"));
    EXPECT_TRUE(enabled("cmdProceed"));
    EXPECT_EQ(focus(), "cmdProceed");
    EXPECT_EQ(toolTip("txtT1(1)"), sample("1-ambapur.mdb")) << "the box shows the end of a long path";
}

TEST_F(StartScreen, BrowseCancelledEmptiesThePathAndOpensProceedAllTheSame)
{
    dialogs.expectFile("");
    click("cmdFile");
    EXPECT_EQ(text("txtT1(1)"), "");
    EXPECT_TRUE(enabled("cmdProceed"));
}

TEST_F(StartScreen, BrowseOpensInTheFolderLastUsed)
{
    dialogs.expectFile(sample("1-ambapur.mdb"));
    click("cmdFile");
    EXPECT_EQ(dialogs.lastFolder(), "");
    dialogs.expectFile("");
    click("cmdFile");
    const std::string folder = QFileInfo(QString::fromStdString(sample("x"))).absolutePath().toStdString();
    EXPECT_EQ(dialogs.lastFolder(), folder);
    dialogs.expectFile(fixture("no-tables.mdb"));
    click("cmdFile");
    EXPECT_EQ(dialogs.lastFolder(), folder) << "a cancelled dialog chooses no folder";
    EXPECT_EQ(text("txtT1(1)"), fixture("no-tables.mdb"));
}

class Proceeding : public StartScreen {
protected:
    Proceeding()
    {
        type("txtT1(5)", "Sample Railway");
        type("txtT1(2)", "Sample Division");
        type("txtT1(3)", "5");
        type("txtT1(0)", "Sr SE Ambapur");
        dialogs.expectFile(sample("1-ambapur.mdb"));
        click("cmdFile");
    }
};

TEST_F(Proceeding, LocksTheFactsOfTheDivisionAndShowsTheTrackScreen)
{
    EXPECT_EQ(start.SrSeName, "") << "nothing is taken before Proceed";
    click("cmdProceed");
    for (const char* fact : {"txtT1(5)", "txtT1(3)", "txtT1(2)"}) {
        EXPECT_TRUE(locked(fact)) << fact;
        EXPECT_TRUE(pale(fact)) << fact;
    }
    EXPECT_FALSE(locked("txtT1(0)")) << "the next Sr SE has another name";
    EXPECT_FALSE(pale("txtT1(0)"));
    EXPECT_EQ(start.SrSeName.toStdString(), "Sr SE Ambapur");
    EXPECT_EQ(start.SrSeIndex, 1.0);
    EXPECT_EQ(start.SrSeCount, 5);
    EXPECT_TRUE(start.isVisible());
    nowOn<frmT1>();
    EXPECT_EQ(text("txtT1(1)"), "Sr SE Ambapur");
}

TEST_F(Proceeding, TakesNameAndIndexAsTheyStandWhenItIsPressed)
{
    click("cmdProceed");
    type("txtT1(0)", "Sr SE Eklahra");
    start.txtT1(4).setText("2");
    EXPECT_EQ(start.SrSeName.toStdString(), "Sr SE Ambapur");
    EXPECT_EQ(start.SrSeIndex, 1.0);
    click("cmdProceed");
    EXPECT_EQ(start.SrSeName.toStdString(), "Sr SE Eklahra");
    EXPECT_EQ(start.SrSeIndex, 2.0);
    start.txtT1(4).setText("");
    click("cmdProceed");
    EXPECT_EQ(start.SrSeIndex, 0.0);
}

TEST_F(Proceeding, TwiceShowsTheSameTrackScreenAgain)
{
    click("cmdProceed");
    const auto& first = nowOn<frmT1>();
    type("txtT1(0)", "Sample Section");
    on<frmStart>();
    click("cmdProceed");
    EXPECT_EQ(&nowOn<frmT1>(), &first);
    EXPECT_EQ(text("txtT1(0)"), "Sample Section");
    on<frmStart>();
    for (const char* fact : {"txtT1(5)", "txtT1(3)", "txtT1(2)"})
        EXPECT_TRUE(locked(fact) && pale(fact)) << fact;
}

TEST_F(StartScreen, ProceedAsksForNothingToBeFilledIn)
{
    dialogs.expectFile("");
    click("cmdFile");
    click("cmdProceed");
    EXPECT_EQ(start.SrSeName.toStdString(), Blanks);
    EXPECT_EQ(start.SrSeCount, 0);
    nowOn<frmT1>();
    EXPECT_EQ(text("txtT1(1)"), Blanks);
    EXPECT_EQ(text("txtT1(4)"), "1");
}

}  // namespace
