// While one of the desktop's boxes waits for its answer, the screens behind it wait, too.

#include <QApplication>
#include <QMessageBox>
#include <QPrintDialog>
#include <QTest>
#include <QTimer>

#include "start/frmStart.h"
#include "support/screen_test.h"
#include "track/frmT1.h"
#include "track/frmT2.h"

namespace {

/// frmT1 with one segment of 3 km of welded rail that passes, and one with its limits the wrong way round.
class OpenBox : public testing::Test {
protected:
    OpenBox()
    {
        compose(chain);
        t1 = &chain.show<frmT1>();
        t1->optBG.click();
        t1->txtNSeg.setText("2");
        t1->txtLWR(0).setText("3");
        t1->txtKmf(1).setText("25");
        t1->txtKmt(1).setText("10");
    }

    template <class Box, class Look>
    void whileItStands(Look look)
    {
        QTimer::singleShot(0, t1, [this, look] {
            auto* box = qobject_cast<Box*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            look();
            seen = true;
            box->reject();
        });
    }

    flow::DesktopDialogs dialogs;
    flow::Chain chain{dialogs};
    frmT1* t1 = nullptr;
    bool seen = false;
};

TEST_F(OpenBox, ComputePressedOnceMoreCountsNothingTwice)
{
    whileItStands<QMessageBox>([&] { t1->cmdCompute.click(); });
    t1->cmdCompute.click();
    EXPECT_TRUE(seen);
    EXPECT_EQ(t1->LwrTotal, 3.0F);  // 3, not 3 + 3
}

TEST_F(OpenBox, APressByItsMnemonicThatComesLateIsDropped)
{
    // Qt presses a button a tenth of a second after Alt and its letter.
    QTest::keyClick(t1, Qt::Key_C, Qt::AltModifier);
    whileItStands<QMessageBox>([&] {
        QTest::qWait(200);
        EXPECT_FALSE(t1->cmdCompute.isDown()) << "the late press has not come";
    });
    t1->cmdCompute.click();
    EXPECT_TRUE(seen);
    EXPECT_EQ(t1->LwrTotal, 3.0F);
}

TEST_F(OpenBox, NothingElseOfTheScreenIsDoneUnderThePrintDialog)
{
    t1->txtKmt(1).setText("30");
    t1->cmdCompute.click();
    ASSERT_TRUE(t1->cmdPrint.isEnabled());
    whileItStands<QPrintDialog>([&] {
        auto* const dialog = QApplication::activeModalWidget();
        t1->cmdNext.click();
        t1->cmdPrint.click();
        EXPECT_EQ(QApplication::activeModalWidget(), dialog) << "a second box on top";
    });
    t1->cmdPrint.click();
    EXPECT_TRUE(seen);
    EXPECT_FALSE(chain.isLoaded<frmT2>());
}

}  // namespace
