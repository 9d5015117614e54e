#include "screens/controls/paste.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QSignalSpy>
#include <QTimer>

#include "screens/controls/entry_rows.h"

namespace {

class BlockPaste : public EntryRows {
protected:
    void paste(QWidget& box, const QString& block)
    {
        QGuiApplication::clipboard()->setText(block);
        box.setFocus();
        QTest::keySequence(&box, QKeySequence::Paste);
    }

    void undoIn(QWidget& box)
    {
        box.setFocus();
        QTest::keySequence(&box, QKeySequence::Undo);
    }

    static void chooseInMenu(QWidget& box, const QString& item)
    {
        bool found = false;
        QTimer::singleShot(0, [&] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            for (QAction* action : menu->actions())
                if (action->text().startsWith(item)) {
                    found = true;
                    EXPECT_TRUE(action->isEnabled()) << item.toStdString();
                    action->trigger();
                }
            menu->close();
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(2, 2), box.mapToGlobal(QPoint(2, 2)));
        QApplication::sendEvent(&box, &event);
        EXPECT_TRUE(found) << item.toStdString();
    }

    /// Of what the last paste left out, if it is to be seen.
    QLabel* notice()
    {
        for (auto* label : form.findChildren<QLabel*>("pasteNotice"))
            if (label->isVisible())
                return label;
        return nullptr;
    }
};

struct Block {
    const char* name;
    const char* text;
    const char* rows[3];
};

class PastedBlock : public BlockPaste, public testing::WithParamInterface<Block> {};

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

TEST_F(BlockPaste, ABlockStartsAtTheBoxItIsPastedInto)
{
    paste(to(1), "1\t2\n3\t4\n5\t6\n");
    EXPECT_EQ(row(0), "||||");
    EXPECT_EQ(row(1), "|1|2||");
    EXPECT_EQ(row(2), "|3|4||");
    paste(method(0), "Machine packed\t7\n");
    EXPECT_EQ(row(0), "||Machine packed||7");
}

TEST_F(BlockPaste, AForcedChoiceLetsItsCellFallSoThatTheCellsBehindItKeepTheirColumns)
{
    method(0).setText("Machine Packed");
    method(0).setLocked(true);
    paste(from(0), "1\t2\tManually Packed\t42.6\n3\t4\tManually Packed\t39.8\n");
    EXPECT_EQ(row(0), "1|2|Machine Packed||42.6");
    EXPECT_EQ(row(1), "3|4|Manually Packed||39.8");
}

TEST_F(BlockPaste, ABlockPassesHiddenRows)
{
    for (QWidget* box : std::initializer_list<QWidget*>{&from(1), &to(1), &method(1), &computed(1), &gmt(1)})
        box->hide();
    QApplication::processEvents();
    paste(from(0), "1\n2\n3\n");
    EXPECT_EQ(from(0).text() + from(1).text() + from(2).text(), "12");
}

TEST_F(BlockPaste, APastedFigureIsTheUsersAsATypedOneIs)
{
    const QSignalSpy edited(&to(1), &QLineEdit::textEdited);
    paste(from(0), "1\t2\n3\t4\n");
    ASSERT_EQ(edited.count(), 1);
    EXPECT_EQ(edited[0][0].toString(), "4");
}

TEST_F(BlockPaste, ASingleTextIsAnOrdinaryPaste)
{
    from(0).setText("212.4");
    from(0).setCursorPosition(2);
    QGuiApplication::clipboard()->setText("99");
    QTest::keySequence(&from(0), QKeySequence::Paste);
    EXPECT_EQ(from(0).text(), "21992.4");
    EXPECT_FALSE(controls::pasteBlock(from(0), "99"));
}

TEST_F(BlockPaste, OneCellOfASpreadsheetIsPastedWithoutItsLineEnd)
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

TEST_F(BlockPaste, ALockedBoxTakesNoPaste)
{
    computed(0).setText("7.");
    paste(computed(0), "1\t2\n");
    EXPECT_EQ(row(0), "|||7.|");
    EXPECT_EQ(row(1), "||||");
}

TEST_F(BlockPaste, PasteOfTheBoxesMenuSpreadsABlockAndUndoTakesItBack)
{
    from(0).setText("7");
    QGuiApplication::clipboard()->setText("1\t2\n3\t4\n");
    chooseInMenu(from(0), "&Paste");
    EXPECT_EQ(row(0), "1|2|||");
    EXPECT_EQ(row(1), "3|4|||");
    chooseInMenu(to(1), "&Undo");
    EXPECT_EQ(row(0), "7||||");
    EXPECT_EQ(row(1), "||||");
}

// What a paste leaves out

TEST_F(BlockPaste, APasteOfMoreRowsThanAreShownSaysHowManyWereLeftOut)
{
    paste(to(1), "1\n2\n3\n4\n5\n");
    ASSERT_NE(notice(), nullptr);
    EXPECT_EQ(notice()->text().toStdString(),
              "Pasted: 2 of 5 rows. Left out: 3, because no more rows are shown. Ctrl+Z undoes the paste.");
    EXPECT_TRUE(form.rect().contains(notice()->geometry().center()));
    EXPECT_GE(notice()->geometry().top(), to(2).mapTo(&form, QPoint(0, to(2).height())).y()) << "under the last row";
    EXPECT_EQ(to(1).accessibleDescription(), notice()->text()) << "as a screen reader tells it";
    EXPECT_TRUE(to(1).hasFocus()) << "no OK is needed";
}

TEST_F(BlockPaste, ItCountsNoEmptyRowsAtTheEndOfAWholeColumn)
{
    paste(from(0), "1\t2\n3\t4\n5\t6\n\t\n\t\n");
    EXPECT_EQ(notice(), nullptr);
    paste(from(0), "1\t2\n3\t4\n5\t6\n\t\n7\t8\n\t\n");
    ASSERT_NE(notice(), nullptr);
    EXPECT_TRUE(notice()->text().startsWith("Pasted: 3 of 5 rows. Left out: 2,"));
}

TEST_F(BlockPaste, TheNoticeStaysWhileTheUserIsInTheBoxesAndNothingChanges)
{
    from(0).setNumeric();
    const char* const tooMany = "1x\n2\n3\n4\n";
    const std::string remark = "\"1x\" is not a number: it counts as 1.";
    const auto told = [&] { return from(0).accessibleDescription().toStdString(); };
    paste(from(0), tooMany);
    EXPECT_EQ(told(), remark + " " + notice()->text().toStdString());
    press(Qt::Key_Tab);
    EXPECT_NE(notice(), nullptr);
    compute.setFocus();
    EXPECT_EQ(notice(), nullptr) << "the user has gone on to the button";
    EXPECT_EQ(told(), remark);

    paste(from(0), tooMany);
    QTest::keyClicks(&from(2), "7");
    EXPECT_EQ(notice(), nullptr) << "a row has been changed";

    paste(from(0), tooMany);
    QTest::mouseClick(notice(), Qt::LeftButton);
    EXPECT_EQ(notice(), nullptr) << "the user has clicked it away";

    paste(from(0), tooMany);
    paste(from(0), "1\n2\n");
    EXPECT_EQ(notice(), nullptr) << "the next block had room";
    EXPECT_EQ(told(), "");
}

// Undo

TEST_F(BlockPaste, CtrlZInAnyOfItsBoxesTakesABlockBack)
{
    from(0).setText("100");
    method(1).setText("Measured");
    gmt(0).setText("7");
    for (QWidget* box : std::initializer_list<QWidget*>{&from(0), &to(1), &method(1)}) {
        paste(from(0), "1\t2\tManual\n3\t4\tManual\n5\t6\tManual\n7\n");
        EXPECT_EQ(row(1), "3|4|Manual||");
        const QSignalSpy edited(&to(1), &QLineEdit::textEdited);
        undoIn(*box);
        EXPECT_EQ(row(0), "100||||7");
        EXPECT_EQ(row(1), "||Measured||");
        EXPECT_EQ(row(2), "||||");
        EXPECT_EQ(edited.count(), 1) << "it is the user's change, as the paste was";
        EXPECT_EQ(notice(), nullptr);
    }
}

TEST_F(BlockPaste, CtrlZInAnotherBoxIsThatBoxesOwn)
{
    paste(from(0), "1\t2\n3\t4\n");
    gmt(0).setFocus();
    QTest::keyClicks(&gmt(0), "42");
    undoIn(gmt(0));
    EXPECT_EQ(row(0), "1|2|||");
    undoIn(gmt(0));
    EXPECT_EQ(row(0), "1|2|||") << "nothing is left to take back in it";
}

TEST_F(BlockPaste, WhatWasTypedSinceIsTakenBackFirst)
{
    paste(from(0), "1\t2\n3\t4\n");
    to(1).setFocus();
    QTest::keyClick(&to(1), Qt::Key_End);
    QTest::keyClicks(&to(1), "5");
    undoIn(from(0));
    EXPECT_EQ(row(0) + " " + row(1), "1|2||| 3|45|||") << "typed in one box, the block stays in all";
    undoIn(to(1));
    EXPECT_EQ(row(1), "3|4|||");
    undoIn(to(1));
    EXPECT_EQ(row(0) + row(1), "||||||||");
}

TEST_F(BlockPaste, ABlockWhoseBoxesHaveBeenLockedSinceStays)
{
    paste(from(0), "1\t2\n3\t4\n");
    to(1).setLocked(true);
    undoIn(from(0));
    EXPECT_EQ(row(0) + " " + row(1), "1|2||| 3|4|||");
}

}  // namespace
