#include "screens/controls/entry.h"

#include <QApplication>
#include <QSignalSpy>

#include "screens/controls/entry_rows.h"

namespace {

class Entry : public EntryRows {};

TEST_F(Entry, EnterGoesOnLikeTabInReadingOrder)
{
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Enter}) {
        from(0).setFocus();
        std::string order;
        for (int i = 0; i < 5; ++i) {
            press(key);
            order += focus() + " ";
        }
        EXPECT_EQ(order, "to(0) method(0) gmt(0) from(1) to(1) ");
    }
}

TEST_F(Entry, EnterOnAButtonPressesIt)
{
    const QSignalSpy clicks(&compute, &QAbstractButton::clicked);
    gmt(2).setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(focus(), "compute");
    EXPECT_EQ(clicks.count(), 0);
    press(Qt::Key_Return);
    press(Qt::Key_Enter);
    press(Qt::Key_Space);
    EXPECT_EQ(clicks.count(), 3);
    compute.setEnabled(false);
    QTest::keyClick(&compute, Qt::Key_Return);
    EXPECT_EQ(clicks.count(), 3);
}

TEST_F(Entry, UpAndDownGoBetweenRows)
{
    to(0).setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(focus(), "to(1)");
    press(Qt::Key_Down);
    EXPECT_EQ(focus(), "to(2)");
    press(Qt::Key_Down);
    EXPECT_EQ(focus(), "to(2)") << "there is no row below";
    press(Qt::Key_Up);
    EXPECT_EQ(focus(), "to(1)");
}

TEST_F(Entry, UpAndDownInAListGoBetweenRowsAndLeaveTheChoice)
{
    method(1).addItems({"Machine Packed", "Manually Packed"});
    method(1).setText("Machine Packed");
    method(1).setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(focus(), "method(2)");
    method(1).setFocus();
    press(Qt::Key_Up);
    EXPECT_EQ(focus(), "method(0)");
    EXPECT_EQ(method(1).text(), "Machine Packed");
}

TEST_F(Entry, UpAndDownPassLockedAndHiddenBoxes)
{
    to(1).setLocked(true);
    to(0).setFocus();
    press(Qt::Key_Down);
    EXPECT_NE(focus(), "to(1)");
    EXPECT_NE(focus(), "to(0)");
    to(1).setLocked(false);
    for (QWidget* box : std::initializer_list<QWidget*>{&from(1), &to(1), &method(1), &computed(1), &gmt(1)})
        box->hide();
    QApplication::processEvents();
    to(0).setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(focus(), "to(2)");
}

TEST_F(Entry, AnyOtherKeyIsTheBoxesOwn)
{
    QTest::keyClicks(&from(0), "212.4");
    QTest::keyClick(&from(0), Qt::Key_Home);
    QTest::keyClick(&from(0), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(from(0).selectedText(), "2");
    EXPECT_EQ(from(0).text(), "212.4");
}

TEST_F(Entry, TheMnemonicOfAClosedButtonIsNoLetterForTheBox)
{
    compute.setEnabled(false);
    QTest::keyClick(&from(0), Qt::Key_C, Qt::AltModifier);
    QTest::keyClick(&method(0), Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(from(0).text(), "");
    EXPECT_EQ(method(0).text(), "");
}

}  // namespace
