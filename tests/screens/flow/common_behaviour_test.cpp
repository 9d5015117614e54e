#include <QApplication>
#include <QDate>
#include <QLocale>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "start/frmStart.h"
#include "support/screen_test.h"
#include "track/frmT1.h"
#include "track/frmT2.h"

namespace {

/// frmT1, computed, stands for every data screen.
class DataScreenTest : public ScreenTest {  // slow
protected:
    DataScreenTest()
    {
        chain.get<frmStart>().txtT1(1).setText(QString::fromStdString(sample("1-ambapur.mdb")));
        on<frmT1>();
        click("optBG");
        click("cmdCopy");
        click("cmdCompute");
        EXPECT_TRUE(enabled("cmdNext") && enabled("cmdPrint"));
    }

    std::string pdf(const std::string& name = "print.pdf") const
    {
        return folder.filePath(QString::fromStdString(name)).toStdString();
    }

    void print(int copies, const std::string& path)
    {
        dialogs.expectPrint({.firstPage = 0, .lastPage = 0, .copies = copies}, path);
        click("cmdPrint");
        EXPECT_EQ(dialogs.open(), 0U) << "the print dialog did not come";
    }

    /// Next asks its question, which is answered with Yes: the user stays.
    void expectNextAsks()
    {
        expectPrintQuestion(true);
        click("cmdNext");
        EXPECT_EQ(dialogs.open(), 0U) << "Next did not ask";
        EXPECT_FALSE(chain.isLoaded<frmT2>());
    }

    void expectNextMovesOnAtOnce()
    {
        click("cmdNext");
        ASSERT_TRUE(chain.isLoaded<frmT2>());
        EXPECT_TRUE(chain.get<frmT2>().isVisible());
    }

    frmT1& form() { return chain.get<frmT1>(); }

    QTemporaryDir folder;
};

// Next

TEST_F(DataScreenTest, NextOnAFormNeverPrintedAsksAndYesKeepsTheScreen)
{
    EXPECT_EQ(form().Printed, 0);
    dialogs.expectYesNo("Forgot to take a print of the Form !", "Do you want to take a print of the form ?", true);
    click("cmdNext");
    EXPECT_EQ(dialogs.open(), 0U);
    EXPECT_FALSE(chain.isLoaded<frmT2>());
    EXPECT_TRUE(form().isVisible());
    EXPECT_EQ(focus(), "cmdPrint");
    expectNextAsks();  // every time
}

TEST_F(DataScreenTest, NoMovesOnAndTheScreenStaysBehind)
{
    expectPrintQuestion(false);
    click("cmdNext");
    EXPECT_TRUE(form().isVisible());
    nowOn<frmT2>();
    EXPECT_FALSE(chain.get<frmT2>().isModal());
    EXPECT_EQ(form().Printed, 0);
}

TEST_F(DataScreenTest, NextAgainShowsTheSameNextScreenWithItsContents)
{
    expectPrintQuestion(false);
    click("cmdNext");
    auto& t2 = nowOn<frmT2>();
    type("txtRain(0)", "120");
    t2.hide();
    on<frmT1>();
    expectPrintQuestion(false);
    click("cmdNext");
    EXPECT_EQ(&nowOn<frmT2>(), &t2);
    EXPECT_EQ(text("txtRain(0)"), "120");
    const QWidgetList windows = QApplication::topLevelWidgets();
    EXPECT_EQ(std::count_if(windows.begin(), windows.end(),
                            [](const QWidget* window) { return window->objectName() == "frmT2"; }),
              1);
}

// Print

TEST_F(DataScreenTest, ThreeCopiesAreThreePagesOfOnePrintOutAndNextMovesOnAtOnce)
{
    print(3, pdf());
    EXPECT_EQ(pagesOf(pdf()), 3);
    EXPECT_EQ(form().Printed, 1);
    expectNextMovesOnAtOnce();
}

TEST_F(DataScreenTest, ThePageRangeIsReadAndNotUsed)
{
    dialogs.expectPrint({.firstPage = 2, .lastPage = 5, .copies = 1}, pdf());
    click("cmdPrint");
    EXPECT_EQ(pagesOf(pdf()), 1);
    EXPECT_EQ(form().Printed, 1);
}

TEST_F(DataScreenTest, APrintOutIsOfferedUnderANameOfItsOwn)
{
    chain.get<frmStart>().txtT1(4).setText("7");
    print(1, pdf());
    EXPECT_EQ(dialogs.lastSheet(), "7 - Entering Track Data");
    chain.get<frmStart>().txtT1(0).setText("Sr SE Ambapur");
    print(1, pdf());
    EXPECT_EQ(dialogs.lastSheet(), "7 Sr SE Ambapur - Entering Track Data");
}

TEST_F(DataScreenTest, NoCopiesPrintNothingYetCountAsPrinted)
{
    for (const int copies : {0, -2}) {
        form().Printed = 0;
        print(copies, pdf());
        EXPECT_FALSE(QFile::exists(QString::fromStdString(pdf())));
        EXPECT_EQ(form().Printed, 1) << copies << " copies";
    }
    expectNextMovesOnAtOnce();
}

TEST_F(DataScreenTest, PrintCancelledPrintsNothingAndNextStillAsks)
{
    dialogs.expectPrintCancelled();
    click("cmdPrint");
    EXPECT_EQ(form().Printed, 0);
    expectNextAsks();
}

TEST_F(DataScreenTest, AnErrorWhilePrintingEndsThePrintQuietlyAndNextStillAsks)
{
    for (const std::string& path : {pdf("no-such-folder/print.pdf"), std::string("/dev/full")}) {
        print(1, path);
        EXPECT_EQ(form().Printed, 0) << path;
        expectNextAsks();
    }
    print(1, pdf());
    EXPECT_EQ(form().Printed, 1) << "Print can be repeated";
    expectNextMovesOnAtOnce();
}

TEST_F(DataScreenTest, NumbersBeyondSixteenBitsEndThePrintQuietly)
{
    // clang-format off
    for (const flow::PrintChoice& choice : {flow::PrintChoice{40000,     1,     1},
                                            flow::PrintChoice{    1, 40000,     1},
                                            flow::PrintChoice{    1,     1, 40000}}) {
        // clang-format on
        dialogs.expectPrint(choice, pdf());
        click("cmdPrint");
        EXPECT_FALSE(QFile::exists(QString::fromStdString(pdf())));
        EXPECT_EQ(form().Printed, 0);
    }
}

TEST_F(DataScreenTest, PrintedIsNeverClearedAgain)
{
    print(1, pdf());
    type("txtT1(0)", "another section");
    dialogs.expectPrintCancelled();
    click("cmdPrint");
    print(1, "/dev/full");
    EXPECT_EQ(form().Printed, 1);
    expectNextMovesOnAtOnce();
}

TEST_F(DataScreenTest, TheStartScreenPrintsToo)
{
    on<frmStart>();
    print(2, pdf());
    EXPECT_EQ(pagesOf(pdf()), 2);
}

// The clock

class Clock : public ScreenTest {  // slow
protected:
    static std::string today()
    {
        return QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat).toStdString();
    }
};

TEST_F(Clock, ShowsTheDateFromTheStartInTheSystemsShortForm)
{
    on<frmStart>();
    EXPECT_EQ(text("txtRly(2)"), today());
    on<frmT1>();
    EXPECT_EQ(text("txtRly(2)"), today());
    EXPECT_TRUE(locked("txtRly(2)") && pale("txtRly(2)"));
}

TEST_F(Clock, TouchesTheBoxOnlyWhenTheDateHasChanged)
{
    auto& start = on<frmStart>();
    const QSignalSpy changes(&start.txtRly(2), &QLineEdit::textChanged);
    const QSignalSpy moves(&start.txtRly(2), &QLineEdit::cursorPositionChanged);
    start.txtRly(2).setCursorPosition(3);
    QTest::qWait(350);  // three ticks
    EXPECT_EQ(changes.count(), 0);
    EXPECT_EQ(moves.count(), 1) << "a box written again loses the cursor's place";

    start.txtRly(2).setText("yesterday");
    EXPECT_TRUE(QTest::qWaitFor([&] { return text("txtRly(2)") == today(); }, 2000));
    EXPECT_EQ(changes.count(), 2) << "to yesterday and back";
}

// Ten ticks in a second, on a busy machine fewer. Each puts the date back; with a tick a second there would be one.
TEST_F(Clock, TicksEveryTenthOfASecond)
{
    auto& start = on<frmStart>();
    int ticks = 0;
    const QObject counter;  // counts no longer than this test runs
    QObject::connect(&start.txtRly(2), &QLineEdit::textChanged, &counter, [&](const QString& date) {
        if (date.isEmpty())
            return;
        ++ticks;
        start.txtRly(2).clear();
    });
    start.txtRly(2).clear();
    QTest::qWait(1050);
    EXPECT_GE(ticks, 4);
    EXPECT_LE(ticks, 11);
}

TEST_F(Clock, KeepsEveryVisibleScreenAndLeavesTheHiddenOnesUntilTheyAreShown)
{
    auto& start = on<frmStart>();
    auto& t1 = on<frmT1>();
    start.hide();
    start.txtRly(2).setText("yesterday");
    t1.txtRly(2).setText("yesterday");
    EXPECT_TRUE(QTest::qWaitFor([&] { return text("txtRly(2)") == today(); }, 2000));
    EXPECT_EQ(start.txtRly(2).text(), "yesterday");
    on<frmStart>();
    EXPECT_EQ(text("txtRly(2)"), today());
}

}  // namespace
