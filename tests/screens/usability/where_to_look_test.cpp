// After a message about a row, that row is in view and its box has the focus, however far it was scrolled away.

#include <QScrollArea>
#include <QScrollBar>

#include "activities/misc/frmM1.h"
#include "screens/usability/ten_screens.h"
#include "summary/frmSummary.h"
#include "track/frmT1.h"

namespace {

class WhereToLook : public TenScreens {  // slow
protected:
    /// Low enough to scroll, and scrolled to the top.
    template <class Form>
    QScrollArea& low()
    {
        Form& form = nowOn<Form>();
        form.activateWindow();
        form.resize(Usual.width(), 400);
        for (int i = 0; i < 3; ++i)
            settle();
        auto& area = *form.template findChild<QScrollArea*>("rows");
        area.verticalScrollBar()->setValue(0);
        return area;
    }

    bool inView(QScrollArea& area, const std::string& box)
    {
        QWidget& widget = find(box);
        const QRect place(widget.mapTo(area.viewport(), QPoint()), widget.size());
        return area.viewport()->rect().contains(place);
    }

    void expectLedTo(QScrollArea& area, const std::string& box)
    {
        settle();
        EXPECT_EQ(focus(), box);
        EXPECT_TRUE(inView(area, box)) << box;
    }
};

TEST_F(WhereToLook, OnTheTrackScreenItIsTheKilometreThatWasRefused)
{
    openWithMostRows();
    QScrollArea& area = low<frmT1>();
    for (int i = 0; i < 16; ++i)
        chain.get<frmT1>().txtKmt(i).setText("5");
    type("txtKmf(15)", "7");
    area.verticalScrollBar()->setValue(0);
    settle();
    ASSERT_FALSE(inView(area, "txtKmf(15)"));
    dialogs.expectCriticalWith("Revise Values of 'Km from' and 'Km to'", "can not be less");
    click("cmdCompute");
    expectLedTo(area, "txtKmf(15)");
}

TEST_F(WhereToLook, OnTheFirstMiscellaneousScreenItIsTheBeatLengthWithTooManyMen)
{
    openWithMostRows();
    QScrollArea& area = low<frmM1>();
    type("txtNM(11)", "40000");
    area.verticalScrollBar()->setValue(0);
    settle();
    ASSERT_FALSE(inView(area, "txtNM(11)"));
    dialogs.expectCriticalWith("Data Entry for - For Miscelleneous Activities", "beat length 12");
    click("cmdCompute");
    expectLedTo(area, "txtNM(11)");
}

TEST_F(WhereToLook, InTheDivisionsTableItIsTheRowBeyondAllBounds)
{
    openWithMostRows();
    QScrollArea& area = low<frmSummary>();
    auto& form = chain.get<frmSummary>();
    form.txtSDC(14).setText("40000");
    ASSERT_FALSE(inView(area, "txtSDC(14)"));
    form.cmdTotal.setEnabled(true);
    dialogs.expectCriticalWith("Manpower Requirement Summary for the Division", "row 15");
    click("cmdTotal");
    expectLedTo(area, "txtSDC(14)");
}

}  // namespace
