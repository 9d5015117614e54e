#include "screens/flow/end_requests.h"

#include <QApplication>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <csignal>
#include <functional>

#include "activities/site/frmS2.h"
#include "start/frmStart.h"
#include "summary/frmSummary.h"
#include "support/screen_test.h"
#include "track/frmT1.h"

namespace {

const char* const Question = "End the program? The figures on the screens will be lost.";
const char* const StartTitle = "Calculations of Crewmark Based on PLKTN Commitees's Report";
const char* const TrackTitle = "Entering Track Data";

class EndRequestsTest : public ScreenTest {
protected:
    void send(int signal)
    {
        std::raise(signal);
        settle();
    }

    flow::EndRequests requests{chain};
};

// Signals

TEST_F(EndRequestsTest, ASignalEndsTheProgramWithoutAQuestionWhileNothingIsEntered)
{
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        on<frmStart>();
        send(signal);
        EXPECT_FALSE(chain.isLoaded<frmStart>()) << signal;
    }
}

TEST_F(EndRequestsTest, ASignalAsksOnceAnythingHasBeenEntered)
{
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        auto& start = on<frmStart>();
        type("txtT1(5)", "Sample Railway");
        dialogs.expectYesNo(StartTitle, Question, false);
        send(signal);
        EXPECT_EQ(dialogs.open(), 0U) << signal;
        EXPECT_TRUE(start.isVisible()) << "No keeps the screen";
        EXPECT_EQ(text("txtT1(5)"), "Sample Railway");
        dialogs.expectYesNo(StartTitle, Question, true);
        send(signal);
        EXPECT_FALSE(chain.isLoaded<frmStart>()) << "Yes unloads all";
    }
}

TEST_F(EndRequestsTest, NoKeepsEveryScreenWhereItIs)
{
    auto& start = on<frmStart>();
    auto& t1 = on<frmT1>();
    dialogs.expectYesNo(TrackTitle, Question, false);
    send(SIGTERM);
    EXPECT_TRUE(start.isVisible());
    EXPECT_TRUE(t1.isVisible());
    EXPECT_TRUE(chain.isLoaded<frmStart>() && chain.isLoaded<frmT1>());
}

TEST_F(EndRequestsTest, TheScreenInFrontAsks)
{
    on<frmT1>();
    on<frmStart>();
    dialogs.expectYesNo(StartTitle, Question, false);
    send(SIGTERM);
    on<frmT1>();
    chain.get<frmT1>().hide();
    dialogs.expectYesNo(StartTitle, Question, false);
    send(SIGTERM);
    EXPECT_EQ(dialogs.open(), 0U);
}

TEST_F(EndRequestsTest, ASignalIgnoredFromTheStartStaysIgnored)
{
    const auto before = std::signal(SIGHUP, SIG_IGN);
    {
        const flow::EndRequests underNohup(chain);
        on<frmStart>();
        send(SIGHUP);
        EXPECT_TRUE(chain.isLoaded<frmStart>());
    }
    EXPECT_EQ(std::signal(SIGHUP, before), SIG_IGN);
}

TEST(EndRequestsOver, LeaveTheSignalsAsTheyWere)
{
    FakeDialogs dialogs;
    flow::Chain chain(dialogs);
    const auto mine = +[](int) {};
    const auto before = std::signal(SIGTERM, mine);
    {
        const flow::EndRequests requests(chain);
    }
    EXPECT_EQ(std::signal(SIGTERM, before), mine);
}

// The desktop's session

TEST_F(EndRequestsTest, TheDesktopsQuitAsksOnceAndNotScreenByScreen)
{
    auto& start = on<frmStart>();
    auto& t1 = on<frmT1>();
    dialogs.expectYesNo(TrackTitle, Question, false);
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
    EXPECT_EQ(dialogs.open(), 0U);
    EXPECT_TRUE(start.isVisible() && t1.isVisible()) << "No keeps every screen where it is";
    dialogs.expectYesNo(TrackTitle, Question, true);
    QCoreApplication::sendEvent(qApp, &quit);
    EXPECT_FALSE(chain.isLoaded<frmStart>() || chain.isLoaded<frmT1>());
}

// While something else is open

/// The program as it runs, with the desktop's own boxes; its event loop is left when the program ends.
class RunningProgram : public testing::Test {
protected:
    RunningProgram()
    {
        compose(chain);
        start = &chain.show<frmStart>();
        start->txtT1(5).setText("Sample Railway");
        QObject::connect(&tooLong, &QTimer::timeout, [] { QApplication::exit(TooLong); });
        tooLong.start(10'000);
    }

    /// As soon as such a box stands there, in turn.
    template <class Box>
    void at(std::function<void(Box&)> act)
    {
        m_acts.emplace_back([act] {
            auto* box = qobject_cast<Box*>(std::is_same_v<Box, QMenu> ? QApplication::activePopupWidget()
                                                                      : QApplication::activeModalWidget());
            if (box)
                act(*box);
            return box != nullptr;
        });
    }

    /// Until the program has ended; its status.
    int run(const std::function<void()>& first)
    {
        QTimer hands;
        QObject::connect(&hands, &QTimer::timeout, [this] {
            if (m_acts.empty())
                return;
            // A box may run a loop of its own in here, in which the next act's turn comes.
            const auto act = m_acts.front();
            m_acts.erase(m_acts.begin());
            if (!act())
                m_acts.insert(m_acts.begin(), act);
        });
        hands.start(5);
        QTimer::singleShot(0, first);
        return QApplication::exec();
    }

    static void answer(QMessageBox& box, QMessageBox::StandardButton button)
    {
        EXPECT_EQ(box.text(), Question);
        EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::No));
        box.button(button)->click();
    }

    static constexpr int TooLong = 99;
    flow::DesktopDialogs dialogs;
    flow::Chain chain{dialogs};
    flow::EndRequests requests{chain};
    frmStart* start = nullptr;
    QTimer tooLong;

private:
    std::vector<std::function<bool()>> m_acts;
};

TEST_F(RunningProgram, EndsWithStatusZero)
{
    at<QMessageBox>([](QMessageBox& box) { answer(box, QMessageBox::Yes); });
    EXPECT_EQ(run([] { std::raise(SIGTERM); }), 0);
    EXPECT_FALSE(chain.isLoaded<frmStart>());
}

TEST_F(RunningProgram, SeveralSignalsAtOnceAskOnce)
{
    at<QMessageBox>([](QMessageBox&) {
        std::raise(SIGHUP);
        std::raise(SIGTERM);
    });
    at<QMessageBox>([&](QMessageBox& box) {
        answer(box, QMessageBox::No);
        QTimer::singleShot(100, [] {
            EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "no further question";
            QApplication::exit(7);
        });
    });
    EXPECT_EQ(run([] { std::raise(SIGTERM); }), 7);
    EXPECT_TRUE(chain.isLoaded<frmStart>());
}

TEST_F(RunningProgram, AnOpenFileDialogStaysAfterNoAndGoesAfterYes)
{
    QFileDialog* open = nullptr;
    at<QFileDialog>([&](QFileDialog& dialog) {
        open = &dialog;
        std::raise(SIGTERM);
    });
    at<QMessageBox>([](QMessageBox& box) { answer(box, QMessageBox::No); });
    at<QFileDialog>([&](QFileDialog& dialog) {
        EXPECT_EQ(&dialog, open);
        EXPECT_TRUE(chain.isLoaded<frmStart>());
        std::raise(SIGTERM);
    });
    at<QMessageBox>([](QMessageBox& box) { answer(box, QMessageBox::Yes); });
    EXPECT_EQ(run([&] { start->cmdFile.click(); }), 0);
    EXPECT_FALSE(chain.isLoaded<frmStart>());
}

TEST_F(RunningProgram, EndsFromTheQuestionOfTheLastScreenToo)
{
    at<QMessageBox>([](QMessageBox& box) {
        std::raise(SIGTERM);
        QTimer::singleShot(50, &box, [&box] { answer(box, QMessageBox::Yes); });
    });
    EXPECT_EQ(run([&] { start->close(); }), 0);
    EXPECT_FALSE(chain.isLoaded<frmStart>());
}

TEST_F(RunningProgram, EndsFromTheMessageThatLeadsToTheNextSrSeToo)
{
    start->txtT1(3).setText("2");
    store::Table establishment("S2", std::vector<std::string>(21));
    const std::vector<std::string_view> record(21, "10");
    establishment.append(record);
    establishment.append(record);
    dynamic_cast<controls::DataGrid&>(*chain.get<frmS2>().findChild<QWidget*>("GridS2"))
        .setTable(std::move(establishment));
    auto& summary = chain.show<frmSummary>();
    summary.cmdTransfer.click();
    ASSERT_TRUE(summary.cmdCompute.isEnabled());

    at<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), "Proceed for Next Subordinate");
        std::raise(SIGTERM);
    });
    at<QMessageBox>([](QMessageBox& box) { answer(box, QMessageBox::Yes); });
    EXPECT_EQ(run([&] { summary.cmdCompute.click(); }), 0);
    EXPECT_FALSE(chain.isLoaded<frmStart>()) << "no new one is made";
}

TEST_F(RunningProgram, AnOpenContextMenuIsNoObstacle)
{
    at<QMenu>([](QMenu&) { std::raise(SIGTERM); });
    at<QMessageBox>([](QMessageBox& box) { answer(box, QMessageBox::Yes); });
    const auto openMenu = [&] {
        QContextMenuEvent menu(QContextMenuEvent::Keyboard, QPoint(1, 1), start->txtT1(5).mapToGlobal(QPoint(1, 1)));
        QCoreApplication::sendEvent(&start->txtT1(5), &menu);
    };
    EXPECT_EQ(run(openMenu), 0);
    EXPECT_FALSE(chain.isLoaded<frmStart>());
}

}  // namespace
