#include "screens/controls/button.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <gtest/gtest.h>

namespace {

using controls::Button;

void press(Button& button, Qt::Key key, bool held)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, "", held);
    QCoreApplication::sendEvent(&button, &event);
}

TEST(ButtonTest, EnterPressesIt)
{
    Button button("cmdCompute", "&Compute");
    int clicks = 0;
    QObject::connect(&button, &QAbstractButton::clicked, [&] { ++clicks; });
    press(button, Qt::Key_Return, false);
    press(button, Qt::Key_Enter, false);
    EXPECT_EQ(clicks, 2);
}

// After an import the focus is on Compute, after Compute on Print: a finger left on Enter would go all the way.
TEST(ButtonTest, EnterHeldDownPressesItNotOnceMore)
{
    Button button("cmdCompute", "&Compute");
    int clicks = 0;
    QObject::connect(&button, &QAbstractButton::clicked, [&] { ++clicks; });
    press(button, Qt::Key_Return, true);
    press(button, Qt::Key_Enter, true);
    EXPECT_EQ(clicks, 0);
}

}  // namespace
