// The title bar's X hides a screen, and whatever is closed in whatever order, the user can go on: from what is left,
// Proceed and Next lead to the screen at work.

#include <algorithm>
#include <vector>

#include "activities/misc/frmM1.h"
#include "activities/misc/frmM2.h"
#include "activities/site/frmS1.h"
#include "activities/site/frmS2.h"
#include "start/frmStart.h"
#include "summary/frmSummary.h"
#include "support/screen_test.h"
#include "track/frmT1.h"
#include "track/frmT2.h"
#include "track/frmT4.h"
#include "yards/frmY.h"

namespace {

const char* const Question = "End the program? The figures on the screens will be lost.";

class Closing : public ScreenTest {
protected:
    /// Goes from the start screen to the summary, and looks on each screen whether it could be lost.
    void workSrSe()
    {
        way = {&nowOn<frmStart>()};
        expectNoneCanBeLost();
        dialogs.expectFile(sample("1-ambapur.mdb"));
        click("cmdFile");
        click("cmdProceed");
        begin<frmT1>();
        click("optBG");
        work("cmdCopy", "cmdCompute");
        begin<frmT2>();
        work("cmdCopy", "cmdCompute");
        begin<frmT4>();
        work("", "cmdCompute");
        begin<frmY>();
        work("cmdYdata", "cmdCOMPUTE");
        begin<frmM1>();
        work("cmdData", "cmdCompute");
        begin<frmM2>();
        work("cmdData", "cmdCompute");
        begin<frmS1>();
        work("cmdData", "cmdCompute");
        begin<frmS2>();
        work("cmdData", "cmdCompute");
        begin<frmSummary>();
        click("cmdTransfer");
    }

    /// The screens from the start to the one at work.
    std::vector<flow::Screen*> way;
    /// The summary, which stays from the Sr SE before: it leads to no screen.
    flow::Screen* leftOver = nullptr;

private:
    template <class Form>
    void begin()
    {
        auto& form = nowOn<Form>();
        form.Printed = 1;  // Next asks nothing
        way.push_back(&form);
        expectNoneCanBeLost();
        nowOn<Form>();
    }

    void work(const std::string& import, const std::string& compute)
    {
        if (!import.empty())
            click(import);
        click(compute);
        click("cmdNext");
    }

    void expectNoneCanBeLost()
    {
        SCOPED_TRACE(way.back()->objectName().toStdString());
        std::vector<flow::Screen*> order = way;
        if (leftOver && leftOver != way.back())
            order.push_back(leftOver);
        expectLeadingOnAfterClosing(order);
        std::reverse(order.begin(), order.end());
        expectLeadingOnAfterClosing(order);
    }

    void expectLeadingOnAfterClosing(const std::vector<flow::Screen*>& order)
    {
        for (flow::Screen* form : order)
            form->show();
        for (flow::Screen* form : order) {
            const bool last = std::count_if(way.begin(), way.end(), [](auto* one) { return one->isVisible(); }) == 1 &&
                              std::count(way.begin(), way.end(), form) == 1;
            if (last)
                dialogs.expectYesNo(form->windowTitle().toStdString(), Question, false);
            EXPECT_EQ(form->close(), !last) << form->objectName().toStdString();
            EXPECT_EQ(dialogs.open(), 0U) << form->objectName().toStdString() << " could be lost";
        }
        for (auto form = way.begin(); form + 1 != way.end(); ++form)
            if ((*form)->isVisible())
                (*form)->findChild<QPushButton*>(form == way.begin() ? "cmdProceed" : "cmdNext")->click();
        EXPECT_TRUE(way.back()->isVisible()) << "nothing leads back to it";
    }
};

TEST_F(Closing, LosesNoScreenThatTheUserNeedsToGoOn)
{
    on<frmStart>();
    type("txtT1(5)", "Sample Railway");
    type("txtT1(3)", "2");
    workSrSe();
    dialogs.expectMessage("Proceed for Next Subordinate", "Continue for Next Sr SSE on the Division");
    click("cmdCompute");

    leftOver = &chain.get<frmSummary>();
    workSrSe();
    dialogs.expectMessage("Calculations for all Sr SSE's are over", "Now Total up the figures");
    click("cmdCompute");
    click("cmdTotal");
    EXPECT_EQ(text("txtSN(0)") + text("txtSN(1)"), "12");
}

}  // namespace
