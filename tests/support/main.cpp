#include <QApplication>
#include <QLocale>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>

// The offscreen platform remarks on every window that it can neither raise nor keep from shrinking.
static void quiet(QtMsgType, const QMessageLogContext&, const QString& message)
{
    if (!message.startsWith("This plugin does not support"))
        std::fprintf(stderr, "%s\n", message.toLocal8Bit().constData());
}

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
    qInstallMessageHandler(quiet);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
