#include "screens/controls/combo_box.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include "screens/controls/text_box.h"

using controls::ComboBox;
using controls::TextBox;

namespace {

/// A method of maintenance between two boxes.
class MethodBox : public testing::Test {
protected:
    MethodBox()
    {
        method.addItems({"Machine Packed", "Manually Packed"});
        auto* down = new QVBoxLayout(&form);
        down->addWidget(&before);
        down->addWidget(&method);
        down->addWidget(&behind);
        form.show();
        form.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
        before.setFocus();
    }

    void click(QWidget& widget) { QTest::mouseClick(&widget, Qt::LeftButton); }

    QWidget form;  // outlives the boxes that it is lent
    TextBox before{"before"};
    ComboBox method{"cboMtc(0)"};
    TextBox behind{"behind"};
};

TEST_F(MethodBox, ATextThatIsNotInTheListIsKeptToTheLetter)
{
    for (const char* imported : {"Machine packed", "machine packed", "Machine", "Machine Packed ", ""}) {
        method.setText(imported);
        EXPECT_EQ(method.text().toStdString(), imported);
        EXPECT_EQ(method.currentIndex(), -1);
    }
}

TEST_F(MethodBox, ATextOfTheListIsChosenInIt)
{
    method.setText("Manually Packed");
    EXPECT_EQ(method.currentIndex(), 1);
    method.setText("Machine packed");
    method.setText("Machine Packed");
    EXPECT_EQ(method.currentIndex(), 0);
}

TEST_F(MethodBox, TabAndEnterThroughTheBoxLeaveItsTextAlone)
{
    method.setText("Machine packed");
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Enter}) {
        before.setFocus();
        QTest::keyClick(&before, key);
        EXPECT_TRUE(method.hasFocus());
        QTest::keyClick(&method, key);
        EXPECT_TRUE(behind.hasFocus());
        EXPECT_EQ(method.text(), "Machine packed");
    }
    QTest::keyClick(&behind, Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_TRUE(method.hasFocus());
    QTest::keyClick(&method, Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(method.text(), "Machine packed");
}

TEST_F(MethodBox, ClicksThroughTheBoxLeaveItsTextAlone)
{
    method.setText("Machine packed");
    click(*method.lineEdit());
    EXPECT_TRUE(method.hasFocus());
    click(behind);
    EXPECT_TRUE(behind.hasFocus());
    EXPECT_EQ(method.text(), "Machine packed");
}

TEST_F(MethodBox, TheListClosedWithoutAChoiceLeavesTheTextAlone)
{
    method.setText("Machine packed");
    method.setFocus();
    QTest::keyClick(&method, Qt::Key_F4);
    EXPECT_TRUE(method.view()->isVisible());
    QTest::keyClick(method.view(), Qt::Key_Escape);
    click(behind);
    EXPECT_EQ(method.text(), "Machine packed");
}

TEST_F(MethodBox, TypedTextIsKeptAsTypedAndNeverCompleted)
{
    method.setFocus();
    method.lineEdit()->selectAll();
    QTest::keyClicks(&method, "machine");
    EXPECT_EQ(method.text(), "machine");
    QTest::keyClick(&method, Qt::Key_Return);
    EXPECT_EQ(method.text(), "machine");
    EXPECT_EQ(method.count(), 2) << "the list does not grow";
}

TEST_F(MethodBox, TextOfAnInputMethodIsTaken)
{
    method.setFocus();
    method.lineEdit()->selectAll();
    EXPECT_TRUE(method.testAttribute(Qt::WA_InputMethodEnabled));
    QInputMethodEvent event;
    event.setCommitString("Measured");
    QApplication::sendEvent(QApplication::focusWidget(), &event);
    EXPECT_EQ(method.text().toStdString(), "Measured");
}

TEST_F(MethodBox, TheWheelScrollsTheRowsNeverTheChoice)
{
    method.setText("Machine Packed");
    method.setFocus();
    QWheelEvent wheel(QPointF(5, 5), method.mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&method, &wheel);
    EXPECT_FALSE(wheel.isAccepted());
    EXPECT_EQ(method.text(), "Machine Packed");
}

TEST_F(MethodBox, LockedIsDisabledAndPaleWithDarkTextWhateverTheTheme)
{
    const QPalette light = QApplication::palette();
    const QPalette dark(Qt::white, QColor(60, 60, 60), QColor(80, 80, 80), Qt::black, QColor(40, 40, 40), Qt::white,
                        QColor(30, 30, 30));
    method.setText("Machine Packed");
    for (const QPalette& theme : {light, dark}) {
        QApplication::setPalette(theme);
        QApplication::processEvents();
        method.setLocked(true);
        for (const QWidget* part : {static_cast<QWidget*>(&method), static_cast<QWidget*>(method.lineEdit())}) {
            EXPECT_EQ(part->palette().color(QPalette::Base), QColor(255, 224, 192));
            EXPECT_EQ(part->palette().color(QPalette::Text), QColor(Qt::black));
        }
        const QImage locked = method.grab().toImage();
        EXPECT_EQ(locked.pixelColor(method.lineEdit()->geometry().bottomRight() - QPoint(2, 2)), QColor(255, 224, 192))
            << "as it is drawn";
        method.setLocked(false);
        EXPECT_EQ(method.palette().color(QPalette::Base), theme.color(QPalette::Base));
        EXPECT_EQ(method.lineEdit()->palette().color(QPalette::Text), theme.color(QPalette::Text));
    }
    QApplication::setPalette(light);
}

TEST_F(MethodBox, LockedItsTextIsWrittenByTheProgramAlone)
{
    method.setLocked(true);
    EXPECT_TRUE(method.isLocked());
    EXPECT_FALSE(method.isEnabled());
    method.setText("Manually Packed");
    EXPECT_EQ(method.text(), "Manually Packed") << "code writes a locked box";
    QTest::keyClick(&before, Qt::Key_Tab);
    EXPECT_TRUE(behind.hasFocus()) << "Tab passes it";
    method.setLocked(false);
    EXPECT_TRUE(method.isEnabled());
}

}  // namespace
