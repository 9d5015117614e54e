#include "screens/controls/row_sheet.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

#include "screens/controls/form_layout.h"

using controls::ControlArray;
using controls::RowSheet;
using controls::TextBox;

namespace {

/// Ten rows of two columns and a total, on a form that scrolls.
class Rows : public testing::Test {
protected:
    static constexpr int Count = 10;

    Rows()
    {
        sheet->withTotalRow();
        sheet->heading("Km From").entry(km, 8);
        sheet->heading("Length and no  of Eq.t/outs on conc Sleepers", 2)
            .entry(length, 8, "length")
            .entry(turnouts, 8, "turnouts");
        sheet->finish();
        sheet->showRows(3);
        sheet->showTotal();
        layout.addRows(sheet);
        const auto headings = sheet->findChildren<QLabel*>();
        from = headings[0];
        concrete = headings[1];
        form.resize(600, 600);
        form.show();
        settle();
    }

    static void settle()
    {
        for (int i = 0; i < 3; ++i)
            QApplication::processEvents();
    }

    QScrollArea& area() { return *form.findChild<QScrollArea*>("rows"); }
    int headingY() { return from->mapTo(area().viewport(), QPoint()).y(); }

    QWidget form;
    controls::FormLayout layout{form, "Rows"};
    ControlArray<TextBox> km{"txtKmf", Count};
    ControlArray<TextBox> length{"txtConc1", Count};
    ControlArray<TextBox> turnouts{"txtConc2", Count + 1};
    RowSheet* sheet = new RowSheet("segment", Count);
    QLabel* from = nullptr;
    QLabel* concrete = nullptr;
};

TEST_F(Rows, StandUnderOneAnotherInTheirColumns)
{
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(km(i).x(), km(0).x());
        EXPECT_EQ(km(i).y(), length(i).y());
        EXPECT_EQ(km(i).height(), turnouts(i).height());
        EXPECT_GT(length(i).x(), km(i).geometry().right());
        EXPECT_GT(turnouts(i).x(), length(i).geometry().right());
    }
    EXPECT_GT(km(1).y(), km(0).geometry().bottom());
}

TEST_F(Rows, HeadingsStandOverTheirColumns)
{
    EXPECT_EQ(from->x(), km(0).x());
    EXPECT_EQ(from->width(), km(0).width());
    EXPECT_EQ(concrete->x(), length(0).x());
    EXPECT_EQ(concrete->geometry().right(), turnouts(0).geometry().right());
    EXPECT_GE(concrete->height(), concrete->heightForWidth(concrete->width())) << "cut off";
    EXPECT_LE(concrete->geometry().bottom(), km(0).y());
}

TEST_F(Rows, HiddenOnesTakeNoRoom)
{
    const int row = km(1).y() - km(0).y();
    const int three = sheet->sizeHint().height();
    sheet->showRows(5);
    settle();
    EXPECT_EQ(sheet->sizeHint().height(), three + 2 * row);
    EXPECT_EQ(km(4).y(), km(0).y() + 4 * row);
    sheet->showRows(0);
    settle();
    EXPECT_EQ(sheet->sizeHint().height(), three - 3 * row);
    EXPECT_EQ(km(0).isHidden(), true);
}

TEST_F(Rows, AreAsHighAsWhatTheyShow)
{
    EXPECT_EQ(area().height(), sheet->sizeHint().height());
    sheet->showRows(4);
    settle();
    EXPECT_EQ(area().height(), sheet->sizeHint().height());
    EXPECT_EQ(area().verticalScrollBar()->maximum(), 0);
}

TEST_F(Rows, TheTotalStandsUnderTheLastRowShown)
{
    const int row = km(1).y() - km(0).y();
    EXPECT_EQ(turnouts(Count).y(), km(2).y() + row);
    sheet->showRows(4);
    settle();
    EXPECT_EQ(turnouts(Count).y(), km(3).y() + row);
    sheet->setTotalPosition(6);
    EXPECT_EQ(turnouts(Count).y(), km(0).y() + 6 * row);
}

TEST_F(Rows, HeadingsStayInViewWhileTheRowsScroll)
{
    sheet->showRows(Count);
    form.resize(600, 220);
    settle();
    ASSERT_GT(area().verticalScrollBar()->maximum(), 40);
    EXPECT_EQ(headingY() + from->height(), sheet->headingHeight() - 4);
    const int top = headingY();
    const int row = km(5).mapTo(area().viewport(), QPoint()).y();
    area().verticalScrollBar()->setValue(40);
    settle();
    EXPECT_EQ(km(5).mapTo(area().viewport(), QPoint()).y(), row - 40);
    EXPECT_EQ(headingY(), top);
}

TEST_F(Rows, ABoxThatGetsTheFocusIsInViewBelowTheHeadings)
{
    sheet->showRows(Count);
    form.resize(600, 220);
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    settle();
    const auto inView = [this](const TextBox& box) {
        const int y = box.mapTo(area().viewport(), QPoint()).y();
        return y >= sheet->headingHeight() && y + box.height() <= area().viewport()->height();
    };
    EXPECT_FALSE(inView(km(9)));
    km(9).setFocus();
    EXPECT_TRUE(inView(km(9)));
    EXPECT_FALSE(inView(km(0)));
    km(0).setFocus();
    EXPECT_TRUE(inView(km(0)));
}

TEST_F(Rows, BoxesAreNamedAfterHeadingPartAndRow)
{
    EXPECT_EQ(km(2).accessibleName().toStdString(), "Km From, segment 3");
    EXPECT_EQ(turnouts(0).accessibleName().toStdString(),
              "Length and no of Eq.t/outs on conc Sleepers, turnouts, segment 1");
    EXPECT_EQ(turnouts(Count).accessibleName().toStdString(),
              "Length and no of Eq.t/outs on conc Sleepers, turnouts, total");
}

// One declaration says all that the boxes of a column are.
TEST(Columns, AreEnteredOrComputedFiguresOrTexts)
{
    RowSheet sheet("row", 2);
    ControlArray<TextBox> entered("entered", 2);
    ControlArray<TextBox> named("named", 2);
    ControlArray<controls::ComboBox> chosen("chosen", 2);
    ControlArray<TextBox> computed("computed", 3);
    ControlArray<TextBox> told("told", 2);
    sheet.withTotalRow();
    sheet.heading("Entered", 3).entry(entered, 8).textEntry(named, 8).choice(chosen, 8, {"UP", "DN"}, "Line");
    sheet.heading("Computed", 2).result(computed, 8).textResult(told, 8);
    sheet.finish();

    const auto isNumeric = [](const TextBox& box) { return box.alignment().testFlag(Qt::AlignRight); };
    EXPECT_TRUE(isNumeric(entered(1)) && isNumeric(computed(1)) && isNumeric(computed(2)));
    EXPECT_FALSE(isNumeric(named(1)) || isNumeric(told(1)));
    EXPECT_FALSE(entered(1).isLocked() || named(1).isLocked() || chosen(1).isLocked());
    EXPECT_TRUE(computed(1).isLocked() && computed(2).isLocked() && told(1).isLocked());
    EXPECT_EQ(chosen(1).text(), "Line");
    EXPECT_EQ(chosen(1).itemText(0) + chosen(1).itemText(1), "UPDN");

    sheet.showRows(1);
    for (int i = 0; i < 2; ++i)
        for (const QWidget* box : {static_cast<QWidget*>(&entered(i)), static_cast<QWidget*>(&named(i)),
                                   static_cast<QWidget*>(&chosen(i)), static_cast<QWidget*>(&computed(i))})
            EXPECT_EQ(box->isHidden(), i == 1) << box->objectName().toStdString();
    EXPECT_TRUE(computed(2).isHidden());
    ASSERT_EQ(sheet.totalBoxes(), std::vector<QWidget*>{&computed(2)}) << "the one column that has a total";
    sheet.showTotal();
    EXPECT_FALSE(computed(2).isHidden());
}

TEST(Columns, AnEntryIsLockedInTheTotalRow)
{
    RowSheet sheet("row", 2);
    ControlArray<TextBox> entered("entered", 3);
    sheet.withTotalRow();
    sheet.entry(entered, 8);
    sheet.finish();
    EXPECT_TRUE(entered(2).isLocked());
    EXPECT_FALSE(entered(1).isLocked());
}

TEST_F(Rows, TabGoesRowByRow)
{
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    km(0).setFocus();
    std::string order;
    for (int i = 0; i < 4; ++i) {
        QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
        order += form.focusWidget()->objectName().toStdString() + " ";
    }
    EXPECT_EQ(order, "txtConc1(0) txtConc2(0) txtKmf(1) txtConc1(1) ");
}

}  // namespace
