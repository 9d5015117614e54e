#include <QTemporaryDir>
#include <QTest>

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

const std::string LockTip =
    "Please make sure that all data is corrctly entered. The data would get lockked after clicking this button.";

/// What all ten screens have in common, on each of them.
class EveryScreen : public ScreenTest {  // slow
protected:
    template <class Form>
    void expectCommon(const std::string& name, const std::string& caption)
    {
        SCOPED_TRACE(name);
        Form& form = on<Form>();
        EXPECT_EQ(form.objectName().toStdString(), name);
        EXPECT_EQ(form.windowTitle().toStdString(), caption);
        EXPECT_FALSE(form.isModal());
        EXPECT_TRUE(locked("txtRly(2)") && pale("txtRly(2)"));
        EXPECT_FALSE(text("txtRly(2)").empty());
        EXPECT_EQ(text("cmdPrint"), "&Print");
        if constexpr (requires { form.cmdNext; }) {
            EXPECT_EQ(text("cmdNext"), "&Next");
            EXPECT_FALSE(form.cmdNext.isEnabled() || form.cmdPrint.isEnabled());
            EXPECT_TRUE(form.cmdNext.toolTip().toStdString() == LockTip ||
                        form.cmdPrint.toolTip().toStdString() == LockTip);
        } else {
            EXPECT_EQ(form.cmdPrint.toolTip().toStdString(), LockTip);
        }
        if constexpr (requires { form.Printed; }) {
            EXPECT_EQ(form.Printed, 0);
        }
        expectPrints(form);
    }

    template <class Form>
    void expectPrints(Form& form)
    {
        const QTemporaryDir folder;
        const std::string pdf = folder.filePath("print.pdf").toStdString();
        form.cmdPrint.setEnabled(true);
        dialogs.expectPrint({.firstPage = 1, .lastPage = 1, .copies = 3}, pdf);
        click("cmdPrint");
        EXPECT_EQ(dialogs.open(), 0U) << "the print dialog did not come";
        EXPECT_EQ(pagesOf(pdf), 3);
        if constexpr (requires { form.Printed; }) {
            EXPECT_EQ(form.Printed, 1);
        }
    }

    /// Next of a printed `From` shows `To`, of which there is one.
    template <class From, class To>
    void expectNext()
    {
        From& form = on<From>();
        SCOPED_TRACE(form.objectName().toStdString());
        form.Printed = 0;
        form.cmdNext.setEnabled(true);
        expectPrintQuestion(true);
        click("cmdNext");
        EXPECT_FALSE(chain.isLoaded<To>()) << "Yes keeps the screen";
        expectPrintQuestion(false);
        click("cmdNext");
        ASSERT_TRUE(chain.isLoaded<To>());
        const To& next = chain.get<To>();
        EXPECT_TRUE(next.isVisible());
        EXPECT_TRUE(form.isVisible());
        form.Printed = 1;
        on<From>();
        click("cmdNext");
        EXPECT_EQ(dialogs.open(), 0U);
        EXPECT_EQ(&chain.get<To>(), &next);
        EXPECT_TRUE(next.isActiveWindow());
    }
};

TEST_F(EveryScreen, BearsItsCaptionAndPrints)
{
    expectCommon<frmStart>("frmStart", "Calculations of Crewmark Based on PLKTN Commitees's Report");
    expectCommon<frmT1>("frmT1", "Entering Track Data");
    expectCommon<frmT2>("frmT2", "Entering Data on Formation , Rainfall and Curves");
    expectCommon<frmT4>("frmT4", "Calculations  of Mandays required for ' T ' and ' R ' activities of main line");
    expectCommon<frmY>("frmY", "Entering Yard Data");
    expectCommon<frmM1>("frmM1", "Data Entry for - For Miscelleneous Activities");
    expectCommon<frmM2>("frmM2", "Data Entry for Miscelleneous Activities  (continued).....");
    expectCommon<frmS1>("frmS1", "Data Entry for Site Specefic Activiries 'S'");
    expectCommon<frmS2>("frmS2", "Data Entry for Site Specefic Activities 'S' (Continued)");
    expectCommon<frmSummary>("frmSummary", "Manpower Requirement Summary for the Division");
}

TEST_F(EveryScreen, NextShowsTheFollowingOne)
{
    expectNext<frmT1, frmT2>();
    expectNext<frmT2, frmT4>();
    expectNext<frmT4, frmY>();
    expectNext<frmY, frmM1>();
    expectNext<frmM1, frmM2>();
    expectNext<frmM2, frmS1>();
    expectNext<frmS1, frmS2>();
    expectNext<frmS2, frmSummary>();
}

}  // namespace
