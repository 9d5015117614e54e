#include "screens/controls/entry.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGridLayout>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "screens/controls/button.h"
#include "screens/controls/combo_box.h"
#include "screens/controls/control_array.h"
#include "screens/controls/row_sheet.h"
#include "screens/controls/text_box.h"

using controls::ComboBox;
using controls::ControlArray;
using controls::TextBox;

namespace {

/// Three rows: from, to, method, computed, GMT; and a button behind them.
class Entry : public testing::Test {
protected:
    static constexpr int Count = 3;

    Entry()
    {
        auto* sheet = new controls::RowSheet("row", Count);
        sheet->textEntry(from, 8).textEntry(to, 8).choice(method, 16, {}, "").textResult(computed, 8).textEntry(gmt, 8);
        sheet->finish();
        sheet->showRows(Count);
        auto* down = new QVBoxLayout(&form);
        down->addWidget(sheet);
        down->addWidget(&compute);
        form.resize(500, 300);
        form.show();
        form.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
        from(0).setFocus();
    }

    void press(Qt::Key key) { QTest::keyClick(form.focusWidget(), key); }
    std::string focus() { return form.focusWidget()->objectName().toStdString(); }

    void paste(QWidget& box, const QString& block)
    {
        QGuiApplication::clipboard()->setText(block);
        box.setFocus();
        QTest::keySequence(&box, QKeySequence::Paste);
    }

    std::string row(int i)
    {
        return (from(i).text() + "|" + to(i).text() + "|" + method(i).text() + "|" + computed(i).text() + "|" +
                gmt(i).text())
            .toStdString();
    }

    QWidget form;  // outlives the boxes that it is lent
    ControlArray<TextBox> from{"from", Count};
    ControlArray<TextBox> to{"to", Count};
    ControlArray<ComboBox> method{"method", Count};
    ControlArray<TextBox> computed{"computed", Count};
    ControlArray<TextBox> gmt{"gmt", Count};
    controls::Button compute{"compute", "&Compute"};
};

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

struct Block {
    const char* name;
    const char* text;
    const char* rows[3];
};

class PastedBlock : public Entry, public testing::WithParamInterface<Block> {};

TEST_P(PastedBlock, FillsTheBoxesToTheRightAndBelow)
{
    paste(from(0), GetParam().text);
    for (int i = 0; i < Count; ++i)
        EXPECT_EQ(row(i), GetParam().rows[i]);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(FromASpreadsheet, PastedBlock, testing::Values(
    //    name          clipboard                            row 0             row 1             row 2
    Block{"Row",        "10\t25",                          {"10|25|||",       "||||",           "||||"}},
    Block{"Column",     "10\n25",                          {"10||||",         "25||||",         "||||"}},
    Block{"Lf",         "10\t25\n30\t40\n",                {"10|25|||",       "30|40|||",       "||||"}},
    Block{"CrLf",       "10\t25\r\n30\t40\r\n",            {"10|25|||",       "30|40|||",       "||||"}},
    Block{"Cr",         "10\t25\r30\t40\r",                {"10|25|||",       "30|40|||",       "||||"}},
    Block{"OneCellRow", "10\t\n",                          {"10||||",         "||||",           "||||"}},
    Block{"EmptyCells", "\t25\n\t\n10\t",                  {"|25|||",         "||||",           "10||||"}},
    Block{"PastLocked", "1\t2\tManually\t42.6\n",          {"1|2|Manually||42.6", "||||",       "||||"}},
    Block{"Ragged",     "1\n2\t3\n4\n",                    {"1||||",          "2|3|||",         "4||||"}},
    Block{"TooLarge",   "1\t2\t3\t4\t5\t6\n1\n1\n1\n1\n",  {"1|2|3||4",       "1||||",          "1||||"}}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST_F(Entry, ABlockStartsAtTheBoxItIsPastedInto)
{
    paste(to(1), "1\t2\n3\t4\n5\t6\n");
    EXPECT_EQ(row(0), "||||");
    EXPECT_EQ(row(1), "|1|2||");
    EXPECT_EQ(row(2), "|3|4||");
    paste(method(0), "Machine packed\t7\n");
    EXPECT_EQ(row(0), "||Machine packed||7");
}

TEST_F(Entry, AForcedChoiceLetsItsCellFallSoThatTheCellsBehindItKeepTheirColumns)
{
    method(0).setText("Machine Packed");
    method(0).setLocked(true);
    paste(from(0), "1\t2\tManually Packed\t42.6\n3\t4\tManually Packed\t39.8\n");
    EXPECT_EQ(row(0), "1|2|Machine Packed||42.6");
    EXPECT_EQ(row(1), "3|4|Manually Packed||39.8");
}

TEST_F(Entry, ABlockPassesHiddenRows)
{
    for (QWidget* box : std::initializer_list<QWidget*>{&from(1), &to(1), &method(1), &computed(1), &gmt(1)})
        box->hide();
    QApplication::processEvents();
    paste(from(0), "1\n2\n3\n");
    EXPECT_EQ(from(0).text() + from(1).text() + from(2).text(), "12");
}

TEST_F(Entry, APastedFigureIsTheUsersAsATypedOneIs)
{
    const QSignalSpy edited(&to(1), &QLineEdit::textEdited);
    paste(from(0), "1\t2\n3\t4\n");
    ASSERT_EQ(edited.count(), 1);
    EXPECT_EQ(edited[0][0].toString(), "4");
}

TEST_F(Entry, ASingleTextIsAnOrdinaryPaste)
{
    from(0).setText("212.4");
    from(0).setCursorPosition(2);
    QGuiApplication::clipboard()->setText("99");
    QTest::keySequence(&from(0), QKeySequence::Paste);
    EXPECT_EQ(from(0).text(), "21992.4");
    EXPECT_FALSE(controls::pasteBlock(from(0), "99"));
}

TEST_F(Entry, OneCellOfASpreadsheetIsPastedWithoutItsLineEnd)
{
    for (const char* cell : {"99\n", "99\r\n"}) {
        from(0).clear();
        method(0).clearEditText();
        paste(from(0), cell);
        paste(method(0), cell);
        EXPECT_EQ(row(0), "99||99||");
        EXPECT_EQ(row(1), "||||");
    }
}

TEST_F(Entry, ALockedBoxTakesNoPaste)
{
    computed(0).setText("7.");
    paste(computed(0), "1\t2\n");
    EXPECT_EQ(row(0), "|||7.|");
    EXPECT_EQ(row(1), "||||");
}

TEST_F(Entry, PasteOfTheBoxesMenuSpreadsABlockToo)
{
    QGuiApplication::clipboard()->setText("1\t2\n3\t4\n");
    bool found = false;
    QTimer::singleShot(0, [&found] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (QAction* action : menu->actions())
            if (action->text().startsWith("&Paste")) {
                found = true;
                action->trigger();
            }
        menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(2, 2), from(0).mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(&from(0), &event);
    EXPECT_TRUE(found);
    EXPECT_EQ(row(0), "1|2|||");
    EXPECT_EQ(row(1), "3|4|||");
}

}  // namespace
