#include "screens/controls/button.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <gtest/gtest.h>

namespace {

/// How often Return and Enter, each coming once, press a button.
int clicksOfBothKeys(bool held)
{
    controls::Button button("cmdCompute", "&Compute");
    int clicks = 0;
    QObject::connect(&button, &QAbstractButton::clicked, [&] { ++clicks; });
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, "", held);
        QCoreApplication::sendEvent(&button, &event);
    }
    return clicks;
}

TEST(ButtonTest, EnterPressesIt)
{
    EXPECT_EQ(clicksOfBothKeys(false), 2);
}

// After an import the focus is on Compute, after Compute on Print: a finger left on Enter would go all the way.
TEST(ButtonTest, EnterHeldDownPressesItNotOnceMore)
{
    EXPECT_EQ(clicksOfBothKeys(true), 0);
}

}  // namespace
