#include <QApplication>
#include <QLocale>
#include <clocale>
#include <cstdlib>
#include <gtest/gtest.h>

#include "division/offscreen.h"

int main(int argc, char* argv[])
{
    testing::InitGoogleTest(&argc, argv);
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    // A locale with a decimal comma or digits of its own, where there is one: a slip shows.
    for (const char* foreign : {"hi_IN.UTF-8", "de_DE.UTF-8"})
        if (std::setlocale(LC_ALL, foreign)) {
            setenv("LC_ALL", foreign, 1);
            break;
        }
    division::silenceOffscreenRemarks();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
