// The whole way by keys alone: no test here clicks.

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <map>

#include "screens/usability/ten_screens.h"
#include "start/frmStart.h"
#include "summary/frmSummary.h"
#include "track/frmT1.h"
#include "track/frmT4.h"
#include "yards/frmY.h"

namespace {

class Keyboard : public TenScreens {  // slow
protected:
    static std::string focused()
    {
        const QWidget* widget = QApplication::focusWidget();
        return widget ? widget->objectName().toStdString() : "nothing";
    }

    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        settle();
    }

    static void enter(const std::string& text)
    {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClicks(QApplication::focusWidget(), QString::fromStdString(text));
        press(Qt::Key_Return);
    }

    static void goOnTo(const std::string& name)
    {
        for (int i = 0; i < 100 && focused() != name; ++i)
            press(Qt::Key_Return);
        EXPECT_EQ(focused(), name) << "Enter does not lead there";
    }

    /// Import by its mnemonic, then Enter all the way: each time on the button that comes next.
    void workByKeys(const division::Step& step)
    {
        SCOPED_TRACE(step.form);
        EXPECT_EQ(QApplication::activeWindow(), &nowOn(step.form));
        if (*step.import)
            press(Qt::Key_D, Qt::AltModifier);
        // A mnemonic presses the button for a moment.
        ASSERT_TRUE(QTest::qWaitFor([&] { return focused() == step.compute; })) << "the focus is on " << focused();
        press(Qt::Key_Return);
        EXPECT_EQ(focused(), "cmdPrint");
        dialogs.expectPrint({.firstPage = 1, .lastPage = 1, .copies = 1}, folder.filePath("print.pdf").toStdString());
        press(Qt::Key_Return);
        EXPECT_EQ(dialogs.open(), 0U) << "the print dialog did not come";
        EXPECT_EQ(focused(), "cmdNext");
        press(Qt::Key_Return);
    }

    QTemporaryDir folder;
};

TEST_F(Keyboard, TheWholeWayCanBeGoneWithoutAMouse)
{
    on<frmStart>();
    EXPECT_EQ(focused(), "txtT1(5)");
    enter("Sample Railway");
    enter("Sample Division");
    enter("1");
    EXPECT_EQ(focused(), "txtT1(0)");
    enter("Sr SE Ambapur");
    EXPECT_EQ(focused(), "cmdFile");
    dialogs.expectFile(sample("1-ambapur.mdb"));
    press(Qt::Key_Return);
    EXPECT_EQ(focused(), "cmdProceed");
    press(Qt::Key_Return);

    nowOn<frmT1>();
    EXPECT_EQ(focused(), "txtT1(0)");
    enter("Sample Section");
    EXPECT_EQ(focused(), "txtT1(2)");
    enter("Km 0 to 100");
    EXPECT_EQ(focused(), "optBG");
    press(Qt::Key_Space);
    EXPECT_EQ(text("txtT1(3)"), "BG");
    press(Qt::Key_Return);  // on, as in a box
    EXPECT_EQ(focused(), "chkSub");
    press(Qt::Key_Return);
    for (std::size_t i = 1; i + 1 < division::Steps.size(); ++i)
        workByKeys(division::Steps[i]);

    nowOn<frmSummary>();
    EXPECT_EQ(focused(), "cmdTransfer");
    press(Qt::Key_Return);
    EXPECT_EQ(focused(), "cmdCompute");
    dialogs.expectMessage("Calculations for all Sr SSE's are over", "Now Total up the figures");
    press(Qt::Key_Return);
    EXPECT_EQ(focused(), "cmdTotal");
    press(Qt::Key_Return);
    EXPECT_EQ(focused(), "cmdPrint");
    dialogs.expectPrint({.firstPage = 1, .lastPage = 1, .copies = 1}, folder.filePath("print.pdf").toStdString());
    press(Qt::Key_Return);
    EXPECT_EQ(focused(), "cmdExit");
    press(Qt::Key_Return);
    EXPECT_FALSE(chain.isLoaded<frmSummary>());
}

TEST_F(Keyboard, WhatHasScrolledAwayIsReadFromAButton)
{
    on<frmT1>().txtNSeg.setText("16");
    auto& form = on<frmT4>();
    form.resize(657, 306);
    for (int i = 0; i < 3; ++i)
        settle();
    EXPECT_EQ(focused(), "cmdCompute");
    const auto& across = *form.findChild<QScrollArea*>("rows")->horizontalScrollBar();
    const auto& down = *form.findChild<QScrollArea*>("rows")->verticalScrollBar();
    ASSERT_GT(across.maximum(), 0);
    ASSERT_GT(down.maximum(), 0);
    press(Qt::Key_End);
    EXPECT_EQ(across.value(), across.maximum());
    press(Qt::Key_Home);
    EXPECT_EQ(across.value(), 0);
    press(Qt::Key_PageDown);
    EXPECT_GT(down.value(), 0);
    press(Qt::Key_PageUp);
    EXPECT_EQ(down.value(), 0);
}

// The order of tabulation

QPoint middleOf(const QWidget& widget)
{
    return widget.geometry().center();
}

/// Whether `b` is read behind `a`, both children of one parent: boxes line by line, blocks down their column and then
/// on to the column at the right.
bool isReadAfter(const QWidget& a, const QWidget& b)
{
    const auto isControl = [](const QWidget& one) {
        return qobject_cast<const QLineEdit*>(&one) || qobject_cast<const QComboBox*>(&one) ||
               qobject_cast<const QAbstractButton*>(&one);
    };
    if (isControl(a) && isControl(b)) {
        const bool oneLine = std::abs(middleOf(a).y() - middleOf(b).y()) < a.height() / 2;
        return oneLine ? a.x() < b.x() : middleOf(a).y() < middleOf(b).y();
    }
    return b.geometry().top() > a.geometry().bottom() || b.geometry().left() > a.geometry().right();
}

bool isReadAfter(const QWidget& form, const QWidget& a, const QWidget& b)
{
    const QWidget* inA = &a;
    while (!inA->parentWidget()->isAncestorOf(&b) && inA->parentWidget() != &form)
        inA = inA->parentWidget();
    const QWidget* inB = &b;
    while (inB->parentWidget() != inA->parentWidget())
        inB = inB->parentWidget();
    return isReadAfter(*inA, *inB);
}

/// What Tab goes through, from the first box of the form to its last button.
std::vector<QWidget*> stopsOf(const QWidget& form)
{
    std::vector<QWidget*> stops;
    for (QWidget* at = form.nextInFocusChain(); at != &form; at = at->nextInFocusChain())
        if (at->window() == &form && (at->focusPolicy() & Qt::TabFocus) && at->isVisible() && at->isEnabled() &&
            !at->focusProxy() && !at->objectName().isEmpty() && !at->objectName().startsWith("qt_"))
            stops.push_back(at);
    return stops;
}

void expectReadingOrder(const QWidget& form)
{
    SCOPED_TRACE(form.objectName().toStdString());
    const std::vector<QWidget*> stops = stopsOf(form);
    EXPECT_GE(stops.size(), 1U);
    for (std::size_t i = 1; i < stops.size(); ++i)
        EXPECT_TRUE(isReadAfter(form, *stops[i - 1], *stops[i]))
            << "Tab goes back from " << stops[i - 1]->objectName().toStdString() << " to "
            << stops[i]->objectName().toStdString();
}

TEST_F(Keyboard, TabGoesInReadingOrderOnEveryScreen)
{
    openWithMostRows();
    for (const Step& step : steps) {
        for (auto* button : step.form->findChildren<QAbstractButton*>())
            button->setEnabled(true);
        settle();
        expectReadingOrder(*step.form);
    }
}

TEST_F(Keyboard, TabGoesInReadingOrderOnTheWorkedScreens)
{
    workSample([](const Step& step) { expectReadingOrder(*step.form); });
}

TEST_F(Keyboard, TheFirstSensibleBoxHasTheFocusOnEveryScreen)
{
    const std::map<std::string, std::string> first = {
        {"frmT1", "optBG"},    {"frmT2", "txtSoil1(0)"}, {"frmT4", "cmdCompute"},
        {"frmY", "txtNYd"},    {"frmM1", "txtNB"},       {"frmM2", "txtNLC"},
        {"frmS1", "txtND(0)"}, {"frmS2", "txtTB1"},      {"frmSummary", "cmdTransfer"}};
    workSample([&](const Step& step) {
        const std::string form =
            step.form->objectName().toStdString();  // frmT1: the header is filled, the gauge chosen
        EXPECT_EQ(step.form->focusWidget()->objectName().toStdString(), first.at(form)) << form;
    });
}

// Mnemonics

std::map<std::string, std::vector<std::string>> mnemonicsOf(const QWidget& form)
{
    std::map<std::string, std::vector<std::string>> mnemonics;
    for (const auto* button : form.findChildren<QAbstractButton*>())
        if (const QKeySequence key = QKeySequence::mnemonic(button->text()); !key.isEmpty())
            mnemonics[key.toString().toStdString()].push_back(button->objectName().toStdString());
    for (const auto* label : form.findChildren<QLabel*>())
        if (label->buddy() && label->text().contains('&'))
            mnemonics[QKeySequence::mnemonic(label->text()).toString().toStdString()].push_back("a label");
    return mnemonics;
}

TEST_F(Keyboard, MnemonicsAreClearOnEveryScreenButTheFirst)
{
    openEmpty();
    for (const Step& step : steps) {
        const std::string form = step.form->objectName().toStdString();
        const auto mnemonics = mnemonicsOf(*step.form);
        EXPECT_GE(mnemonics.size(), 1U) << form;
        for (const auto& [key, buttons] : mnemonics)
            EXPECT_EQ(buttons.size(), form == "frmStart" && key == "Alt+P" ? 2U : 1U)
                << form << ": " << key << " is " << buttons.front() << " and " << buttons.back();
    }
}

TEST_F(Keyboard, AltPGoesFromPrintToProceedAndSpaceOrEnterPresses)
{
    on<frmStart>();
    dialogs.expectFile(sample("1-ambapur.mdb"));
    QTest::keyClick(&find("cmdFile"), Qt::Key_Return);
    settle();
    ASSERT_EQ(focused(), "cmdProceed");
    press(Qt::Key_P, Qt::AltModifier);
    const std::string one = focused();
    press(Qt::Key_P, Qt::AltModifier);
    const std::string other = focused();
    EXPECT_TRUE((one == "cmdPrint" && other == "cmdProceed") || (one == "cmdProceed" && other == "cmdPrint"))
        << one << ", " << other;
    if (focused() != "cmdPrint")
        press(Qt::Key_P, Qt::AltModifier);
    ASSERT_EQ(focused(), "cmdPrint");
    EXPECT_FALSE(chain.isLoaded<frmT1>()) << "Alt+P alone presses neither";

    dialogs.expectPrintCancelled();
    press(Qt::Key_Space);
    EXPECT_EQ(dialogs.open(), 0U) << "Space did not press Print";
    press(Qt::Key_P, Qt::AltModifier);
    ASSERT_EQ(focused(), "cmdProceed");
    press(Qt::Key_Return);
    EXPECT_TRUE(chain.isLoaded<frmT1>()) << "Enter did not press Proceed";
}

// The next button to press

class NextButton : public TenScreens {  // slow
protected:
    static std::string marked(const QWidget& form)
    {
        std::string all;
        for (const auto* button : form.findChildren<QPushButton*>())
            if (button->isDefault() && button->isEnabled())
                all += (all.empty() ? "" : " ") + button->objectName().toStdString();
        return all;
    }

    /// Dots in which two pictures clearly differ, colours left out.
    static int difference(const QImage& a, const QImage& b)
    {
        int dots = 0;
        for (int y = 0; y < a.height(); ++y)
            for (int x = 0; x < a.width(); ++x)
                dots += std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) >= 16;
        return dots;
    }
};

TEST_F(NextButton, IsMarkedStepByStep)
{
    workSample([this](const Step& step) {
        const QWidget& form = *step.form;
        SCOPED_TRACE(form.objectName().toStdString());
        if (!step.import.empty()) {
            EXPECT_EQ(marked(form), step.import);
            click(step.import);
        }
        EXPECT_EQ(marked(form), step.compute);
    });
    for (const Step& step : steps) {
        const std::string form = step.form->objectName().toStdString();
        EXPECT_EQ(marked(*step.form), form == "frmStart" ? "cmdProceed" : "cmdPrint") << form;
    }
    const QTemporaryDir folder;
    for (const Step& step : steps) {
        const std::string form = step.form->objectName().toStdString();
        if (form == "frmStart")
            continue;
        dialogs.expectPrint({.firstPage = 1, .lastPage = 1, .copies = 1}, folder.filePath("print.pdf").toStdString());
        QTest::keyClick(&step.form->cmdPrint, Qt::Key_Return);
        settle();
        EXPECT_EQ(marked(*step.form), form == "frmSummary" ? "cmdExit" : "cmdNext") << form;
    }
}

TEST_F(NextButton, IsBrowseUntilADataFileIsChosen)
{
    auto& start = on<frmStart>();
    EXPECT_EQ(marked(start), "cmdFile");
    dialogs.expectFile(sample("1-ambapur.mdb"));
    click("cmdFile");
    EXPECT_EQ(marked(start), "cmdProceed");
    start.txtT1(1).setText("");  // as the summary leaves it for the next Sr SE
    EXPECT_EQ(marked(start), "cmdFile");
}

TEST_F(NextButton, IsNoImportWithoutADataFileButComputeOnceSomethingIsTyped)
{
    const frmY& yards = on<frmY>();
    EXPECT_EQ(marked(yards), "");
    type("txtNYd", "2");
    EXPECT_EQ(marked(yards), "cmdCOMPUTE");
}

TEST_F(NextButton, LooksDifferentInALightThemeAndInADarkOne)
{
    auto& start = on<frmStart>();
    const QPalette theme = QApplication::palette();
    for (const QPalette& palette : {theme, QPalette(Qt::white, QColor(60, 60, 60), QColor(80, 80, 80), Qt::black,
                                                    QColor(40, 40, 40), Qt::white, QColor(30, 30, 30))}) {
        QApplication::setPalette(palette);
        settle();
        start.cmdFile.setDefault(false);
        const QImage plain = start.cmdFile.grab().toImage();
        start.cmdFile.setDefault(true);
        const QImage marked = start.cmdFile.grab().toImage();
        EXPECT_GE(difference(plain, marked), 2 * start.cmdFile.width()) << "a frame around it, at least";
    }
    QApplication::setPalette(theme);
}

}  // namespace
