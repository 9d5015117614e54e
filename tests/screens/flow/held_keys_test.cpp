#include "screens/flow/held_keys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "support/screen_test.h"
#include "track/frmT1.h"

namespace {

constexpr quint32 ScanCode = 36;

/// The keyboard, with the times of its keys in ms. A window system of the desktop gives each key event a time; a
/// repeat's release and press have the same.
void send(QEvent::Type type, Qt::Key key, quint64 at, bool knownAsRepeat = false)
{
    const QString text = key < 128 ? QString(QChar(static_cast<char16_t>(key))).toLower() : QString("\r");
    QKeyEvent event(type, key, Qt::NoModifier, ScanCode, 0, 0, text, knownAsRepeat);
    event.setTimestamp(at);
    QCoreApplication::sendEvent(QApplication::focusWidget()->window()->windowHandle(), &event);
}

/// Three repeats, from half a second after the press on.
void repeat(Qt::Key key, quint64 pressedAt, bool knownAsRepeats)
{
    for (quint64 at = pressedAt + 500; at < pressedAt + 620; at += 40) {
        send(QEvent::KeyRelease, key, at, knownAsRepeats);
        send(QEvent::KeyPress, key, at, knownAsRepeats);
    }
}

/// Whether Qt knows the repeats as such: on a quiet machine, and on a busy one under X.
class HeldKeys : public ScreenTest, public testing::WithParamInterface<bool> {
protected:
    HeldKeys()
    {
        on<frmT1>();
        click("optBG");
        chain.get<frmT1>().txtNSeg.setText("1");
        find("cmdCompute").setFocus();
    }

    void hold(Qt::Key key, quint64 at)
    {
        send(QEvent::KeyPress, key, at);
        repeat(key, at, GetParam());
        send(QEvent::KeyRelease, key, at + 700);
        settle();
    }

    flow::HeldKeys heldKeys;
};

// Compute leads to Print, and Print to Next.
TEST_P(HeldKeys, PressOneButtonAlone)
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        auto& form = chain.get<frmT1>();
        form.cmdCompute.setEnabled(true);
        form.cmdCompute.setFocus();
        hold(key, 10'000);
        EXPECT_FALSE(form.cmdCompute.isEnabled()) << "Compute was not pressed";
        EXPECT_EQ(focus(), "cmdPrint");
    }
}

TEST_P(HeldKeys, AreHeldUpNoLongerOnceTheyAreLetGo)
{
    hold(Qt::Key_Return, 10'000);
    dialogs.expectPrintCancelled();
    send(QEvent::KeyPress, Qt::Key_Return, 10'750);  // 50 ms after it was let go
    settle();
    EXPECT_EQ(dialogs.open(), 0U) << "a quick press was lost";
}

TEST_P(HeldKeys, AnswerNoQuestionThatTheyHaveOpened)
{
    QMessageBox question(QMessageBox::Question, "", "Do you want to take a print of the form ?",
                         QMessageBox::Yes | QMessageBox::No);
    send(QEvent::KeyPress, Qt::Key_A, 10'000);
    QTimer::singleShot(0, &question, [&] {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&question));
        ASSERT_TRUE(question.isAncestorOf(QApplication::focusWidget()));
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape, Qt::Key_N}) {
            repeat(key, 10'000, GetParam());
            EXPECT_TRUE(question.isVisible()) << key;
        }
        send(QEvent::KeyRelease, Qt::Key_Return, 12'000);
        send(QEvent::KeyPress, Qt::Key_Return, 12'100);
        EXPECT_FALSE(question.isVisible()) << "pressed anew, Enter answers";
        question.reject();
    });
    question.exec();
}

TEST_P(HeldKeys, TypeAndGoFromBoxToBox)
{
    find("txtT1(0)").setFocus();
    hold(Qt::Key_A, 10'000);
    EXPECT_EQ(text("txtT1(0)"), "aaaa");
    send(QEvent::KeyPress, Qt::Key_Return, 11'000);
    EXPECT_EQ(focus(), "txtT1(2)");
    repeat(Qt::Key_Return, 11'000, GetParam());
    EXPECT_NE(focus(), "txtT1(2)");
}

INSTANTIATE_TEST_SUITE_P(Repeats, HeldKeys, testing::Bool(),
                         [](const auto& known) { return known.param ? "KnownAsSuch" : "AsFreshPresses"; });

class HeldMnemonic : public ScreenTest {};

TEST_F(HeldMnemonic, PressesNothingMore)
{
    on<frmT1>();
    click("optBG");
    chain.get<frmT1>().txtNSeg.setText("1");
    auto& compute = chain.get<frmT1>().cmdCompute;
    const flow::HeldKeys heldKeys;
    // Before it delivers a press, Qt asks the window whether this is a shortcut.
    const auto press = [&](bool held) {
        return qt_sendShortcutOverrideEvent(compute.window()->windowHandle(), 10'000, Qt::Key_C, Qt::AltModifier, "c",
                                            held);
    };
    EXPECT_FALSE(press(true)) << "taken for the mnemonic of Compute";
    EXPECT_FALSE(compute.isDown());
    EXPECT_TRUE(press(false));
    EXPECT_TRUE(compute.isDown());
    QTRY_VERIFY_WITH_TIMEOUT(!compute.isEnabled(), 2000);
}

}  // namespace
