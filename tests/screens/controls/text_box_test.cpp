#include "screens/controls/text_box.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

using controls::TextBox;

namespace {

QColor colour(const TextBox& box, QPalette::ColorRole role)
{
    return box.palette().color(role);
}

const QColor Pale(255, 224, 192);

TEST(TextBoxTest, LockedIsReadOnlyAndPaleTogether)
{
    TextBox box("txtKmf");
    EXPECT_EQ(box.objectName(), "txtKmf");
    const QColor paper = colour(box, QPalette::Base);
    const QColor ink = colour(box, QPalette::Text);

    box.setLocked(true);
    EXPECT_TRUE(box.isLocked() && box.isReadOnly());
    EXPECT_EQ(colour(box, QPalette::Base), Pale);
    EXPECT_EQ(colour(box, QPalette::Text), QColor(Qt::black));
    QTest::keyClicks(&box, "12");
    EXPECT_EQ(box.text(), "");
    box.setText("12");
    EXPECT_EQ(box.text(), "12");

    box.setLocked(false);
    EXPECT_FALSE(box.isLocked() || box.isReadOnly());
    EXPECT_EQ(colour(box, QPalette::Base), paper);
    EXPECT_EQ(colour(box, QPalette::Text), ink);
}

TEST(TextBoxTest, LockedItTakesNothingFromAnInputMethodEither)
{
    TextBox box("txtTkm");
    QInputMethodEvent composed("१", {});
    composed.setCommitString("१२");
    box.setLocked(true);
    QCoreApplication::sendEvent(&box, &composed);
    EXPECT_EQ(box.text(), "");
    box.setLocked(false);
    QCoreApplication::sendEvent(&box, &composed);
    EXPECT_EQ(box.text(), "१२");
}

TEST(TextBoxTest, TabPassesALockedBoxButTheMouseMayCopyFromIt)
{
    TextBox box("txtTkm");
    EXPECT_EQ(box.focusPolicy(), Qt::StrongFocus);
    box.setLocked(true);
    EXPECT_EQ(box.focusPolicy(), Qt::ClickFocus);
}

TEST(TextBoxTest, OnADarkThemeThePaleFillKeepsBlackText)
{
    const QPalette light = QApplication::palette();
    QPalette dark = light;
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::PlaceholderText, Qt::white);
    QApplication::setPalette(dark);
    TextBox locked("a");
    locked.setLocked(true);
    const TextBox open("b");
    EXPECT_EQ(colour(locked, QPalette::Base), Pale);
    EXPECT_EQ(colour(locked, QPalette::Text), QColor(Qt::black));
    EXPECT_LT(colour(locked, QPalette::PlaceholderText).lightness(), 128);
    EXPECT_EQ(colour(open, QPalette::Base), QColor(30, 30, 30));
    EXPECT_EQ(colour(open, QPalette::Text), QColor(Qt::white));
    QApplication::setPalette(light);
}

TEST(TextBoxTest, RedTextMarksAFigureToRevise)
{
    TextBox box("txtKmt");
    const QColor ink = colour(box, QPalette::Text);
    box.setRed(true);
    EXPECT_TRUE(box.isRed());
    EXPECT_EQ(colour(box, QPalette::Text), QColor(255, 0, 0));
    box.setLocked(true);
    EXPECT_EQ(colour(box, QPalette::Text), QColor(255, 0, 0));
    EXPECT_EQ(colour(box, QPalette::Base), Pale);
    box.setLocked(false);
    box.setRed(false);
    EXPECT_EQ(colour(box, QPalette::Text), ink);
}

TEST(TextBoxTest, ChangesAreToldOnlyWhenTheTextReallyChanges)
{
    TextBox box("txtNSeg");
    const QSignalSpy changes(&box, &QLineEdit::textChanged);
    box.setText("5");
    box.setText("5");
    EXPECT_EQ(changes.count(), 1);
    QTest::keyClicks(&box, "6");
    EXPECT_EQ(changes.count(), 2);
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_Delete);
    EXPECT_EQ(changes.count(), 3);
    QTest::keyClick(&box, Qt::Key_Delete);
    EXPECT_EQ(changes.count(), 3);
}

struct Remarked {
    const char* name;
    const char* text;
    int limit;  // 0: none
    const char* remark;
};

class TextBoxRemark : public testing::TestWithParam<Remarked> {};

TEST_P(TextBoxRemark, TellsWhatCounts)
{
    TextBox box("txtNum");
    if (GetParam().limit)
        box.setLimit(GetParam().limit);
    else
        box.setNumeric();
    box.setText(GetParam().text);
    EXPECT_EQ(box.remark().toStdString(), GetParam().remark);
    EXPECT_EQ(box.toolTip().toStdString(), GetParam().remark);
    EXPECT_EQ(box.accessibleDescription().toStdString(), GetParam().remark);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Texts, TextBoxRemark, testing::Values(
    //       name             text       limit  remark
    Remarked{"Number",        "12.5",     0,    ""},
    Remarked{"Empty",         "",         0,    ""},
    Remarked{"Blanks",        "   ",      0,    ""},
    Remarked{"BlanksAround",  " 12 ",     0,    ""},
    Remarked{"Unit",          "12km",     0,    "\"12km\" is not a number: it counts as 12."},
    Remarked{"Comma",         "1,234",    0,    "\"1,234\" is not a number: it counts as 1."},
    Remarked{"Word",          "abc",      0,    "\"abc\" is not a number: it counts as 0."},
    Remarked{"Negative",      "-.5x",     0,    "\"-.5x\" is not a number: it counts as -.5."},
    Remarked{"BeyondSingle",  "1e39",     0,    ""},
    Remarked{"BeyondDouble",  "1e400",    0,    "\"1e400\" is too large to compute with."},
    Remarked{"BeyondAndUnit", "1e400km",  0,    "\"1e400km\" is too large to compute with."},
    Remarked{"AtLimit",       "15",      15,    ""},
    Remarked{"AboveLimit",    "16",      15,    "The most is 15: more counts as 15."},
    Remarked{"FarAboveLimit", "1e400",   15,    "The most is 15: more counts as 15."},
    Remarked{"LimitAndUnit",  "15 Nos",  15,    "\"15 Nos\" is not a number: it counts as 15."}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST(TextBoxTest, ARemarkStandsBeforeTheBoxesOwnTipAndGoesAgain)
{
    TextBox box("txtNSeg");
    box.setToolTip("Maximum number of segments is 16");
    box.setNumeric();
    EXPECT_TRUE(box.alignment() & Qt::AlignRight);
    box.setText("5x");
    box.setText("6x");
    EXPECT_EQ(box.toolTip().toStdString(), "\"6x\" is not a number: it counts as 6.\nMaximum number of segments is 16");
    box.setText("6");
    EXPECT_EQ(box.toolTip().toStdString(), "Maximum number of segments is 16");
    EXPECT_EQ(box.accessibleDescription(), "");
}

TEST(TextBoxTest, ALockedBoxOrOneOfWordsIsNeverRemarkedUpon)
{
    TextBox name("txtT1(0)");
    name.setText("12km");
    EXPECT_EQ(name.remark(), "");
    TextBox computed("txtTkm(0)");
    computed.setNumeric();
    computed.setText("12km");
    computed.setLocked(true);
    EXPECT_EQ(computed.remark(), "");
    EXPECT_EQ(computed.toolTip(), "");
}

TEST(TextBoxTest, MarkupInAFileIsShownAsItStands)
{
    TextBox box("txtKmf");
    box.setNumeric();
    box.setText("1<img src='/dev/zero'>");
    EXPECT_EQ(box.toolTip().indexOf('<'), -1) << box.toolTip().toStdString();
    EXPECT_TRUE(box.toolTip().contains("&lt;img"));
}

TEST(TextBoxTest, ByTabTheTextIsSelectedByTheMouseItIsNot)
{
    QWidget form;
    TextBox other("txtSS");
    TextBox box("txtKmf");
    other.setParent(&form);
    box.setParent(&form);
    box.setText("12");
    form.show();
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    other.setFocus();
    QTest::keyClick(&other, Qt::Key_Tab);
    EXPECT_TRUE(box.hasFocus());
    EXPECT_EQ(box.selectedText(), "12");
    other.setFocus();
    QTest::mouseClick(&box, Qt::LeftButton);
    EXPECT_TRUE(box.hasFocus());
    EXPECT_EQ(box.selectedText(), "");
}

struct Counted {
    const char* name;
    const char* text;
    int count;
    const char* left;
    int changes;
};

class CountBox : public testing::TestWithParam<Counted> {};

TEST_P(CountBox, AsksForRowsUpToItsLimit)
{
    TextBox box("txtNSeg");
    const QSignalSpy changes(&box, &QLineEdit::textChanged);
    box.setText(GetParam().text);
    EXPECT_EQ(controls::countOf(box, 16), GetParam().count);
    EXPECT_EQ(box.text().toStdString(), GetParam().left);
    EXPECT_EQ(changes.count(), GetParam().changes);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Texts, CountBox, testing::Values(
    //      name         text      count  left    changes
    Counted{"Some",      "5",       5,    "5",     1},
    Counted{"AtLimit",   "16",     16,    "16",    1},
    Counted{"Above",     "17",     16,    "16",    2},   // rewritten: once more
    Counted{"Fraction",  "16.5",   16,    "16",    2},
    Counted{"Huge",      "1e400",  16,    "16",    2},
    Counted{"Part",      "2.9",     2,    "2.9",   1},
    Counted{"Zero",      "0",       0,    "0",     1},
    Counted{"Negative",  "-3",      0,    "-3",    1},
    Counted{"Lowest",    "-1e400",  0,    "-1e400",1},
    Counted{"Word",      "abc",     0,    "abc",   1}),
    [](const auto& tested) { return tested.param.name; });
// clang-format on

TEST(TextBoxTest, ARewrittenCountLeavesTheCursorInItsPlace)
{
    TextBox box("txtNSeg");
    box.setText("315");
    box.setCursorPosition(1);
    EXPECT_EQ(controls::countOf(box, 16), 16);
    EXPECT_EQ(box.cursorPosition(), 1);
}

// "12345.67" in a narrow box must not pass for "45.67".
TEST(TextBoxTest, ShowsTheBeginningOfWhatDoesNotFitUnlessTheUserIsInIt)
{
    TextBox box("txtMan9");
    box.setNumeric();
    box.setFixedWidth(40);
    box.show();
    const auto beginning = [&box] { return box.cursorPosition() == 0 && box.selectedText().isEmpty(); };

    box.setText("1234567.89");
    EXPECT_TRUE(beginning());
    box.selectAll();
    QTest::keyClicks(&box, "987654321");
    EXPECT_EQ(box.cursorPosition(), 9) << "what is typed is seen";
    QFocusEvent toAnotherProgram(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(&box, &toAnotherProgram);
    EXPECT_EQ(box.cursorPosition(), 9) << "back from there, typing goes on";
    QFocusEvent toAnotherBox(QEvent::FocusOut, Qt::TabFocusReason);
    QCoreApplication::sendEvent(&box, &toAnotherBox);
    EXPECT_TRUE(beginning());

    box.setLocked(true);  // a computed figure, looked at to its end
    QTest::keyClick(&box, Qt::Key_End);
    EXPECT_FALSE(beginning());
    QCoreApplication::sendEvent(&box, &toAnotherBox);
    EXPECT_TRUE(beginning());
}

TEST(TextBoxTest, IsReadLenientlyWhateverTheLocale)
{
    TextBox box("txtKmf");
    box.setText(" 12.5km");
    EXPECT_EQ(controls::valueOf(box), 12.5);
    box.setText("12,5");
    EXPECT_EQ(controls::valueOf(box), 12.0);
}

}  // namespace
