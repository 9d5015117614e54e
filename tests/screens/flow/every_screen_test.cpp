#include <QTemporaryDir>
#include <QTest>

#include "screens/flow/data_screen.h"
#include "support/lock_tip.h"
#include "support/screen_test.h"

namespace {

/// What all ten screens have in common, on each of them.
class EveryScreen : public ScreenTest {  // slow
protected:
    void expectCommon(flow::Screen& form, const std::string& caption)
    {
        SCOPED_TRACE(form.objectName().toStdString());
        EXPECT_EQ(form.windowTitle().toStdString(), caption);
        EXPECT_FALSE(form.isModal());
        EXPECT_TRUE(locked("txtRly(2)") && pale("txtRly(2)"));
        EXPECT_FALSE(text("txtRly(2)").empty());
        EXPECT_EQ(text("cmdPrint"), "&Print");
        if (const auto* step = dynamic_cast<const flow::StepScreen*>(&form)) {
            EXPECT_EQ(text("cmdNext"), "&Next");
            EXPECT_FALSE(step->cmdNext.isEnabled() || step->cmdPrint.isEnabled());
            EXPECT_TRUE(step->cmdNext.toolTip().toStdString() == LockTip ||
                        step->cmdPrint.toolTip().toStdString() == LockTip);
        } else {
            EXPECT_EQ(form.cmdPrint.toolTip().toStdString(), LockTip);
        }
        const auto* data = dynamic_cast<const flow::DataScreen*>(&form);
        EXPECT_TRUE(!data || data->Printed == 0);
        expectPrints(form);
        EXPECT_TRUE(!data || data->Printed == 1);
    }

    void expectPrints(flow::Screen& form)
    {
        const QTemporaryDir folder;
        const std::string pdf = folder.filePath("print.pdf").toStdString();
        form.cmdPrint.setEnabled(true);
        dialogs.expectPrint({.firstPage = 1, .lastPage = 1, .copies = 3}, pdf);
        click("cmdPrint");
        EXPECT_EQ(dialogs.open(), 0U) << "the print dialog did not come";
        EXPECT_EQ(pagesOf(pdf), 3);
    }

    /// Next of the screen in work, printed, shows `to`, of which there is one.
    void expectNext(flow::StepScreen& form, const char* to)
    {
        SCOPED_TRACE(form.objectName().toStdString());
        form.cmdNext.setEnabled(true);
        expectPrintQuestion(true);
        click("cmdNext");
        EXPECT_FALSE(chain.find(to)) << "Yes keeps the screen";
        expectPrintQuestion(false);
        click("cmdNext");
        const flow::Screen* const next = chain.find(to);
        ASSERT_TRUE(next);
        EXPECT_TRUE(next->isVisible());
        EXPECT_TRUE(form.isVisible());
        form.Printed = 1;
        form.activateWindow();
        settle();
        click("cmdNext");
        EXPECT_EQ(dialogs.open(), 0U);
        EXPECT_EQ(chain.find(to), next);
        EXPECT_TRUE(next->isActiveWindow());
    }
};

TEST_F(EveryScreen, BearsItsCaptionAndPrints)
{
    for (const char* caption : {
             "Calculations of Crewmark Based on PLKTN Commitees's Report",
             "Entering Track Data",
             "Entering Data on Formation , Rainfall and Curves",
             "Calculations  of Mandays required for ' T ' and ' R ' activities of main line",
             "Entering Yard Data",
             "Data Entry for - For Miscelleneous Activities",
             "Data Entry for Miscelleneous Activities  (continued).....",
             "Data Entry for Site Specefic Activiries 'S'",
             "Data Entry for Site Specefic Activities 'S' (Continued)",
             "Manpower Requirement Summary for the Division",
         })
        expectCommon(onNext(), caption);
}

TEST_F(EveryScreen, NextShowsTheFollowingOne)
{
    onNext();
    for (std::size_t i = 1; i + 1 < division::Steps.size(); ++i)
        expectNext(dynamic_cast<flow::StepScreen&>(onNext()), division::Steps[i + 1].form);
}

}  // namespace
