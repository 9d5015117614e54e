#include "screens/flow/chain.h"

#include <QApplication>
#include <QScreen>

#include "start/frmStart.h"
#include "support/screen_test.h"
#include "track/frmT1.h"
#include "track/frmT2.h"
#include "track/frmT4.h"

namespace {

class ChainTest : public ScreenTest {
protected:
    void expectEndQuestion(bool end)
    {
        dialogs.expectYesNo("Calculations of Crewmark Based on PLKTN Commitees's Report",
                            "End the program? The figures on the screens will be lost.", end);
    }
};

TEST_F(ChainTest, AScreenIsMadeWhenItIsFirstAskedForAndStaysUnseenUntilShown)
{
    on<frmStart>();
    EXPECT_FALSE(chain.isLoaded<frmT1>());
    const frmT1& t1 = chain.get<frmT1>();
    EXPECT_TRUE(chain.isLoaded<frmT1>());
    EXPECT_FALSE(t1.isVisible());
    EXPECT_EQ(&chain.show<frmT1>(), &t1);
    EXPECT_TRUE(t1.isVisible());
}

TEST_F(ChainTest, ALaterScreenMakesTheEarlierOnesThatItReads)
{
    chain.get<frmT2>();
    EXPECT_TRUE(chain.isLoaded<frmStart>());
    EXPECT_TRUE(chain.isLoaded<frmT1>());
}

TEST_F(ChainTest, FindingAScreenCreatesNone)
{
    on<frmStart>();
    EXPECT_EQ(chain.find<frmT1>(), nullptr);
    EXPECT_FALSE(chain.isLoaded<frmT1>());
    const frmT1& t1 = on<frmT1>();
    EXPECT_EQ(chain.find<frmT1>(), &t1);
    EXPECT_EQ(chain.find<frmT2>(), nullptr);
}

TEST_F(ChainTest, WhatLiesBetweenTwoScreensIsUnloaded)
{
    on<frmT1>();
    on<frmT2>();
    on<frmT4>();
    chain.unloadBetween<frmStart, frmT4>();
    EXPECT_TRUE(chain.isLoaded<frmStart>());
    EXPECT_FALSE(chain.isLoaded<frmT1>() || chain.isLoaded<frmT2>());
    EXPECT_TRUE(chain.isLoaded<frmT4>());
    chain.unloadBetween<frmStart, frmT1>();
    EXPECT_TRUE(chain.isLoaded<frmStart>()) << "there is nothing between neighbours";
}

TEST_F(ChainTest, AnUnloadedScreenIsGoneAndTheNextOneNewAndEmpty)
{
    on<frmT1>();
    type("txtT1(0)", "Sample Section");
    chain.unload<frmT1>();
    EXPECT_FALSE(chain.isLoaded<frmT1>());
    settle();
    for (const QWidget* window : QApplication::topLevelWidgets())
        EXPECT_NE(window->objectName(), "frmT1");
    on<frmT1>();
    EXPECT_EQ(text("txtT1(0)"), "");
    chain.unload<frmT1>();
    chain.unload<frmT1>();  // twice does no harm
}

// The title bar's X

TEST_F(ChainTest, XHidesAScreenAndKeepsItsContents)
{
    on<frmStart>();
    dialogs.expectFile("");
    click("cmdFile");
    click("cmdProceed");
    auto& t1 = nowOn<frmT1>();
    type("txtT1(0)", "Sample Section");
    EXPECT_TRUE(t1.close());
    EXPECT_FALSE(t1.isVisible());
    EXPECT_TRUE(chain.isLoaded<frmT1>());
    on<frmStart>();
    click("cmdProceed");
    EXPECT_EQ(&nowOn<frmT1>(), &t1);
    EXPECT_EQ(text("txtT1(0)"), "Sample Section");
}

TEST_F(ChainTest, XOnTheLastScreenWithNothingEnteredEndsTheProgram)
{
    on<frmStart>().close();
    EXPECT_FALSE(chain.isLoaded<frmStart>());
}

TEST_F(ChainTest, XOnTheLastScreenAsksOnceAnythingHasBeenEntered)
{
    for (const char* box : {"txtT1(5)", "txtT1(2)", "txtT1(3)", "txtT1(0)"}) {
        auto& start = on<frmStart>();
        type(box, "5");
        expectEndQuestion(false);
        EXPECT_FALSE(start.close()) << box;
        EXPECT_EQ(dialogs.open(), 0U) << box;
        EXPECT_TRUE(start.isVisible()) << "No keeps the screen";
        EXPECT_EQ(text(box), "5");
        expectEndQuestion(true);
        EXPECT_TRUE(start.close());
        EXPECT_FALSE(chain.isLoaded<frmStart>()) << "Yes unloads all";
    }
}

TEST_F(ChainTest, XOnTheLastScreenCountsTheFiguresOfHiddenScreensToo)
{
    on<frmT1>();
    on<frmStart>();
    chain.get<frmT1>().close();
    expectEndQuestion(true);
    chain.get<frmStart>().close();
    EXPECT_EQ(dialogs.open(), 0U);
    EXPECT_FALSE(chain.isLoaded<frmStart>());
    EXPECT_FALSE(chain.isLoaded<frmT1>());
}

TEST_F(ChainTest, AMinimizedScreenIsNoHiddenOne)
{
    auto& start = on<frmStart>();
    type("txtT1(5)", "Sample Railway");
    auto& t1 = on<frmT1>();
    start.showMinimized();
    settle();
    EXPECT_TRUE(t1.close());  // no question: the start screen is still there
    EXPECT_TRUE(chain.isLoaded<frmStart>());
    chain.show<frmStart>();
    EXPECT_FALSE(start.isMinimized());
}

// Places

TEST_F(ChainTest, ScreensOpenWithinTheDesktop)
{
    const QRect room = QApplication::primaryScreen()->availableGeometry();
    const auto expectWithin = [&](const QWidget& form) {
        EXPECT_GE(form.x(), room.left());
        EXPECT_GE(form.y(), room.top());
        EXPECT_LE(form.width(), std::max(room.width(), form.minimumSizeHint().width()));
        EXPECT_LE(form.height(), std::max(room.height(), form.minimumSizeHint().height()));
    };
    expectWithin(on<frmStart>());
    expectWithin(on<frmT1>());
    expectWithin(on<frmT2>());
}

TEST_F(ChainTest, TheNextScreenOpensWhereTheUserHasPutTheOneBefore)
{
    auto& start = on<frmStart>();
    const int centred = start.y();
    start.move(start.x(), 4);
    ASSERT_NE(centred, 4);
    dialogs.expectFile("");
    click("cmdFile");
    click("cmdProceed");
    EXPECT_EQ(nowOn<frmT1>().pos(), start.pos());

    chain.unload<frmT1>();
    start.move(start.x(), 5000);  // on a desktop that is no longer there
    on<frmStart>();
    click("cmdProceed");
    const frmT1& t1 = nowOn<frmT1>();
    EXPECT_LE(t1.y() + t1.height(), QApplication::primaryScreen()->availableGeometry().bottom());
}

TEST_F(ChainTest, TheSizeOfAWindowGoesWithTheUserFromScreenToScreen)
{
    auto& start = on<frmStart>();
    dialogs.expectFile("");
    click("cmdFile");
    start.resize(1200, 650);
    click("cmdProceed");
    auto& t1 = nowOn<frmT1>();
    EXPECT_EQ(t1.size(), QSize(1200, 650));
    t1.resize(1250, 660);
    t1.cmdNext.setEnabled(true);
    expectPrintQuestion(false);
    click("cmdNext");
    EXPECT_EQ(nowOn<frmT2>().size(), QSize(1250, 660));

    start.resize(1300, 670);
    on<frmStart>();
    click("cmdProceed");
    EXPECT_EQ(nowOn<frmT1>().size(), QSize(1300, 670)) << "also to a screen that is shown again";
}

TEST_F(ChainTest, BeingMaximisedGoesWithTheUserFromScreenToScreen)
{
    auto& start = on<frmStart>();
    dialogs.expectFile("");
    click("cmdFile");
    start.resize(1200, 650);
    settle();
    start.showMaximized();
    settle();
    click("cmdProceed");
    auto& t1 = nowOn<frmT1>();
    EXPECT_TRUE(t1.isMaximized());
    start.showNormal();
    settle();
    on<frmStart>();
    click("cmdProceed");
    EXPECT_FALSE(nowOn<frmT1>().isMaximized());
    EXPECT_EQ(t1.size(), start.size());
}

TEST_F(ChainTest, AScreenShownAgainComesToTheFrontWhereItWas)
{
    auto& start = on<frmStart>();
    on<frmT1>();
    start.move(7, 9);
    start.resize(start.minimumSizeHint());
    const QRect place = start.geometry();
    on<frmStart>();
    EXPECT_EQ(start.geometry(), place);
    EXPECT_TRUE(start.isActiveWindow());
}

TEST_F(ChainTest, TheFirstSensibleBoxHasTheFocusWhenAScreenIsFirstShown)
{
    on<frmStart>();
    EXPECT_EQ(focus(), "txtT1(5)");
    on<frmT1>();
    EXPECT_EQ(focus(), "txtT1(0)");
    type("txtT1(2)", "Km 0 to 100");
    on<frmStart>();
    on<frmT1>();
    EXPECT_EQ(focus(), "txtT1(2)") << "shown again, the user goes on where he was";
}

}  // namespace
