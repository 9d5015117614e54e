#include "division/act.h"

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QSignalSpy>

#include "division/steps.h"
#include "start/frmStart.h"
#include "support/screen_test.h"
#include "track/frmT1.h"
#include "yards/frmY.h"

namespace {

using division::Act;
using division::perform;

class Acts : public ScreenTest {
protected:
    /// The track screen on the metre gauge, with the two segments of a sample.
    frmT1& openTrack()
    {
        on<frmStart>();
        chain.get<frmStart>().txtT1(1).setText(QString::fromStdString(sample("4-mandar-hill.mdb")));
        frmT1& form = on<frmT1>();
        click("optMG");
        click("cmdCopy");
        click("optMG");  // for the segments that are there now: packed by hand
        return form;
    }

    static std::string refusalOf(flow::Screen& screen, const Act& act)
    {
        try {
            perform(screen, act);
        } catch (const division::Refused& refused) {
            return refused.what();
        }
        return "performed";
    }

    /// Every box, choice and button of the screen with its text and whether it is open.
    std::string state(const flow::Screen& screen)
    {
        std::string all;
        for (const auto* control : screen.findChildren<QWidget*>())
            if (control->inherits("QLineEdit") || control->inherits("QComboBox") ||
                control->inherits("QAbstractButton"))
                all += control->objectName().toStdString() + "=" + control->property("text").toString().toStdString() +
                       control->property("currentText").toString().toStdString() +
                       (control->property("checked").toBool() ? " checked" : "") +
                       (control->isEnabled() ? " open\n" : " closed\n");
        return all;
    }
};

TEST_F(Acts, ATextOpensWhatTypingOpens)
{
    auto& yards = on<frmY>();
    ASSERT_FALSE(enabled("cmdCOMPUTE"));
    QSignalSpy changes(&yards.txtNYd, &QLineEdit::textChanged);
    perform(yards, {"txtNYd", "12"});
    EXPECT_EQ(text("txtNYd"), "12");
    EXPECT_EQ(shownOf("txtStn", 0, 11), "111111111111");
    EXPECT_TRUE(enabled("cmdCOMPUTE"));
    EXPECT_EQ(focus(), "txtNYd");
    EXPECT_EQ(changes.count(), 1) << "the text is put in whole";
}

TEST_F(Acts, ATextReplacesWhatStandsThere)
{
    auto& yards = on<frmY>();
    perform(yards, {"txtNYd", "2"});
    perform(yards, {"txtStn(1)", "Ambapur"});
    perform(yards, {"txtStn(1)", "Eklahra"});
    EXPECT_EQ(text("txtStn(1)"), "Eklahra");
    perform(yards, {"txtStn(1)", ""});
    EXPECT_EQ(text("txtStn(1)"), "");
}

TEST_F(Acts, ATextIsCutToTheLimitOfItsBoxAsTypingIs)
{
    auto& yards = on<frmY>();
    perform(yards, {"txtNYd", "40"});
    EXPECT_EQ(text("txtNYd"), "12");
}

TEST_F(Acts, AListTakesATextOfItsOwn)
{
    openTrack();
    auto& list = dynamic_cast<QComboBox&>(find("cboLn(1)"));
    perform(chain.get<frmT1>(), {"cboLn(1)", "DN"});
    EXPECT_EQ(text("cboLn(1)"), "DN");
    EXPECT_EQ(list.currentIndex(), list.findText("DN"));
    perform(chain.get<frmT1>(), {"cboLn(1)", "loop"});
    EXPECT_EQ(text("cboLn(1)"), "loop");
    EXPECT_EQ(list.currentIndex(), -1);
}

TEST_F(Acts, AnOptionIsChosenAndItsHandlerRuns)
{
    auto& form = on<frmT1>();
    perform(form, {.control = "optNG"});
    EXPECT_TRUE(form.optNG.isChecked());
    EXPECT_EQ(text("txtT1(3)"), "NG");
    EXPECT_TRUE(enabled("cmdCopy"));
    perform(form, {.control = "optNG"});
    EXPECT_TRUE(form.optNG.isChecked()) << "a second click leaves it chosen";
}

TEST_F(Acts, ACheckBoxIsToggled)
{
    auto& form = on<frmT1>();
    perform(form, {.control = "chkSub"});
    EXPECT_TRUE(form.chkSub.isChecked());
    EXPECT_EQ(text("txtT1(3)"), "BG");
    perform(form, {.control = "chkSub"});
    EXPECT_FALSE(form.chkSub.isChecked());
}

TEST_F(Acts, AButtonIsPressed)
{
    auto& form = openTrack();
    perform(form, {.control = "cmdCompute"});
    EXPECT_TRUE(enabled("cmdNext"));
    EXPECT_FALSE(enabled("cmdCompute"));
    EXPECT_NE(text("txtTkm(0)"), "");
    expectPrintQuestion(false);
    perform(form, {.control = "cmdNext"});
    EXPECT_NE(chain.find("frmT2"), nullptr);
}

// A screen that the user does not see is worked like any other.
TEST_F(Acts, AreDoneOnAHiddenScreenToo)
{
    auto& form = openTrack();
    form.hide();
    perform(form, {"txtT1(0)", "Sample Section"});
    perform(form, {.control = "cmdCompute"});
    EXPECT_EQ(text("txtT1(0)"), "Sample Section");
    EXPECT_TRUE(enabled("cmdNext"));
}

struct Impossible {
    const char* name;
    Act act;
    const char* reason;
};

class RefusedActs : public Acts, public testing::WithParamInterface<Impossible> {};

TEST_P(RefusedActs, ChangeNothing)
{
    auto& form = openTrack();  // 2 segments
    const std::string before = state(form);
    EXPECT_EQ(refusalOf(form, GetParam().act), GetParam().reason);
    EXPECT_EQ(state(form), before);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Track, RefusedActs, testing::Values(
    Impossible{"Unknown",       {"txtKmg(0)", "1"},      "frmT1 has no \"txtKmg(0)\""},
    Impossible{"BeyondArray",   {"txtKmf(16)", "1"},     "frmT1 has no \"txtKmf(16)\""},
    Impossible{"NoName",        {"", "1"},               "frmT1 has no \"\""},
    Impossible{"HiddenRow",     {"txtKmf(2)", "1"},      "txtKmf(2) of frmT1 is hidden"},
    Impossible{"ResultBox",     {"txtTkm(0)", "1"},      "txtTkm(0) of frmT1 is locked"},
    Impossible{"ForcedMethod",  {"cboMtc(0)", "by hand"}, "cboMtc(0) of frmT1 is locked"},
    Impossible{"ClosedButton",  {"cmdNext"},             "cmdNext of frmT1 is closed"},
    Impossible{"TextForButton", {"cmdCompute", "now"},   "cmdCompute of frmT1 takes no text"},
    Impossible{"TextForOption", {"optBG", "BG"},         "optBG of frmT1 takes no text"},
    Impossible{"BoxWithout",    {"txtKmf(0)"},           "txtKmf(0) of frmT1 needs a text"},
    Impossible{"ListWithout",   {"cboLn(0)"},            "cboLn(0) of frmT1 needs a text"},
    Impossible{"Grid",          {"TrGrid"},              "TrGrid of frmT1 is neither a box nor a button"}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST_F(Acts, WaitForADialog)
{
    auto& form = openTrack();
    const std::string before = state(form);
    QDialog dialog(&form);
    dialog.setModal(true);
    dialog.show();
    EXPECT_EQ(refusalOf(form, {.control = "cmdCompute"}), "cmdCompute of frmT1 waits for a dialog");
    EXPECT_EQ(refusalOf(form, {"txtKmf(0)", "1"}), "txtKmf(0) of frmT1 waits for a dialog");
    EXPECT_EQ(state(form), before);
    dialog.close();
    EXPECT_EQ(refusalOf(form, {.control = "cmdCompute"}), "performed");
}

// The table of steps is what all that works the screens goes by.
TEST_F(Acts, TheStepsAreTheScreensAndTheirButtons)
{
    const std::vector<flow::Screen*> screens = onAll();
    ASSERT_EQ(screens.size(), division::Steps.size());
    for (std::size_t i = 0; i < screens.size(); ++i) {
        const division::Step& step = division::Steps[i];
        EXPECT_EQ(screens[i]->objectName(), step.form);
        for (const char* button : {step.import, step.compute, step.next})
            EXPECT_TRUE(!*button || screens[i]->findChild<QPushButton*>(button)) << step.form << "." << button;
    }
}

}  // namespace
